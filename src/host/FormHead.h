// What the first line of a form file on disk says.
#pragma once
#include "vcl/FormFile.h"

#include <filesystem>
#include <optional>

namespace glotta {

// Only the file's first block is read. Nothing when the file does not begin as a form; opening it will say
// why.
std::optional<FormHead> ReadFormHead(const std::filesystem::path& formFile);

} // namespace glotta
