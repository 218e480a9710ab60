// Small pictures of components and properties, drawn for the exclusion editor.
#pragma once
#include <QtGui/QIcon>

class QPalette;

namespace glotta {

// By the images of ComponentNodes: the kinds of components, and the same crossed out.
QIcon ComponentIcon(int image, const QPalette& palette);
// By the images of CandidateProperty.
QIcon PropertyIcon(int image, const QPalette& palette);

} // namespace glotta
