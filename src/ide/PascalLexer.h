// Object Pascal, token by token. Kept in a header so that whoever walks a whole unit pays no call per token.
#pragma once
#include "ide/SourceTokens.h"

#include <array>
#include <bit>
#include <cstring>
#include <vector>

namespace glotta::pascal {

enum class ByteClass : std::uint8_t {
    Symbol, // the operators and punctuators of one byte
    Blank,
    Letter, // with every byte of a character beyond ASCII
    Digit,
    Quote,
    Hash,
    Caret,
    Brace,
    Paren,
    Slash,
    Dollar,
    Percent,
    Ampersand,
    Pair, // ':', '<', '>', '.': may begin a symbol of two bytes
    Stray
};

constexpr std::array<ByteClass, 256> ByteClasses() {
    std::array<ByteClass, 256> classes{};
    for (int c = 0; c < 256; ++c) {
        bool letter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c >= 0x80;
        classes[c] = c <= ' '               ? ByteClass::Blank
                     : letter               ? ByteClass::Letter
                     : c >= '0' && c <= '9' ? ByteClass::Digit
                                            : ByteClass::Stray;
    }
    for (char c : std::string_view("+-*=,;)[]@"))
        classes[static_cast<unsigned char>(c)] = ByteClass::Symbol;
    for (char c : std::string_view(":<>."))
        classes[static_cast<unsigned char>(c)] = ByteClass::Pair;
    classes['\''] = ByteClass::Quote;
    classes['#'] = ByteClass::Hash;
    classes['^'] = ByteClass::Caret;
    classes['{'] = ByteClass::Brace;
    classes['('] = ByteClass::Paren;
    classes['/'] = ByteClass::Slash;
    classes['$'] = ByteClass::Dollar;
    classes['%'] = ByteClass::Percent;
    classes['&'] = ByteClass::Ampersand;
    return classes;
}
inline constexpr std::array<ByteClass, 256> byteClasses = ByteClasses();

inline ByteClass ClassOf(char c) {
    return byteClasses[static_cast<unsigned char>(c)];
}
inline bool IsWordByte(char c) {
    ByteClass k = ClassOf(c);
    return k == ByteClass::Letter || k == ByteClass::Digit;
}

// The end of the run of word bytes at `p`. Eight bytes at a time: words end at every length, and a branch for each byte
// is one that the processor mostly guesses wrong.
inline const char* WordRunEnd(const char* p, const char* end) {
    constexpr std::uint64_t ones = 0x0101010101010101, high = 0x80 * ones;
    for (; std::endian::native == std::endian::little && end - p >= 8; p += 8) {
        std::uint64_t bytes;
        std::memcpy(&bytes, p, 8);
        const std::uint64_t low = bytes & ~high, lower = low | 0x20 * ones;
        const auto within = [](std::uint64_t x, unsigned char first, unsigned char last) {
            return (x + (0x80u - first) * ones) & ~(x + (0x7Fu - last) * ones);
        };
        const std::uint64_t others =
            ~(bytes | within(lower, 'a', 'z') | within(low, '0', '9') | within(low, '_', '_')) & high;
        if (others) return p + std::countr_zero(others) / 8;
    }
    while (p < end && IsWordByte(*p))
        ++p;
    return p;
}

// Where quotes and comments end: the rules that the lexer and the search for comments share.
class Extents {
public:
    explicit Extents(const char* end) : end_(end) {}

    const char* LineEnd(const char* p) const {
        while (p < end_ && *p != '\n' && *p != '\r')
            ++p;
        return p;
    }
    // `p` at an opening quote. Null when nothing closes it.
    const char* QuotedEnd(const char* p) {
        const char* open = p;
        for (++p; p < end_; ++p) {
            if (*p == '\'') {
                if (p + 1 == end_ || p[1] != '\'') return p + 1;
                ++p;
            } else if (*p == '\n' || *p == '\r') {
                return MultiLineEnd(open, p);
            }
        }
        return nullptr;
    }
    // `p` at "{", "(*" or "//" in any of their meanings.
    const char* CommentEnd(const char* p) const;

private:
    const char* MultiLineEnd(const char* open, const char* lineEnd);

    const char* end_;
    std::uint64_t neverClosed_ = 0; // by number of quotes: no such line lies ahead
};

class Lexer {
public:
    explicit Lexer(std::string_view text)
        : begin_(text.data()), end_(text.data() + text.size()), p_(text.data()), extents_(end_) {
        if (text.starts_with("\xEF\xBB\xBF")) p_ += 3;
    }

    // The next token, comments included. False at the end of the text.
    // The walks over whole units spend most of their time here: a call for each token would show.
    [[gnu::always_inline]] bool Next(Token& token) {
        if (inAsm_) return NextInAsm(token);
        const char* p = p_;
        while (p < end_ && ClassOf(*p) == ByteClass::Blank)
            ++p;
        if (p == end_) return false;
        const char* start = p;
        TokenKind kind = TokenKind::Symbol;
        switch (ClassOf(*p)) {
        case ByteClass::Letter:
            p = WordEnd(p + 1);
            kind = TokenKind::Identifier;
            if (p - start == 3 && IsWord(start, "asm") && !AfterDot()) inAsm_ = true;
            break;
        case ByteClass::Digit:
            p = NumberEnd(p);
            kind = TokenKind::Number;
            break;
        case ByteClass::Quote:
        case ByteClass::Hash:
            p = StringEnd(p, kind);
            break;
        case ByteClass::Caret:
            p = StartsControlString(p) ? StringEnd(p, kind) : p + 1;
            break;
        case ByteClass::Brace:
            p = extents_.CommentEnd(p);
            kind = start + 1 < end_ && start[1] == '$' ? TokenKind::Directive : TokenKind::Comment;
            break;
        case ByteClass::Paren:
            if (p + 1 < end_ && p[1] == '*') {
                p = extents_.CommentEnd(p);
                kind = start + 2 < end_ && start[2] == '$' ? TokenKind::Directive : TokenKind::Comment;
            } else {
                ++p;
            }
            break;
        case ByteClass::Slash:
            if (p + 1 < end_ && p[1] == '/') {
                p = extents_.LineEnd(p);
                kind = TokenKind::Comment;
            } else {
                ++p;
            }
            break;
        case ByteClass::Pair:
            p += IsPair(p) ? 2 : 1;
            break;
        case ByteClass::Symbol:
            ++p;
            break;
        default:
            p = RareEnd(p, kind);
        }
        p_ = p;
        Put(token, kind, Offset(start), Offset(p));
        if (kind == TokenKind::Directive)
            FollowBranch(token);
        else if (kind != TokenKind::Comment)
            Put(last_, kind, Offset(start), Offset(p));
        return true;
    }

private:
    // Field by field: a copy of the whole would wait for the stores of its parts, at every token.
    static void Put(Token& token, TokenKind kind, std::uint32_t begin, std::uint32_t end) {
        token.kind = kind;
        token.begin = begin;
        token.end = end;
    }
    std::uint32_t Offset(const char* p) const { return static_cast<std::uint32_t>(p - begin_); }
    const char* WordEnd(const char* p) const { return WordRunEnd(p, end_); }
    static bool IsWord(const char* p, const char* lower) {
        for (; *lower; ++p, ++lower)
            if ((*p | 0x20) != *lower) return false;
        return true;
    }
    bool AfterDot() const { return last_.end - last_.begin == 1 && begin_[last_.begin] == '.'; }
    bool IsPair(const char* p) const {
        if (p + 1 == end_) return false;
        switch (*p) {
        case ':':
        case '>':
            return p[1] == '=';
        case '<':
            return p[1] == '=' || p[1] == '>';
        default:
            return p[1] == '.';
        }
    }
    const char* NumberEnd(const char* p) const;
    const char* StringEnd(const char* p, TokenKind& kind);
    const char* RareEnd(const char* p, TokenKind& kind) const;
    const char* CodeEnd(const char* p) const;
    bool IsControl(const char* p) const;
    bool StartsControlString(const char* p) const;
    void FollowBranch(const Token& directive);
    bool NextInAsm(Token& token);
    const char* AsmPieceEnd(const char* p);
    bool ClosesAsm(const char* word, const char* wordEnd) const;

    const char* begin_;
    const char* end_;
    const char* p_;
    Extents extents_;
    Token last_{TokenKind::Bad, 0, 0}; // neither comment nor directive
    bool inAsm_ = false;
    std::vector<bool> asmBefore_;     // for each open {$IFDEF}: its branches begin alike
    const char* semicolon_ = nullptr; // the last one on the present line of an assembler block
};

} // namespace glotta::pascal
