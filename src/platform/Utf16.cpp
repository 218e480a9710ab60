#include "platform/Utf16.h"

#include "platform/Text.h"

namespace glotta {

std::u16string ToUtf16(std::string_view text) {
    std::u16string units;
    units.reserve(text.size());
    for (std::size_t pos = 0; pos < text.size();) {
        const char32_t character = NextChar(text, pos);
        if (character > 0xFFFF) {
            units += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
            units += static_cast<char16_t>(0xDC00 + (character & 0x3FF));
        } else {
            units += static_cast<char16_t>(character);
        }
    }
    return units;
}

std::string FromUtf16(std::u16string_view units) {
    const auto isHigh = [](char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; };
    const auto isLow = [](char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; };
    std::string text;
    text.reserve(units.size());
    for (std::size_t i = 0; i < units.size(); ++i) {
        const char16_t unit = units[i];
        if (isHigh(unit) && i + 1 < units.size() && isLow(units[i + 1]))
            AppendChar(text, 0x10000 + ((unit - 0xD800u) << 10) + (units[++i] - 0xDC00u));
        else
            AppendChar(text, isHigh(unit) || isLow(unit) ? U'\uFFFD' : char32_t(unit));
    }
    return text;
}

} // namespace glotta
