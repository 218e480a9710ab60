// The collection "ExtendedTranslations" in the object inspector.
#pragma once
#include "ide/DesignEditors.h"

namespace glotta {

class TransEditor;

class TExtendedTranslationsProperty : public TClassProperty {
public:
    TExtendedTranslationsProperty(DesignPlace place, TComponent& component, PropertyInfo property,
                                  TransEditor* editor)
        : TClassProperty(place, component, std::move(property)), editor_(*editor) {}
    TPropertyAttributes GetAttributes() const override { return DialogOnly(TClassProperty::GetAttributes()); }
    std::string GetValue() const override { return TClassProperty::GetValue(); }
    void Edit() override;

private:
    TransEditor& editor_;
};

} // namespace glotta
