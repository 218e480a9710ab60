// A changed file as people read it.
#pragma once
#include "host/FileStore.h"
#include "platform/Encoding.h"

#include <optional>

#include <string>

namespace glotta {

// A unified diff; for a binary form one of its text form.
std::string ChangeText(const FileChange& change, const std::string& shown, std::optional<Encoding> hint);

} // namespace glotta
