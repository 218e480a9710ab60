// The expert's main window: the list of the project's forms, and the commands on them.
#pragma once
#include "mainwindow/FormsGrid.h"
#include "platform/Form.h"
#include "scanner/ScanCommands.h"
#include "scanner/Skippedstrings.h"
#include "settings/FormStorage.h"
#include "storage/ExternalFiles.h"
#include "translation/FormTranslation.h"
#include "vcl/Menu.h"

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

class Automation;
class AutomationObject;
class ExpertSettings;
class Launcher;
class RegistryStore;
class TfrmBadIDs;
class TfrmFoundPhrases;
class TGlottaProjectSettings;
class TransEditor;
struct MainCommand;

// What the window works with; all of it outlives the window.
struct MainWindowContext {
    IdeServices& ide; // with the forms list
    ExpertSettings& settings;
    RegistryStore& registry;
    const HelperLibrary& helper;
    ScanResults& results;
    FormsList& externalFiles;
    std::unique_ptr<TGlottaProjectSettings>& projectSettings;
    Launcher& launcher;
    Automation& automation;
    TransEditor* transEditor = nullptr; // nil: "Translate" is disabled
    // The expert's.
    std::function<void()> ProjectClosed = {};
    std::function<void()> ReinstallMenu = {};
    std::function<void()> RunItemClick = {}; // lists the forms anew
    std::function<void()> WindowClosed = {};
    std::function<void()> ShowAboutBox = {};
    // The host's; what is empty is disabled.
    std::function<void()> ShowHelp = {};
    std::function<void(bool docked)> DockWindow = {};
};

class TfrmGlotta : public TForm {
public:
    static constexpr std::string_view PlacementKey = "\\Software\\Quorlane\\TGlotta\\ExpertForm";
    static constexpr std::string_view WizardsKey = "\\Software\\Quorlane\\TGlotta\\Wizards";
    static constexpr std::array<std::string_view, 2> PageCaptions = {"Project Forms", "External Files"};

    explicit TfrmGlotta(MainWindowContext context);
    ~TfrmGlotta() override;

    TMainMenu MainMenu{"MainMenu"};
    TPopupMenu PopupMenu{"PopupMenu"}; // of the lists
    TMenu ToolBar{"ToolBar"};          // its items are the buttons
    TField<int> pcForms{0};            // the active page
    FormsGrid lvFormNames, lvExternalFiles;
    TgxExternalFiles ExternalFiles; // those that lvExternalFiles lists
    std::array<TField<std::string>, 3> StatusBar; // the panels
    TField<std::vector<int>> ColumnWidths;        // of lvFormNames
    TField<std::optional<FormPlacement>> Placement;
    TField<bool> StayOnTop, Dockable;
    TField<bool> Visible{false}; // the view shows and hides; the rules read

    // The list of the active page.
    FormsGrid& ActiveList() { return pcForms() == 0 ? lvFormNames : lvExternalFiles; }
    const FormsGrid& ActiveList() const { return pcForms() == 0 ? lvFormNames : lvExternalFiles; }

    // Fills the list from the active project, one row per module that has a form.
    void FillFromProject(IOTAProject& project);
    // Shows the filled window: opens all forms where that is wished, sorts, and selects the current editor's
    // form.
    void Open();
    void ClearProject(); // empties the list
    void ShowFilled();   // after a command: rows, selection, status and enabled commands as they are now
    void FillProjectForms(std::vector<std::string>& list) const;
    void UpdateStatusBar();
    void CheckEnableActions();
    void lvFormNamesColumnClick(std::size_t column);
    void lvFormNamesDblClick(std::size_t row); // of either list: inserts a component on the row's form
    void FormShow();
    bool CloseQuery(Ui& ui, ModalResult result) override;

    // Gives the entries of a file the values that its form has now.
    void UpdateEntries(const std::string& fileName);
    FormTranslation& Translation() { return translation_; }
    // The class of the component of the entry that was selected last.
    const std::string& CurrentComponentClass() const { return componentClass_; }

    // Commands. They run in RunCommand when a person chooses them, and throw when code calls them.
    void sbCaptionsClick();
    void sbLanguagesClick();
    void Translatesource1Click();
    void Const1Click();
    void TranslateUnit1Click();
    void WithoutForm1Click();
    void ViewSkipped1Click();
    void tbAddExternalFileClick();
    // Lists the file's form; a file without one adds nothing.
    void AddExternalFile(const std::string& fileName);
    // Translation files; `mode` is a CommandMode.
    void sbSaveAllClick(int mode);
    void sbLoadAllClick(int mode);
    void SaveForms1Click() { sbSaveAllClick(111); }
    void SaveProject1Click() { sbSaveAllClick(-1); }
    void LoadForms1Click() { sbLoadAllClick(111); }
    void LoadProject1Click() { sbLoadAllClick(-1); }
    void MergeForms1Click() { sbLoadAllClick(112); }
    void MergeProject1Click() { sbLoadAllClick(113); }
    void acProjectSettingsExecute();
    void Updatetranslation1Click();
    void ClearTranslations1Click();
    void Findword1Click();
    void Replacephrase1Click();
    void CheckunusedIDs1Click();
    void CheckbadstringIDsinunit1Click();
    void Excludeproperties1Click();
    void Wizard1Click();
    void ViewForm1Click();
    void SelectAll1Click();
    void sbOptionsClick();
    void StayOnTop1Click();
    void Dockable1Click();
    void DictionaryManager1Click();
    void About1Click();
    void Help1Click();
    void Close1Click();
    void WizardItemClick(int tag);

    void CreateServer();
    void FreeServer();

    bool HasTransEditor() const { return context_.transEditor != nullptr; }
    bool HasSkipped() const { return !context_.results.skipped.empty(); }
    bool HasProjectSettings() const;
    bool HasHelp() const { return bool(context_.ShowHelp); }
    bool CanDock() const { return bool(context_.DockWindow); }
    bool IsStayOnTop() const { return StayOnTop(); }
    bool IsDockable() const { return Dockable(); }

private:
    struct BoundItem {
        TMenuItem* item;
        const MainCommand* command;
        bool isButton;
    };
    struct UnitChoice {
        std::string unit, form;
    };
    void BuildMenus();
    void AddCommand(TMenuItem& parent, const MainCommand& command, std::string_view itemCaption,
                    bool isButton);
    void BuildWizardsMenu();
    bool IsEnabled(const BoundItem& bound) const;
    // Runs to its end, its message or its silence, and shows what it changed.
    void Run(const std::function<void()>& command);
    void ScanForms(const std::function<void(ScanCommands&, FormsListItem&)>& scan);
    void ScanUnit(const std::function<void(ScanCommands&, const UnitChoice&)>& scan);
    std::optional<UnitChoice> ChooseUnit();
    std::vector<std::string> UnitsToScan();
    void OpenAllForms();
    // What the open form tells; false when the form is not open.
    bool ReadOpenForm(FormsListItem& item);
    void SelectCurrentEditor();
    void SelectionChanged();
    void LoadState();
    void SaveState();
    Ui& UiPort() const { return context_.ide.GetUi(); }

    MainWindowContext context_;
    FormTranslation translation_;
    std::unique_ptr<TfrmSkippedStrings> skippedForm_;
    std::unique_ptr<TfrmFoundPhrases> foundPhrases_;
    std::unique_ptr<TfrmBadIDs> badIDs_;
    std::unique_ptr<AutomationObject> server_;
    std::vector<BoundItem> bound_;
    std::string componentClass_;
    std::size_t unitCount_ = 0;
    bool destroying_ = false;
};

} // namespace glotta
