// The main window's command that leads through the localization of the selected forms.
#include "editors/Translationwizard.h"
#include "mainwindow/MainWindow.h"
#include "settings/ExpertSettings.h"
#include "storage/Projectsettings.h"

namespace glotta {

void TfrmGlotta::Wizard1Click() {
    const auto option = [this](std::string_view name) {
        return context_.projectSettings ? context_.projectSettings->GetOptionValue(name) : std::string();
    };
    TfrmTranslationWizard wizard({context_.ide, translation_, context_.settings.Values(),
                                  option("DispatcherForm"), option("CommonContainerForm"),
                                  context_.RunItemClick});
    UiPort().ShowModal(wizard);
}

} // namespace glotta
