#include "package/ComponentEditors.h"

#include "expert/Glottaexp.h"
#include "platform/Text.h"
#include "runtime/TransEditor.h"

#include <array>

namespace glotta {

// --- localization components ---

namespace {

enum Verb { TranslationEditor, Update, Clear, IgnoreRemovals, Separator, TranslateSource, VerbCount };
constexpr std::array<const char*, VerbCount> Verbs = {
    "Translation Editor...", "Update Translations", "Clear Translations", "Ignore Removals", "-", "Translate source"};

struct SourceCommand {
    const char* caption;
    void (TfrmGlotta::*run)();
};
constexpr SourceCommand SourceCommands[] = {{"Source", &TfrmGlotta::Translatesource1Click},
                                            {"CONST Declaration", &TfrmGlotta::Const1Click}};

void RunOnSelectedForm(TGlottaExpert& expert, void (TfrmGlotta::*command)()) {
    expert.RunItemClick();
    TfrmGlotta* const window = expert.MainWindow();
    if (window && window->lvFormNames.SelectedCount() > 0) (window->*command)();
}

} // namespace

int TTranslationsEditor::GetVerbCount() const {
    return VerbCount;
}

std::string TTranslationsEditor::GetVerb(int index) const {
    return index >= 0 && index < VerbCount ? Verbs[std::size_t(index)] : std::string();
}

TgxCustomLang& TTranslationsEditor::Lang() const {
    return dynamic_cast<TgxCustomLang&>(Component());
}

void TTranslationsEditor::ExecuteVerb(int index) {
    switch (index) {
    case TranslationEditor: return EditTranslations();
    case Update: return UpdateTranslations();
    case Clear: return ClearTranslations();
    case IgnoreRemovals: return ToggleIgnoreRemovals();
    default: return; // the submenu's items run by themselves
    }
}

void TTranslationsEditor::EditTranslations() {
    if (!editor_.TransEditorDlg(Lang(), {})) return;
    Modified();
    Lang().RefreshLists();
}

void TTranslationsEditor::UpdateTranslations() {
    Lang().UpdateTranslations();
    Modified();
}

void TTranslationsEditor::ClearTranslations() {
    if (ui_.MessageDlg("This will delete all translation data stored in component! Continue?", MsgType::Warning,
                       {ModalResult::Yes, ModalResult::No}) != ModalResult::Yes)
        return;
    Lang().ClearTranslations();
    Modified();
}

// A matter of the work on the form, not of the form: it is not modified by that.
void TTranslationsEditor::ToggleIgnoreRemovals() {
    Lang().SetIgnoreRemovals(!Lang().IgnoreRemovals());
}

void TTranslationsEditor::PrepareItem(int index, TMenuItem& item) {
    if (index == IgnoreRemovals) item.SetChecked(Lang().IgnoreRemovals());
    if (index != TranslateSource) return;
    for (const SourceCommand& command : SourceCommands)
        item.Add(command.caption, {}, [expert = expert_, run = command.run] {
            if (const auto loaded = expert->lock()) RunOnSelectedForm(*loaded, run);
        });
}

// --- dispatchers and combos ---

void TDispatcherEditor::EditProperty(IProperty& property, bool& searching) {
    const char* const wanted = Component().InheritsFrom("TGlottaCombo") ? "LanguageInfos" : "LANGNAMES";
    if (!SameText(property.GetName(), wanted)) return;
    property.Edit();
    searching = false;
}

} // namespace glotta
