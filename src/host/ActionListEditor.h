// The IDE's own editor of action lists: its verb makes an action of a class that a package registered.
#pragma once
#include "host/DesignRegistry.h"
#include "ide/DesignEditors.h"

namespace glotta {

class TActionListEditor : public TComponentEditor {
public:
    TActionListEditor(DesignPlace place, TComponent& list, DesignRegistry& registry)
        : TComponentEditor(place, list), registry_(registry) {}
    int GetVerbCount() const override { return registry_.ActionCategories().empty() ? 0 : 1; }
    std::string GetVerb(int) const override { return "New Standard Action"; }
    // Below it the categories, below these their classes.
    void PrepareItem(int index, TMenuItem& item) override;
    void Edit() override {} // the menu alone makes actions

private:
    DesignRegistry& registry_;
};

} // namespace glotta
