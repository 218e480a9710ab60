// The language names of dictionary files.
#pragma once
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

// Binary dictionaries (.dic). A file that is shorter than its counts claim is an Error.
std::vector<std::string> ReadDicLanguages(const std::filesystem::path& file);
// XML dictionaries (.dix), read as lines. None for a missing file.
std::vector<std::string> ReadDixLanguages(const std::filesystem::path& file);

// From the bytes given; the file is named in errors.
std::vector<std::string> ParseDicLanguages(const std::filesystem::path& file, std::string_view bytes);
std::vector<std::string> ParseDixLanguages(std::string_view bytes);

} // namespace glotta
