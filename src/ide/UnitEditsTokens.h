// The tokens of a unit as its structure is read: comments and directives set apart, of conditional code one
// consistent branch. Positions are bytes of the text.
#pragma once
#include "ide/SourceTokens.h"
#include "platform/TextEdit.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

class UnitTokens {
public:
    UnitTokens(std::string_view text, bool isCpp);

    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    std::string_view Text() const { return text_; }
    std::size_t Count() const { return tokens_.size(); }
    // A token's text; empty past the end.
    std::string_view operator[](std::size_t index) const;
    TokenKind Kind(std::size_t index) const { return index < Count() ? tokens_[index].kind : TokenKind::Bad; }
    bool IsWord(std::size_t index) const; // an identifier or keyword
    // The identifier `word`; Object Pascal ignores letter case (`word` is given in lower case).
    bool Is(std::size_t index, std::string_view word) const;
    bool IsSymbol(std::size_t index, std::string_view symbol) const { return (*this)[index] == symbol; }
    // Past the last token the text's end.
    std::size_t Begin(std::size_t index) const { return index < Count() ? tokens_[index].begin : text_.size(); }
    std::size_t End(std::size_t index) const { return index < Count() ? tokens_[index].end : text_.size(); }
    // Index of the first token at or behind a place.
    std::size_t IndexAt(std::size_t place) const;
    // The bracket that closes the one at `open`, at most `end`.
    std::size_t Closing(std::size_t open, std::size_t end) const;

    // Code of the branches that were not followed.
    const std::vector<Token>& Alternatives() const { return alternatives_; }
    const std::vector<Token>& Directives() const { return directives_; }
    const std::vector<Token>& Comments() const { return comments_; }

    // How many conditional directives are open at a place.
    unsigned Depth(std::size_t place) const;
    // `place`, or behind the directive that leads back to `depth` when the place lies deeper.
    std::size_t LeaveConditionals(std::size_t place, unsigned depth) const;
    // `place`, or before the directive that led away from `depth`.
    std::size_t BeforeConditionals(std::size_t place, unsigned depth) const;

    // The end of the line when only blanks and comments follow on it, else the place itself.
    std::size_t RestOfLine(std::size_t place) const;
    std::size_t LineStart(std::size_t place) const;
    bool FirstOnLine(std::size_t place) const;
    std::string Indent(std::size_t place) const; // the blanks that start its line
    // A new line behind `place`; what follows there on the line moves to a line of its own.
    TextEdit LineBehind(std::size_t place, const std::string& line) const;
    // Takes a range away, with its line when nothing else stands there.
    TextEdit Without(std::size_t begin, std::size_t end) const;

private:
    void Sort(const std::vector<Token>& all);
    std::string_view text_;
    bool isCpp_;
    std::vector<Token> tokens_, alternatives_, directives_, comments_;
    std::vector<unsigned> depthBehind_; // of each directive
};

} // namespace glotta
