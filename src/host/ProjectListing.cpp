#include "host/ProjectListing.h"
#include "platform/Text.h"

#include <charconv>

namespace glotta {

bool IsIdentifier(std::string_view text) {
    const auto isLetter = [](unsigned char c) {
        return c == '_' || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c >= 0x80;
    };
    if (text.empty() || !isLetter(static_cast<unsigned char>(text.front()))) return false;
    return std::all_of(text.begin(), text.end(),
                       [&](unsigned char c) { return isLetter(c) || (c >= '0' && c <= '9'); });
}

std::string WrittenStem(std::string_view path) {
    const std::size_t slash = path.find_last_of("/\\");
    if (slash != std::string_view::npos) path.remove_prefix(slash + 1);
    return std::string(path.substr(0, path.rfind('.')));
}

bool IsXml(std::string_view text) {
    return TrimLeft(text).starts_with('<');
}

std::optional<unsigned> FindCodePageLine(std::string_view text) {
    constexpr std::string_view key = "CodePage=";
    for (std::size_t at = text.find(key); at != std::string_view::npos; at = text.find(key, at + 1)) {
        if (at > 0 && text[at - 1] != '\n' && text[at - 1] != '\r') continue;
        unsigned page = 0;
        const char* digits = text.data() + at + key.size();
        const auto parsed = std::from_chars(digits, text.data() + text.size(), page);
        if (parsed.ec == std::errc() && page > 0) return page;
    }
    return {};
}

} // namespace glotta
