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
        return Modified();
    }
    const TComponent& own = Designer().Root();
    const std::size_t dot = value.find('.');
    const std::string form = value.substr(0, std::min(dot, value.size()));
    std::string referred;
    if (dot == std::string::npos)
        referred = Checked(own, value);
    else if (SameText(form, own.Name()))
        referred = Checked(own, value.substr(dot + 1));
    else
        Services().WithForm(form, [&](const TComponent& root) {
            const std::string name = Checked(root, value.substr(dot + 1));
            if (!name.empty()) referred = root.Name() + "." + name;
        });
    if (referred.empty()) throw Error("Invalid property value");
    Component().Node().Set(GetName(), FormValue::Identifier(referred));
    Modified();
}

std::string TComponentProperty::Checked(const TComponent& root, std::string_view name) const {
    const TComponent* component = root.FindComponent(name);
    return component && CheckComponent(*component) ? component->Name() : std::string();
}

std::vector<std::string> TComponentProperty::GetValues() const {
    std::vector<std::string> names;
    const TComponent& own = Designer().Root();
    const auto add = [&](const TComponent& root) {
        for (const TComponent* component : root.Components())
            if (!component->Name().empty() && CheckComponent(*component))
                names.push_back((&root == &own ? "" : root.Name() + ".") + component->Name());
    };
    add(own);
    for (const TComponent* root : Services().OpenForms())
        if (root != &own) add(*root);
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
