#include "expert/IdeNotifiers.h"

#include "expert/Glottaexp.h"
#include "platform/Error.h"
#include "platform/Text.h"
#include "runtime/CustomLang.h"

namespace glotta {

namespace {

TgxCustomLang* LocalizationOf(TComponent& root) {
    for (TComponent* component : root.Components())
        if (auto* glotta = dynamic_cast<TgxCustomLang*>(component)) return glotta;
    return nullptr;
}

// The records of a component's properties begin with its name: their translations follow it. The records of
// "Strings" bear identifiers of their own.
void RenameRecords(TgxCustomLang& glotta, const std::string& oldName, const std::string& newName) {
    const std::string before = oldName + ".";
    for (int kind = 0; kind < StringsTypeCount; ++kind) {
        if (kind == stStrings) continue;
        std::vector<std::string> records = glotta.Strings(TStringsType(kind)).Items();
        bool changed = false;
        for (std::string& record : records)
            if (StartsWithText(record, before)) {
                record.replace(0, oldName.size(), newName);
                changed = true;
            }
        if (changed) glotta.SetStrings(TStringsType(kind), std::move(records));
    }
}

} // namespace

void TgxAddInNotifier::FileNotification(TOTAFileNotification code, const std::string& fileName, bool&) {
    if (expert_) expert_->FileNotification(code, fileName);
}

std::shared_ptr<TgxModuleNotifier> TgxModuleNotifier::Create(TGlottaExpert& expert, FormsListItem* entry,
                                                             IOTAModule& module) {
    IOTAFormEditor* form = IdeServices::GetFormEditorFromModule(&module);
    if (!form) throw EGlottaSilent();
    std::shared_ptr<TgxModuleNotifier> notifier(new TgxModuleNotifier(expert, module, *form));
    if (entry) entry->data = notifier;
    notifier->index_ = module.AddNotifier(notifier);
    return notifier;
}

void TgxModuleNotifier::Unregister() {
    if (index_ > -1 && module_) module_->RemoveNotifier(index_);
    index_ = -1;
}

void TgxModuleNotifier::Destroyed() {
    Unregister();
    module_ = nullptr;
    form_ = nullptr;
    expert_.Forget(*this);
}

void TgxModuleNotifier::ComponentRenamed(TComponent* component, const std::string& oldName,
                                         const std::string& newName) {
    if (!form_ || oldName.empty() || newName.empty()) return;
    TComponent& root = form_->Designer().Root();
    if (component != &root) {
        if (TgxCustomLang* glotta = LocalizationOf(root)) RenameRecords(*glotta, oldName, newName);
        return;
    }
    FormsListItem* entry = expert_.EntryOf(*this, module_->FileName());
    if (entry && entry->formName == oldName) {
        entry->formName = newName;
        expert_.EntryRenamed();
    }
}

} // namespace glotta
