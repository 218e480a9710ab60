#include "vcl/ComponentKinds.h"

#include "vcl/Component.h"

namespace glotta {

namespace {

bool IsKnown(const TComponent& component) {
    return component.Tree().Catalogue().Find(component.ClassName()) != nullptr;
}

// Only windowed controls have a place in the tab order, or others inside.
bool IsWindowed(const TComponent& component) {
    if (component.InheritsFrom("TWinControl")) return true;
    return !IsKnown(component) && (component.Node().Find("TabOrder") || !component.Node().children.empty());
}

} // namespace

bool IsControl(const TComponent& component) {
    if (component.InheritsFrom("TControl")) return true;
    if (IsKnown(component)) return false;
    if (component.Node().kind == FormNodeKind::Inline) return true; // a frame
    return component.Node().Find("Width") && component.Node().Find("Height");
}

ComponentKind KindOf(const TComponent& component) {
    if (!component.Owner())
        return component.InheritsFrom("TDataModule") ? ComponentKind::DataModule : ComponentKind::Form;
    if (!IsControl(component)) return ComponentKind::NonVisual;
    return IsWindowed(component) ? ComponentKind::WindowedControl : ComponentKind::Control;
}

} // namespace glotta
