// The unit selection dialog: a unit of the project and, where the command needs one, a form with a
// localization component. The caller fills the lists and reads the choice after OK.
#pragma once
#include "platform/Form.h"
#include "platform/Grid.h"

#include <functional>
#include <string>
#include <vector>

namespace glotta {

class TfrmTranslUnits : public TForm {
public:
    // With `severalUnits` more than one unit can be picked.
    explicit TfrmTranslUnits(Ui& ui, bool severalUnits = false);

    TField<std::string> lblUnits{"&Select Unit:"}, lblForms{"Select &Form with TGlotta:"};
    TListBox lbUnits;
    TField<std::string> edUnitName;
    TField<std::string> cbFormNames; // the chosen text
    TAction btOK, btCancel;

    void SetUnits(std::vector<std::string> names);
    void SetFormNames(std::vector<std::string> names);
    const std::vector<std::string>& FormNames() const { return formNames_; } // the drop-down list
    void ShowFormNames(bool on);

    // Up (-1) and Down (+1), typed in the edit, walk the list.
    void WalkList(int step);
    // Where the list ends sideways, in pixels; `width` measures a text in the dialog's font.
    int ScrollExtent(const std::function<int(const std::string&)>& width) const;

    // The choice.
    const std::string& UnitName() const { return unitName_; }
    const std::string& FormName() const { return formName_; }

private:
    void UpdateChoice();
    void edUnitNameChange();
    void lbUnitsClick();
    std::string unitName_, formName_;
    std::vector<std::string> formNames_;
    bool searching_ = false; // the list moves because of typing: the edit keeps its text
};

} // namespace glotta
