// Property values of the selected components as an object inspector shows and takes them.
#pragma once
#include "host/FormEditor.h"
#include "ide/DesignIntf.h"

#include <string>
#include <vector>

namespace glotta {

struct PropertyRow {
    PropertyInfo info;
    std::string text;
    bool stored = false;   // the form file has it
    bool editable = false; // of a simple type
    bool hasChoices = false;            // to pick from, see Choices
    TPropertyAttributes attributes = 0; // of the registered editor
    std::vector<std::shared_ptr<IProperty>> editors; // the registered ones, one for each component, or none

    bool HasDialog() const { return attributes & paDialog; }
};

// Makes the registered editor of a property; nil where there is none.
using EditorOf = std::function<std::unique_ptr<IProperty>(TComponent&, const PropertyInfo&)>;
// Sorted by name; events or the others. Of several components, what all have and can be changed for all at once, with
// the text that they have in common.
std::vector<PropertyRow> PropertyRows(const IDesignerSelections& components, bool events, const EditorOf& editorOf);
// The texts to pick from, those that suit every component.
std::vector<std::string> Choices(const PropertyRow& row);
// Takes the text that a person typed for a property, an event or the name, for all components or for none. Throws Error
// for a text that is no value of its type.
void EnterValue(PlainFormEditor& form, const IDesignerSelections& components, const PropertyRow& row,
                const std::string& text);
// The method bound to the first component's event; where there is none, one is made and bound to all.
std::string EventMethod(PlainFormEditor& form, const IDesignerSelections& components, const PropertyInfo& info);
// The event that a double click on the component means.
std::optional<PropertyInfo> DefaultEvent(const TComponent& component);

} // namespace glotta
