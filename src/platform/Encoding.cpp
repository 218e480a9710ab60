// What an encoding cannot hold as a character becomes one of two ranges of private-use characters, and comes
// back:
//   U+10FE00 + byte              a byte that is no character, or not the one that the encoding would write
//   U+10F000 + (unit - 0xD800)   a UTF-16 surrogate on its own
// A source that holds such characters itself has them taken apart in the same way, byte by byte or unit by
// unit.
#include "platform/Encoding.h"

#include "platform/CodePages.h"
#include "platform/Text.h"

namespace glotta {
namespace {

constexpr char32_t RawByte = 0x10FE00;
constexpr char32_t RawUnit = 0x10F000;
constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF", Utf16LEMark = "\xFF\xFE", Utf16BEMark = "\xFE\xFF";

using Byte = unsigned char;

bool IsRawByte(char32_t character) {
    return character >= RawByte && character <= RawByte + 0xFF;
}
// Raw ASCII bytes come from double-byte pages and UTF-16 only; elsewhere they would turn text into syntax.
bool IsRawHighByte(char32_t character) {
    return IsRawByte(character) && character >= RawByte + 0x80;
}
bool IsRawUnit(char32_t character) {
    return character >= RawUnit && character <= RawUnit + 0x7FF;
}
void AppendRawByte(std::string& text, char byte) {
    AppendChar(text, RawByte + Byte(byte));
}
char ByteOf(char32_t rawByte) {
    return static_cast<char>(rawByte - RawByte);
}

std::string_view MarkOf(EncodingKind kind) {
    switch (kind) {
    case EncodingKind::Utf8:
        return Utf8Mark;
    case EncodingKind::Utf16LE:
        return Utf16LEMark;
    case EncodingKind::Utf16BE:
        return Utf16BEMark;
    case EncodingKind::CodePage:
        break;
    }
    return {};
}

// --- UTF-8

// Offset of the first malformed byte or raw-byte character; the size when there is none.
std::size_t FindUnplain(std::string_view bytes, std::size_t pos) {
    while ((pos = FindNonAscii(bytes, pos)) < bytes.size()) {
        const std::size_t length = CharLength(bytes, pos);
        if (length == 0) break;
        if (length == 4) {
            std::size_t next = pos;
            if (IsRawByte(NextChar(bytes, next))) break;
        }
        pos += length;
    }
    return pos;
}

std::string DecodeUtf8(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t pos = 0; pos < bytes.size();) {
        const std::size_t end = FindUnplain(bytes, pos);
        text.append(bytes, pos, end - pos);
        pos = end;
        if (pos < bytes.size())
            for (std::size_t left = std::max<std::size_t>(CharLength(bytes, pos), 1); left > 0; --left)
                AppendRawByte(text, bytes[pos++]);
    }
    return text;
}

void EncodeUtf8(std::string_view text, EncodeResult& result) {
    for (std::size_t pos = 0; pos < text.size();) {
        const std::size_t end = FindUnplain(text, pos);
        result.bytes.append(text, pos, end - pos);
        pos = end;
        if (pos >= text.size()) break;
        if (CharLength(text, pos) == 0) {
            result.bytes += text[pos++];
            continue;
        }
        const char32_t character = NextChar(text, pos);
        if (!IsRawHighByte(character)) {
            result.unencodable = character;
            return;
        }
        result.bytes += ByteOf(character);
    }
}

// --- UTF-16

constexpr bool IsHigh(unsigned unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}
constexpr bool IsLow(unsigned unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

std::string DecodeUtf16(std::string_view bytes, bool bigEndian) {
    const std::size_t count = bytes.size() / 2;
    const auto unit = [&](std::size_t index) -> unsigned {
        const Byte first = Byte(bytes[index * 2]), second = Byte(bytes[index * 2 + 1]);
        return bigEndian ? first * 256u + second : second * 256u + first;
    };
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t i = 0; i < count; ++i) {
        const unsigned one = unit(i);
        if (!IsHigh(one) && !IsLow(one)) {
            AppendChar(text, one);
            continue;
        }
        if (IsHigh(one) && i + 1 < count && IsLow(unit(i + 1))) {
            const char32_t character = 0x10000 + ((one - 0xD800) << 10) + (unit(i + 1) - 0xDC00);
            if (!IsRawByte(character) && !IsRawUnit(character)) {
                AppendChar(text, character);
                ++i;
                continue;
            }
        }
        AppendChar(text, RawUnit + (one - 0xD800));
    }
    if (bytes.size() % 2) AppendRawByte(text, bytes.back());
    return text;
}

void EncodeUtf16(std::string_view text, bool bigEndian, EncodeResult& result) {
    const auto append = [&](unsigned unit) {
        const char high = static_cast<char>(unit >> 8), low = static_cast<char>(unit & 0xFF);
        result.bytes += bigEndian ? high : low;
        result.bytes += bigEndian ? low : high;
    };
    for (std::size_t pos = 0; pos < text.size();) {
        const char32_t character = NextChar(text, pos);
        if (IsRawUnit(character)) {
            append(0xD800 + (character - RawUnit));
        } else if (IsRawByte(character)) {
            if (pos < text.size()) { // half a unit stands at the end only
                result.unencodable = character;
                return;
            }
            result.bytes += ByteOf(character);
        } else if (character > 0xFFFF) {
            append(0xD800 + ((character - 0x10000) >> 10));
            append(0xDC00 + (character & 0x3FF));
        } else {
            append(character);
        }
    }
}

// --- code pages

std::string DecodeCodePage(std::string_view bytes, const CodePageTable& table) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 4);
    for (std::size_t pos = 0; pos < bytes.size();) {
        const std::size_t end = FindNonAscii(bytes, pos);
        text.append(bytes, pos, end - pos);
        pos = end;
        while (pos < bytes.size() && Byte(bytes[pos]) >= 0x80) {
            const Byte lead = Byte(bytes[pos]);
            char32_t character = table.single[lead];
            std::size_t length = 1;
            if (table.leads[lead] && pos + 1 < bytes.size()) {
                character = table.Pair(lead, Byte(bytes[pos + 1]));
                // A lead byte without its trail byte swallows nothing: what follows may be a quote.
                length = character == CodePageTable::None ? 1 : 2;
            }
            if (character < CodePageTable::OtherPair)
                AppendChar(text, character);
            else
                for (std::size_t i = 0; i < length; ++i)
                    AppendRawByte(text, bytes[pos + i]);
            pos += length;
        }
    }
    return text;
}

void EncodeCodePage(std::string_view text, const CodePageTable& table, EncodeResult& result) {
    for (std::size_t pos = 0; pos < text.size();) {
        const std::size_t end = FindNonAscii(text, pos);
        result.bytes.append(text, pos, end - pos);
        pos = end;
        while (pos < text.size() && Byte(text[pos]) >= 0x80) {
            const char32_t character = NextChar(text, pos);
            if (IsRawHighByte(character) || (IsRawByte(character) && !table.pairs.empty())) {
                result.bytes += ByteOf(character);
                continue;
            }
            const auto code = table.back.find(character);
            if (code == table.back.end()) {
                result.unencodable = character;
                return;
            }
            if (code->second > 0xFF) result.bytes += static_cast<char>(code->second >> 8);
            result.bytes += static_cast<char>(code->second & 0xFF);
        }
    }
}

// --- names

// Names that are not a code page's own, its number, or a number behind "cp", "windows-" or "win".
struct Alias {
    std::string_view name;
    Encoding encoding;
};
const Encoding Utf8{EncodingKind::Utf8}, Utf16LE{EncodingKind::Utf16LE, 1252, true},
    Utf16BE{EncodingKind::Utf16BE, 1252, true}, Utf8Bom{EncodingKind::Utf8, 1252, true};
const Alias Aliases[] = {
    {"utf-8", Utf8},
    {"utf8", Utf8},
    {"65001", Utf8},
    {"utf-8-bom", Utf8Bom},
    {"utf8-bom", Utf8Bom},
    {"utf-16", Utf16LE},
    {"utf16", Utf16LE},
    {"utf-16le", Utf16LE},
    {"utf16le", Utf16LE},
    {"1200", Utf16LE},
    {"utf-16be", Utf16BE},
    {"utf16be", Utf16BE},
    {"1201", Utf16BE},
    {"latin1", {EncodingKind::CodePage, 28591}},
    {"latin-1", {EncodingKind::CodePage, 28591}},
    {"shift_jis", {EncodingKind::CodePage, 932}},
    {"sjis", {EncodingKind::CodePage, 932}},
    {"gbk", {EncodingKind::CodePage, 936}},
    {"gb2312", {EncodingKind::CodePage, 936}},
    {"euc-kr", {EncodingKind::CodePage, 949}},
    {"big5", {EncodingKind::CodePage, 950}},
};

Encoding WithMark(Encoding encoding, bool mark) {
    encoding.bom = mark;
    return encoding;
}

} // namespace

std::string Encoding::Name() const {
    switch (kind) {
    case EncodingKind::Utf8:
        return bom ? "utf-8-bom" : "utf-8";
    case EncodingKind::Utf16LE:
        return "utf-16le";
    case EncodingKind::Utf16BE:
        return "utf-16be";
    case EncodingKind::CodePage:
        break;
    }
    for (const CodePageName& page : CodePageNames())
        if (page.number == codePage) return std::string(page.name);
    return "cp" + std::to_string(codePage);
}

std::optional<Encoding> EncodingByName(std::string_view name) {
    const std::string wanted = LowerCase(Trim(name));
    for (const Alias& alias : Aliases)
        if (wanted == alias.name) return alias.encoding;
    std::string_view number = wanted;
    for (const std::string_view prefix : {"windows-", "windows", "win-", "win", "cp-", "cp"})
        if (number.starts_with(prefix)) {
            number.remove_prefix(prefix.size());
            break;
        }
    for (const CodePageName& page : CodePageNames())
        if (wanted == page.name || number == std::to_string(page.number))
            return Encoding{EncodingKind::CodePage, page.number, false};
    return {};
}

Encoding DetectEncoding(std::string_view bytes, std::optional<Encoding> told, std::optional<Encoding> hint) {
    if (bytes.starts_with(Utf8Mark)) return {EncodingKind::Utf8, 1252, true};
    if (bytes.starts_with(Utf16LEMark)) return {EncodingKind::Utf16LE, 1252, true};
    if (bytes.starts_with(Utf16BEMark)) return {EncodingKind::Utf16BE, 1252, true};
    if (told) return WithMark(*told, false);
    std::size_t pos = FindNonAscii(bytes);
    const bool ascii = pos == bytes.size();
    while (pos < bytes.size() && CharLength(bytes, pos) != 0)
        pos = FindNonAscii(bytes, pos + CharLength(bytes, pos));
    if (!ascii && pos == bytes.size()) return {EncodingKind::Utf8, 1252, false};
    return WithMark(hint.value_or(Encoding{}), false);
}

std::string Decode(std::string_view bytes, const Encoding& encoding) {
    if (encoding.bom && bytes.starts_with(MarkOf(encoding.kind)))
        bytes.remove_prefix(MarkOf(encoding.kind).size());
    switch (encoding.kind) {
    case EncodingKind::Utf8:
        return DecodeUtf8(bytes);
    case EncodingKind::Utf16LE:
        return DecodeUtf16(bytes, false);
    case EncodingKind::Utf16BE:
        return DecodeUtf16(bytes, true);
    case EncodingKind::CodePage:
        break;
    }
    return IsAscii(bytes) ? std::string(bytes) : DecodeCodePage(bytes, TableOfCodePage(encoding.codePage));
}

EncodeResult Encode(std::string_view text, const Encoding& encoding) {
    EncodeResult result;
    if (encoding.bom) result.bytes = MarkOf(encoding.kind);
    switch (encoding.kind) {
    case EncodingKind::Utf8:
        EncodeUtf8(text, result);
        break;
    case EncodingKind::Utf16LE:
        EncodeUtf16(text, false, result);
        break;
    case EncodingKind::Utf16BE:
        EncodeUtf16(text, true, result);
        break;
    case EncodingKind::CodePage:
        if (IsAscii(text))
            result.bytes.append(text);
        else
            EncodeCodePage(text, TableOfCodePage(encoding.codePage), result);
        break;
    }
    return result;
}

std::string WellFormed(std::string text) {
    for (std::size_t bad = 0; (bad = FindMalformed(text, bad)) < text.size();) {
        std::string raw;
        AppendRawByte(raw, text[bad]);
        text.replace(bad, 1, raw);
    }
    return text;
}

bool HasRawCharacters(std::string_view text) {
    for (std::size_t pos = text.find('\xF4'); pos != std::string_view::npos;
         pos = text.find('\xF4', pos + 1)) {
        std::size_t next = pos;
        const char32_t character = NextChar(text, next);
        if (IsRawByte(character) || IsRawUnit(character)) return true;
    }
    return false;
}

bool CanEncode(std::string_view text, const Encoding& encoding) {
    return !Encode(text, encoding).unencodable;
}

} // namespace glotta
