// The text of a unit as an editor holds it, and its way from and to the bytes on disk. Every line remembers
// how it ended, so that bytes -> text -> the same bytes holds for any file.
#pragma once
#include "platform/Encoding.h"
#include "platform/TextEdit.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

enum class LineEnd : unsigned char { CrLf, Lf, Cr };

// The line ends of a text in order: one value while all are alike, else one for each.
struct LineEnds {
    LineEnd common = LineEnd::CrLf;
    std::vector<LineEnd> each; // empty while all are `common`

    bool Uniform() const { return each.empty(); }
    bool operator==(const LineEnds&) const = default;
};

struct UnitText {
    std::string text; // UTF-8; every line but the last ends with CR LF, and neither character stands alone
    LineEnds ends;
    Encoding encoding;
};

// `told` and `hint` as for DetectEncoding.
UnitText DecodeUnit(std::string_view bytes, std::optional<Encoding> told = {},
                    std::optional<Encoding> hint = {});
// Throws Error with file, line and character when the text does not fit the encoding.
std::string EncodeUnit(const UnitText& unit, const std::string& fileName);

// Every CR LF, CR and LF of the text as CR LF.
std::string WithCrLf(std::string_view text);

// A replacement that also says how the lines of its text end; without `ends` they copy a neighbour.
struct UnitEdit {
    std::size_t begin, end; // bytes of the text
    std::string text;       // lines ended by CR LF
    std::vector<LineEnd> ends;
};
using UnitEdits = std::vector<UnitEdit>;

// Brings edits into order (as ApplyEdits does), their texts to CR LF, and moves a border between CR and LF
// behind LF. Throws Error when they overlap or lie outside of the text.
UnitEdits NormalizedEdits(std::string_view text, TextEdits edits);
// Applies edits as NormalizedEdits gives them; the result takes them back.
UnitEdits ApplyUnitEdits(UnitText& unit, const UnitEdits& edits);

} // namespace glotta
