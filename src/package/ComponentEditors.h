// The editors of the package's components: the verbs of their context menus, and what a double click does.
#pragma once
#include "ide/DesignEditors.h"
#include "platform/Ui.h"

#include <memory>

namespace glotta {

class TfrmGlotta;
class TGlottaExpert;
class TgxCustomLang;
class TransEditor;

// Of every localization component.
class TTranslationsEditor : public TComponentEditor {
public:
    using Expert = std::shared_ptr<std::weak_ptr<TGlottaExpert>>;
    TTranslationsEditor(DesignPlace place, TComponent& component, Ui* ui, TransEditor* editor, Expert expert)
        : TComponentEditor(place, component), ui_(*ui), editor_(*editor), expert_(std::move(expert)) {}
    int GetVerbCount() const override;
    std::string GetVerb(int index) const override;
    void ExecuteVerb(int index) override;
    void PrepareItem(int index, TMenuItem& item) override;

private:
    TgxCustomLang& Lang() const;
    void EditTranslations();
    void UpdateTranslations();
    void ClearTranslations();
    void ToggleIgnoreRemovals();

    Ui& ui_;
    TransEditor& editor_;
    Expert expert_;
};

// Of dispatchers and language combos: a double click edits the property that sets them up.
class TDispatcherEditor : public TDefaultEditor {
public:
    using TDefaultEditor::TDefaultEditor;

protected:
    void EditProperty(IProperty& property, bool& searching) override;
};

} // namespace glotta
