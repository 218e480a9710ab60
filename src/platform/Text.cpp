#include "platform/Text.h"

#include "platform/CaseMap.h"
#include "platform/LineSpans.h"

#include <cstring>

namespace glotta {
namespace {

using Byte = unsigned char;
using Word = std::uint64_t;
constexpr Word Ones = 0x0101010101010101;

Word LoadWord(const char* at) {
    Word word;
    std::memcpy(&word, at, sizeof word);
    return word;
}

// One in each byte that continues a character (10xxxxxx).
Word Continuations(Word word) {
    return (word >> 7) & ~(word >> 6) & Ones;
}
std::size_t SumOfBytes(Word word) {
    return (word * Ones) >> 56;
}
bool IsContinuation(char byte) {
    return (Byte(byte) & 0xC0) == 0x80;
}

std::string MapCase(std::string_view text, char32_t (*map)(char32_t)) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t pos = 0; pos < text.size();) {
        if (Byte(text[pos]) < 0x80) {
            result += static_cast<char>(map(Byte(text[pos++])));
            continue;
        }
        const std::size_t begin = pos;
        const bool wellFormed = CharLength(text, pos) != 0;
        const char32_t character = NextChar(text, pos);
        if (wellFormed)
            AppendChar(result, map(character));
        else
            result += text[begin];
    }
    return result;
}

char32_t NextUpper(std::string_view text, std::size_t& pos) {
    const Byte byte = Byte(text[pos]);
    if (byte < 0x80) {
        ++pos;
        return byte >= 'a' && byte <= 'z' ? byte - 32 : byte;
    }
    return CaseMapUpper(NextChar(text, pos));
}

} // namespace

std::size_t CharLength(std::string_view text, std::size_t pos) {
    const Byte lead = Byte(text[pos]);
    if (lead < 0x80) return 1;
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() - pos < length) return 0;
    for (std::size_t i = 1; i < length; ++i)
        if (!IsContinuation(text[pos + i])) return 0;
    const Byte second = Byte(text[pos + 1]);
    const bool overlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
    const bool outside = (lead == 0xED && second >= 0xA0) || (lead == 0xF4 && second >= 0x90);
    return overlong || outside ? 0 : length;
}

std::size_t FindMalformed(std::string_view text, std::size_t pos) {
    while ((pos = FindNonAscii(text, pos)) < text.size()) {
        const std::size_t length = CharLength(text, pos);
        if (length == 0) break;
        pos += length;
    }
    return pos;
}

std::size_t CharCount(std::string_view text) {
    std::size_t continuations = 0, pos = 0;
    for (; pos + sizeof(Word) <= text.size(); pos += sizeof(Word))
        continuations += SumOfBytes(Continuations(LoadWord(text.data() + pos)));
    for (; pos < text.size(); ++pos)
        continuations += IsContinuation(text[pos]);
    return text.size() - continuations;
}

std::size_t ByteOffset(std::string_view text, std::size_t chars) {
    std::size_t pos = 0;
    while (pos + sizeof(Word) <= text.size()) {
        const std::size_t starts = sizeof(Word) - SumOfBytes(Continuations(LoadWord(text.data() + pos)));
        if (starts > chars) break;
        chars -= starts;
        pos += sizeof(Word);
    }
    for (; pos < text.size(); ++pos)
        if (!IsContinuation(text[pos]) && chars-- == 0) return pos;
    return text.size();
}

std::string_view CharPrefix(std::string_view text, std::size_t chars) {
    return chars >= text.size() ? text : text.substr(0, ByteOffset(text, chars));
}

char32_t NextChar(std::string_view text, std::size_t& pos) {
    const std::size_t length = CharLength(text, pos);
    if (length <= 1) return length == 1 ? Byte(text[pos++]) : (++pos, U'\uFFFD');
    char32_t character = Byte(text[pos]) & (0x7F >> length);
    for (std::size_t i = 1; i < length; ++i)
        character = (character << 6) | (Byte(text[pos + i]) & 0x3F);
    pos += length;
    return character;
}

void AppendChar(std::string& text, char32_t character) {
    const auto tail = [&](int shift) { text += static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | (character >> 6));
        tail(0);
    } else if (character < 0x10000) {
        text += static_cast<char>(0xE0 | (character >> 12));
        tail(6), tail(0);
    } else {
        text += static_cast<char>(0xF0 | (character >> 18));
        tail(12), tail(6), tail(0);
    }
}

std::size_t FindNonAscii(std::string_view text, std::size_t pos) {
    constexpr std::size_t Stride = 4 * sizeof(Word);
    for (; pos + Stride <= text.size(); pos += Stride) {
        const char* at = text.data() + pos;
        if ((LoadWord(at) | LoadWord(at + 8) | LoadWord(at + 16) | LoadWord(at + 24)) & (Ones * 0x80)) break;
    }
    while (pos < text.size() && Byte(text[pos]) < 0x80)
        ++pos;
    return std::min(pos, text.size());
}

bool IsAscii(std::string_view text) {
    return FindNonAscii(text) == text.size();
}

std::string UpperCase(std::string_view text) {
    return MapCase(text, CaseMapUpper);
}
std::string LowerCase(std::string_view text) {
    return MapCase(text, CaseMapLower);
}
char32_t UpperCase(char32_t character) {
    return CaseMapUpper(character);
}

bool SameText(std::string_view a, std::string_view b) {
    std::size_t i = 0, j = 0;
    while (i < a.size() && j < b.size())
        if (NextUpper(a, i) != NextUpper(b, j)) return false;
    return i == a.size() && j == b.size();
}

int CompareText(std::string_view a, std::string_view b) {
    std::size_t i = 0, j = 0;
    while (i < a.size() && j < b.size()) {
        const char32_t x = NextUpper(a, i), y = NextUpper(b, j);
        if (x != y) return x < y ? -1 : 1;
    }
    return int(i < a.size()) - int(j < b.size());
}

bool StartsWithText(std::string_view text, std::string_view prefix) {
    std::size_t i = 0, j = 0;
    while (i < text.size() && j < prefix.size())
        if (NextUpper(text, i) != NextUpper(prefix, j)) return false;
    return j == prefix.size();
}

std::string_view TrimLeft(std::string_view text) {
    std::size_t begin = 0;
    while (begin < text.size() && Byte(text[begin]) <= ' ')
        ++begin;
    return text.substr(begin);
}

std::string_view TrimRight(std::string_view text) {
    std::size_t end = text.size();
    while (end > 0 && Byte(text[end - 1]) <= ' ')
        --end;
    return text.substr(0, end);
}

std::string_view Trim(std::string_view text) {
    return TrimLeft(TrimRight(text));
}

std::string ReplaceStr(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    std::size_t done = 0;
    if (!from.empty()) {
        for (std::size_t at; (at = text.find(from, done)) != std::string_view::npos; done = at + from.size())
            result.append(text, done, at - done).append(to);
    }
    return result.append(text.substr(done));
}

std::vector<std::string> SplitLines(std::string_view text) {
    std::vector<std::string> lines;
    for (std::size_t pos = 0; pos < text.size();) {
        const LineSpan span = LineAt(text, pos);
        lines.emplace_back(text.substr(pos, span.end - pos));
        pos = span.next;
    }
    return lines;
}

std::string JoinLines(const std::vector<std::string>& lines, std::string_view separator) {
    std::string result;
    for (const std::string& line : lines) {
        if (&line != lines.data()) result += separator;
        result += line;
    }
    return result;
}

std::size_t TextHash::operator()(std::string_view text) const {
    Word hash = 0xCBF29CE484222325;
    for (std::size_t pos = 0; pos < text.size();)
        hash = (hash ^ NextUpper(text, pos)) * 0x100000001B3;
    return static_cast<std::size_t>(hash ^ (hash >> 32));
}

} // namespace glotta
