// Looking into a file that may be closed.
#pragma once
#include "ide/Services.h"

#include <string>

namespace glotta {

// What `read` finds out; a file that was not open before is closed again.
template <class Read> auto WithFileAsItWas(IdeServices& ide, const std::string& fileName, Read read) {
    const bool wasOpen = ide.IsFileOpen(fileName);
    auto result = read();
    if (!wasOpen && ide.IsFileOpen(fileName)) ide.CloseFile(fileName);
    return result;
}

} // namespace glotta
