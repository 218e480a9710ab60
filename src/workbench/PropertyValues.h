// Property values of a component as an object inspector shows and takes them.
#pragma once
#include "vcl/Component.h"

#include <string>
#include <vector>

namespace glotta {

struct PropertyRow {
    PropertyInfo info;
    std::string text;
    bool stored = false;   // the form file has it
    bool editable = false; // of a simple type
    std::vector<std::string> choices; // empty: any text
};

// Sorted by name; events or the others.
std::vector<PropertyRow> PropertyRows(const TComponent& component, bool events);
// Sets the property by the text that a person typed. Throws Error for a text that is no value of its type.
void SetProperty(TComponent& component, const PropertyInfo& info, const std::string& text);

} // namespace glotta
