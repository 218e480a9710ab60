// Checks the string identifiers of units, and shows what it finds in the result window.
#pragma once
#include "ide/Services.h"
#include "platform/Text.h"
#include "storage/IdentifierCheck.h"
#include "storage/_badidsform.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace glotta {

// One run over several units. Every form is read once in a run.
class IdentifierChecks {
public:
    explicit IdentifierChecks(IdeServices& ide) : ide_(ide) {}

    // Appends what is wrong in the unit, for the form (empty: a unit without one). A unit that was closed is
    // closed again. False when it cannot be opened.
    bool CheckIDInFile(std::vector<BadIDRow>& rows, const std::string& formName, const std::string& fileName);

    // The commands. `window` is the one result window, made anew.
    void CheckunusedIDs1Click(std::unique_ptr<TfrmBadIDs>& window); // the selected forms
    // The files of the chosen units.
    void CheckbadstringIDsinunit1Click(std::unique_ptr<TfrmBadIDs>& window,
                                       const std::vector<std::string>& files);

private:
    struct Target {
        std::string formName, fileName;
    };
    const FormIDs* FindForm(const std::string& formName);
    std::size_t CheckAll(std::vector<BadIDRow>& rows, const std::vector<Target>& targets);
    void Rebuild(std::unique_ptr<TfrmBadIDs>& window);
    void Show(TfrmBadIDs& window, std::vector<BadIDRow> rows);
    IdeServices& ide_;
    std::unordered_map<std::string, std::unique_ptr<FormIDs>, TextHash, TextEqual> forms_;
};

} // namespace glotta
