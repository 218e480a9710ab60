// How GLT files write texts: with escapes, so that any text stands on one line; docs/formats.md has the
// rules.
#pragma once
#include <string>
#include <string_view>

namespace glotta {

// Of files that do not tell theirs.
inline constexpr std::string_view DefaultGLTDelimiter = "~!@#$";

struct GltSyntax {
    std::string delimiter{DefaultGLTDelimiter};
    std::string escape = "\\"; // one character, none of the delimiter's

    // With the escape character that goes with the delimiter. Throws Error for a delimiter that no line can
    // hold.
    static GltSyntax For(std::string_view delimiter);

    // A record as a line, name=value without a line end, and back. Reading throws Error that says what is
    // wrong.
    struct Line {
        std::string name, line;
    };
    Line Write(std::string_view record) const;
    std::string Read(std::string_view name, std::string_view value) const;

    // A text on its own.
    std::string Text(std::string_view text) const;
    std::string ReadText(std::string_view value) const;
};

// Names of sections and keys; their escape character is always the backslash.
std::string GltName(std::string_view name);
std::string ReadGltName(std::string_view written);

} // namespace glotta
