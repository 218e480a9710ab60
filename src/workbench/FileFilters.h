// File dialog filters: "Text (*.txt)|*.txt;*.log|..." as Qt wants them.
#pragma once
#include <QtCore/QStringList>
#include <string_view>

namespace glotta {

QStringList NameFilters(std::string_view filter);

} // namespace glotta
