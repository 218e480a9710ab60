#include "platform/TextEdit.h"

#include <algorithm>
#include <cassert>

namespace glotta {

std::string ApplyEdits(std::string_view text, TextEdits edits) {
    std::stable_sort(edits.begin(), edits.end(), [](const TextEdit& a, const TextEdit& b) {
        return a.begin != b.begin ? a.begin < b.begin : a.end < b.end;
    });
    std::string result;
    std::size_t added = 0;
    for (const TextEdit& edit : edits)
        added += edit.text.size();
    result.reserve(text.size() + added);
    std::size_t done = 0;
    for (const TextEdit& edit : edits) {
        assert(edit.begin >= done && edit.end >= edit.begin && edit.end <= text.size());
        result.append(text, done, edit.begin - done).append(edit.text);
        done = edit.end;
    }
    return result.append(text, done);
}

} // namespace glotta
