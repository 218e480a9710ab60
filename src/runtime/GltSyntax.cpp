#include "runtime/GltSyntax.h"

#include "platform/Encoding.h"
#include "platform/Error.h"
#include "platform/Text.h"
#include "runtime/Record.h"

#include <charconv>

namespace glotta {
namespace {

constexpr std::string_view Backslash = "\\";

struct Letter { // behind the escape character
    char letter, meaning;
};
constexpr Letter Letters[] = {{'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'s', ' '}};
constexpr char NothingLetter = 'e'; // an empty text where nothing would be lost
constexpr char NoTextsDigit = '0';  // a record without texts

// Stands behind the escape character as it is. Not "=", which ends the name of a line wherever it is.
bool IsPunctuation(char32_t c) {
    if (c == '=') return false;
    return (c > ' ' && c < '0') || (c > '9' && c < 'A') || (c > 'Z' && c < 'a') || (c > 'z' && c < 0x7F);
}

// What editors do not show, or take for a line end.
bool IsInvisible(char32_t c) {
    return c < ' ' || (c >= 0x7F && c < 0xA0) || c == 0x2028 || c == 0x2029 || c == 0xFEFF;
}

bool IsBlank(char c) {
    return static_cast<unsigned char>(c) <= ' ';
}

void AppendEscaped(std::string& out, std::string_view escape, char32_t c) {
    out += escape;
    for (const Letter& letter : Letters)
        if (c == static_cast<unsigned char>(letter.meaning)) {
            out += letter.letter;
            return;
        }
    if (IsPunctuation(c)) {
        out += static_cast<char>(c);
        return;
    }
    char digits[8];
    const auto end = std::to_chars(digits, digits + sizeof digits, static_cast<std::uint32_t>(c), 16).ptr;
    out.append("u{").append(digits, end).append("}");
}

// What else than the escape character and invisible ones has to be escaped. `rest` begins at the character.
using MustEscape = bool (*)(std::string_view rest, bool first, std::string_view delimiter);

bool InText(std::string_view rest, bool first, std::string_view delimiter) {
    if (rest[0] == ' ' && (first || rest.size() == 1)) return true;
    return !delimiter.empty() && (rest.starts_with(delimiter) || delimiter.starts_with(rest));
}

bool InName(std::string_view rest, bool first, std::string_view) {
    if (first && (rest[0] == ';' || rest[0] == '#' || rest[0] == '[')) return true;
    return rest[0] == '=' || InText(rest, first, {});
}

// Where the characters end, from `pos` on, that are written as they are under all circumstances.
std::size_t PlainEnd(std::string_view text, std::size_t pos, char escape, char delimiter) {
    if (pos == 0) return 0;
    const auto isPlain = [&](char c) {
        return c >= ' ' && c < 0x7F && c != '=' && c != escape && c != delimiter;
    };
    while (pos < text.size() && isPlain(text[pos]))
        ++pos;
    return pos == text.size() && text[pos - 1] == ' ' ? pos - 1 : pos;
}

void AppendText(std::string& out, std::string_view text, std::string_view escape, std::string_view delimiter,
                MustEscape must) {
    const char delimiterBegin = delimiter.empty() ? escape[0] : delimiter[0];
    for (std::size_t pos = 0; pos < text.size();) {
        const std::size_t plain = PlainEnd(text, pos, escape[0], delimiterBegin);
        if (plain > pos) {
            out.append(text, pos, plain - pos);
            pos = plain;
            continue;
        }
        const std::size_t begin = pos;
        const std::string_view rest = text.substr(pos);
        if (rest.starts_with(escape)) {
            out.append(escape).append(escape);
            pos += escape.size();
            continue;
        }
        const bool ascii = static_cast<unsigned char>(rest[0]) < 0x80;
        const char32_t c = NextChar(text, pos);
        const std::string_view bytes = text.substr(begin, pos - begin);
        if (IsInvisible(c) || (!ascii && HasRawCharacters(bytes)) || must(rest, begin == 0, delimiter))
            AppendEscaped(out, escape, c);
        else
            out += bytes;
    }
}

// Reads the escape at the beginning of `rest`, which becomes what follows.
void ReadEscape(std::string& out, std::string_view& rest, std::string_view escape) {
    const std::string_view whole = rest;
    rest.remove_prefix(escape.size());
    if (rest.starts_with(escape)) {
        out += escape;
        rest.remove_prefix(escape.size());
        return;
    }
    const char c = rest.empty() ? '\0' : rest[0];
    for (const Letter& letter : Letters)
        if (c == letter.letter) {
            out += letter.meaning;
            rest.remove_prefix(1);
            return;
        }
    if (c == NothingLetter || (c > 0 && IsPunctuation(static_cast<unsigned char>(c)))) {
        if (c != NothingLetter) out += c;
        rest.remove_prefix(1);
        return;
    }
    if (rest.starts_with("u{")) {
        std::uint32_t code = 0;
        const char* const end = rest.data() + rest.size();
        const auto [behind, failed] = std::from_chars(rest.data() + 2, end, code, 16);
        const bool surrogate = code >= 0xD800 && code < 0xE000;
        if (failed == std::errc() && behind < end && *behind == '}' && code <= 0x10FFFF && !surrogate) {
            AppendChar(out, code);
            rest.remove_prefix(static_cast<std::size_t>(behind - rest.data()) + 1);
            return;
        }
    }
    throw Error("unknown escape \"" + std::string(CharPrefix(whole, 2)) + "\"");
}

// Takes one text from the beginning of `rest`. What is left begins with the delimiter or is empty; without a
// delimiter everything is one text.
void TakeText(std::string& text, std::string_view& rest, std::string_view escape,
              std::string_view delimiter) {
    const char special[] = {escape[0], delimiter.empty() ? escape[0] : delimiter[0], '\xF4'};
    while (true) {
        const std::size_t plain = std::min(rest.find_first_of({special, sizeof special}), rest.size());
        text.append(rest.substr(0, plain));
        rest.remove_prefix(plain);
        if (rest.empty()) return;
        if (rest.starts_with(escape)) {
            ReadEscape(text, rest, escape);
            continue;
        }
        if (!delimiter.empty() && rest.starts_with(delimiter)) return;
        const std::string_view character = CharPrefix(rest, 1);
        if (HasRawCharacters(character))
            throw Error("this holds bytes that are no text in the file's encoding");
        text += character;
        rest.remove_prefix(character.size());
    }
}

std::string ReadWhole(std::string_view value, std::string_view escape) {
    std::string text;
    TakeText(text, value, escape, {});
    return text;
}

} // namespace

GltSyntax GltSyntax::For(std::string_view delimiter) {
    if (delimiter.empty()) throw Error("You cannot use empty delimiter!");
    if (delimiter.find_first_of("\r\n") != delimiter.npos ||
        HasRawCharacters(Decode(delimiter, {EncodingKind::Utf8})))
        throw Error("A delimiter cannot hold line breaks or bytes that are no text");
    GltSyntax syntax;
    syntax.delimiter = delimiter;
    const auto taken = [&] { return delimiter.find(syntax.escape) != delimiter.npos; };
    for (const char candidate : {'\\', '^', '%', '|', '`', '&'})
        if (syntax.escape = candidate; !taken()) return syntax;
    for (char32_t candidate = 0xA1; taken(); ++candidate) {
        syntax.escape.clear();
        AppendChar(syntax.escape, candidate);
    }
    return syntax;
}

GltSyntax::Line GltSyntax::Write(std::string_view record) const {
    RecordReader fields(record);
    Line result;
    result.name = GltName(fields.Next());
    std::string& line = result.line;
    line.reserve(result.name.size() + record.size() + 64);
    line.append(result.name).append("=");
    const std::size_t begin = line.size();
    if (fields.AtEnd()) (line += escape) += NoTextsDigit;
    while (!fields.AtEnd()) {
        AppendText(line, fields.Next(), escape, delimiter, InText);
        if (!fields.AtEnd()) line += delimiter;
    }
    // Blanks at the ends are no part of a value, not even those of the delimiter.
    if (begin < line.size() && IsBlank(line[begin])) line.insert(begin, escape + NothingLetter);
    if (begin < line.size() && IsBlank(line.back())) (line += escape) += NothingLetter;
    return result;
}

std::string GltSyntax::Read(std::string_view name, std::string_view value) const {
    std::string record = JoinFields({ReadGltName(name)});
    if (value == escape + NoTextsDigit) return record;
    record.reserve(record.size() + value.size() + 1);
    for (std::string text;; text.clear(), value.remove_prefix(delimiter.size())) {
        TakeText(text, value, escape, delimiter);
        AppendField(record, text);
        if (value.empty()) return record;
    }
}

std::string GltSyntax::Text(std::string_view text) const {
    std::string written;
    AppendText(written, text, escape, {}, InText);
    return written;
}

std::string GltSyntax::ReadText(std::string_view value) const {
    return ReadWhole(value, escape);
}

std::string GltName(std::string_view name) {
    std::string written;
    AppendText(written, name, Backslash, {}, InName);
    if (name.empty()) written.append(Backslash) += NothingLetter;
    return written;
}

std::string ReadGltName(std::string_view written) {
    return ReadWhole(written, Backslash);
}

} // namespace glotta
