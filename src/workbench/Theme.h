// Light and dark.
#pragma once
#include <QtGui/QColor>

#include <string>
#include <string_view>

class QPalette;

namespace glotta {

inline constexpr std::string_view Themes[] = {"System", "Light", "Dark"};

bool IsDark(const QPalette& palette);
QColor CodePaper(bool dark);
// Style and palette of all windows; "System" takes what the desktop has.
void ApplyTheme(std::string_view theme);

} // namespace glotta
