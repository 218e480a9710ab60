// Texts for and from the calls of Windows; there only. Nothing here fails: what is no text becomes U+FFFD.
#pragma once
#include <string>
#include <string_view>

namespace glotta {

std::wstring WideText(std::string_view text);
std::string FromWideText(std::wstring_view text);
// What the system says of one of its error codes, in the user's language.
std::string WindowsMessage(unsigned long code);

} // namespace glotta
