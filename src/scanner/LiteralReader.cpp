#include "scanner/LiteralReader.h"

#include "platform/Text.h"

namespace glotta {
namespace {

constexpr auto Nowhere = std::string_view::npos;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
bool IsBlank(char c) {
    return static_cast<unsigned char>(c) <= ' ';
}
bool IsWordChar(char c) {
    return IsDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

int HexValue(char c) {
    if (IsDigit(c)) return c - '0';
    const char upper = static_cast<char>(c & ~0x20);
    return upper >= 'A' && upper <= 'F' ? upper - 'A' + 10 : -1;
}

bool IsPrefix(std::string_view word) {
    return word == "L" || word == "R" || word == "u8" || word == "u" || word == "U" || word == "LR" ||
           word == "u8R" || word == "uR" || word == "UR";
}

bool IsWrapper(std::string_view word) {
    return word == "_T" || word == "TEXT";
}

// The word that ends at `end`, not reaching back before `from`.
std::string_view WordBefore(std::string_view text, std::size_t end, std::size_t from) {
    std::size_t begin = end;
    while (begin > from && IsWordChar(text[begin - 1]))
        --begin;
    return text.substr(begin, end - begin);
}

std::string_view WordAt(std::string_view text, std::size_t begin, std::size_t limit) {
    std::size_t end = begin;
    while (end < limit && IsWordChar(text[end]))
        ++end;
    return text.substr(begin, end - begin);
}

// A double quote that is itself a character constant: '"' or '\"'.
bool IsQuotedQuote(std::string_view text, std::size_t at, std::size_t from) {
    if (at + 1 >= text.size() || text[at + 1] != '\'' || at == from) return false;
    return text[at - 1] == '\'' || (at - from >= 2 && text[at - 1] == '\\' && text[at - 2] == '\'');
}

// The text between the delimiters with its escaped delimiters turned back.
void AppendContent(std::string& value, std::string_view content, bool isCpp) {
    for (std::size_t pos = 0; pos < content.size(); ++pos) {
        const char c = content[pos];
        const bool last = pos + 1 == content.size();
        if (!isCpp && c == '\'' && !last)
            ++pos; // a doubled quote
        else if (isCpp && c == '\\' && !last && content[++pos] != '"')
            value += c; // any other escape stays as written
        value += content[pos];
    }
}

} // namespace

std::size_t LiteralReader::SkipBlanks(std::size_t pos, std::size_t limit) const {
    while (pos < limit && IsBlank(text_[pos]))
        ++pos;
    return pos;
}

LiteralStart LiteralReader::Quoted(std::size_t open, std::size_t limit) const {
    LiteralStart start{.begin = open, .open = open, .contentBegin = open + 1};
    if (rawStrings_) {
        const std::string_view word = WordBefore(text_, open, open - std::min<std::size_t>(open, 4));
        const bool raw = word.ends_with('R') && IsPrefix(word);
        const std::size_t bracket =
            raw ? text_.substr(0, std::min(limit, open + 18)).find('(', open) : Nowhere;
        if (bracket != Nowhere) {
            const std::string closing = ')' + std::string(text_.substr(open + 1, bracket - open - 1)) + '"';
            start.raw = true;
            start.contentBegin = bracket + 1;
            start.contentEnd = text_.substr(0, limit).find(closing, bracket + 1);
            if (start.contentEnd != Nowhere) start.close = start.contentEnd + closing.size();
            return start;
        }
    }
    const char delimiter = flavour_.STRDELIM[0];
    for (std::size_t pos = open + 1; pos < limit; ++pos) {
        const char c = text_[pos];
        if (c == '\n') break;
        if (flavour_.IsCPPSource && c == '\\') {
            if (pos + 1 < limit && text_[pos + 1] != '\n') ++pos;
        } else if (c == delimiter) {
            if (!flavour_.IsCPPSource && pos + 1 < limit && text_[pos + 1] == delimiter) {
                ++pos;
                continue;
            }
            start.contentEnd = pos;
            start.close = pos + 1;
            break;
        }
    }
    return start;
}

std::size_t LiteralReader::FindDelimiter(std::size_t from, std::size_t limit) const {
    const char delimiter = flavour_.STRDELIM[0];
    const std::string_view line = text_.substr(0, limit);
    std::size_t open = line.find(delimiter, from);
    if (flavour_.IsCPPSource)
        while (open != Nowhere && IsQuotedQuote(line, open, from))
            open = line.find(delimiter, open + 1);
    return open;
}

void LiteralReader::JoinBefore(LiteralStart& start, std::size_t from, std::size_t limit) const {
    if (!flavour_.IsCPPSource) {
        start.begin = CodesBefore(start.open, from, limit);
        return;
    }
    const std::string_view word = WordBefore(text_, start.open, from);
    if (IsPrefix(word)) start.begin = start.open - word.size();
    const std::size_t wrapper = WrapperBefore(start.begin, from);
    if (wrapper == Nowhere) return;
    std::size_t end = wrapper;
    std::string ignored;
    if (ReadWrapper(end, limit, ignored)) start.begin = wrapper;
}

std::size_t LiteralReader::CodesBefore(std::size_t begin, std::size_t from, std::size_t limit) const {
    std::string ignored;
    for (;;) {
        // The longest code, "#$FF", is four characters; what is read must reach exactly to what is joined
        // already.
        std::size_t code = begin;
        do {
            if (code == from || begin - code == 4) return begin;
            --code;
        } while (text_[code] != '#' && text_[code] != '^');
        std::size_t end = code;
        if (!ReadCode(end, limit, ignored) || end != begin) return begin;
        // Behind a name or a closing bracket "^" is a dereference.
        if (text_[code] == '^' && code > from) {
            const char before = text_[code - 1];
            if (IsWordChar(before) || before == ')' || before == ']' || before == '^') return begin;
        }
        begin = code;
    }
}

// The place of _T or TEXT when the literal at `begin` stands right behind its bracket.
std::size_t LiteralReader::WrapperBefore(std::size_t begin, std::size_t from) const {
    const auto back = [&](std::size_t pos) {
        while (pos > from && IsBlank(text_[pos - 1]))
            --pos;
        return pos;
    };
    const std::size_t bracket = back(begin);
    if (bracket == from || text_[bracket - 1] != '(') return Nowhere;
    const std::size_t end = back(bracket - 1);
    const std::string_view word = WordBefore(text_, end, from);
    return IsWrapper(word) ? end - word.size() : Nowhere;
}

bool LiteralReader::ReadCode(std::size_t& pos, std::size_t limit, std::string& value) const {
    const std::string_view rest = text_.substr(pos, std::min<std::size_t>(limit - pos, 4));
    if (rest.starts_with("^M")) {
        value += "\r\n";
        pos += 2;
        return true;
    }
    // These are taken as they stand, so "#99" is a tab and a 9.
    for (const std::string_view known : {"#13", "#10", "#9"}) {
        if (!rest.starts_with(known)) continue;
        value += known == "#13" ? '\r' : known == "#10" ? '\n' : '\t';
        pos += known.size();
        return true;
    }
    if (!rest.starts_with('#')) return false;
    const bool hex = rest.starts_with("#$");
    const std::size_t first = hex ? 2 : 1;
    std::size_t used = first;
    char32_t code = 0;
    for (; used < rest.size() && used < first + 2; ++used) {
        const int digit = HexValue(rest[used]);
        if (digit < 0 || (!hex && digit > 9)) break;
        code = code * (hex ? 16 : 10) + static_cast<char32_t>(digit);
    }
    if (used == first) return false;
    AppendChar(value, code);
    pos += used;
    return true;
}

bool LiteralReader::ReadLiteral(std::size_t& pos, std::size_t limit, std::string& value) const {
    std::size_t open = pos;
    if (flavour_.IsCPPSource) {
        const std::string_view word = WordAt(text_, pos, std::min(limit, pos + 4));
        if (IsPrefix(word)) open += word.size();
    }
    if (open >= limit || text_[open] != flavour_.STRDELIM[0]) return false;
    const LiteralStart start = Quoted(open, limit);
    if (start.close == Nowhere) return false;
    const std::string_view content = text_.substr(start.contentBegin, start.contentEnd - start.contentBegin);
    if (start.raw)
        value += content;
    else
        AppendContent(value, content, flavour_.IsCPPSource);
    pos = start.close;
    return true;
}

bool LiteralReader::ReadWrapper(std::size_t& pos, std::size_t limit, std::string& value) const {
    const std::string_view word = WordAt(text_, pos, std::min(limit, pos + 5));
    if (!IsWrapper(word)) return false;
    std::size_t at = SkipBlanks(pos + word.size(), limit);
    if (at >= limit || text_[at] != '(') return false;
    std::string inner;
    int literals = 0;
    at = SkipBlanks(at + 1, limit);
    for (; ReadLiteral(at, limit, inner); ++literals)
        at = SkipBlanks(at, limit);
    if (at >= limit || text_[at] != ')' || literals == 0) return false;
    value += inner;
    pos = at + 1;
    return true;
}

LiteralExpression LiteralReader::Decode(std::size_t begin, std::size_t limit) const {
    LiteralExpression result;
    result.end = begin;
    bool concatenation = false;
    bool afterLiteral = false;
    std::size_t pos = begin;
    for (;;) {
        pos = SkipBlanks(pos, limit);
        if (pos >= limit) break;
        if (text_[pos] == '+' && !concatenation) {
            concatenation = true;
            result.tailEnd = ++pos;
            continue;
        }
        const std::size_t size = result.value.size();
        if (ReadCode(pos, limit, result.value)) {
            afterLiteral = false;
        } else if (ReadLiteral(pos, limit, result.value) ||
                   (flavour_.IsCPPSource && ReadWrapper(pos, limit, result.value))) {
            // Two Pascal literals side by side stand for one that holds a quote; C/C++ joins them.
            if (afterLiteral && !concatenation && !flavour_.IsCPPSource)
                result.value.insert(size, flavour_.STRDELIM);
            afterLiteral = true;
        } else {
            break;
        }
        concatenation = false;
        result.end = pos;
    }
    if (concatenation) {
        result.tail = Tail::Concatenation;
        while (result.tailEnd < limit && (text_[result.tailEnd] == ' ' || text_[result.tailEnd] == '\t'))
            ++result.tailEnd;
    } else if (pos < limit && text_[pos] == ';') {
        result.tail = Tail::Statement;
        result.tailEnd = pos + 1;
    } else {
        result.tailEnd = result.end;
    }
    return result;
}

void DecodeStringExpression(std::string_view& rest, std::string& value, const SourceFlavour& flavour) {
    LiteralExpression expression = LiteralReader(rest, flavour).Decode(0, rest.size());
    value = std::move(expression.value);
    rest.remove_prefix(expression.end);
}

bool IsStringTerminated(std::string_view text, const SourceFlavour& flavour) {
    if (text.empty()) return true;
    if (text.starts_with(flavour.STRDELIM)) text.remove_prefix(1);
    const std::size_t closing = text.find(flavour.STRDELIM);
    if (closing != Nowhere) text.remove_prefix(closing + 1);
    const std::size_t end = text.find(';');
    return end != Nowhere && end < text.find(flavour.COMMENTSTART);
}

int CountChar(std::string_view text, char ch) {
    return static_cast<int>(std::count(text.begin(), text.end(), ch));
}

} // namespace glotta
