#include "host/UnitText.h"

#include "platform/Error.h"
#include "platform/Text.h"

#include <cstdio>
#include <cstring>

namespace glotta {
namespace {

constexpr std::string_view CrLf = "\r\n";

std::size_t CountChar(std::string_view text, char wanted) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), wanted));
}

std::size_t CountLines(std::string_view text) {
    return CountChar(text, '\n');
} // of a text with CR LF only

// Expands LF to CR LF in a text without any CR.
std::string ExpandLf(std::string_view text, std::size_t lines) {
    std::string result;
    result.resize(text.size() + lines);
    const char* from = text.data();
    const char* const end = from + text.size();
    char* to = result.data();
    while (lines-- > 0) {
        const char* lf =
            static_cast<const char*>(std::memchr(from, '\n', static_cast<std::size_t>(end - from)));
        const std::size_t length = static_cast<std::size_t>(lf - from);
        std::memcpy(to, from, length);
        to += length;
        *to++ = '\r';
        *to++ = '\n';
        from = lf + 1;
    }
    std::memcpy(to, from, static_cast<std::size_t>(end - from));
    return result;
}

// Any mixture; tells each line's end.
template <class OnLineEnd> std::string ExpandAny(std::string_view text, OnLineEnd onLineEnd) {
    std::string result;
    result.reserve(text.size() + text.size() / 32);
    std::size_t done = 0;
    for (std::size_t at; (at = text.find_first_of("\r\n", done)) != std::string_view::npos;) {
        const LineEnd end = text[at] == '\n'             ? LineEnd::Lf
                            : text.substr(at, 2) == CrLf ? LineEnd::CrLf
                                                         : LineEnd::Cr;
        result.append(text, done, at - done).append(CrLf);
        onLineEnd(end);
        done = at + (end == LineEnd::CrLf ? 2 : 1);
    }
    return result.append(text.substr(done));
}

bool AllCrLf(std::string_view text, std::size_t lfs) {
    if (CountChar(text, '\r') != lfs) return false;
    for (std::size_t at = 0; (at = text.find('\r', at)) != std::string_view::npos; ++at)
        if (at + 1 == text.size() || text[at + 1] != '\n') return false;
    return true;
}

std::string Expand(std::string text, LineEnds& ends) {
    const std::size_t lfs = CountLines(text);
    if (std::memchr(text.data(), '\r', text.size()) == nullptr) {
        if (lfs == 0) return text;
        ends.common = LineEnd::Lf;
        return ExpandLf(text, lfs);
    }
    if (AllCrLf(text, lfs)) return text;
    std::string result = ExpandAny(text, [&](LineEnd end) { ends.each.push_back(end); });
    ends.common = ends.each.front();
    if (std::all_of(ends.each.begin(), ends.each.end(), [&](LineEnd end) { return end == ends.common; }))
        ends.each.clear();
    return result;
}

// The text with its own line ends.
std::string Contract(const UnitText& unit) {
    if (unit.ends.Uniform() && unit.ends.common == LineEnd::CrLf) return unit.text;
    const std::string_view text = unit.text;
    std::string result;
    result.reserve(text.size());
    const auto endOf = [&](std::size_t line) {
        return unit.ends.Uniform() ? unit.ends.common : unit.ends.each[line];
    };
    std::size_t done = 0, line = 0;
    for (std::size_t at; (at = text.find('\n', done)) != std::string_view::npos; done = at + 1, ++line) {
        result.append(text, done, at - 1 - done);
        LineEnd end = endOf(line);
        // CR and the LF of an empty line behind it would read as one line end.
        if (end == LineEnd::Cr && text.substr(at + 1, 2) == CrLf && endOf(line + 1) == LineEnd::Lf)
            end = LineEnd::CrLf;
        result += end == LineEnd::CrLf ? CrLf : end == LineEnd::Lf ? CrLf.substr(1) : CrLf.substr(0, 1);
    }
    return result.append(text.substr(done));
}

[[noreturn]] void FailUnencodable(const UnitText& unit, const std::string& fileName) {
    int line = 1;
    for (std::size_t done = 0; done <= unit.text.size(); ++line) {
        const std::size_t end = std::min(unit.text.find(CrLf, done), unit.text.size());
        const std::string_view content = std::string_view(unit.text).substr(done, end - done);
        if (const auto character = Encode(content, unit.encoding).unencodable) {
            std::string shown;
            AppendChar(shown, *character);
            char code[16];
            std::snprintf(code, sizeof code, "U+%04X", static_cast<unsigned>(*character));
            throw Error(fileName + ": line " + std::to_string(line) + ": the character \"" + shown + "\" (" +
                        code + ") cannot be written in " + unit.encoding.Name());
        }
        done = end + 2;
    }
    throw Error(fileName + ": the text cannot be written in " + unit.encoding.Name());
}

// A border between CR and LF moves behind the LF, so that a line end is kept or removed as a whole.
std::size_t OutOfLineEnd(std::string_view text, std::size_t at) {
    return at > 0 && at < text.size() && text[at] == '\n' ? at + 1 : at;
}

// The ends of the lines that an edit brings in.
void AppendEnds(std::vector<LineEnd>& ends, const LineEnds& old, std::size_t oldLine, const UnitEdit& edit) {
    if (!edit.ends.empty()) {
        ends.insert(ends.end(), edit.ends.begin(), edit.ends.end());
        return;
    }
    const LineEnd neighbour = oldLine < old.each.size() ? old.each[oldLine]
                              : ends.empty()            ? old.common
                                                        : ends.back();
    ends.insert(ends.end(), CountLines(edit.text), neighbour);
}

} // namespace

UnitText DecodeUnit(std::string_view bytes, std::optional<Encoding> told, std::optional<Encoding> hint) {
    UnitText unit;
    unit.encoding = DetectEncoding(bytes, told, hint);
    unit.text = Expand(Decode(bytes, unit.encoding), unit.ends);
    return unit;
}

std::string EncodeUnit(const UnitText& unit, const std::string& fileName) {
    EncodeResult result = Encode(Contract(unit), unit.encoding);
    if (result.unencodable) FailUnencodable(unit, fileName);
    return std::move(result.bytes);
}

std::string WithCrLf(std::string_view text) {
    return ExpandAny(text, [](LineEnd) {});
}

UnitEdits NormalizedEdits(std::string_view text, TextEdits edits) {
    std::stable_sort(edits.begin(), edits.end(), [](const TextEdit& a, const TextEdit& b) {
        return a.begin != b.begin ? a.begin < b.begin : a.end < b.end;
    });
    UnitEdits result;
    std::size_t done = 0;
    for (TextEdit& edit : edits) {
        if (edit.begin < done || edit.end < edit.begin || edit.end > text.size())
            throw Error("an edit at byte " + std::to_string(edit.begin) +
                        " overlaps another or lies outside of the text");
        done = edit.end;
        const std::size_t begin = OutOfLineEnd(text, edit.begin), end = OutOfLineEnd(text, edit.end);
        if (begin != end || !edit.text.empty()) result.push_back({begin, end, WithCrLf(edit.text), {}});
    }
    return result;
}

UnitEdits ApplyUnitEdits(UnitText& unit, const UnitEdits& edits) {
    const std::string_view old = unit.text;
    const bool mixed =
        !unit.ends.Uniform() ||
        std::any_of(edits.begin(), edits.end(), [](const UnitEdit& edit) { return !edit.ends.empty(); });
    if (mixed && unit.ends.Uniform()) unit.ends.each.assign(CountLines(old), unit.ends.common);
    std::string text;
    std::size_t added = 0;
    for (const UnitEdit& edit : edits)
        added += edit.text.size();
    text.reserve(old.size() + added);
    UnitEdits inverse;
    inverse.reserve(edits.size());
    std::vector<LineEnd> ends;
    std::size_t done = 0, line = 0;
    const auto keepTo = [&](std::size_t to) {
        const std::string_view kept = old.substr(done, to - done);
        text += kept;
        if (mixed) {
            const std::size_t count = CountLines(kept);
            ends.insert(ends.end(), unit.ends.each.begin() + std::ptrdiff_t(line),
                        unit.ends.each.begin() + std::ptrdiff_t(line + count));
            line += count;
        }
        done = to;
    };
    for (const UnitEdit& edit : edits) {
        keepTo(edit.begin);
        UnitEdit back{text.size(),
                      text.size() + edit.text.size(),
                      std::string(old.substr(edit.begin, edit.end - edit.begin)),
                      {}};
        text += edit.text;
        if (mixed) {
            AppendEnds(ends, unit.ends, line, edit);
            const auto first = unit.ends.each.begin() + std::ptrdiff_t(line);
            line += CountLines(back.text);
            back.ends.assign(first, unit.ends.each.begin() + std::ptrdiff_t(line));
        }
        done = edit.end;
        inverse.push_back(std::move(back));
    }
    keepTo(old.size());
    unit.text = std::move(text);
    unit.ends.each = std::move(ends);
    return inverse;
}

} // namespace glotta
