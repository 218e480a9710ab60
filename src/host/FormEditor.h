// The form of an open module: its components over the form file.
#pragma once
#include "host/FormDesigner.h"
#include "host/FormHistory.h"
#include "host/FormUnit.h"
#include "ide/ToolsApi.h"
#include "vcl/Component.h"
#include "vcl/FormFile.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace glotta {

// One component as the interfaces show it; the handles live as long as the form is open.
class PlainComponent : public IOTAComponent {
public:
    explicit PlainComponent(TComponent& component) : component_(component) {}
    int GetComponentCount() override { return static_cast<int>(component_.Components().size()); }
    IOTAComponent* GetComponent(int index) override;
    TComponent* GetComponentHandle() override { return &component_; }
    void Forget() { children_.clear(); } // the components below are others now

private:
    TComponent& component_;
    std::unordered_map<TComponent*, std::unique_ptr<PlainComponent>> children_;
};

class PlainFormEditor : public IOTAFormEditor {
public:
    // Throws Error for a form file that cannot be read.
    PlainFormEditor(IOTAModule& module, std::string fileName, std::string_view bytes, unsigned codePage,
                    FormUnit unit, FindAncestorForm findAncestor, std::function<void()> onShow);
    const FormHeritage& Heritage() const { return heritage_; }

    std::string FileName() const override { return fileName_; }
    bool Modified() const override { return history_.Modified(); }
    void Show() override {
        onShow_();
        if (OnShow) OnShow();
    }
    std::function<void()> OnShow; // the window's: the form itself is wanted, not its unit
    IOTAModule& Module() override { return module_; }
    IOTAComponent* GetRootComponent() override { return &rootHandle_; }
    TComponent& CreateComponent(const std::string& className) override { return CreateComponent(className, nullptr); }
    // Where and as a designer would put it: a control goes into what is selected, or what holds that.
    TComponent& CreateComponent(const std::string& className, const TComponent* selected);
    // An action goes into its list.
    TComponent& CreateAction(const std::string& className, TComponent& list, const std::string& category);
    void DeleteComponent(TComponent& component) override;
    void MarkModified() override {
        history_.Touch();
        if (OnView) OnView();
    }
    void MarkTakenBack() override {
        history_.MarkSaved();
        if (OnView) OnView();
    }
    // A person's change, as one step that can be undone; what fails leaves everything as it was.
    void Step(const std::function<void()>& change);
    // What a registered editor does: such a step when it tells the designer of a change.
    void EditStep(const std::function<void()>& edit);
    bool CanUndo() const { return history_.CanUndo(); }
    bool CanRedo() const { return history_.CanRedo(); }
    void Undo() { Follow(history_.Undo()); }
    void Redo() { Follow(history_.Redo()); }
    PlainDesigner& Designer() override { return designer_; }

    ComponentTree& Tree() { return tree_; }
    const ComponentTree& Tree() const { return tree_; }
    // The form file's bytes. Throws Error when a text cannot be expressed.
    std::string Bytes();
    void MarkSaved() { history_.MarkSaved(); }
    void MarkUnsaved() { history_.MarkUnsaved(); }

    std::function<void()> OnView; // the window's: the form changed
    // The host's: names of components in forms that this one inherits from or that inherit from it. At run
    // time all of them are components of one form.
    std::function<std::vector<std::string>()> InheritedNames;
    // The host's: units that the form's unit needs for a component, besides the one that declares its class.
    std::function<std::vector<std::string>(TComponent&)> RequiredUnits;
    // The host's: the texts that changes of the form may reach.
    FormHistory::Editors Texts;

private:
    const ClassInfo& ClassToCreate(const std::string& className) const;
    void AddRequiredUnits(TComponent& component);
    std::string FreeName(const std::string& className);
    bool IsInherited(const std::string& name) const;
    void Follow(const FormHistory::Renames& renames);

    IOTAModule& module_;
    std::string fileName_;
    FormFile file_;
    FormUnit unit_;
    FormHeritage heritage_;
    ComponentTree tree_;
    PlainComponent rootHandle_;
    FormHistory history_;
    PlainDesigner designer_;
    std::function<void()> onShow_;
};

} // namespace glotta
