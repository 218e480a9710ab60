#include "package/Gxpropeditors.h"

#include "editors/_gxcomboproped.h"
#include "runtime/GlottaCombo.h"
#include "runtime/TransEditor.h"

namespace glotta {

// --- texts ---

void TgxStringsProperty::Edit() {
    auto& lang = dynamic_cast<TgxCustomLang&>(Component());
    for (int kind = 0; kind < StringsTypeCount; ++kind)
        if (SameText(GetName(), StringsPropertyName(TStringsType(kind))) &&
            editor_.TransEditorDlg(lang, TransEditorPlace{TStringsType(kind), TransEditorPlace::NoRecord}))
            Modified();
}

// --- combo ---

void TComboConfigurationProperty::Edit() {
    EditComboSettings(ui_, dynamic_cast<TGlottaCombo&>(Component()),
                      [this](const std::string& form, const auto& visit) { Services().WithForm(form, visit); });
    Modified();
}

// --- language ---

std::vector<std::string> TActiveLanguageProperty::GetValues() const {
    Languages languages = Languages::Read(Component());
    languages.names.resize(std::size_t(languages.count));
    return languages.names;
}

std::string TActiveLanguageProperty::GetValue() const {
    return Languages::Read(Component()).ActiveName();
}

void TActiveLanguageProperty::SetValue(const std::string& value) {
    if (auto* lang = dynamic_cast<TgxCustomLang*>(&Component()))
        lang->SetLanguage(value);
    else
        dynamic_cast<TGlottaDispatcher&>(Component()).SetLanguage(value);
    Modified();
}

// --- common container ---

bool TCommonContainerProperty::CheckComponent(const TComponent& candidate) const {
    return TComponentProperty::CheckComponent(candidate) && !candidate.InheritsFrom("TGlottaLinked");
}

} // namespace glotta
