#include "host/IdeEditors.h"

#include "host/StringListEditor.h"

namespace glotta {

void RegisterIdeEditors(IDesignServices& ide, Ui& ui) {
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
}

} // namespace glotta
