#include "host/FormDesigner.h"

#include "host/ProjectListing.h"
#include "platform/Error.h"

namespace glotta {

std::string PlainDesigner::CreateMethod(const std::string& name, const MethodType& type) {
    const std::string& formClass = Root().ClassName();
    std::string declared = unit_.FindMethod(formClass, name);
    if (!declared.empty()) return declared;
    unit_.AddMethod(formClass, name, type, heritage_.DeclaringAncestor(name));
    return name;
}

void PlainDesigner::RenameComponent(TComponent& component, const std::string& newName) {
    if (!IsIdentifier(newName)) throw Error("'" + newName + "' is not a valid component name");
    if (TComponent* other = Root().FindComponent(newName); other && other != &component)
        throw Error("a component named " + newName + " already exists");
    if (&component != &Root()) unit_.RenameField(Root().ClassName(), component.Name(), newName);
    const std::string oldName = component.Name();
    component.SetName(newName);
    Modified();
    if (onRenamed) onRenamed(component, oldName, newName);
}

} // namespace glotta
