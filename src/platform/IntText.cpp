#include "platform/IntText.h"

#include <charconv>

namespace glotta {

std::optional<std::int32_t> StrToInt(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    int base = 10;
    for (const std::string_view prefix : {"$", "0x", "0X"})
        if (text.starts_with(prefix)) {
            base = 16;
            text.remove_prefix(prefix.size());
            break;
        }
    std::uint64_t number = 0;
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    if (failed != std::errc() || end != text.data() + text.size()) return {};
    // Hexadecimal digits are the 32 bits themselves.
    const std::uint64_t limit = base == 16 ? 0xFFFFFFFF : negative ? 0x80000000 : 0x7FFFFFFF;
    if (number > limit) return {};
    const auto bits = static_cast<std::uint32_t>(negative ? 0 - number : number);
    return static_cast<std::int32_t>(bits);
}

} // namespace glotta
