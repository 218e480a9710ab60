#include "package/ExcludeComponentEditor.h"

#include "runtime/CustomLang.h"

namespace glotta {
namespace {

TgxCustomLang* FirstLang(const TComponent* owner) {
    if (owner)
        for (TComponent* component : owner->Components())
            if (auto* lang = dynamic_cast<TgxCustomLang*>(component)) return lang;
    return nullptr;
}

} // namespace

void TExcludeComponentEditor::PrepareItem(int, TMenuItem& item, const IDesignerSelections& selection) {
    const TComponent* const only = selection.size() == 1 ? selection.front() : nullptr;
    item.SetEnabled(only && !only->InheritsFrom("TgxCustomLang") && !only->InheritsFrom("TGlottaDispatcher"));
}

void TExcludeComponentEditor::ExecuteVerb(int, const IDesignerSelections& selection) {
    if (selection.size() != 1 || !selection.front()) return;
    const TComponent& component = *selection.front();
    const std::string className = component.ClassName(), name = component.Name();
    TgxCustomLang* const lang = FirstLang(component.Owner());
    if (!lang) {
        ui_.MessageDlg("Unable to locate TGlotta component!", MsgType::Error);
        return;
    }
    const ModalResult answer =
        ui_.MessageDlg("Click \"Yes\" to exclude " + name + " from translations.\r\n" +
                           "Click \"Yes to All\" to exsclude all " + className + " components from translations.\r\n" +
                           "Click \"Cancel\" to cancel this action.",
                       MsgType::Warning, {ModalResult::Yes, ModalResult::Cancel, ModalResult::YesToAll});
    if (answer != ModalResult::Yes && answer != ModalResult::YesToAll) return;
    const std::string item = answer == ModalResult::Yes ? name : "!" + className;
    TStringList excluded(lang->GetStrings("DoNotTranslate"));
    if (excluded.IndexOf(item) < 0) {
        excluded.Add(item);
        lang->SetDoNotList(excluded.Items());
    }
    Designer().Modified();
}

} // namespace glotta
