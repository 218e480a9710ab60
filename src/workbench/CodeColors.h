// Highlighting and folding of Object Pascal and C++, in the colors of a light or a dark window.
#pragma once
#include <string>

class QsciScintilla;

namespace glotta {

void SetCodeColors(QsciScintilla& editor, const std::string& fileName);

} // namespace glotta
