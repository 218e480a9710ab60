// What the main window's commands do.
#include "mainwindow/MainWindow.h"

#include "editors/FormTakeBack.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "settings/ExpertSettings.h"
#include "settings/_expopt.h"
#include "storage/Projectsettings.h"
#include "translation/TranslUnits.h"

#include <algorithm>

namespace glotta {

// --- forms ---

void TfrmGlotta::sbCaptionsClick() {
    translation_.sbCaptionsClick();
}

void TfrmGlotta::sbLanguagesClick() {
    translation_.sbLanguagesClick();
}

void TfrmGlotta::ViewForm1Click() {
    for (const FormsListItem* item : context_.ide.Forms().Selected()) {
        if (!context_.ide.OpenFile(item->fileName, true)) throw EGlottaSilent();
        IOTAModule* module = context_.ide.GetModuleFromFileName(item->fileName);
        if (IOTAFormEditor* editor = IdeServices::GetFormEditorFromModule(module)) editor->Show();
    }
}

void TfrmGlotta::SelectAll1Click() {
    ActiveList().ClearSelection();
    ActiveList().InvertSelection();
}

void TfrmGlotta::tbAddExternalFileClick() {
    FileDialog dialog;
    dialog.defaultExtension = "pas";
    dialog.filter = "Pascal Files(*.pas)|*.pas";
    dialog.allowMultiSelect = true;
    if (!UiPort().Execute(dialog)) return;
    for (const std::string& file : dialog.files)
        AddExternalFile(file);
    UiPort().BringToFront(*this);
}

void TfrmGlotta::AddExternalFile(const std::string& fileName) {
    const bool wasOpen = context_.ide.IsFileOpen(fileName);
    if (!context_.ide.OpenFile(fileName, true)) throw EGlottaSilent();
    FormsListItem item;
    IOTAModule* module = context_.ide.Ide().modules.FindModule(fileName);
    item.fileName = module ? module->FileName() : fileName;
    item.unitName = PathText(PathFromText(item.fileName).stem());
    const auto& items = lvExternalFiles.List().items;
    const bool listed = std::any_of(items.begin(), items.end(), [&](const FormsListItem& other) {
        return SameFileName(other.fileName, item.fileName);
    });
    if (!listed && ReadOpenForm(item)) {
        ExternalFiles.AddFile(item.fileName);
        lvExternalFiles.Add(std::move(item));
    }
    if (!wasOpen) context_.ide.CloseFile(fileName);
}

// --- hard-coded strings ---

void TfrmGlotta::ScanForms(const std::function<void(ScanCommands&, FormsListItem&)>& scan) {
    ScanReplace driver(
        {context_.ide, context_.settings, context_.registry, context_.helper, context_.results},
        ScanReplace::Review::Dialog);
    ScanCommands commands{translation_, driver, context_.ide};
    for (FormsListItem* item : context_.ide.Forms().Selected()) {
        FormTakeBack before(context_.ide, *item);
        scan(commands, *item);
        if (driver.Cancelled()) return before.TakeBack(); // the component that it inserted for the strings
    }
}

void TfrmGlotta::Translatesource1Click() {
    const bool selectionOnly = context_.ide.modeMarker == IdeServices::SelectionMarker;
    ScanForms([&](ScanCommands& commands, FormsListItem& item) {
        commands.Translatesource1Click(item, selectionOnly);
    });
}

void TfrmGlotta::Const1Click() {
    ScanForms([](ScanCommands& commands, FormsListItem& item) { commands.Const1Click(item); });
}

// The units without a form; of a selection the unit that it is in.
std::vector<std::string> TfrmGlotta::UnitsToScan() {
    std::vector<std::string> units;
    IOTAProject* project = context_.ide.GetActiveProject();
    IOTASourceEditor* current = context_.ide.GetCurrentSourceEditor();
    const bool selectionOnly = context_.ide.modeMarker == IdeServices::SelectionMarker;
    if (project)
        for (const IOTAModuleInfo& info : project->Modules())
            if (selectionOnly ? current && SameText(info.fileName, current->FileName())
                              : info.formFile.empty() && !info.missing)
                units.push_back(info.unitName);
    return units;
}

// Without any form that could take the strings there is nothing to choose: the command says so.
std::optional<TfrmGlotta::UnitChoice> TfrmGlotta::ChooseUnit() {
    std::vector<std::string> forms;
    for (const FormsListItem& item : lvFormNames.List().items)
        if (item.languages != "0") forms.push_back(item.formName);
    if (forms.empty()) return UnitChoice{};
    std::string preferred = context_.projectSettings
                                ? context_.projectSettings->GetOptionValue("DefaultFormForUnits")
                                : std::string();
    if (std::find(forms.begin(), forms.end(), preferred) == forms.end())
        preferred = forms.size() == 1 ? forms.front() : std::string();

    TfrmTranslUnits dialog(UiPort());
    const std::vector<std::string> units = UnitsToScan();
    dialog.SetUnits(units);
    dialog.cbFormNames.Set(preferred);
    dialog.SetFormNames(forms);
    if (units.size() == 1) dialog.lbUnits.SelectOnly(0);
    if (UiPort().ShowModal(dialog) != ModalResult::OK) return {};
    return UnitChoice{dialog.UnitName(), dialog.FormName()};
}

void TfrmGlotta::ScanUnit(const std::function<void(ScanCommands&, const UnitChoice&)>& scan) {
    context_.ide.UseForms(lvFormNames.List()); // whatever page shows
    const std::optional<UnitChoice> choice = ChooseUnit();
    if (!choice) return;
    ScanReplace driver(
        {context_.ide, context_.settings, context_.registry, context_.helper, context_.results},
        ScanReplace::Review::Dialog);
    ScanCommands commands{translation_, driver, context_.ide};
    scan(commands, *choice);
}

void TfrmGlotta::TranslateUnit1Click() {
    const bool selectionOnly = context_.ide.modeMarker == IdeServices::SelectionMarker;
    ScanUnit([&](ScanCommands& commands, const UnitChoice& choice) {
        commands.TranslateUnit1Click(choice.unit, choice.form, selectionOnly);
    });
}

void TfrmGlotta::WithoutForm1Click() {
    ScanUnit([](ScanCommands& commands, const UnitChoice& choice) {
        commands.WithoutForm1Click(choice.unit, choice.form);
    });
}

void TfrmGlotta::ViewSkipped1Click() {
    skippedForm_ = std::make_unique<TfrmSkippedStrings>(context_.ide, context_.settings.Values().PreviewLines,
                                                        context_.results.skipped, context_.results.source,
                                                        &context_.registry);
    UiPort().Show(*skippedForm_);
}

// --- the expert ---

void TfrmGlotta::sbOptionsClick() {
    TfrmOptions dialog(UiPort(), {TextGetterNames.begin(), TextGetterNames.end()},
                       {NamesArray.begin(), NamesArray.end()});
    dialog.ShowHelp = context_.ShowHelp;
    dialog.Fill(context_.settings.Values());
    if (UiPort().ShowModal(dialog) != ModalResult::OK) return;
    dialog.Apply(context_.settings);
    if (context_.ReinstallMenu) context_.ReinstallMenu();
}

void TfrmGlotta::StayOnTop1Click() {
    StayOnTop.Set(!StayOnTop());
}

void TfrmGlotta::Dockable1Click() {
    Dockable.Set(!Dockable());
    context_.DockWindow(Dockable());
}

void TfrmGlotta::DictionaryManager1Click() {
    FreeServer();
    CreateServer();
}

void TfrmGlotta::About1Click() {
    context_.ShowAboutBox();
}

void TfrmGlotta::Help1Click() {
    context_.ShowHelp();
}

void TfrmGlotta::Close1Click() {
    Close(UiPort(), ModalResult::Cancel);
}

} // namespace glotta
