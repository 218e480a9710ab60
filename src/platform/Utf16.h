// UTF-16 units of a text, for system interfaces and formats that speak it.
#pragma once
#include <string>
#include <string_view>

namespace glotta {

// Every well-formed text comes back. A surrogate on its own becomes U+FFFD.
std::u16string ToUtf16(std::string_view text);
std::string FromUtf16(std::u16string_view units);

} // namespace glotta
