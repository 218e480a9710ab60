// What packages registered with the form designer, and which of it applies to a component. The IDE's own editors are
// registered first and give way to those of packages.
#pragma once
#include "ide/DesignIntf.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace glotta {

struct ClassesOnPage { // a palette page, or a category of actions
    std::string name;
    std::vector<std::string> classes;
};

class DesignRegistry : public IDesignServices {
public:
    void RegisterComponents(std::string_view page, const std::vector<std::string_view>& classes) override;
    void RegisterComponentEditor(std::string_view componentClass, TComponentEditorClass editor) override;
    void RegisterPropertyEditor(std::string_view type, std::string_view componentClass, std::string_view propertyName,
                                TPropertyEditorClass editor) override;
    void RegisterSelectionEditor(std::string_view componentClass, TSelectionEditorClass editor) override;
    void RegisterActions(std::string_view category, const std::vector<std::string_view>& classes,
                         std::string_view resource) override;
    std::vector<std::unique_ptr<IProperty>> GetComponentProperties(TComponent& component, IDesigner& designer) override;

    std::vector<TComponent*> OpenForms() override { return ListForms ? ListForms() : std::vector<TComponent*>(); }
    bool WithForm(const std::string& name, const std::function<void(TComponent& root)>& use) override {
        return UseForm && UseForm(name, use);
    }

    // What is registered from here on belongs to the new group, until the next one. A package is a group.
    int NewEditorGroup() { return ++group_; }
    // The package is unloaded: nothing of it is left.
    void FreeEditorGroup(int group);

    // Pages in order of their first registration, classes in theirs.
    std::vector<ClassesOnPage> PalettePages() const { return Joined(components_); }
    std::vector<ClassesOnPage> ActionCategories() const { return Joined(actions_); }

    // The editor for the nearest class wins, and of several for it the last registered. Nil when there is none.
    std::unique_ptr<IComponentEditor> ComponentEditorOf(TComponent& component, IDesigner& designer);
    std::unique_ptr<IProperty> PropertyEditorOf(TComponent& component, const PropertyInfo& property,
                                                IDesigner& designer);
    // All that are registered for what the selected components have in common.
    std::vector<std::unique_ptr<ISelectionEditor>> SelectionEditorsOf(const IDesignerSelections& selection,
                                                                      IDesigner& designer);

    // The units that the component's selection editors ask for.
    std::vector<std::string> RequiredUnits(TComponent& component, IDesigner& designer);

    // The host's: its forms.
    std::function<std::vector<TComponent*>()> ListForms;
    std::function<bool(const std::string& name, const std::function<void(TComponent& root)>& use)> UseForm;
    std::function<void()> OnView; // the window's: something came or went

private:
    struct Classes {
        int group;
        std::string page;
        std::vector<std::string> classes;
    };
    template <class Editor> struct Registered {
        int group;
        std::string componentClass;
        Editor editor;
        std::string type = {}; // of a property
    };
    using PropertyEditors = std::vector<Registered<TPropertyEditorClass>>;

    static std::vector<ClassesOnPage> Joined(const std::vector<Classes>& registered);
    template <class Editors, class Applies>
    static const typename Editors::value_type* Nearest(const Editors& editors, const TComponent& component,
                                                       Applies applies);
    const Registered<TPropertyEditorClass>* FindProperty(const TComponent& component, const PropertyInfo& property,
                                                         std::string_view registeredName) const;
    void Add(std::vector<Classes>& to, std::string_view page, const std::vector<std::string_view>& classes);
    void Changed() const {
        if (OnView) OnView();
    }

    int group_ = 0;
    std::vector<Classes> components_, actions_;
    std::vector<Registered<TComponentEditorClass>> componentEditors_;
    std::vector<Registered<TSelectionEditorClass>> selectionEditors_;
    std::unordered_map<std::string, PropertyEditors, TextHash, TextEqual> propertyEditors_; // by property name
};

} // namespace glotta
