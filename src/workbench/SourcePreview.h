// A read-only pane with a piece of source and a place in it.
#pragma once
#include <string>

class QPlainTextEdit;

namespace glotta {

void MakeSourcePane(QPlainTextEdit& pane); // its font
// Selects the place and shows the lines around it. Line from 0, column and length in characters; without a
// length the whole line.
void ShowSource(QPlainTextEdit& pane, const std::string& text, int line, int column = 0, int length = 0);

} // namespace glotta
