// A changed file as people read it.
#pragma once
#include "host/FileStore.h"
#include "platform/Encoding.h"

#include <optional>

#include <string>

namespace glotta {

// A unified diff; for a binary form one of its text form.
std::string ChangeText(const FileChange& change, const std::string& shown, std::optional<Encoding> hint);

// "1 file written", "3 files to change (--apply writes them)": how a command that may be a dry run ends.
std::string FilesText(std::size_t files, bool applied);

} // namespace glotta
