// Which file on disk a name means: letter case and separators need not be the disk's.
#pragma once
#include "platform/FileKey.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace glotta {

// The absolute path of a file; where it is not on disk, as it was named.
std::filesystem::path OnDisk(std::string_view fileName);
// A file beside another with another extension (".h"), in any letter case; empty when there is none.
std::filesystem::path Beside(const std::filesystem::path& file, std::string_view extension);

bool IsCppSource(const std::filesystem::path& file);
bool IsHeader(const std::filesystem::path& file);

} // namespace glotta
