// Between the scanner and the open source editor: marks that keep lines out of later scans, the place where
// an identifier is used, and the lines around a literal.
#pragma once
#include "ide/Services.h"
#include "scanner/FoundStrings.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace glotta {

// Puts the selected text between the markers of an ignored region, in the language of the current editor's
// file.
void MarkSourceSelectionToSkip(IdeServices& ide);

// Selects the whole lines of the literal and marks them. Nil or no open editor: nothing happens.
void MarkStringToSkip(IdeServices& ide, const TgxFoundSourceString* foundString);

// Shows the first line of the current unit that passes the identifier as the first argument of a call.
bool ShowStringInSource(IdeServices& ide, std::string_view id, bool activate);

// The lines around a literal of `sourceText`, `previewLines` on either side. `line` is 1-based; below 1 the
// line follows from `position` in the current editor's unit. `previewLine` becomes the literal's line within
// the result, counted from 0. Empty, with previewLine untouched, when no source editor is open.
std::string GetCurrentSourcePreview(IdeServices& ide, int previewLines, std::size_t position, int line,
                                    int& previewLine, std::string_view sourceText);

} // namespace glotta
