// The flags that the language combo editor offers, drawn here, and bitmap files.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace glotta {

inline constexpr int FlagWidth = 24, FlagHeight = 16;

std::size_t FlagCount();
std::string FlagBitmap(std::size_t flag); // the bytes of a BMP file

// Whether the bytes are a BMP file with all the pixels that it promises.
bool IsBitmap(std::string_view bytes);

} // namespace glotta
