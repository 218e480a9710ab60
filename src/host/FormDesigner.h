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
    std::string CreateMethod(const std::string& name, const MethodType& type) override;
    void ShowMethod(const std::string& name) override { unit_.ShowMethod(Root().ClassName(), name); }
    void SelectComponent(TComponent* component) override {
        selected_ = component;
        if (onSelected) onSelected();
    }
    TComponent* SelectedComponent() override { return selected_; }
    void Modified() override { onModified_(); }

    // Renames the component and its field, then tells.
    void RenameComponent(TComponent& component, const std::string& newName);

    std::function<void(TComponent&, const std::string& oldName, const std::string& newName)> onRenamed;
    std::function<void()> onSelected; // the window's

private:
    ComponentTree& tree_;
    FormUnit& unit_;
    FormHeritage& heritage_;
    std::function<void()> onModified_;
    TComponent* selected_ = nullptr;
};

} // namespace glotta
