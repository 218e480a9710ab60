#include "ide/CppLexer.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace glotta::cpp {

namespace {

constexpr std::uint8_t Blank = 1, Word = 2, Digit = 4, Punctuator = 8;

constexpr std::array<std::uint8_t, 256> Classes() {
    std::array<std::uint8_t, 256> classes{};
    for (int c = 0; c < 256; ++c) {
        bool digit = c >= '0' && c <= '9';
        bool letter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c == '$' || c >= 0x80;
        if (c <= ' ' && c != '\n' && c != '\r') classes[c] = Blank;
        if (letter || digit) classes[c] = Word;
        if (digit) classes[c] |= Digit;
    }
    for (char c : std::string_view("+-*/%=<>!&|^~?:;,.()[]{}#"))
        classes[static_cast<unsigned char>(c)] = Punctuator;
    return classes;
}
constexpr std::array<std::uint8_t, 256> classes = Classes();

bool Is(char c, std::uint8_t mask) {
    return classes[static_cast<unsigned char>(c)] & mask;
}

std::ptrdiff_t PunctuatorLength(const char* p, const char* end) {
    static constexpr std::string_view three[] = {"<<=", ">>=", "->*", "...", "<=>"};
    static constexpr std::string_view two[] = {
        "->", "::", "++", "--", "<<", ">>", "<=", ">=", "==", "!=", "&&",
        "||", "+=", "-=", "*=", "/=", "%=", "&=", "|=", "^=", ".*", "##"};
    if (end - p < 2 || !Is(p[1], Punctuator) || std::strchr("()[]{};,?~", *p)) return 1;
    std::string_view text(p, static_cast<std::size_t>(std::min<std::ptrdiff_t>(3, end - p)));
    for (std::string_view s : three)
        if (text == s) return 3;
    for (std::string_view s : two)
        if (text.starts_with(s)) return 2;
    return 1;
}

bool OneOf(std::string_view word, std::initializer_list<std::string_view> words) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

} // namespace

Lexer::Lexer(std::string_view text) : begin_(text.data()), end_(text.data() + text.size()), p_(text.data()) {
    if (text.starts_with("\xEF\xBB\xBF")) p_ += 3;
}

const char* Lexer::ContinuationEnd(const char* p) const {
    if (p == end_ || *p != '\\' || p + 1 == end_) return p;
    if (p[1] == '\n') return p + 2;
    if (p[1] == '\r') return p + 2 < end_ && p[2] == '\n' ? p + 3 : p + 2;
    return p;
}

// False at the end of the text.
bool Lexer::SkipBlanks() {
    for (; p_ < end_;) {
        if (*p_ == '\n' || *p_ == '\r') {
            lineStart_ = true;
            inDirective_ = false;
            if (assembler_ == Assembler::Line) assembler_ = Assembler::None;
            ++p_;
        } else if (Is(*p_, Blank)) {
            ++p_;
        } else if (const char* next = ContinuationEnd(p_); next != p_) {
            p_ = next;
        } else {
            return true;
        }
    }
    return false;
}

const char* Lexer::LogicalLineEnd(const char* p) const {
    while (p < end_ && *p != '\n' && *p != '\r') {
        const char* next = ContinuationEnd(p);
        p = next == p ? p + 1 : next;
    }
    return p;
}

const char* Lexer::CommentEnd(const char* p) const {
    if (p[1] == '/') return LogicalLineEnd(p);
    std::size_t close = std::string_view(p, static_cast<std::size_t>(end_ - p)).find("*/", 2);
    return close == std::string_view::npos ? end_ : p + close + 2;
}

// `p` at the opening quote. The end of the line when nothing closes it.
const char* Lexer::QuotedEnd(const char* p, bool& closed) const {
    char quote = *p++;
    closed = false;
    while (p < end_ && *p != '\n' && *p != '\r') {
        if (*p == quote) {
            closed = true;
            return p + 1;
        }
        if (*p != '\\' || p + 1 == end_) {
            ++p;
        } else {
            const char* next = ContinuationEnd(p);
            p = next == p ? p + 2 : next;
        }
    }
    return p;
}

// A raw string that nothing closes takes the rest of the text.
const char* Lexer::RawStringEnd(const char* quote, bool& closed) const {
    constexpr std::size_t longestDelimiter = 16;
    std::string_view rest(quote, static_cast<std::size_t>(end_ - quote));
    std::size_t paren = rest.substr(0, longestDelimiter + 2).find_first_of("() \\\t\n\r");
    closed = false;
    if (paren == std::string_view::npos || rest[paren] != '(') return QuotedEnd(quote, closed);
    std::array<char, longestDelimiter + 2> end{};
    std::size_t length = rest.copy(end.data() + 1, paren - 1, 1);
    end[0] = ')';
    end[length + 1] = '"';
    std::size_t close = rest.find(std::string_view(end.data(), length + 2), paren);
    if (close == std::string_view::npos) return end_;
    closed = true;
    return quote + close + length + 2;
}

// A # line up to its end or to a comment in it.
const char* Lexer::DirectiveEnd(const char* p) const {
    const char* start = p;
    bool closed;
    while (p < end_ && *p != '\n' && *p != '\r' && !AtComment(p)) {
        if (*p == '"' || *p == '\'')
            p = QuotedEnd(p, closed);
        else if (const char* next = ContinuationEnd(p); next != p)
            p = next;
        else
            ++p;
    }
    while (p > start + 1 && Is(p[-1], Blank))
        --p;
    return p;
}

const char* Lexer::NumberEnd(const char* p) const {
    while (p < end_) {
        char c = static_cast<char>(*p | 0x20);
        if ((c == 'e' || c == 'p') && p + 1 < end_ && (p[1] == '+' || p[1] == '-'))
            p += 2;
        else if (Is(*p, Word) || *p == '.')
            ++p;
        else if (*p == '\'' && p + 1 < end_ && Is(p[1], Word))
            ++p;
        else
            break;
    }
    return p;
}

Lexer::Assembler Lexer::AssemblerBehind(const char* p) const {
    while (p < end_ && (Is(*p, Blank) || *p == '\n' || *p == '\r'))
        ++p;
    if (p == end_ || *p == '(') return Assembler::None;
    if (*p == '{') return Assembler::Opening;
    const char* word = p;
    while (p < end_ && Is(*p, Word))
        ++p;
    bool qualified = OneOf({word, static_cast<std::size_t>(p - word)},
                           {"volatile", "__volatile__", "__volatile", "goto", "inline", "__inline__"});
    return qualified ? Assembler::None : Assembler::Line;
}

const char* Lexer::WordOrLiteralEnd(const char* p, TokenKind& kind) {
    const char* start = p;
    while (p < end_ && Is(*p, Word))
        ++p;
    std::string_view word(start, static_cast<std::size_t>(p - start));
    kind = TokenKind::Identifier;
    bool closed = true;
    if (p < end_ && *p == '"' && OneOf(word, {"L", "u8", "u", "U"})) {
        p = QuotedEnd(p, closed);
        kind = TokenKind::String;
    } else if (p < end_ && *p == '"' && OneOf(word, {"R", "LR", "u8R", "uR", "UR"})) {
        p = RawStringEnd(p, closed);
        kind = TokenKind::String;
    } else if (p < end_ && *p == '\'' && OneOf(word, {"L", "u8", "u", "U"})) {
        p = QuotedEnd(p, closed);
        kind = TokenKind::Character;
    } else if (word.size() <= 7 && OneOf(word, {"asm", "_asm", "__asm", "__asm__"})) {
        assembler_ = AssemblerBehind(p);
    }
    if (!closed) kind = TokenKind::Bad;
    return p;
}

// Assembler up to a line end, a comment or, a token of its own, the brace that closes the block.
const char* Lexer::AssemblerEnd(const char* p, TokenKind& kind) {
    const char* start = p;
    bool closed;
    kind = TokenKind::Asm;
    while (p < end_ && *p != '\n' && *p != '\r' && !AtComment(p)) {
        if (assembler_ == Assembler::Line && (*p == ';' || *p == '}')) {
            assembler_ = Assembler::None;
            if (p > start) break;
            kind = TokenKind::Symbol;
            return p + 1;
        }
        if (*p == '}' && --braces_ == 0) {
            if (p > start) {
                braces_ = 1;
                break;
            }
            assembler_ = Assembler::None;
            kind = TokenKind::Symbol;
            return p + 1;
        }
        if (*p == '{') ++braces_;
        p = *p == '"' || *p == '\'' ? QuotedEnd(p, closed) : p + 1;
    }
    while (p > start + 1 && Is(p[-1], Blank))
        --p;
    return p;
}

bool Lexer::Next(Token& token) {
    if (!SkipBlanks()) return false;
    const char* start = p_;
    const char* p = start;
    TokenKind kind = TokenKind::Symbol;
    bool closed = true;
    if (AtComment(p)) {
        p = CommentEnd(p);
        p_ = p;
        token = {TokenKind::Comment, Offset(start), Offset(p)};
        return true;
    }
    if (inDirective_ || (lineStart_ && *p == '#')) {
        inDirective_ = true;
        p = DirectiveEnd(p);
        kind = TokenKind::Directive;
    } else if (assembler_ == Assembler::Block || assembler_ == Assembler::Line) {
        p = AssemblerEnd(p, kind);
    } else if (Is(*p, Digit) || (*p == '.' && p + 1 < end_ && Is(p[1], Digit))) {
        p = NumberEnd(p);
        kind = TokenKind::Number;
    } else if (Is(*p, Word)) {
        p = WordOrLiteralEnd(p, kind);
    } else if (*p == '"' || *p == '\'') {
        kind = *p == '"' ? TokenKind::String : TokenKind::Character;
        p = QuotedEnd(p, closed);
        if (!closed) kind = TokenKind::Bad;
    } else if (Is(*p, Punctuator)) {
        p += PunctuatorLength(p, end_);
        if (assembler_ == Assembler::Opening) {
            assembler_ = Assembler::Block;
            braces_ = 1;
        }
    } else {
        ++p;
        kind = TokenKind::Bad;
    }
    lineStart_ = false;
    p_ = p;
    token = {kind, Offset(start), Offset(p)};
    return true;
}

} // namespace glotta::cpp
