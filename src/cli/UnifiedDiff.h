// The difference of two texts as a unified diff.
#pragma once
#include <string>
#include <string_view>

namespace glotta {

// Lines are compared without their ends. Empty when the texts are equal line by line.
std::string UnifiedDiff(const std::string& fileName, std::string_view before, std::string_view after);

} // namespace glotta
