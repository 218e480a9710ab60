#include "storage/OpenedUnit.h"

namespace glotta {

std::vector<TgxCustomLang*> OpenedUnit::Glottas() const {
    std::vector<TgxCustomLang*> found;
    IOTAFormEditor* const editor =
        IdeServices::GetFormEditorFromModule(ide_.GetModuleFromFileName(fileName_));
    if (editor)
        for (TComponent* component : editor->Designer().Root().Components())
            if (auto* glotta = dynamic_cast<TgxCustomLang*>(component)) found.push_back(glotta);
    return found;
}

} // namespace glotta
