// Texts on their way between the core (UTF-8) and Qt.
#pragma once
#include <QtCore/QString>

#include <string>
#include <string_view>

namespace glotta {

inline QString Q(std::string_view text) { return QString::fromUtf8(text.data(), qsizetype(text.size())); }
inline std::string S(const QString& text) { return text.toStdString(); }

} // namespace glotta
