// Changes of a text as values: computed first, applied in one place.
#pragma once
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

// Replaces bytes [begin, end) by `text`; begin == end inserts.
struct TextEdit {
    std::size_t begin, end;
    std::string text;
};
using TextEdits = std::vector<TextEdit>;

// Sorts by place (insertions at one place keep their order) and applies. Edits must not overlap.
std::string ApplyEdits(std::string_view text, TextEdits edits);

} // namespace glotta
