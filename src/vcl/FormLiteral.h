// String values of text forms: what bytes in quotes and #n codes mean, and how text is written.
//
// Old IDEs write the bytes of the project's code page, as #128 to #255 or raw; newer ones write UTF-16 units.
// A form holds units when it is UTF-8 or holds any code above 255; otherwise its codes and bytes are of the
// code page.
#pragma once
#include "platform/Encoding.h"
#include "vcl/FormFile.h"

namespace glotta {

inline constexpr std::uint32_t MaxCode = 0x10FFFF;

// Sets utf8 and units from the file's bytes.
void DetectLiterals(std::string_view bytes, FormShape& shape);
// Any code #n in the range, outside of quotes.
bool HasCodes(std::string_view bytes, std::uint32_t least, std::uint32_t most);

// Collects the pieces of one string value.
class LiteralReader {
public:
    explicit LiteralReader(const FormShape& shape) : shape_(shape) {}
    void Quoted(std::string_view bytes);
    void Code(std::uint32_t code);
    std::string Take(); // UTF-8; leaves it empty for the next value

private:
    void Unit(std::uint32_t unit);
    void FlushHigh();
    const FormShape& shape_;
    std::string text_; // code page bytes, or UTF-8 when the form holds units
    std::uint32_t high_ = 0;
};

// Appends a string value in the IDE's layout: pieces of 64 codes, continued on lines that begin with
// `lineStart`.
void AppendLiteral(std::string& out, std::string_view text, const FormShape& shape,
                   const std::string& lineStart);

} // namespace glotta
