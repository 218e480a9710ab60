#include "ide/SourceTokens.h"

#include "ide/CppLexer.h"
#include "ide/PascalLexer.h"

namespace glotta {

namespace {

template <class Lexer> std::vector<Token> AllTokens(std::string_view text, KeepComments comments) {
    std::vector<Token> tokens;
    tokens.reserve(text.size() / 5);
    Lexer lexer(text);
    for (Token token; lexer.Next(token);)
        if (token.kind != TokenKind::Comment || comments == KeepComments::Yes) tokens.push_back(token);
    return tokens;
}

std::vector<ByteRange> CppComments(std::string_view text) {
    std::vector<ByteRange> comments;
    cpp::Lexer lexer(text);
    for (Token token; lexer.Next(token);)
        if (token.kind == TokenKind::Comment) comments.push_back({token.begin, token.end});
    return comments;
}

// Nothing but quotes can hide a comment in Pascal, assembler blocks included.
std::vector<ByteRange> PascalComments(std::string_view text) {
    static constexpr auto interesting = [] {
        std::array<bool, 256> table{};
        for (char c : std::string_view("'{(/"))
            table[static_cast<unsigned char>(c)] = true;
        return table;
    }();
    std::vector<ByteRange> comments;
    const char* begin = text.data();
    const char* end = begin + text.size();
    pascal::Extents extents(end);
    auto add = [&](const char* from, const char* to) {
        comments.push_back(
            {static_cast<std::uint32_t>(from - begin), static_cast<std::uint32_t>(to - begin)});
        return to;
    };
    for (const char* p = begin;;) {
        while (p < end && !interesting[static_cast<unsigned char>(*p)])
            ++p;
        if (p == end) return comments;
        const char* next = p + 1;
        if (*p == '\'') {
            const char* close = extents.QuotedEnd(p);
            p = close ? close : extents.LineEnd(p);
        } else if (*p == '{') {
            const char* close = extents.CommentEnd(p);
            p = next < end && *next == '$' ? close : add(p, close);
        } else if (next < end && *p == '/' && *next == '/') {
            p = add(p, extents.LineEnd(p));
        } else if (next < end && *p == '(' && *next == '*') {
            const char* close = extents.CommentEnd(p);
            p = next + 1 < end && next[1] == '$' ? close : add(p, close);
        } else {
            p = next;
        }
    }
}

} // namespace

std::vector<Token> Tokenize(std::string_view text, bool isCpp, KeepComments comments) {
    return isCpp ? AllTokens<cpp::Lexer>(text, comments) : AllTokens<pascal::Lexer>(text, comments);
}

std::vector<ByteRange> FindComments(std::string_view text, bool isCpp) {
    return isCpp ? CppComments(text) : PascalComments(text);
}

} // namespace glotta
