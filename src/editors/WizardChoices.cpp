#include "editors/WizardChoices.h"

#include "runtime/CustomLang.h"

#include <algorithm>

namespace glotta {

const std::array<WizardProperty, WizardPropertyCount> WizardProperties = {{
    {"AutoSkipEmpties", [](TgxCustomLang& c, bool on) { c.SetAutoSkipEmpties(on); }},
    {"ChangeLocales", [](TgxCustomLang& c, bool on) { c.SetChangeLocales(on); }},
    {"DoRaiseExceptions", [](TgxCustomLang& c, bool on) { c.SetBoolProp("DoRaiseExceptions", on); }},
    {"IsInheritedOwner", [](TgxCustomLang& c, bool on) { c.SetBoolProp("IsInheritedOwner", on); }},
    {"StoreAsUTF8", [](TgxCustomLang& c, bool on) { c.SetStoreAsUTF8(on); }},
    {"TranslateExtendedFirst",
     [](TgxCustomLang& c, bool on) { c.SetBoolProp("TranslateExtendedFirst", on); }},
    {"UseDefaultLanguage", [](TgxCustomLang& c, bool on) { c.SetUseDefaultLanguage(on); }},
    {"UseTaskMsgDlg", [](TgxCustomLang& c, bool on) { c.SetBoolProp("UseTaskMsgDlg", on); }},
}};

const WizardForm* WizardChoices::Row(std::string_view form) const {
    const auto found =
        std::find_if(forms.begin(), forms.end(), [&](const WizardForm& row) { return row.form == form; });
    return found == forms.end() ? nullptr : &*found;
}

std::string WizardChoices::NewContainerClass() const {
    const WizardForm* row = setCommonContainer ? Row(commonForm) : nullptr;
    const bool isNew = row && row->Inserts() && commonContainer == NewlyInserted(row->insert);
    return isNew ? row->insert : std::string();
}

} // namespace glotta
