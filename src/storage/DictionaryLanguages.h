// The language names of dictionary files.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

namespace glotta {

// Binary dictionaries (.dic). A file that is shorter than its counts claim is an Error.
std::vector<std::string> ReadDicLanguages(const std::filesystem::path& file);
// XML dictionaries (.dix), read as lines. None for a missing file.
std::vector<std::string> ReadDixLanguages(const std::filesystem::path& file);

} // namespace glotta
