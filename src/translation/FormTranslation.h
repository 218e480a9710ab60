// Localization components on forms: inserting them, their languages, and the editor opened on them.
#pragma once
#include "ide/Services.h"
#include "runtime/CustomLang.h"
#include "settings/SettingsValues.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

class FormTranslation {
public:
    FormTranslation(IdeServices& ide, const SettingsValues& settings) : ide_(ide), settings_(settings) {}

    // The form of the entry owns a localization component afterwards, with the default languages when it is
    // new. A component that could not be inserted leaves the entry as it was. A file that cannot be opened:
    // EGlottaSilent.
    void InsertTGlotta(FormsListItem& item);
    // The form's first localization component; nil for a form that has none or is not in the forms list.
    TgxCustomLang* GetGlotta(const std::string& formName);
    // Nil, after the message, when the form cannot take the component.
    TComponent* InsertComponentOnForm(const std::string& formName, const std::string& componentClass);

    // For the entry and every selected entry behind it, each losing its selection.
    void SetUpLang(int numLang, FormsListItem& item, const std::vector<std::string>& langNames,
                   std::string_view componentClass, bool insertIfNone);
    // One form's components of the class (or the one of them named `componentName`). Without names they keep
    // their own. A form that was closed is saved and closed again.
    void ConfigureLangComponent(int numLang, FormsListItem& item, const std::vector<std::string>& langNames,
                                std::string_view componentName, std::string_view componentClass,
                                bool insertIfNone);

    // Throws Error when the form has no dispatcher of that name.
    std::vector<std::string> LanguagesOfDispatcher(const FormsListItem& item, const std::string& name);

    void sbCaptionsClick();  // "Translate"
    void sbLanguagesClick(); // "Languages"

    // The translation editor; true when the person changed translations. Without one "Translate" does
    // nothing.
    std::function<bool(TgxCustomLang&)> TransEditorDlg;
    // An entry of the forms list changed: its row and the status bar are out of date.
    std::function<void()> UpdateStatusBar;

private:
    void TranslateForm(FormsListItem& item);
    bool ApplyToForm(int numLang, FormsListItem& item, const std::vector<std::string>& langNames,
                     std::string_view componentName, std::string_view componentClass);
    struct FormLanguages;
    FormLanguages LanguagesOf(const FormsListItem& item);
    std::vector<TgxCustomLang*> LangComponents(const std::string& formName);
    void Refresh();
    IdeServices& ide_;
    const SettingsValues& settings_;
};

} // namespace glotta
