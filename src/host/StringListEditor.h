// The IDE's own editor of string lists: for every property of that type that no package has an editor for.
#pragma once
#include "ide/DesignEditors.h"
#include "platform/Form.h"

#include <string>
#include <vector>

namespace glotta {

class TStringsEditDlg : public TForm {
public:
    explicit TStringsEditDlg(Ui& ui, const std::vector<std::string>& lines);

    TField<std::string> Memo;      // lines
    TField<std::string> LineCount; // "3 lines"
    TAction OKButton, CancelButton;

    std::vector<std::string> Lines() const;
    bool Changed() const { return changed_; } // by the person

private:
    void Count();
    Ui& ui_;
    bool changed_ = false;
};

class TStringListProperty : public TClassProperty {
public:
    TStringListProperty(DesignPlace place, TComponent& component, PropertyInfo property, Ui* ui)
        : TClassProperty(place, component, std::move(property)), ui_(*ui) {}
    // One component's: the dialog shows the lines of one.
    TPropertyAttributes GetAttributes() const override {
        return DialogOnly(TClassProperty::GetAttributes()) & ~TPropertyAttributes(paMultiSelect);
    }
    void Edit() override;

private:
    Ui& ui_;
};

} // namespace glotta
