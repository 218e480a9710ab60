// A unit that is needed for a while: closed again afterwards when it was closed before.
#pragma once
#include "ide/Services.h"
#include "runtime/CustomLang.h"

#include <string>
#include <utility>
#include <vector>

namespace glotta {

class OpenedUnit {
public:
    OpenedUnit(IdeServices& ide, std::string fileName)
        : ide_(ide), fileName_(std::move(fileName)), close_(!ide.IsFileOpen(fileName_)),
          isOpen_(ide.OpenFile(fileName_, false)) {}
    ~OpenedUnit() {
        if (close_ && isOpen_) ide_.CloseFile(fileName_);
    }
    OpenedUnit(const OpenedUnit&) = delete;
    OpenedUnit& operator=(const OpenedUnit&) = delete;

    const std::string& FileName() const { return fileName_; }
    explicit operator bool() const { return isOpen_; }
    void Keep() { close_ = false; } // it was changed
    // The localization components of its form, in the order in which the form owns them.
    std::vector<TgxCustomLang*> Glottas() const;

private:
    IdeServices& ide_;
    std::string fileName_;
    bool close_, isOpen_;
};

} // namespace glotta
