// The dialog of a project's translation options.
#pragma once
#include "platform/Form.h"
#include "platform/StringList.h"
#include "storage/Projectsettings.h"

#include <string>
#include <string_view>
#include <vector>

namespace glotta {

class TfrmProjectTranslationSettings : public TForm {
public:
    // Filled with the settings; `formNames` are the project's forms.
    TfrmProjectTranslationSettings(Ui& ui, const TGlottaProjectSettings& settings,
                                   std::vector<std::string> formNames);
    TfrmProjectTranslationSettings(const TfrmProjectTranslationSettings&) = delete;
    TfrmProjectTranslationSettings& operator=(const TfrmProjectTranslationSettings&) = delete;

    // Page "Dictionary"
    TField<std::string> edDictionary, cbBaseLanguage;
    TField<bool> ckbConfirm, ckbCaseSensitive, ckbSkipAmpersands, ckbParseMultilines, ckbOverwrite,
        ckbForceEmpties;
    TAction btDictionary;
    TField<bool> imWarning; // shown while its value is true
    static constexpr std::string_view WarningHint = "Default language not in Dictionary!";
    // Page "Project"; the last three are chosen from the forms
    TField<std::string> edTranslationFile, cbFormForUnits, cbDispatcherForm, cbCommonContainerForm;
    TAction btTranslationFile;

    TField<bool> sbDictionary{true}, sbProject; // the page whose button is down shows
    static constexpr std::string_view SectionsHint =
        "Press Ctrl+Tab to switch pages"; // of the panel with both
    TAction btOK, btCancel;

    const TStringList& BaseLanguages() const { return baseLanguages_; }
    const TStringList& FormNames() const { return formNames_; }

    void SwitchPage() { ShowPage(sbDictionary()); } // Ctrl+Tab
    void ShowPage(bool project);
    // Writes every option back, in the order of the options.
    void WriteTo(TGlottaProjectSettings& settings) const;

private:
    void Fill(const TGlottaProjectSettings& settings);
    void DictionaryChanged();
    void CheckBaseLanguage();

    Ui& ui_;
    TStringList baseLanguages_, formNames_;
};

// Shows the dialog; on OK the options are written and saved.
void DisplayEditDialog(Ui& ui, TGlottaProjectSettings& settings, std::vector<std::string> formNames);

} // namespace glotta
