// "Exclude from translation..." in the context menu of every component.
#pragma once
#include "ide/DesignEditors.h"
#include "platform/Ui.h"

namespace glotta {

class TExcludeComponentEditor : public TSelectionEditor {
public:
    TExcludeComponentEditor(DesignPlace place, Ui& ui) : TSelectionEditor(place), ui_(ui) {}
    int GetVerbCount() const override { return 1; }
    std::string GetVerb(int) const override { return "Exclude from translation..."; }
    void ExecuteVerb(int index, const IDesignerSelections& selection) override;
    void PrepareItem(int index, TMenuItem& item, const IDesignerSelections& selection) override;

private:
    Ui& ui_;
};

} // namespace glotta
