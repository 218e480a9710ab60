// The exclusion lists in the object inspector: each opens the exclusion editor on its page.
#pragma once
#include "ide/DesignEditors.h"
#include "platform/RegistryStore.h"
#include "platform/Ui.h"

#include <array>
#include <string_view>

namespace glotta {

// By the page of the exclusion editor.
inline constexpr std::array<std::string_view, 3> ExclusionProperties = {"DoNotTranslate", "ExcludedProperties",
                                                                        "SmartExcludeProps"};

class TExcludePropertyEditor : public TClassProperty {
public:
    TExcludePropertyEditor(DesignPlace place, TComponent& component, PropertyInfo property, Ui* ui,
                           RegistryStore* registry)
        : TClassProperty(place, component, std::move(property)), ui_(*ui), registry_(*registry) {}
    TPropertyAttributes GetAttributes() const override { return DialogOnly(TClassProperty::GetAttributes()); }
    void Edit() override;

private:
    Ui& ui_;
    RegistryStore& registry_;
};

} // namespace glotta
