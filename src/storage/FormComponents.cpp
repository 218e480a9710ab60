#include "storage/FormComponents.h"

namespace glotta {

std::vector<TComponent*> FormComponents(IdeServices& ide, const std::string& formName) {
    IOTAModule* const module = ide.Ide().modules.FindFormModule(formName);
    IOTAFormEditor* const editor = IdeServices::GetFormEditorFromModule(module);
    return editor ? editor->Designer().Root().Components() : std::vector<TComponent*>();
}

TgxCustomLang* FindGlotta(IdeServices& ide, const std::string& formName) {
    for (TComponent* component : FormComponents(ide, formName))
        if (auto* glotta = dynamic_cast<TgxCustomLang*>(component)) return glotta;
    return nullptr;
}

} // namespace glotta
