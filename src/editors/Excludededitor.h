// The editor of what a form keeps out of its translation.
#pragma once
#include "editors/DefaultProperties.h"
#include "editors/ExclusionModel.h"
#include "platform/Form.h"
#include "settings/FormStorage.h"
#include "vcl/Menu.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace glotta {

class RegistryStore;

class TfrmExcludeFromTranslation : public TForm {
public:
    static constexpr std::string_view Key = DefaultProperties::Key;
    static constexpr int HelpContext = 10010, MinimumWidth = 520, MinimumHeight = 340;
    static constexpr std::array<std::string_view, 3> PageCaptions = {"Components", "Properties",
                                                                     "Component's Properties"};
    static constexpr std::string_view ComponentsHeading = " Available Components:",
                                      PropertiesHeading = " Available Properties:";
    enum class DragSource { None, Components, Properties };

    // All of them outlive the dialog.
    TfrmExcludeFromTranslation(Ui& ui, RegistryStore& registry, TgxCustomLang& lang);
    TfrmExcludeFromTranslation(const TfrmExcludeFromTranslation&) = delete;
    TfrmExcludeFromTranslation& operator=(const TfrmExcludeFromTranslation&) = delete;

    ExclusionModel Model;
    TField<int> pcExcluded; // the active page
    std::array<TField<bool>, 3> TabShown = {true, true, true};
    TField<std::string> pnExcluded; // the heading of the right side
    TField<std::string> cbComponents;
    const std::vector<std::string>& ComponentTexts() const { return componentTexts_; }

    TAction acAddComponent, acAddAllByComponent, acAddCompChilds, acAddAllWithProperty, acAddProperty,
        acAddPropertyByType, acAddPropertyAsSelectedType, acAddPropertyByName, acAddCustom,
        acAddPropOfCompType, acDeleteFromList, acClearList, acClearAll, acSortList, acDefaults,
        acAddToDefaults, acInsertAllDefaults, acClearDefaults, acSaveDefaults, acAutoSaveDefaults;
    TAction btOK, btCancel, btHelp;
    std::function<void()> ShowHelp; // the host's; without it "Help" is disabled

    TPopupMenu DefaultsMenu{"DefaultsMenu"};
    std::function<void()> OnDefaultsMenu; // the view's: it is to be shown, rebuilt

    TField<int> LeftPanelWidth{238}, PropertiesPanelHeight{183}; // the splitters; entering stores them
    TField<std::optional<FormPlacement>> Placement;              // stored when the dialog closes
    TField<bool> Frozen; // nothing is painted while its value is true

    void ShowPage(int page, bool onlyThisPage);
    bool CanDrop(ExclusionPage on, DragSource from) const;
    void Drop(ExclusionPage on, DragSource from);

    bool CloseQuery(Ui& ui, ModalResult result) override;

private:
    void DeclareComponentActions();
    void DeclarePropertyActions();
    void DeclareListActions();
    void DeclareDefaultsActions();
    void SelectionChanged();
    void UpdateActions(); // captions that follow the selection
    bool OnComponentsPage() const { return Model.page == ComponentsPage; }
    bool HasPlainProperty() const; // selected, with data, and no item of a collection
    bool Confirm(const std::string& question, MsgType type = MsgType::Warning);
    bool ConfirmLosingTexts(const std::string& property);
    void AddProperty();
    void AddByText(TAddbyProperty addBy, const char* title, const char* prompt);
    int AddMatching(TAddbyProperty addBy, const TPropertyData& data, const std::string& text);
    void AddCustom();
    void DeleteFromList();
    void ClearAll();
    void SortList();
    void BuildDefaultsMenu();
    void AddToDefaults();
    void InsertDefaults(const std::vector<std::string>& names);

    Ui& ui_;
    RegistryStore& registry_;
    DefaultProperties defaults_;
    std::vector<std::string> componentTexts_;
};

// Shows the dialog for one component; true when its lists were changed. Pages count from 0.
bool DisplayExcludeDialog(Ui& ui, RegistryStore& registry, TgxCustomLang& lang, int pageIndex,
                          bool onlyThisPage);

} // namespace glotta
