// Where a literal expression lies in the source, and the value it stands for.
#pragma once
#include "scanner/FoundStrings.h"
#include "scanner/SourceFlavour.h"

#include <string>
#include <string_view>

namespace glotta {

// One opening delimiter of the code. Offsets are bytes.
struct LiteralStart {
    std::size_t begin =
        0; // of the expression: character codes, a C/C++ prefix or a wrapper joined before the quote
    std::size_t open = 0;                         // the delimiter
    std::size_t contentBegin = 0, contentEnd = 0; // the first quoted text as written
    std::size_t close =
        std::string_view::npos; // behind the closing delimiter; npos: nothing on the line closes it
    bool raw = false;           // R"(...)"
};

struct LiteralExpression {
    std::size_t end = 0; // behind the last element
    std::string value;
    Tail tail = Tail::None;
    std::size_t tailEnd = 0; // behind the tail and the blanks that go with it
};

class LiteralReader {
public:
    // Inside a comment nothing is a raw string: it would run past the comment's end.
    enum class Place : bool { Code, Comment };
    LiteralReader(std::string_view text, const SourceFlavour& flavour, Place place = Place::Code)
        : text_(text), flavour_(flavour), rawStrings_(flavour.IsCPPSource && place == Place::Code) {}

    // The first delimiter in [from, limit) that can open a literal; npos when there is none.
    std::size_t FindDelimiter(std::size_t from, std::size_t limit) const;
    // Reads a quoted literal, `open` being its delimiter.
    LiteralStart Quoted(std::size_t open, std::size_t limit) const;
    // Sets where the expression of a closed literal begins, not before `from`.
    void JoinBefore(LiteralStart& start, std::size_t from, std::size_t limit) const;
    // Decodes the expression that begins at `begin`.
    LiteralExpression Decode(std::size_t begin, std::size_t limit) const;

private:
    std::size_t CodesBefore(std::size_t begin, std::size_t from, std::size_t limit) const;
    std::size_t WrapperBefore(std::size_t begin, std::size_t from) const;
    // Each reads one element of an expression at `pos` into value and moves pos behind it; false leaves both
    // alone.
    bool ReadCode(std::size_t& pos, std::size_t limit, std::string& value) const;
    bool ReadLiteral(std::size_t& pos, std::size_t limit, std::string& value) const;
    bool ReadWrapper(std::size_t& pos, std::size_t limit, std::string& value) const;
    std::size_t SkipBlanks(std::size_t pos, std::size_t limit) const;

    std::string_view text_;
    const SourceFlavour& flavour_;
    bool rawStrings_;
};

// Consumes the expression at the start of `rest`.
void DecodeStringExpression(std::string_view& rest, std::string& value, const SourceFlavour& flavour);

// Whether the literal expression at the start of the text ends there, or goes on in the next line.
bool IsStringTerminated(std::string_view text, const SourceFlavour& flavour);

int CountChar(std::string_view text, char ch);

} // namespace glotta
