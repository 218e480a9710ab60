#include "ide/PascalLexer.h"

#include "ide/ConditionalBranch.h"

namespace glotta::pascal {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
bool IsHexDigit(char c) {
    return IsDigit(c) || ((c | 0x20) >= 'a' && (c | 0x20) <= 'f');
}
bool IsBinaryDigit(char c) {
    return c == '0' || c == '1';
}

template <class Test> const char* DigitsEnd(const char* p, const char* end, Test test) {
    while (p < end && (test(*p) || *p == '_'))
        ++p;
    return p;
}

} // namespace

const char* Extents::CommentEnd(const char* p) const {
    if (*p == '/') return LineEnd(p);
    if (*p == '{') {
        auto close = static_cast<const char*>(std::memchr(p, '}', static_cast<std::size_t>(end_ - p)));
        return close ? close + 1 : end_;
    }
    for (p += 2; p < end_; ++p) {
        p = static_cast<const char*>(std::memchr(p, '*', static_cast<std::size_t>(end_ - p)));
        if (!p) return end_;
        if (p + 1 < end_ && p[1] == ')') return p + 2;
    }
    return end_;
}

// A literal that opens with an odd number of quotes, three or more, at the end of its line ends on the line
// that begins with as many.
const char* Extents::MultiLineEnd(const char* open, const char* lineEnd) {
    std::size_t count = static_cast<std::size_t>(lineEnd - open);
    if (count < 3 || count % 2 == 0 || count > 63) return nullptr;
    for (const char* p = open; p < lineEnd; ++p)
        if (*p != '\'') return nullptr;
    if (neverClosed_ >> count & 1) return nullptr;
    for (const char* p = lineEnd; p < end_; p = LineEnd(p)) {
        while (p < end_ && ClassOf(*p) == ByteClass::Blank)
            ++p;
        const char* run = p;
        while (p < end_ && *p == '\'')
            ++p;
        if (static_cast<std::size_t>(p - run) == count) return p;
    }
    neverClosed_ |= std::uint64_t{1} << count;
    return nullptr;
}

const char* Lexer::NumberEnd(const char* p) const {
    p = DigitsEnd(p, end_, IsDigit);
    if (p + 1 < end_ && *p == '.' && IsDigit(p[1])) p = DigitsEnd(p + 1, end_, IsDigit);
    if (p < end_ && (*p | 0x20) == 'e') {
        const char* q = p + 1;
        if (q < end_ && (*q == '+' || *q == '-')) ++q;
        if (q < end_ && IsDigit(*q)) p = DigitsEnd(q, end_, IsDigit);
    }
    return p;
}

// The end of a character code (#13, #$0D, #%1101); `p` itself when there is none.
const char* Lexer::CodeEnd(const char* p) const {
    if (p + 1 < end_ && IsDigit(p[1])) return DigitsEnd(p + 1, end_, IsDigit);
    if (p + 2 < end_ && p[1] == '$' && IsHexDigit(p[2])) return DigitsEnd(p + 2, end_, IsHexDigit);
    if (p + 2 < end_ && p[1] == '%' && IsBinaryDigit(p[2])) return DigitsEnd(p + 2, end_, IsBinaryDigit);
    return p;
}

// ^M: a control character, not what a pointer points to.
bool Lexer::IsControl(const char* p) const {
    if (p + 1 >= end_ || *p != '^') return false;
    char c = p[1];
    return (c >= '@' && c <= '_') || (c >= 'a' && c <= 'z') || c == '?';
}

// Whether a caret opens a string depends on what stands beside it: "p^['a']" and "^TNode" are no strings.
bool Lexer::StartsControlString(const char* p) const {
    if (!IsControl(p) || ClassOf(p[1]) != ByteClass::Letter) return false;
    const char* next = p + 2;
    if (next < end_ && IsWordByte(*next)) return false;
    std::string_view before(begin_ + last_.begin, last_.end - last_.begin);
    bool expects = last_.kind == TokenKind::Symbol &&
                   (before == "+" || before == "(" || before == "," || before == ":=" || before == "<>");
    if (expects || next == end_) return expects;
    return *next == '\'' || (*next == '#' && CodeEnd(next) != next) || (*next == '^' && IsControl(next));
}

const char* Lexer::StringEnd(const char* p, TokenKind& kind) {
    kind = TokenKind::String;
    const char* start = p;
    while (p < end_) {
        if (*p == '\'') {
            const char* close = extents_.QuotedEnd(p);
            if (!close) {
                kind = TokenKind::Bad;
                return extents_.LineEnd(p);
            }
            p = close;
        } else if (*p == '#') {
            const char* code = CodeEnd(p);
            if (code == p) break;
            p = code;
        } else if (IsControl(p)) {
            p += 2;
        } else {
            break;
        }
    }
    if (p > start) return p;
    kind = TokenKind::Bad;
    return p + 1;
}

const char* Lexer::RareEnd(const char* p, TokenKind& kind) const {
    char next = p + 1 < end_ ? p[1] : '\0';
    kind = TokenKind::Number;
    if (*p == '$' && IsHexDigit(next)) return DigitsEnd(p + 1, end_, IsHexDigit);
    if (*p == '%' && IsBinaryDigit(next)) return DigitsEnd(p + 1, end_, IsBinaryDigit);
    if (*p == '&' && IsDigit(next)) return DigitsEnd(p + 1, end_, IsDigit);
    kind = TokenKind::Identifier;
    if (*p == '&' && ClassOf(next) == ByteClass::Letter) return WordEnd(p + 1);
    kind = TokenKind::Bad;
    return p + 1;
}

void Lexer::FollowBranch(const Token& directive) {
    switch (BranchOf({begin_ + directive.begin, directive.end - directive.begin})) {
    case Branch::If:
        asmBefore_.push_back(inAsm_);
        break;
    case Branch::Else:
        if (!asmBefore_.empty()) inAsm_ = asmBefore_.back();
        break;
    case Branch::EndIf:
        if (!asmBefore_.empty()) asmBefore_.pop_back();
        break;
    default:
        break;
    }
}

bool Lexer::NextInAsm(Token& token) {
    const char* p = p_;
    for (; p < end_ && ClassOf(*p) == ByteClass::Blank; ++p)
        if (*p == '\n' || *p == '\r') semicolon_ = nullptr;
    if (p == end_) return false;
    const char* start = p;
    TokenKind kind = TokenKind::Asm;
    bool brace = *p == '{';
    bool paren = *p == '(' && p + 1 < end_ && p[1] == '*';
    if (brace || paren || (*p == '/' && p + 1 < end_ && p[1] == '/')) {
        p = extents_.CommentEnd(p);
        const char* mark = start + (brace ? 1 : 2);
        kind = *start != '/' && mark < end_ && *mark == '$' ? TokenKind::Directive : TokenKind::Comment;
    } else {
        p = AsmPieceEnd(p);
        if (p == start) {
            p = start + 3;
            kind = TokenKind::Identifier;
            inAsm_ = false;
            semicolon_ = nullptr;
        }
    }
    p_ = p;
    token = {kind, Offset(start), Offset(p)};
    if (kind == TokenKind::Identifier)
        last_ = token;
    else if (kind == TokenKind::Directive)
        FollowBranch(token);
    return true;
}

// The assembler's text up to a line end, a comment or the closing "end".
const char* Lexer::AsmPieceEnd(const char* p) {
    const char* start = p;
    while (p < end_ && *p != '\n' && *p != '\r' && *p != '{') {
        if (p + 1 < end_ && ((*p == '/' && p[1] == '/') || (*p == '(' && p[1] == '*'))) break;
        if (*p == '\'') {
            // A quote that nothing closes on its line stands in a remark.
            const char* close = extents_.QuotedEnd(p);
            p = close ? close : extents_.LineEnd(p);
        } else if (IsWordByte(*p) || *p == '@' || *p == '$' || *p == '?') {
            const char* word = p;
            while (p < end_ && (IsWordByte(*p) || *p == '@' || *p == '$' || *p == '?'))
                ++p;
            if (p - word == 3 && IsWord(word, "end") && ClosesAsm(word, p)) {
                while (word > start && ClassOf(word[-1]) == ByteClass::Blank)
                    --word;
                return word;
            }
        } else {
            if (*p == ';') semicolon_ = p;
            ++p;
        }
    }
    while (p > start && ClassOf(p[-1]) == ByteClass::Blank)
        --p;
    return p;
}

// Behind a semicolon there may be a remark in plain words, so "end" counts there only where it ends a
// statement.
bool Lexer::ClosesAsm(const char* word, const char* wordEnd) const {
    if (word > begin_ && word[-1] == '.') return false;
    if (!semicolon_) return true;
    const char* next = wordEnd;
    while (next < end_ && (*next == ' ' || *next == '\t'))
        ++next;
    if (next < end_ && *next == ';') return true;
    const char* before = word;
    while (before[-1] == ' ' || before[-1] == '\t')
        --before;
    if (before - 1 != semicolon_) return false;
    return next == end_ || *next == '\n' || *next == '\r' || *next == '.' || *next == '{' || *next == '/' ||
           *next == ')' || *next == ',' || IsWord(next, "e");
}

} // namespace glotta::pascal
