// A correct lexer of Object Pascal and C/C++ text: tokens, comments and directives with their true extents.
// Shared with the helper library, so it includes nothing of the house.
#pragma once
#include <cstdint>
#include <string_view>
#include <vector>

namespace glotta {

enum class TokenKind : std::uint8_t {
    Identifier, // keywords included
    Number,
    String,     // Pascal: quotes, character codes (#13, #$0D, ^M beside quotes) joined without blanks; C/C++: with prefix,
                // raw strings included; each quoted literal is its own token
    Character,  // C/C++ only
    Symbol,     // one operator or punctuator, longest match (":=", "->")
    Directive,  // Pascal {$...} and (*$...*); C/C++: a # line with its continuations, in pieces
                // where comments stand in it
    Comment,    // only when asked for
    Asm,        // one line or piece of an assembler block
    Bad         // an unterminated string, a stray byte
};

struct Token {
    TokenKind kind;
    std::uint32_t begin, end; // bytes
};

enum class KeepComments : bool { No, Yes };
std::vector<Token> Tokenize(std::string_view text, bool isCpp, KeepComments comments = KeepComments::No);

struct ByteRange {
    std::uint32_t begin, end;
};
// The comments of a text in order (Pascal directives are none). Much faster than Tokenize.
std::vector<ByteRange> FindComments(std::string_view text, bool isCpp);

} // namespace glotta
