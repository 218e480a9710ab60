// The designer of an open form: methods in its unit, the selection, names of components.
#pragma once
#include "host/FormHeritage.h"
#include "host/FormUnit.h"
#include "ide/ToolsApi.h"
#include "vcl/Component.h"

#include <functional>
#include <string>

namespace glotta {

class PlainDesigner : public IDesigner {
public:
    PlainDesigner(ComponentTree& tree, FormUnit& unit, FormHeritage& heritage,
                  std::function<void()> onModified)
        : tree_(tree), unit_(unit), heritage_(heritage), onModified_(std::move(onModified)) {}

    TComponent& Root() override { return tree_.Root(); }
    const TComponent& Root() const { return tree_.Root(); }
    std::string CreateMethod(const std::string& name, const MethodType& type) override;
    void ShowMethod(const std::string& name) override { unit_.ShowMethod(Root().ClassName(), name); }
    void SelectComponent(TComponent* component) override {
        selected_ = component;
        if (onSelected) onSelected();
    }
    TComponent* SelectedComponent() override { return selected_; }
    void Modified() override { onModified_(); }

    // Renames the component, its field and what names it on the form; the form itself with its class, its variable and
    // in the projects that list it. Then tells. Throws Error, and renames nothing, for a name that cannot be.
    void RenameComponent(TComponent& component, const std::string& newName);
    // Lets the texts follow names that went back or came again; what has the new name already stays.
    void FollowRename(TComponent& component, const FormNames& from, const FormNames& to);

    std::function<void(TComponent&, const std::string& oldName, const std::string& newName)> onRenamed;
    std::function<void()> onSelected; // the window's
    // The form's: makes an action of the class in an action list, and selects it.
    std::function<void(const std::string& className, TComponent& list, const std::string& category)> createAction;
    // The host's: whether a component's or a form's name is taken by other forms, and the projects' part of a rename.
    std::function<bool(const std::string&)> isInherited;
    std::function<bool(const FormNames&)> isFormTaken;
    std::function<void(const FormNames& from, const FormNames& to)> renameInProjects;

private:
    void CheckName(const TComponent& component, const std::string& newName) const;
    void RenameInTexts(const TComponent& component, const FormNames& from, const FormNames& to);

    ComponentTree& tree_;
    FormUnit& unit_;
    FormHeritage& heritage_;
    std::function<void()> onModified_;
    TComponent* selected_ = nullptr;
};

} // namespace glotta
