// The desktop host's main window: project tree, editor pages, main menu and messages over the plain-file IDE.
#pragma once
#include "ide/ToolsApi.h"
#include "workbench/DiskWatch.h"
#include "workbench/Workbench.h"

#include <QtWidgets/QMainWindow>

#include <map>

class QDockWidget;
class QLabel;
class QListWidget;
class QTabWidget;

namespace glotta {

class CodeEditor;
class ExpertDock;
class FindBar;
class HostNotifier;
class MenuAdapter;
class ProjectTree;
class UnitPage;

class HostWindow : public QMainWindow {
public:
    explicit HostWindow(Workbench& workbench);
    ~HostWindow() override;

    // Closes what is open, with the usual questions, and opens the project. False when the person keeps the old one.
    bool OpenProject(const std::string& fileName);
    bool OpenUnit(const std::string& fileName, bool form = false);
    bool CloseProject(); // false when the person keeps it
    void CheckDisk();    // open files that others changed
    // Runs what a person asked for, to its end or its message.
    void Run(const std::function<void()>& command);

    ProjectTree& Tree() { return *tree_; }
    MenuAdapter& Menu() { return *menu_; }
    UnitPage* Page() const; // the shown one
    UnitPage* PageOf(const IOTAModule& module) const;
    CodeEditor* Code() const;
    HostEditWindow& EditWindow() { return editWindow_; }
    std::vector<std::string> RecentProjects();

    // The commands of the main menu.
    void OpenProjectClick();
    void SaveClick();
    void SaveAllClick();
    void CloseClick();
    void CloseProjectClick();
    void ExitClick() { close(); }
    void UndoClick();
    void RedoClick();
    void CutClick() { ToFocus("cut"); }
    void CopyClick() { ToFocus("copy"); }
    void PasteClick() { ToFocus("paste"); }
    void SelectAllClick() { ToFocus("selectAll"); }
    void CommentClick();
    void FindClick();
    void ReplaceClick();
    void FindNextClick();
    void FindPreviousClick();
    void GoToLineClick();
    void ShowProjectClick();
    void ShowMessagesClick();
    void ToggleFormClick();
    void NextPageClick() { TurnPage(1); }
    void PreviousPageClick() { TurnPage(-1); }
    void OpenFormsClick();
    void ReloadProjectClick();
    void LoadExpertClick();
    void UnloadExpertClick();
    void HelpClick();
    void AboutClick();

    bool HasProject() const { return project_ != nullptr; }
    bool HasPage() const { return Page() != nullptr; }
    bool HasCode() const { return Page() != nullptr; }
    bool HasForm() const;
    bool HasRecent() const { return hasRecent_; }
    bool CanUndo() const;
    bool CanRedo() const;
    bool CanSave() const;
    bool CanSaveAll() const;
    bool CanLoadExpert() const { return !workbench_.Expert(); }
    bool CanUnloadExpert() const { return !CanLoadExpert(); }

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    friend class HostNotifier;
    void BuildWidgets();
    void BuildMenu();
    void FillSubmenus();
    void RestoreState();
    void SaveState();
    void FileOpened(const std::string& fileName);
    void FileClosing(const std::string& fileName);
    UnitPage& MakePage(IOTAModule& module);
    void RemovePage(IOTAModule& module);
    void RemoveProjectPages();
    void WatchProject();
    void ShowSoon(IOTAModule& module);
    void ShowPending();
    void PageChanged();
    void Changed(); // anything that titles, status and commands show; they follow when the program is idle
    void ShowChanged();
    void AddRecent(const std::string& fileName);
    void AddMessage(const std::string& text);
    CloseAnswer AskClose(IOTAModule& module);
    void AskReload(IOTAModule& module);
    void ToFocus(const char* slot);
    void TurnPage(int step);
    void DockExpert(bool docked);
    void RemoveExpertDock();
    IOTAProject* ActiveProject() const;

    Workbench& workbench_;
    PlainIde& ide_;
    HostEditWindow& editWindow_;
    std::shared_ptr<HostNotifier> notifier_;
    int notifierIndex_ = -1;
    IOTAModule* project_ = nullptr; // the project or group that is open
    std::map<const IOTAModule*, UnitPage*> pages_;
    std::string toShow_; // file of the module that comes to front when the program is idle
    bool changed_ = false, hasRecent_ = false;

    QTabWidget* tabs_;
    FindBar* find_;
    ProjectTree* tree_;
    QDockWidget *treeDock_, *messagesDock_;
    ExpertDock* expertDock_ = nullptr;
    QListWidget* messages_;
    QLabel *position_, *state_;
    std::unique_ptr<MenuAdapter> menu_;
    std::vector<std::filesystem::path> watchedProject_;
    DiskWatch watch_;
};

} // namespace glotta
