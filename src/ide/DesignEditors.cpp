#include "ide/DesignEditors.h"

#include "platform/Error.h"

namespace glotta {

void TStringProperty::SetValue(const std::string& value) {
    Component().SetStrProp(GetName(), value);
    Modified();
}

// --- references ---

std::string TComponentProperty::GetValue() const {
    const FormProperty* property = Component().Node().Find(GetName());
    return property && property->value.kind == FormValueKind::Identifier ? property->value.text : std::string();
}

bool TComponentProperty::CheckComponent(const TComponent& candidate) const {
    return candidate.InheritsFrom(Property().typeName);
}

void TComponentProperty::SetValue(const std::string& value) {
    if (value.empty()) {
        Component().Node().Remove(GetName());
    } else {
        const TComponent* referred = Designer().Root().FindComponent(value);
        if (!referred || !CheckComponent(*referred)) throw Error("Invalid property value");
        Component().Node().Set(GetName(), FormValue::Identifier(referred->Name()));
    }
    Modified();
}

std::vector<std::string> TComponentProperty::GetValues() const {
    std::vector<std::string> names;
    for (const TComponent* component : Designer().Root().Components())
        if (CheckComponent(*component)) names.push_back(component->Name());
    return names;
}

// --- double clicks ---

void TDefaultEditor::Edit() {
    bool searching = true;
    for (const auto& property : Services().GetComponentProperties(Component(), Designer())) {
        EditProperty(*property, searching);
        if (!searching) return;
    }
}

} // namespace glotta
