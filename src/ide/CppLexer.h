// C and C++, token by token.
#pragma once
#include "ide/SourceTokens.h"

namespace glotta::cpp {

class Lexer {
public:
    explicit Lexer(std::string_view text);

    // The next token, comments included. False at the end of the text.
    bool Next(Token& token);

private:
    enum class Assembler : std::uint8_t { None, Opening, Block, Line };

    bool SkipBlanks();
    std::uint32_t Offset(const char* p) const { return static_cast<std::uint32_t>(p - begin_); }
    // The end of "\" and the line end behind it; `p` itself when there is none.
    const char* ContinuationEnd(const char* p) const;
    const char* LogicalLineEnd(const char* p) const;
    bool AtComment(const char* p) const { return p + 1 < end_ && *p == '/' && (p[1] == '/' || p[1] == '*'); }
    const char* CommentEnd(const char* p) const;
    const char* QuotedEnd(const char* p, bool& closed) const;
    const char* RawStringEnd(const char* quote, bool& closed) const;
    const char* DirectiveEnd(const char* p) const;
    const char* WordOrLiteralEnd(const char* p, TokenKind& kind);
    const char* NumberEnd(const char* p) const;
    Assembler AssemblerBehind(const char* p) const;
    const char* AssemblerEnd(const char* p, TokenKind& kind);

    const char* begin_;
    const char* end_;
    const char* p_;
    bool lineStart_ = true; // only blanks and comments before on this line
    bool inDirective_ = false;
    Assembler assembler_ = Assembler::None;
    std::uint32_t braces_ = 0; // of an assembler block
};

} // namespace glotta::cpp
