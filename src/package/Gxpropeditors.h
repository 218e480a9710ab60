// The editors of the package's properties.
#pragma once
#include "ide/DesignEditors.h"
#include "platform/Ui.h"

namespace glotta {

class TransEditor;

// The texts of one kind, in the translation editor.
class TgxStringsProperty : public TClassProperty {
public:
    TgxStringsProperty(DesignPlace place, TComponent& component, PropertyInfo property, TransEditor* editor)
        : TClassProperty(place, component, std::move(property)), editor_(*editor) {}
    TPropertyAttributes GetAttributes() const override { return DialogOnly(TClassProperty::GetAttributes()); }
    void Edit() override;

private:
    TransEditor& editor_;
};

// The languages of a combo.
class TComboConfigurationProperty : public TClassProperty {
public:
    TComboConfigurationProperty(DesignPlace place, TComponent& component, PropertyInfo property, Ui* ui)
        : TClassProperty(place, component, std::move(property)), ui_(*ui) {}
    TPropertyAttributes GetAttributes() const override { return DialogOnly(TClassProperty::GetAttributes()); }
    void Edit() override;

private:
    Ui& ui_;
};

// One of the component's own languages.
class TActiveLanguageProperty : public TStringProperty {
public:
    using TStringProperty::TStringProperty;
    TPropertyAttributes GetAttributes() const override { return paValueList | paMultiSelect | paRevertable; }
    std::string GetValue() const override;
    void SetValue(const std::string& value) override;
    std::vector<std::string> GetValues() const override;
};

// The component that a linked one takes its texts from; a linked one itself cannot be.
class TCommonContainerProperty : public TComponentProperty {
public:
    using TComponentProperty::TComponentProperty;

protected:
    bool CheckComponent(const TComponent& candidate) const override;
};

} // namespace glotta
