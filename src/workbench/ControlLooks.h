// Draws the controls of a form, each class simply but so that one knows it.
#pragma once
#include "workbench/FormShapes.h"

class QPainter;

namespace glotta {

// Colors of a form on the screen of those days; they do not follow the theme.
inline constexpr const char* FormFace = "#f0f0f0";

void DrawShape(QPainter& painter, const DrawnControl& shape);

} // namespace glotta
