// The main window's checks of string identifiers.
#include "mainwindow/MainWindow.h"
#include "storage/IdentifierChecks.h"
#include "storage/ProjectUnits.h"
#include "translation/TranslUnits.h"

#include <unordered_map>

namespace glotta {

void TfrmGlotta::CheckunusedIDs1Click() {
    IdentifierChecks(context_.ide).CheckunusedIDs1Click(badIDs_);
}

void TfrmGlotta::CheckbadstringIDsinunit1Click() {
    context_.ide.UseForms(lvFormNames.List()); // whatever page shows
    std::vector<std::string> names;
    std::unordered_map<std::string, std::string> fileOf;
    for (const ProjectUnit& unit : ProjectUnits(context_.ide))
        if (fileOf.try_emplace(unit.unitName, unit.fileName).second) names.push_back(unit.unitName);

    TfrmTranslUnits dialog(UiPort(), true);
    dialog.caption = "Check bad string IDs in unit(s)";
    dialog.lblUnits.Set("&Select Unit(s):");
    dialog.ShowFormNames(false);
    dialog.SetUnits(std::move(names));
    if (UiPort().ShowModal(dialog) != ModalResult::OK) return;
    std::vector<std::string> files;
    for (const std::size_t row : dialog.lbUnits.SelectedRows())
        files.push_back(fileOf[dialog.lbUnits.Items()[row]]);
    IdentifierChecks(context_.ide).CheckbadstringIDsinunit1Click(badIDs_, files);
}

} // namespace glotta
