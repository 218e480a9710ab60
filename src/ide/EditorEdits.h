// Writes computed changes into a source editor.
#pragma once
#include "ide/ToolsApi.h"
#include "platform/TextEdit.h"

#include <string_view>

namespace glotta {

// Applies the edits, whose byte places refer to `text`, the editor's present text, as one undoable step.
void WriteEdits(IOTASourceEditor& editor, std::string_view text, TextEdits edits);

} // namespace glotta
