// Integers as settings files and registry values write them.
#pragma once
#include <cstdint>
#include <optional>
#include <string_view>

namespace glotta {

// Decimal, or hexadecimal behind "$" or "0x", with an optional sign and leading blanks; nothing for any other text and
// for numbers beyond 32 bits.
std::optional<std::int32_t> StrToInt(std::string_view text);

} // namespace glotta
