#include "host/IdeEditors.h"

#include "host/ActionListEditor.h"
#include "host/StringListEditor.h"

namespace glotta {

void RegisterIdeEditors(DesignRegistry& ide, Ui& ui) {
    ide.RegisterPropertyEditor(
        "TStrings", {}, {},
        {"TStringListProperty", [&ui](DesignPlace place, TComponent& component, const PropertyInfo& property) {
             return std::make_unique<TStringListProperty>(place, component, property, &ui);
         }});
    ide.RegisterPropertyEditor(
        "TComponent", {}, {},
        {"TComponentProperty", [](DesignPlace place, TComponent& component, const PropertyInfo& property) {
             return std::make_unique<TComponentProperty>(place, component, property);
         }});
    ide.RegisterComponentEditor("TCustomActionList",
                                {"TActionListEditor", [&ide](DesignPlace place, TComponent& component) {
                                     return std::make_unique<TActionListEditor>(place, component, ide);
                                 }});
}

} // namespace glotta
