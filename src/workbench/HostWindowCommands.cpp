// What the commands of the host's main menu do.
#include "workbench/HostWindow.h"

#include "expert/Glottaexp.h"
#include "host/FormEditor.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "workbench/CodeEditor.h"
#include "workbench/ExpertDock.h"
#include "workbench/FindBar.h"
#include "workbench/FormPage.h"
#include "workbench/HelpWindow.h"
#include "workbench/ProjectTree.h"
#include "workbench/QtText.h"
#include "workbench/UnitPage.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QProgressDialog>
#include <QtWidgets/QTabWidget>

namespace glotta {
namespace {

constexpr int RecentCount = 9;

std::string ShortName(const IOTAModule& module) {
    return PathText(PathFromText(module.FileName()).filename());
}

} // namespace

// --- projects ---

void HostWindow::OpenProjectClick() {
    FileDialog dialog;
    dialog.title = "Open Project";
    dialog.filter = "Projects (*.dpr;*.dproj;*.dpk;*.bdsproj;*.bpr;*.bpk;*.cbproj;*.bpg;*.bdsgroup;*.groupproj)|"
                    "*.dpr;*.dproj;*.dpk;*.bdsproj;*.bpr;*.bpk;*.cbproj;*.bpg;*.bdsgroup;*.groupproj|All files (*.*)|*.*";
    if (workbench_.UiPort().Execute(dialog) && !dialog.files.empty()) OpenProject(dialog.files.front());
}

bool HostWindow::OpenProject(const std::string& fileName) {
    const std::filesystem::path path = std::filesystem::absolute(PathFromText(fileName));
    const std::string file = PathText(path);
    std::error_code ignored;
    if (!std::filesystem::exists(path, ignored)) throw Error(file + " does not exist"); // what is open stays so
    if (!CloseProject()) return false;
    IOTAModule& opened = ide_.OpenProject(file);
    project_ = &opened;
    tree_->ShowProject(&opened);
    WatchProject();
    AddRecent(file);
    Changed();
    return true;
}

bool HostWindow::CloseProject() {
    // A project takes its units along; what no project lists is closed by itself.
    while (ide_.ModuleCount() > 0) {
        IOTAModule* module = project_ ? project_ : ide_.GetModule(0);
        if (!module->Close()) return false;
    }
    return true;
}

bool HostWindow::OpenUnit(const std::string& fileName, bool form) {
    if (!ide_.OpenFile(fileName)) {
        const auto& problems = ide_.Problems();
        throw Error(problems.empty() ? fileName + " cannot be opened" : problems.back());
    }
    ShowPending();
    if (UnitPage* page = Page()) {
        if (form)
            page->ShowForm();
        else
            page->ShowCode();
    }
    return true;
}

void HostWindow::ReloadProjectClick() {
    const std::string file = project_->FileName();
    OpenProject(file);
}

void HostWindow::CloseProjectClick() {
    CloseProject();
}

IOTAProject* HostWindow::ActiveProject() const {
    if (auto* group = AsProjectGroup(project_)) return group->ActiveProject();
    return AsProject(project_);
}

void HostWindow::OpenFormsClick() {
    IOTAProject* project = ActiveProject();
    if (!project) return;
    std::vector<std::string> files;
    for (const IOTAModuleInfo& info : project->Modules())
        if (!info.formFile.empty() && !info.missing) files.push_back(info.fileName);
    QProgressDialog progress("Opening forms...", "Cancel", 0, int(files.size()), this);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(400);
    for (std::size_t i = 0; i < files.size() && !progress.wasCanceled(); ++i) {
        progress.setValue(int(i));
        ide_.OpenFile(files[i]);
    }
    progress.setValue(int(files.size()));
}

std::vector<std::string> HostWindow::RecentProjects() {
    std::vector<std::string> files;
    for (int i = 0; i < RecentCount; ++i) {
        const std::string file = workbench_.Settings().ReadString("Recent", "Project" + std::to_string(i), {});
        if (!file.empty()) files.push_back(file);
    }
    return files;
}

void HostWindow::AddRecent(const std::string& fileName) {
    std::vector<std::string> files = RecentProjects();
    if (!files.empty() && files.front() == fileName) return;
    std::erase(files, fileName);
    files.insert(files.begin(), fileName);
    files.resize(std::min<std::size_t>(files.size(), RecentCount));
    TRegIniFile settings = workbench_.Settings();
    for (std::size_t i = 0; i < files.size(); ++i)
        settings.WriteString("Recent", "Project" + std::to_string(i), files[i]);
    FillSubmenus();
}

// --- saving and closing ---

bool HostWindow::CanSave() const {
    UnitPage* page = Page();
    return page && page->Module().Modified();
}

bool HostWindow::CanSaveAll() const {
    for (int i = 0; i < ide_.ModuleCount(); ++i)
        if (ide_.GetModule(i)->Modified()) return true;
    return false;
}

bool HostWindow::HasForm() const {
    UnitPage* page = Page();
    return page && page->Module().GetModuleFileCount() > 1;
}

void HostWindow::SaveClick() {
    Page()->Module().Save(false, true);
}

void HostWindow::SaveAllClick() {
    ide_.SaveAll();
}

void HostWindow::CloseClick() {
    Page()->Module().Close();
}

CloseAnswer HostWindow::AskClose(IOTAModule& module) {
    switch (workbench_.UiPort().MessageDlg("Save changes to " + ShortName(module) + "?", MsgType::Confirmation,
                                           {ModalResult::Yes, ModalResult::No, ModalResult::Cancel}, {})) {
    case ModalResult::Yes: return CloseAnswer::Save;
    case ModalResult::No: return CloseAnswer::Discard;
    default: return CloseAnswer::Cancel;
    }
}

// --- files that others change ---

void HostWindow::CheckDisk() {
    std::vector<std::string> files;
    for (IOTAModule* module : ide_.ChangedOnDisk())
        files.push_back(module->FileName());
    for (const std::string& file : files)
        if (IOTAModule* module = ide_.FindModule(file)) Run([&] { AskReload(*module); });
}

void HostWindow::AskReload(IOTAModule& module) {
    const std::string file = module.FileName(), name = ShortName(module);
    const bool isProject = AsProject(&module) || AsProjectGroup(&module);
    std::error_code ignored;
    if (!std::filesystem::exists(PathFromText(file), ignored)) {
        const char* rest = isProject ? " was deleted or renamed by another program. The project stays open as it was read."
                                     : " was deleted by another program. It stays open; saving writes it again.";
        workbench_.UiPort().MessageDlg(name + rest, MsgType::Warning, {ModalResult::OK}, {});
        return ide_.KeepOverDisk(module);
    }
    const std::string question =
        module.Modified() ? name + " was changed by another program, and it has changes here that are not saved.\r\n"
                                   "Load it again and lose the changes made here?"
                          : name + " was changed by another program. Load it again?";
    if (workbench_.UiPort().MessageDlg(question, MsgType::Confirmation, {ModalResult::Yes, ModalResult::No}, {}) !=
        ModalResult::Yes)
        return ide_.KeepOverDisk(module);
    const int index = tabs_->indexOf(PageOf(module));
    if (isProject) RemoveProjectPages(); // their sources may be others
    if (!ide_.Reload(file)) throw Error(name + " cannot be loaded again");
    if (isProject && index >= 0) ide_.BringToFront(module), ShowPending();
    if (IOTAModule* again = ide_.FindModule(file))
        if (UnitPage* page = PageOf(*again)) tabs_->tabBar()->moveTab(tabs_->indexOf(page), std::max(index, 0));
}

// --- editing ---

void HostWindow::ToFocus(const char* slot) {
    if (QWidget* focus = QApplication::focusWidget()) QMetaObject::invokeMethod(focus, slot);
}

bool HostWindow::CanUndo() const {
    PlainFormEditor* form = HasPage() ? Page()->ShownForm() : nullptr;
    if (form) return form->CanUndo();
    CodeEditor* code = Code();
    return code && code->Source().Buffer().NewestStep() != 0;
}

bool HostWindow::CanRedo() const {
    PlainFormEditor* form = HasPage() ? Page()->ShownForm() : nullptr;
    if (form) return form->CanRedo();
    CodeEditor* code = Code();
    return code && code->Source().Buffer().UndoneStep() != 0;
}

void HostWindow::UndoClick() {
    if (auto* edit = qobject_cast<QLineEdit*>(QApplication::focusWidget())) return edit->undo();
    if (PlainFormEditor* form = Page()->ShownForm()) return form->Undo();
    if (CodeEditor* code = Code()) code->UndoStep();
}

void HostWindow::RedoClick() {
    if (auto* edit = qobject_cast<QLineEdit*>(QApplication::focusWidget())) return edit->redo();
    if (PlainFormEditor* form = Page()->ShownForm()) return form->Redo();
    if (CodeEditor* code = Code()) code->RedoStep();
}

void HostWindow::CommentClick() {
    if (CodeEditor* code = Code()) code->ToggleComment();
}

void HostWindow::FindClick() {
    Page()->ShowCode();
    find_->Open(false);
}

void HostWindow::ReplaceClick() {
    Page()->ShowCode();
    find_->Open(true);
}

void HostWindow::FindNextClick() {
    Page()->ShowCode();
    find_->Next(true);
}

void HostWindow::FindPreviousClick() {
    Page()->ShowCode();
    find_->Next(false);
}

void HostWindow::GoToLineClick() {
    CodeEditor* code = Code();
    if (!code) return;
    bool chosen = false;
    const int line = QInputDialog::getInt(this, "Go to Line Number", "Line number:", code->Source().View().CursorPos().line,
                                          1, std::max(1, code->lines()), 1, &chosen);
    if (chosen) code->GoToLine(line);
    code->setFocus();
}

// --- windows ---

void HostWindow::ShowProjectClick() {
    treeDock_->show();
    tree_->setFocus();
}

void HostWindow::ShowMessagesClick() {
    messagesDock_->setVisible(!messagesDock_->isVisible());
}

void HostWindow::ToggleFormClick() {
    Page()->ToggleForm();
}

void HostWindow::TurnPage(int step) {
    if (tabs_->count() > 0) tabs_->setCurrentIndex((tabs_->currentIndex() + step + tabs_->count()) % tabs_->count());
}

void HostWindow::HelpClick() {
    ShowHelp(MainWindowHelp, *this);
}

void HostWindow::AboutClick() {
    QMessageBox::about(this, "About Workbench", "Glotta Workbench " GLOTTA_VERSION "\n\nA host for the TGlotta Expert over Delphi and C++Builder projects.");
}

// --- the expert ---

void HostWindow::LoadExpertClick() {
    workbench_.LoadExpert();
}

void HostWindow::UnloadExpertClick() {
    workbench_.UnloadExpert();
}

void HostWindow::DockExpert(bool docked) {
    const auto expert = workbench_.Expert();
    if (!expert || !expert->MainWindow()) return;
    QWidget* window = workbench_.UiPort().WindowOf(*expert->MainWindow());
    if (!window) return;
    if (docked && !expertDock_) {
        expertDock_ = new ExpertDock(*this, *window);
        connect(window, &QObject::destroyed, this, [this] { RemoveExpertDock(); });
    } else if (!docked && expertDock_) {
        expertDock_->Release();
        RemoveExpertDock();
    }
}

void HostWindow::RemoveExpertDock() {
    if (expertDock_) std::exchange(expertDock_, nullptr)->Leave();
}

} // namespace glotta
