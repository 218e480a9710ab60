#include "storage/UpdateTranslations.h"

#include "platform/Text.h"
#include "storage/FormComponents.h"

namespace glotta {

namespace {

// The form's first localization component for which `matches` holds.
template <class Matches> TgxCustomLang* Find(IdeServices& ide, const FormsListItem& item, Matches matches) {
    for (TComponent* component : FormComponents(ide, item.formName))
        if (auto* glotta = dynamic_cast<TgxCustomLang*>(component); glotta && matches(*glotta)) return glotta;
    return nullptr;
}

} // namespace

void UpdateTranslations::Updatetranslation1Click() {
    ForEachSelected("Updating translations", false, [this](const FormsListItem& item) {
        TgxCustomLang* const glotta = Find(ide_, item, [&](const TgxCustomLang& component) {
            return SameText(component.ClassName(), item.glotta) || SameText(component.Name(), item.glotta);
        });
        if (glotta) glotta->UpdateTranslations();
        return glotta != nullptr;
    });
}

void UpdateTranslations::ClearTranslations1Click() {
    if (ide_.Forms().Selected().empty()) return;
    if (ide_.GetUi().MessageDlg("This will clear all translation information in selected form(s)! Continue?",
                                MsgType::Warning, {ModalResult::Yes, ModalResult::No}) != ModalResult::Yes)
        return;
    ForEachSelected("Clearing translations", true, [this](const FormsListItem& item) {
        TgxCustomLang* const glotta = Find(ide_, item, [&](const TgxCustomLang& component) {
            return SameText(component.ClassName(), item.glotta);
        });
        if (glotta) glotta->ClearTranslations();
        return glotta != nullptr;
    });
}

void UpdateTranslations::ForEachSelected(const std::string& what, bool clearing, const Act& act) {
    const auto selected = ide_.Forms().Selected();
    if (selected.empty()) return;
    Progress progress(ide_.GetUi(), what + "...");
    for (const FormsListItem* item : selected) {
        if (progress.Cancelled()) return;
        progress.Text(what + ": " + item->formName);
        if (!clearing || item->languages != "0") Visit(*item, clearing, act);
    }
}

void UpdateTranslations::Visit(const FormsListItem& item, bool saveUnchanged, const Act& act) {
    const bool wasOpen = ide_.IsFileOpen(item.fileName);
    if (!wasOpen) ide_.OpenFile(item.fileName, false);
    const bool changed = act(item);
    const bool save = !wasOpen && (changed || saveUnchanged);
    // A unit that is closed without saving is not marked, lest the IDE ask what to do with it.
    if (wasOpen || save) ide_.MarkModifiedForm(item.fileName);
    // What could not be saved stays open, so that nothing is lost.
    if (!wasOpen && (!save || ide_.SaveFile(item.fileName))) ide_.CloseFile(item.fileName);
}

} // namespace glotta
