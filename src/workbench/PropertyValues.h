// Property values of a component as an object inspector shows and takes them.
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
    std::vector<std::string> choices;   // empty: any text
    std::shared_ptr<IProperty> editor;  // the registered one
    bool hasDialog = false;             // of that editor
};

// Makes the registered editor of a property; nil where there is none.
using EditorOf = std::function<std::unique_ptr<IProperty>(const PropertyInfo&)>;
// Sorted by name; events or the others.
std::vector<PropertyRow> PropertyRows(const TComponent& component, bool events, const EditorOf& editorOf);
// Takes the text that a person typed for a property, an event or the name. Throws Error for a text that is no value of
// its type.
void EnterValue(PlainFormEditor& form, TComponent& component, const PropertyRow& row, const std::string& text);
// The method bound to the event; where there is none, one is made and bound.
std::string EventMethod(PlainFormEditor& form, TComponent& component, const PropertyInfo& info);
// The event that a double click on the component means.
std::optional<PropertyInfo> DefaultEvent(const TComponent& component);

} // namespace glotta
