#include "ide/EditorEdits.h"

#include "platform/Text.h"

#include <algorithm>

namespace glotta {

void WriteEdits(IOTASourceEditor& editor, std::string_view text, TextEdits edits) {
    if (edits.empty())
        return;
    std::stable_sort(edits.begin(), edits.end(), [](const TextEdit& a, const TextEdit& b) {
        return a.begin != b.begin ? a.begin < b.begin : a.end < b.end;
    });
    std::unique_ptr<IOTAEditWriter> writer = editor.CreateUndoableWriter();
    std::size_t bytes = 0, characters = 0;
    auto charactersAt = [&](std::size_t place) {
        characters += CharCount(text.substr(bytes, place - bytes));
        bytes = place;
        return characters;
    };
    for (const TextEdit& edit : edits) {
        writer->CopyTo(charactersAt(edit.begin));
        if (edit.end > edit.begin)
            writer->DeleteTo(charactersAt(edit.end));
        if (!edit.text.empty())
            writer->Insert(edit.text);
    }
}

} // namespace glotta
