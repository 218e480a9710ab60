// UTF-8 text: characters are code points, letter case follows Unicode (simple mappings, never from a non-ASCII
// character to an ASCII one). Changing the case keeps the number of characters, not always that of bytes.
#pragma once
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

// Number of characters of a well-formed text. Runs at memory speed; ASCII text costs no decoding.
std::size_t CharCount(std::string_view text);
// Byte offset of the character with the 0-based index `chars`; the text's size when there are fewer.
std::size_t ByteOffset(std::string_view text, std::size_t chars);
// The first `chars` characters.
std::string_view CharPrefix(std::string_view text, std::size_t chars);
// Decodes the character at byte `pos` (pos < size) and moves pos behind it. Malformed bytes give U+FFFD each.
char32_t NextChar(std::string_view text, std::size_t& pos);
void AppendChar(std::string& text, char32_t character);
bool IsAscii(std::string_view text);
// Offset of the first byte from `pos` on that is not ASCII; the text's size when there is none.
std::size_t FindNonAscii(std::string_view text, std::size_t pos = 0);
// Bytes of the well-formed character at byte `pos` (pos < size); 0 when the bytes there are malformed.
std::size_t CharLength(std::string_view text, std::size_t pos);
// Offset of the first byte from `pos` on that begins no well-formed character; the text's size when there is none.
std::size_t FindMalformed(std::string_view text, std::size_t pos = 0);

std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);
char32_t UpperCase(char32_t character);
// Equality and order without regard to letter case.
bool SameText(std::string_view a, std::string_view b);
int CompareText(std::string_view a, std::string_view b);
bool StartsWithText(std::string_view text, std::string_view prefix);

// Cuts blanks and control characters (codes up to 32).
std::string_view Trim(std::string_view text);
std::string_view TrimLeft(std::string_view text);
std::string_view TrimRight(std::string_view text);

// All occurrences, left to right, exact.
std::string ReplaceStr(std::string_view text, std::string_view from, std::string_view to);
// Lines without their ends; CR LF, LF and CR each end a line. A final line end adds no empty line.
std::vector<std::string> SplitLines(std::string_view text);
std::string JoinLines(const std::vector<std::string>& lines, std::string_view separator = "\r\n");

// For hashed look-ups that ignore letter case (transparent).
struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const;
};
struct TextEqual {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return SameText(a, b); }
};

} // namespace glotta
