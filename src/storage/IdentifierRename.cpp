#include "storage/IdentifierRename.h"

#include "ide/EditorEdits.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "storage/OpenedUnit.h"
#include "storage/ProjectUnits.h"
#include "storage/_stridrepl.h"
#include "translation/TransTexts.h"

namespace glotta {

std::vector<std::string> IdentifierRename::UnitsInLanguageOf(const std::string& fileName) {
    const std::string filter = FlavourOf(fileName).IsCPPSource ? ".CPP|.C|" : ".PAS|.DPR|";
    std::vector<std::string> files;
    for (const ProjectUnit& unit : ProjectUnits(ide_))
        if (filter.find(UpperCase(LowerExtension(unit.fileName)) + "|") != std::string::npos)
            files.push_back(unit.fileName);
    return files;
}

bool IdentifierRename::WriteLines(const std::string& fileName, const std::string& source,
                                  const std::vector<RenameLine>& lines) {
    IOTASourceEditor* const editor =
        ide_.OpenFile(fileName, false) ? ide_.GetSourceEditorFromFileName(fileName) : nullptr;
    if (!editor) return false;
    WriteEdits(*editor, source, RenameEdits(lines));
    return true;
}

// --- with the developer ---

void IdentifierRename::OnChangeStrID(const std::string& formName, const std::string& oldID,
                                     std::string& newID) {
    Ui& ui = ide_.GetUi();
    IOTASourceEditor* const editor = ide_.GetSourceEditorFromFormName(formName);
    if (!editor) {
        ui.MessageDlg("Couldn't retrieve unit source.\rUnit skipped!", MsgType::Error);
        return;
    }
    const std::string ownUnit = editor->FileName();
    TfrmStrReplace dialog(ui);
    dialog.SetUnits(UnitsInLanguageOf(ownUnit), ownUnit);
    bool changed = false; // a unit: the component has to follow
    const auto goesOn = [&] {
        if (ui.ShowModal(dialog) == ModalResult::OK) return true;
        if (!changed) newID = oldID;
        return false;
    };
    if (!goesOn()) return;
    const std::vector<std::string> files = dialog.lbScanUnits.Items();
    for (const std::string& file : files) {
        OpenedUnit unit(ide_, file);
        const std::string source = unit ? ide_.GetUnitSource(file) : std::string();
        if (source.empty()) {
            ui.MessageDlg("Couldn't retrieve unit source.\rUnit skipped!", MsgType::Error);
            continue;
        }
        auto lines = RenameCandidates(source, FlavourOf(ownUnit), oldID, newID);
        if (lines.empty()) {
            ui.MessageDlg("There is no lines to modify in unit source.", MsgType::Information);
            continue;
        }
        dialog.ShowLines(file, std::move(lines));
        if (!goesOn()) return;
        if (!WriteLines(file, source, dialog.lvSourceLines.Lines()))
            ui.MessageDlg("There was an error occured during source update!", MsgType::Error);
        else if (!RenameEdits(dialog.lvSourceLines.Lines()).empty()) {
            unit.Keep();
            changed = true;
        }
    }
}

// --- without questions ---

namespace {

struct UnitLines {
    std::string fileName, source;
    std::vector<RenameLine> lines;
};

// The form's component that holds the identifier. Throws Error when none does or the new one cannot be taken.
TgxCustomLang& ComponentToRename(const OpenedUnit& unit, const std::string& formName,
                                 const std::string& oldID, const std::string& newID) {
    for (TgxCustomLang* glotta : unit.Glottas()) {
        const int place = glotta->GetIDIndex(oldID);
        if (place < 0) continue;
        const int taken = glotta->GetIDIndex(newID);
        if (taken >= 0 && (taken != place || glotta->GetIDByIndex(place) == newID))
            throw Error(newID + ": " + formName + "." + glotta->Name() + " has this identifier already");
        return *glotta;
    }
    throw Error(oldID + ": no component of " + formName + " has this identifier");
}

} // namespace

std::size_t IdentifierRename::Rename(const std::string& formName, const std::string& oldID,
                                     const std::string& newID, const std::vector<std::string>& files) {
    const FormsListItem* const form = ide_.Forms().FindText(formName);
    if (!form) throw Error(formName + ": the project has no such form");
    if (!IsUsableID(newID))
        throw Error("\"" + newID + "\": an identifier shall not be empty and shall not contain quotes");
    OpenedUnit formUnit(ide_, form->fileName);
    if (!formUnit) throw Error(form->fileName + ": cannot be opened");
    TgxCustomLang& component = ComponentToRename(formUnit, form->formName, oldID, newID);
    const auto place = std::size_t(component.GetIDIndex(oldID));
    const std::string storedID = component.GetIDByIndex(int(place));

    std::vector<UnitLines> units;
    std::size_t count = 0;
    for (const std::string& file : files) {
        if (!ide_.OpenFile(file, false)) throw Error(file + ": cannot be opened");
        std::string source = ide_.GetUnitSource(file);
        auto lines = RenameCandidates(source, FlavourOf(file), storedID, newID);
        count += lines.size();
        units.push_back({file, std::move(source), std::move(lines)});
    }
    for (const UnitLines& unit : units)
        WriteLines(unit.fileName, unit.source, unit.lines);
    std::vector<std::string> records = component.Strings(stStrings).Items();
    records[place] = WithField(records[place], 1, newID);
    component.SetStrings(stStrings, std::move(records));
    ide_.MarkModifiedForm(form->fileName);
    formUnit.Keep();
    return count;
}

} // namespace glotta
