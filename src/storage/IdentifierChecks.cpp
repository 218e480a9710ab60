#include "storage/IdentifierChecks.h"

#include "platform/Files.h"
#include "scanner/SourceFlavour.h"
#include "storage/OpenedUnit.h"

namespace glotta {

const FormIDs* IdentifierChecks::FindForm(const std::string& formName) {
    const auto [place, isNew] = forms_.try_emplace(formName);
    if (!isNew) return place->second.get();
    const FormsListItem* const item = formName.empty() ? nullptr : ide_.Forms().FindText(formName);
    if (!item) return nullptr;
    const OpenedUnit unit(ide_, item->fileName);
    if (!unit) return nullptr;
    auto form = std::make_unique<FormIDs>(FormIDs{item->formName, {}});
    for (const TgxCustomLang* glotta : unit.Glottas()) {
        std::vector<std::string> ids;
        for (const std::string& record : glotta->Strings(stStrings))
            ids.push_back(RecordField(record, 1));
        form->components.push_back({glotta->Name(), TStringList(std::move(ids))});
    }
    place->second = std::move(form);
    return place->second.get();
}

bool IdentifierChecks::CheckIDInFile(std::vector<BadIDRow>& rows, const std::string& formName,
                                     const std::string& fileName) {
    const OpenedUnit unit(ide_, fileName);
    if (!unit) return false;
    const std::string source = ide_.GetUnitSource(fileName);
    for (BadID& bad : CheckIDs(source, FlavourOf(fileName), formName,
                               [this](const std::string& name) { return FindForm(name); }))
        rows.push_back({std::move(bad), fileName, formName});
    return true;
}

// --- the commands ---

void IdentifierChecks::Rebuild(std::unique_ptr<TfrmBadIDs>& window) {
    auto rebuilt = std::make_unique<TfrmBadIDs>(ide_);
    if (window) rebuilt->ColumnWidths.Set(window->ColumnWidths());
    window = std::move(rebuilt);
}

// How many units were checked; the person may have stopped it, and units that cannot be opened are passed
// over.
std::size_t IdentifierChecks::CheckAll(std::vector<BadIDRow>& rows, const std::vector<Target>& targets) {
    std::size_t checked = 0;
    Progress progress(ide_.GetUi(), "Scanning...");
    for (const Target& target : targets) {
        if (progress.Cancelled()) break;
        progress.Text(PathText(PathFromText(target.fileName).filename()));
        if (CheckIDInFile(rows, target.formName, target.fileName)) {
            ++checked;
        } else if (LowerExtension(target.fileName) != ".dpr") {
            progress.Text({});
            ide_.GetUi().MessageDlg("Couldnot open file:\r" + target.fileName + "\r\nUnit skipped!",
                                    MsgType::Error);
        }
    }
    return checked;
}

void IdentifierChecks::CheckunusedIDs1Click(std::unique_ptr<TfrmBadIDs>& window) {
    const std::vector<FormsListItem*> selected = ide_.Forms().Selected();
    if (selected.empty()) return;
    Rebuild(window);
    const std::string formName = selected.front()->formName;
    const bool isOne = selected.size() == 1;
    std::vector<Target> targets;
    for (const FormsListItem* item : selected)
        if (item->languages != "0") targets.push_back({item->formName, item->fileName});
    if (targets.empty() && isOne) {
        ide_.GetUi().MessageDlg("Form " + formName + " is not translated!", MsgType::Error);
        return;
    }
    std::vector<BadIDRow> rows;
    const bool checkedAll = CheckAll(rows, targets) == targets.size();
    const bool isGood = rows.empty() && checkedAll;
    if (!rows.empty() || (!isOne && !targets.empty())) Show(*window, std::move(rows));
    if (isGood)
        ide_.GetUi().MessageDlg((isOne ? "All IDs on form " + formName + " are used."
                                       : std::string("All IDs on selected forms are used.")) +
                                    "\rAll internal and external IDs resolved.",
                                MsgType::Information);
}

void IdentifierChecks::CheckbadstringIDsinunit1Click(std::unique_ptr<TfrmBadIDs>& window,
                                                     const std::vector<std::string>& files) {
    Rebuild(window);
    std::vector<Target> targets;
    for (const std::string& file : files)
        targets.push_back({{}, file});
    std::vector<BadIDRow> rows;
    const bool checkedAny = CheckAll(rows, targets) > 0;
    if (!rows.empty())
        Show(*window, std::move(rows));
    else if (checkedAny)
        ide_.GetUi().MessageDlg("All external IDs in unit(s) resolved.", MsgType::Information);
}

void IdentifierChecks::Show(TfrmBadIDs& window, std::vector<BadIDRow> rows) {
    window.IDsList.SetRows(std::move(rows));
    ide_.GetUi().Show(window);
}

} // namespace glotta
