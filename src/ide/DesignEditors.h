// What editors of components and properties have in common, to be derived from.
#pragma once
#include "ide/DesignIntf.h"

namespace glotta {

class TPropertyEditor : public IProperty {
public:
    TPropertyEditor(DesignPlace place, TComponent& component, PropertyInfo property)
        : place_(place), component_(component), property_(std::move(property)) {}
    TPropertyAttributes GetAttributes() const override { return paMultiSelect | paRevertable; }
    std::string GetName() const override { return property_.name; }
    std::vector<std::string> GetValues() const override { return {}; }
    void Edit() override {}

protected:
    TComponent& Component() const { return component_; }
    const PropertyInfo& Property() const { return property_; }
    IDesigner& Designer() const { return place_.designer; }
    IDesignServices& Services() const { return place_.services; }
    void Modified() { place_.designer.Modified(); }

private:
    DesignPlace place_;
    TComponent& component_;
    PropertyInfo property_;
};

class TStringProperty : public TPropertyEditor {
public:
    using TPropertyEditor::TPropertyEditor;
    std::string GetValue() const override { return Component().GetStrProp(GetName()); }
    void SetValue(const std::string& value) override;
};

// An object; its text tells the class alone.
class TClassProperty : public TPropertyEditor {
public:
    using TPropertyEditor::TPropertyEditor;
    TPropertyAttributes GetAttributes() const override {
        return paMultiSelect | paSubProperties | paReadOnly;
    }
    std::string GetValue() const override { return "(" + Property().typeName + ")"; }
    void SetValue(const std::string&) override {} // what is read only cannot be typed

protected:
    // Of an object that is edited in a dialog of its own.
    static TPropertyAttributes DialogOnly(TPropertyAttributes base) {
        return (base | paDialog) & ~TPropertyAttributes(paSubProperties);
    }
};

// A reference to another component of the form.
class TComponentProperty : public TPropertyEditor {
public:
    using TPropertyEditor::TPropertyEditor;
    TPropertyAttributes GetAttributes() const override {
        return paMultiSelect | paSubProperties | paValueList | paSortList | paRevertable |
               paVolatileSubProperties;
    }
    std::string GetValue() const override;
    // Nothing when empty; Form.Component for one of another form. Throws Error when there is no such component of the
    // property's type.
    void SetValue(const std::string& value) override;
    std::vector<std::string> GetValues() const override;

protected:
    // Whether the component may be referred to.
    virtual bool CheckComponent(const TComponent& candidate) const;

private:
    std::string Checked(const TComponent& root, std::string_view name) const;
};

class TComponentEditor : public IComponentEditor {
public:
    TComponentEditor(DesignPlace place, TComponent& component) : place_(place), component_(component) {}
    int GetVerbCount() const override { return 0; }
    std::string GetVerb(int) const override { return {}; }
    void ExecuteVerb(int) override {}
    void PrepareItem(int, TMenuItem&) override {}
    void Edit() override { // the first verb
        if (GetVerbCount() > 0) ExecuteVerb(0);
    }

protected:
    TComponent& Component() const { return component_; }
    IDesigner& Designer() const { return place_.designer; }
    IDesignServices& Services() const { return place_.services; }
    void Modified() { place_.designer.Modified(); }

private:
    DesignPlace place_;
    TComponent& component_;
};

// Looks through the component's properties for the one that a double click edits.
class TDefaultEditor : public TComponentEditor {
public:
    using TComponentEditor::TComponentEditor;
    void Edit() override;

protected:
    // False ends the search.
    virtual void EditProperty(IProperty& property, bool& searching) = 0;
};

class TSelectionEditor : public ISelectionEditor {
public:
    explicit TSelectionEditor(DesignPlace place) : place_(place) {}
    int GetVerbCount() const override { return 0; }
    std::string GetVerb(int) const override { return {}; }
    void ExecuteVerb(int, const IDesignerSelections&) override {}
    void PrepareItem(int, TMenuItem&, const IDesignerSelections&) override {}
    void RequiresUnits(std::vector<std::string>&) const override {}

protected:
    IDesigner& Designer() const { return place_.designer; }

private:
    DesignPlace place_;
};

} // namespace glotta
