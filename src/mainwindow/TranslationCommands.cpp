// The main window's commands on stored translations and on the project's options.
#include "mainwindow/MainWindow.h"
#include "storage/ProjectSettingsForm.h"
#include "storage/TranslationFileCommands.h"
#include "storage/UpdateTranslations.h"

namespace glotta {

void TfrmGlotta::sbSaveAllClick(int mode) {
    TranslationFileCommands(context_.ide, translation_, context_.settings, context_.projectSettings.get())
        .sbSaveAllClick(mode);
}

void TfrmGlotta::sbLoadAllClick(int mode) {
    TranslationFileCommands(context_.ide, translation_, context_.settings, context_.projectSettings.get())
        .sbLoadAllClick(mode);
}

bool TfrmGlotta::HasProjectSettings() const {
    return context_.projectSettings && lvFormNames.RowCount() > 0;
}

void TfrmGlotta::acProjectSettingsExecute() {
    std::vector<std::string> forms;
    FillProjectForms(forms);
    DisplayEditDialog(UiPort(), *context_.projectSettings, std::move(forms));
}

void TfrmGlotta::Updatetranslation1Click() {
    UpdateTranslations(context_.ide).Updatetranslation1Click();
}

void TfrmGlotta::ClearTranslations1Click() {
    UpdateTranslations(context_.ide).ClearTranslations1Click();
}

} // namespace glotta
