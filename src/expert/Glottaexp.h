// The expert: one object from the loading of its package to the unloading, with its menus in the IDE.
#pragma once
#include "ide/Services.h"
#include "mainwindow/MainWindow.h"
#include "settings/ExpertSettings.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

class TgxAddInNotifier;
class TgxModuleNotifier;
class TGlottaProjectSettings;

// What the package gives the expert; all of it outlives the expert.
struct ExpertPorts {
    BorlandIDEServices ide;
    Ui& ui;
    RegistryStore& registry;
    const HelperLibrary& helper;
    Launcher& launcher;
    Automation& automation;
    TransEditor* transEditor = nullptr;
    std::function<void()> ShowHelp = {};
    std::function<void(bool docked)> DockWindow = {};
};

class TGlottaExpert : public IOTAWizard {
public:
    static constexpr const char* MenuCaption = "TG&lotta Expert";
    static constexpr const char* MenuName = "GlottaExpertMenuItem";
    static constexpr const char* EditorMenuCaption = "TGlotta Expert";

    explicit TGlottaExpert(ExpertPorts ports);
    ~TGlottaExpert() override;

    std::string GetIDString() const override { return "Delphi.GlottaAddInExpert"; }
    std::string GetName() const override { return "TGlotta Expert (VCL Edition)"; }
    std::string GetAuthor() const override { return "The TGlotta Expert developers"; }

    ExpertSettings& Settings() { return settings_; }
    IdeServices& Services() { return services_; }
    TfrmGlotta* MainWindow() { return window_.get(); } // nil while it is closed
    FormsList& ExternalFiles() { return externalFiles_; }
    ScanResults& Results() { return results_; }
    TGlottaProjectSettings* ProjectSettings() { return projectSettings_.get(); }

    // The main-menu item.
    void Configure();
    void RemoveSettings();
    void RunItemClick(); // opens, or brings to front, the main window and fills it

    // The submenu of the editor windows.
    void InstallEditorPopupMenu();
    void RemoveEditorPopupMenu();
    void PrepareTGlottaEditorMenu();
    void TranslateSourceMenuClick();
    void MarkUnTranslatableSourceMenuClick();
    void ViewTranslationByIDMenuClick();
    std::string GetSelectedSourceText() { return services_.GetSelectedSourceText(); }
    void ReplaceSelectedSourceText(std::string_view text) { services_.ReplaceSelectedSourceText(text); }

    // What the notifiers ask for.
    void FileNotification(TOTAFileNotification code, const std::string& fileName);
    void ProjectClosed();
    // The entry that holds the notifier, else the one of the file.
    FormsListItem* EntryOf(const IOTAModuleNotifier& notifier, const std::string& fileName);
    void EntryRenamed();                            // a caption of the list changed
    void Forget(const TgxModuleNotifier& notifier); // its module is gone
    const std::vector<std::shared_ptr<TgxModuleNotifier>>& ModuleNotifiers() const {
        return moduleNotifiers_;
    }

    void ShowAboutBox();

private:
    void RemoveMenuItem();
    void RunCommand(const std::function<void()>& command);
    TMenuItem* EditorItem(INTAForm& form) const; // nil when the window has none
    void ForEachEditWindow(const std::function<void(INTAForm&)>& act) const;
    void FileOpened(const std::string& fileName);
    void FileClosing(const std::string& fileName);
    void AddModuleNotifier(FormsListItem* entry, IOTAModule& module);
    void AttachNotifiers(); // to the open modules of the list's entries
    void InitializeProjectSettings(const std::string& projectFileName);
    void DestroyProjectSettings();
    // False, after the message, when the active project does not include the current editor's file.
    bool CurrentFileIsInProject();
    void CreateMainWindow();

    ExpertPorts ports_;
    FormsList forms_, externalFiles_;
    IdeServices services_;
    ExpertSettings settings_;
    ScanResults results_;
    std::unique_ptr<TGlottaProjectSettings> projectSettings_;
    TMenuItem* menuItem_ = nullptr;
    std::vector<std::shared_ptr<TgxModuleNotifier>> moduleNotifiers_;
    std::shared_ptr<TgxAddInNotifier> addInNotifier_;
    int notifierIndex_ = -1;
    unsigned char notifications_ = 0;
    std::unique_ptr<TfrmGlotta> window_, closedWindow_;
};

// Constructs the expert and registers it with the IDE, which holds it until the package is unloaded.
std::weak_ptr<TGlottaExpert> ExpRegister(ExpertPorts ports);

} // namespace glotta
