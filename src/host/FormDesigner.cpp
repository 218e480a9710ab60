#include "host/FormDesigner.h"

#include "host/FormReferences.h"
#include "host/ProjectListing.h"
#include "ide/ReservedWords.h"
#include "platform/Error.h"
#include "platform/Text.h"

namespace glotta {

std::string PlainDesigner::CreateMethod(const std::string& name, const MethodType& type) {
    const std::string& formClass = Root().ClassName();
    std::string declared = unit_.FindMethod(formClass, name);
    if (!declared.empty()) return declared;
    unit_.AddMethod(formClass, name, type, heritage_.DeclaringAncestor(name));
    return name;
}

void PlainDesigner::CheckName(const TComponent& component, const std::string& newName) const {
    if (!IsIdentifier(newName) || IsReservedWord(newName, unit_.IsCpp()))
        throw Error("'" + newName + "' is not a valid component name");
    const bool isForm = &component == &Root();
    if (!isForm && (component.Node().kind == FormNodeKind::Inherited || component.Owner() != &Root()))
        throw Error(component.Name() + " is inherited and can be renamed only where it is declared");
    if (SameText(newName, component.Name())) return;
    if (Root().FindComponent(newName) || SameText(Root().Name(), newName) || (isInherited && isInherited(newName)))
        throw Error("A component named " + newName + " already exists");
    const FormNames form{newName, "T" + newName};
    if (isForm && isFormTaken && isFormTaken(form)) throw Error("A form named " + newName + " already exists");
    if (isForm ? unit_.Mentions(form) : unit_.Declares(Root().ClassName(), newName))
        throw Error("The name " + newName + " is used already in the unit of " + Root().Name());
}

void PlainDesigner::RenameInTexts(const TComponent& component, const FormNames& from, const FormNames& to) {
    if (&component != &Root()) return unit_.RenameField(Root().ClassName(), from.name, to.name);
    unit_.Declaration(); // there, or an Error before anything changes
    if (renameInProjects) renameInProjects(from, to);
    unit_.RenameForm(from, to);
}

void PlainDesigner::RenameComponent(TComponent& component, const std::string& newName) {
    const FormNames from{component.Name(), component.ClassName()};
    const FormNames to{newName, &component == &Root() ? "T" + newName : from.className};
    if (to.name == from.name) return;
    CheckName(component, newName);
    RenameInTexts(component, from, to);
    RenameOnForm(component, newName);
    component.Node().className = to.className;
    Modified();
    if (onRenamed) onRenamed(component, from.name, to.name);
}

void PlainDesigner::FollowRename(TComponent& component, const FormNames& from, const FormNames& to) {
    RenameInTexts(component, from, to);
    if (onRenamed) onRenamed(component, from.name, to.name);
}

} // namespace glotta
