// The text format that Windows' registry editor exports and imports.
#pragma once
#include "platform/SectionedText.h"

#include <string>
#include <string_view>

namespace glotta {

// Reads "Windows Registry Editor Version 5.00" text; keys are sections, the default value has the empty name.
// Values of kinds other than text, deletions and comments are kept as found. `file` is for the Error "file:
// line N: reason".
SectionedText ParseRegText(std::string_view text, const std::string& file);

// An empty store.
inline constexpr std::string_view RegTextHead = "Windows Registry Editor Version 5.00\r\n";

// `"name"="value"`; hex(1) where the text holds what a quoted text cannot: control characters, undecodable bytes.
std::string RegEntry(std::string_view name, std::string_view value, std::string_view lineEnd);

} // namespace glotta
