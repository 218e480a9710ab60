// Lets the source follow a string identifier that was renamed.
#pragma once
#include "ide/Services.h"
#include "storage/RenameCandidates.h"

#include <string>
#include <vector>

namespace glotta {

class IdentifierRename {
public:
    explicit IdentifierRename(IdeServices& ide) : ide_(ide) {}

    // The developer chooses the units and the lines; every unit is changed in one undoable step. `newID` is
    // the old identifier again when the developer cancels before any unit was changed.
    void OnChangeStrID(const std::string& formName, const std::string& oldID, std::string& newID);

    // Without questions. Renames the identifier in the form's component that holds it, and in the units'
    // sources. Throws Error, before anything is changed, for an unknown form or identifier and for a new one
    // that exists or is none. Returns how many lines changed.
    std::size_t Rename(const std::string& formName, const std::string& oldID, const std::string& newID,
                       const std::vector<std::string>& files);

    // The source files of the project in the language of this one, in project order.
    std::vector<std::string> UnitsInLanguageOf(const std::string& fileName);

private:
    bool WriteLines(const std::string& fileName, const std::string& source,
                    const std::vector<RenameLine>& lines);
    IdeServices& ide_;
};

} // namespace glotta
