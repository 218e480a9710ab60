// Keyboard shortcuts: a virtual key plus modifier bits, and their text form ("Ctrl+L").
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace glotta {

using TShortCut = std::uint16_t;
inline constexpr TShortCut scShift = 0x2000, scCtrl = 0x4000, scAlt = 0x8000;

// Empty for a code without a key that has a name.
std::string ShortCutToText(TShortCut shortCut);
// Without regard to letter case; "^L" is "Ctrl+L". 0 for a text that names no key.
TShortCut TextToShortCut(std::string_view text);

} // namespace glotta
