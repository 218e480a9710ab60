#include "workbench/HostWindow.h"

#include "expert/Glottaexp.h"
#include "mainwindow/CommandRunner.h"
#include "platform/Files.h"
#include "settings/FormStorage.h"
#include "workbench/CodeEditor.h"
#include "workbench/FindBar.h"
#include "workbench/HostCommands.h"
#include "workbench/MenuAdapter.h"
#include "workbench/ProjectTree.h"
#include "workbench/QtText.h"
#include "workbench/Theme.h"
#include "workbench/UnitPage.h"

#include <QtCore/QTimer>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QVBoxLayout>

namespace glotta {

// What the host's own window hears of its IDE.
class HostNotifier : public IOTAIDENotifier {
public:
    explicit HostNotifier(HostWindow& window) : window_(window) {}
    void FileNotification(TOTAFileNotification code, const std::string& fileName, bool&) override {
        if (code == ofnFileOpened) window_.FileOpened(fileName);
        if (code == ofnFileClosing) window_.FileClosing(fileName);
        if (code == ofnActiveProjectChanged) {
            window_.Tree().ShowActive();
            window_.WatchProject();
        }
    }

private:
    HostWindow& window_;
};

HostWindow::HostWindow(Workbench& workbench)
    : workbench_(workbench), ide_(workbench.Ide()), editWindow_(ide_.Menus().AddEditWindow()),
      watch_(this, [this] { CheckDisk(); }) {
    BuildWidgets();
    BuildMenu();
    notifier_ = std::make_shared<HostNotifier>(*this);
    notifierIndex_ = ide_.Services().services->AddNotifier(notifier_);
    ide_.onShow = [this](IOTAModule& module) { ShowSoon(module); };
    ide_.onProblem = [this](const std::string& problem) { AddMessage(problem); };
    ide_.onProjectChanged = [this](IOTAModule& project) {
        if (&project == project_)
            tree_->ShowProject(project_);
        else if (AsProject(&project))
            tree_->ShowAgain(*AsProject(&project));
        WatchProject();
    };
    ide_.askClose = [this](IOTAModule& module) { return AskClose(module); };
    ide_.Design().OnView = [this] {
        for (const auto& [module, page] : pages_)
            page->DesignChanged();
    };
    workbench_.UiPort().mainWindow = this;
    workbench_.DockWindow = [this](bool docked) { DockExpert(docked); };
    RestoreState();
    ShowChanged();
}

HostWindow::~HostWindow() {
    ide_.Services().services->RemoveNotifier(notifierIndex_);
    ide_.onShow = nullptr;
    ide_.onProblem = nullptr;
    ide_.onProjectChanged = nullptr;
    ide_.askClose = nullptr;
    ide_.Design().OnView = nullptr;
    workbench_.UiPort().mainWindow = nullptr;
    workbench_.DockWindow = nullptr;
    DockExpert(false);
    menu_.reset();
    for (const HostCommand& command : HostCommands())
        if (TMenuItem* item = ide_.Menus().MainMenu().Items.FindDeep(command.name)) item->Free();
    ide_.Menus().RemoveEditWindow(editWindow_);
    qDeleteAll(findChildren<UnitPage*>()); // before what they need
}

// --- what it is made of ---

void HostWindow::BuildWidgets() {
    setObjectName("AppBuilder");
    setDockOptions(AnimatedDocks | AllowTabbedDocks);
    tabs_ = new QTabWidget(this);
    tabs_->setObjectName("units");
    tabs_->setDocumentMode(true);
    tabs_->setTabsClosable(true);
    tabs_->setMovable(true);
    tabs_->setUsesScrollButtons(true);
    find_ = new FindBar(this);
    find_->Editor = [this] { return Code(); };
    auto* middle = new QWidget(this);
    auto* column = new QVBoxLayout(middle);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(tabs_, 1);
    column->addWidget(find_);
    setCentralWidget(middle);

    const auto dock = [this](const QString& title, const QString& name, QWidget* widget, Qt::DockWidgetArea area) {
        auto* made = new QDockWidget(title, this);
        made->setObjectName(name);
        made->setWidget(widget);
        addDockWidget(area, made);
        return made;
    };
    tree_ = new ProjectTree(this);
    treeDock_ = dock("Project Manager", "ProjectManager", tree_, Qt::LeftDockWidgetArea);
    messages_ = new QListWidget(this);
    messagesDock_ = dock("Messages", "MessageView", messages_, Qt::BottomDockWidgetArea);
    messagesDock_->hide();
    resizeDocks({treeDock_}, {240}, Qt::Horizontal);
    resizeDocks({messagesDock_}, {110}, Qt::Vertical);

    position_ = new QLabel(this);
    position_->setMinimumWidth(90);
    state_ = new QLabel(this);
    statusBar()->addPermanentWidget(state_);
    statusBar()->addPermanentWidget(position_);

    tree_->OnOpen = [this](const std::string& file, bool form) { Run([&] { OpenUnit(file, form); }); };
    tree_->OnActivateProject = [this](int index) {
        Run([&] {
            if (auto* group = AsProjectGroup(project_)) group->SetActiveProject(index);
        });
    };
    connect(tabs_, &QTabWidget::currentChanged, this, [this] { PageChanged(); });
    connect(tabs_, &QTabWidget::tabCloseRequested, this, [this](int index) {
        if (auto* page = dynamic_cast<UnitPage*>(tabs_->widget(index))) Run([&] { page->Module().Close(); });
    });
}

void HostWindow::BuildMenu() {
    TMenuItem& items = ide_.Menus().MainMenu().Items;
    for (const HostCommand& command : HostCommands()) {
        TMenuItem& section = *items.FindName(command.section);
        TMenuItem& item = section.Add(std::string(command.caption), std::string(command.name));
        item.SetShortCut(std::string(command.shortcut));
        item.SetHint(std::string(command.hint));
        if (command.run)
            item.OnClick = [this, &command] {
                // What enables it may have changed since the menu was shown.
                if (!command.enabled || (this->*command.enabled)()) Run([&] { (this->*command.run)(); });
            };
        section.OnClick = [this] { ShowChanged(); };
    }
    TMenuItem& colors = *items.FindDeep("ViewThemeItem");
    for (std::string_view theme : Themes)
        colors.Add(std::string(theme), {}, [this, theme] {
            workbench_.Settings().WriteString({}, "Colors", theme);
            ApplyTheme(theme);
        }).SetRadioItem(true);
    for (const char* name : {"EditCutItem", "EditCopyItem", "EditPasteItem", "EditSelectAll", "EditCommentItem"}) {
        TMenuItem& command = *items.FindDeep(name);
        editWindow_.EditorLocalMenu.Items.Add(command.Caption(), {}, [&command] { command.Click(); });
    }
    FillSubmenus();
    menu_ = std::make_unique<MenuAdapter>(*menuBar(), ide_.Menus().MainMenu());
}

void HostWindow::FillSubmenus() {
    TMenuItem& items = ide_.Menus().MainMenu().Items;
    TMenuItem& reopen = *items.FindDeep("FileReopenItem");
    const std::vector<std::string> recent = RecentProjects();
    hasRecent_ = !recent.empty();
    reopen.Clear();
    for (std::size_t i = 0; i < recent.size(); ++i)
        reopen.Add("&" + std::to_string((i + 1) % 10) + " " + recent[i], {},
                   [this, file = recent[i]] { Run([&] { OpenProject(file); }); });
    const std::string theme = workbench_.Settings().ReadString({}, "Colors", Themes[0]);
    TMenuItem& colors = *items.FindDeep("ViewThemeItem");
    for (std::size_t i = 0; i < colors.Count(); ++i)
        colors[i].SetChecked(colors[i].Caption() == theme);
}

void HostWindow::RestoreState() {
    const TRegIniFile settings = workbench_.Settings();
    resize(1180, 680);
    if (const auto placement = TgxFormStorage(workbench_.Registry(), Workbench::Key).ReadPlacement()) {
        setGeometry(placement->left, placement->top, placement->width, placement->height);
        if (placement->maximized) setWindowState(Qt::WindowMaximized);
    }
    restoreState(QByteArray::fromBase64(QByteArray::fromStdString(settings.ReadString({}, "Docks", {}))));
}

void HostWindow::SaveState() {
    const QRect normal = isMaximized() ? normalGeometry() : geometry();
    TgxFormStorage(workbench_.Registry(), Workbench::Key)
        .WritePlacement({normal.left(), normal.top(), normal.width(), normal.height(), isMaximized()});
    workbench_.Settings().WriteString({}, "Docks", saveState().toBase64().toStdString());
}

void HostWindow::Run(const std::function<void()>& command) {
    RunCommand(workbench_.UiPort(), command);
    Changed();
}

// --- pages ---

UnitPage* HostWindow::Page() const {
    return dynamic_cast<UnitPage*>(tabs_->currentWidget());
}

UnitPage* HostWindow::PageOf(const IOTAModule& module) const {
    const auto found = pages_.find(&module);
    return found == pages_.end() ? nullptr : found->second;
}

CodeEditor* HostWindow::Code() const {
    UnitPage* page = Page();
    return page ? page->Code() : nullptr;
}

UnitPage& HostWindow::MakePage(IOTAModule& module) {
    if (UnitPage* page = PageOf(module)) return *page;
    auto* page = new UnitPage(module, ide_.Design(), [this](const auto& command) { Run(command); }, tabs_);
    page->OnChanged = [this] { Changed(); };
    page->OnPopup = [this](const QPoint& global) {
        PopUp(editWindow_.EditorLocalMenu, *this, global);
        Changed();
    };
    pages_[&module] = page;
    const int index = tabs_->addTab(page, page->Title());
    tabs_->setTabToolTip(index, Q(module.FileName()));
    if (auto* files = dynamic_cast<OpenFiles*>(&module)) watch_.Watch(files->Paths());
    return *page;
}

void HostWindow::RemovePage(IOTAModule& module) {
    const auto found = pages_.find(&module);
    if (found == pages_.end()) return;
    if (auto* files = dynamic_cast<OpenFiles*>(&module)) watch_.Forget(files->Paths());
    UnitPage* page = found->second;
    pages_.erase(found);
    tabs_->removeTab(tabs_->indexOf(page));
    delete page;
    Changed();
}

void HostWindow::FileOpened(const std::string& fileName) {
    IOTAModule* module = ide_.FindModule(fileName);
    if (module && !AsProject(module) && !AsProjectGroup(module)) MakePage(*module);
    Changed();
}

void HostWindow::FileClosing(const std::string& fileName) {
    IOTAModule* module = ide_.FindModule(fileName);
    if (!module) return;
    RemovePage(*module);
    if (module != project_) return;
    watch_.Forget(std::exchange(watchedProject_, {}));
    project_ = nullptr;
    tree_->ShowProject(nullptr);
    RemoveProjectPages();
}

void HostWindow::RemoveProjectPages() {
    std::vector<IOTAModule*> projects;
    for (const auto& [each, page] : pages_)
        if (AsProject(const_cast<IOTAModule*>(each))) projects.push_back(const_cast<IOTAModule*>(each));
    for (IOTAModule* project : projects)
        RemovePage(*project);
}

// The project or group with those of its projects that were read.
void HostWindow::WatchProject() {
    watch_.Forget(std::exchange(watchedProject_, {}));
    const auto add = [&](OpenFiles& files) {
        for (auto& file : files.Paths())
            watchedProject_.push_back(std::move(file));
    };
    if (auto* files = dynamic_cast<OpenFiles*>(project_)) add(*files);
    if (auto* group = dynamic_cast<PlainProjectGroup*>(project_))
        for (PlainProject* project : group->LoadedProjects())
            add(*project);
    watch_.Watch(watchedProject_);
}

// Commands may bring many modules to front; only the last one is looked at.
void HostWindow::ShowSoon(IOTAModule& module) {
    if (AsProjectGroup(&module)) return;
    const bool pending = !toShow_.empty();
    toShow_ = module.FileName();
    if (!pending) QTimer::singleShot(0, this, [this] { ShowPending(); });
}

void HostWindow::ShowPending() {
    const std::string file = std::exchange(toShow_, {});
    IOTAModule* module = file.empty() ? nullptr : ide_.FindModule(file);
    if (!module || (AsProject(module) && module->GetModuleFileCount() == 0)) return;
    UnitPage& page = MakePage(*module);
    tabs_->setCurrentWidget(&page);
    page.Prepare();
    Changed();
}

void HostWindow::PageChanged() {
    UnitPage* page = Page();
    // The IDE's current module is the one that people see.
    if (page && toShow_.empty() && ide_.CurrentModule() != &page->Module() && page->Module().GetModuleFileCount() > 0) {
        ide_.BringToFront(page->Module());
    }
    Changed();
}

void HostWindow::Changed() {
    if (changed_) return;
    changed_ = true;
    QTimer::singleShot(0, this, [this] { ShowChanged(); });
}

void HostWindow::ShowChanged() {
    changed_ = false;
    for (const auto& [module, page] : pages_) {
        const int index = tabs_->indexOf(page);
        if (const QString title = page->Title(); tabs_->tabText(index) != title) tabs_->setTabText(index, title);
    }
    TMenuItem& items = ide_.Menus().MainMenu().Items;
    for (const HostCommand& command : HostCommands())
        if (TMenuItem* item = items.FindDeep(command.name)) item->SetEnabled(!command.enabled || (this->*command.enabled)());
    const UnitPage* page = Page();
    setWindowTitle((project_ ? Q(PathText(PathFromText(project_->FileName()).filename())) + " - " : QString()) +
                   "Glotta Workbench");
    CodeEditor* code = page ? dynamic_cast<CodeEditor*>(page->currentWidget()->focusProxy()) : nullptr;
    if (!code) return position_->setText({}), state_->setText({});
    const EditPos cursor = code->Source().View().CursorPos();
    position_->setText(QString("%1: %2").arg(cursor.line).arg(cursor.column));
    state_->setText(code->Source().Modified() ? "Modified" : QString());
}

void HostWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) return;
    for (const auto& [module, page] : pages_)
        page->Restyle();
    if (menu_) FillSubmenus();
}

void HostWindow::AddMessage(const std::string& text) {
    messages_->addItem(Q(text));
    messages_->scrollToBottom();
    statusBar()->showMessage(Q(text), 8000);
    messagesDock_->show();
}

void HostWindow::closeEvent(QCloseEvent* event) {
    bool closed = false;
    Run([&] { closed = CloseProject(); });
    if (!closed) return event->ignore();
    SaveState();
    event->accept();
}

} // namespace glotta
