// The form designer as packages extend it: what they register, and the editors that the designer then makes for the
// components and properties that a person works on. Editors live as long as the designer shows what they edit.
#pragma once
#include "ide/ToolsApi.h"
#include "vcl/Component.h"
#include "vcl/Menu.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

// What an object inspector offers for a property.
enum TPropertyAttribute : unsigned {
    paValueList = 1,        // a drop-down list of GetValues
    paSubProperties = 2,    // properties below it
    paDialog = 4,           // a "..." button that runs Edit
    paMultiSelect = 8,      // shown when several components are selected
    paAutoUpdate = 16,      // set with every key
    paSortList = 32,        // the drop-down list is sorted
    paReadOnly = 64,        // its text cannot be typed
    paRevertable = 128,     // may go back to what the ancestor has
    paFullWidthName = 256,  // the name takes both columns
    paVolatileSubProperties = 512
};
using TPropertyAttributes = unsigned; // a set of TPropertyAttribute

// The components that are selected in a designer, in the order in which they were selected.
using IDesignerSelections = std::vector<TComponent*>;

class IDesignServices;

// Where an editor works. All of it outlives the editor.
struct DesignPlace {
    IDesigner& designer;
    IDesignServices& services;
};

class IProperty {
public:
    virtual ~IProperty() = default;
    virtual TPropertyAttributes GetAttributes() const = 0;
    virtual std::string GetName() const = 0;
    virtual std::string GetValue() const = 0;
    // Throws Error for a text that is no value of the property.
    virtual void SetValue(const std::string& value) = 0;
    virtual std::vector<std::string> GetValues() const = 0; // of the drop-down list
    virtual void Edit() = 0;
};

class IComponentEditor {
public:
    virtual ~IComponentEditor() = default;
    virtual int GetVerbCount() const = 0;
    virtual std::string GetVerb(int index) const = 0; // "-" is a separator
    virtual void ExecuteVerb(int index) = 0;
    // Before the verb's menu item is shown: its check mark, its submenu.
    virtual void PrepareItem(int index, TMenuItem& item) = 0;
    virtual void Edit() = 0; // a double click
};

// Adds verbs to the menu of whatever is selected.
class ISelectionEditor {
public:
    virtual ~ISelectionEditor() = default;
    virtual int GetVerbCount() const = 0;
    virtual std::string GetVerb(int index) const = 0;
    virtual void ExecuteVerb(int index, const IDesignerSelections& selection) = 0;
    virtual void PrepareItem(int index, TMenuItem& item, const IDesignerSelections& selection) = 0;
    // Units that the form's unit needs while it has components of the class that the editor is registered for.
    virtual void RequiresUnits(std::vector<std::string>& units) const = 0;
};

// What is registered of an editor: its class, by name and as what makes the objects.
struct TPropertyEditorClass {
    std::string_view name;
    std::function<std::unique_ptr<IProperty>(DesignPlace, TComponent&, const PropertyInfo&)> Create;
};
struct TComponentEditorClass {
    std::string_view name;
    std::function<std::unique_ptr<IComponentEditor>(DesignPlace, TComponent&)> Create;
};
struct TSelectionEditorClass {
    std::string_view name;
    std::function<std::unique_ptr<ISelectionEditor>(DesignPlace)> Create;
};

// The IDE's side. Component classes are named; the IDE knows them by the class catalogue.
class IDesignServices {
public:
    virtual ~IDesignServices() = default;
    virtual void RegisterComponents(std::string_view page, const std::vector<std::string_view>& classes) = 0;
    virtual void RegisterComponentEditor(std::string_view componentClass, TComponentEditorClass editor) = 0;
    // For properties of the type, or of a class that descends from it. An empty class or name stands for all.
    virtual void RegisterPropertyEditor(std::string_view type, std::string_view componentClass,
                                        std::string_view propertyName, TPropertyEditorClass editor) = 0;
    virtual void RegisterSelectionEditor(std::string_view componentClass, TSelectionEditorClass editor) = 0;
    virtual void RegisterActions(std::string_view category, const std::vector<std::string_view>& classes,
                                 std::string_view resource) = 0;

    // The editors of the component's published properties, in their order; those without a registered editor are
    // not among them.
    virtual std::vector<std::unique_ptr<IProperty>> GetComponentProperties(TComponent& component,
                                                                           IDesigner& designer) = 0;
    // The open forms, whose components may be referred to as Form.Component.
    virtual std::vector<TComponent*> OpenForms() { return {}; }
    // Lets `use` look at the form of that name, open or only in the project. False when there is none.
    virtual bool WithForm(const std::string& /*name*/, const std::function<void(TComponent& root)>& /*use*/) {
        return false;
    }
};

} // namespace glotta
