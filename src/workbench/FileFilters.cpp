#include "workbench/FileFilters.h"

namespace glotta {

QStringList NameFilters(std::string_view filter) {
    const QStringList parts = QString::fromUtf8(filter.data(), qsizetype(filter.size())).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString name = parts[i].trimmed();
        if (const qsizetype open = name.lastIndexOf('('); open >= 0 && name.endsWith(')'))
            name = name.left(open).trimmed();
        QString patterns = parts[i + 1];
        patterns.replace(';', ' ').replace("*.*", "*");
        filters << name + " (" + patterns + ")";
    }
    return filters;
}

} // namespace glotta
