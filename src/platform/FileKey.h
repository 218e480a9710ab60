// One text for all names of a file.
#pragma once
#include <filesystem>
#include <string>

namespace glotta {

// Links resolved; in one letter case where the system takes no regard of it.
std::string FileKey(const std::filesystem::path& file);

} // namespace glotta
