// Words that no name may be.
#pragma once
#include <string_view>

namespace glotta {

bool IsReservedWord(std::string_view word, bool isCpp);

} // namespace glotta
