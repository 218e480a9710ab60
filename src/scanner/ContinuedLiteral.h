// A C/C++ literal that its line does not close: the following lines belong to it, not to the code.
#pragma once
#include "scanner/LiteralReader.h"

#include <string>
#include <string_view>

namespace glotta {

class ContinuedLiteral {
public:
    bool Open() const { return !closing_.empty(); }
    // Takes note of a literal without an end that the line leaves open: a raw one, or one with a backslash at
    // its end.
    void Begin(std::string_view text, const LiteralStart& start, std::size_t lineEnd);
    // Where the code of the line [from, lineEnd) begins.
    std::size_t Skip(std::string_view text, std::size_t from, std::size_t lineEnd);

private:
    std::string closing_;
};

} // namespace glotta
