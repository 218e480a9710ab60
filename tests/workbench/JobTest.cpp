// The main job by mouse and keyboard: after it the files on disk are what is expected in data/<case>.
#include "scanner/_scan.h"
#include "translation/TranslUnits.h"
#include "workbench/CodeEditor.h"
#include "workbench/ExpertDesk.h"
#include "workbench/HostWindow.h"
#include "workbench/QtText.h"

#include <QtCore/QTimer>
#include <QtGui/QContextMenuEvent>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <fstream>
#include <iterator>

namespace glotta {
namespace {

namespace fs = std::filesystem;

using Files = std::map<std::string, std::string>;

std::string BytesOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

Files FilesIn(const fs::path& folder) {
    Files files;
    if (fs::exists(folder))
        for (const auto& entry : fs::recursive_directory_iterator(folder))
            if (entry.is_regular_file())
                files[fs::relative(entry.path(), folder).generic_string()] = BytesOf(entry.path());
    return files;
}

// In the host's own window, from opening the project to saving all.
struct Job : Hands {
    TempFolder folder;
    Workbench bench{folder / "settings.reg"};
    HostWindow host{bench};

    explicit Job(const char* sample = "delphi/OrderDesk", const char* project = "OrderDesk.dpr") {
        CopySample(folder, sample);
        Take(bench.UiPort());
        bench.UiPort().AnswerFiles = [this, project](FileDialog& dialog) {
            dialog.files = {PathText(folder / project)};
            return true;
        };
        host.show();
        Command("&Load TGlotta Expert");
        Command("&Open Project...");
    }
    ~Job() {
        host.CloseProject();
        bench.UnloadExpert();
        Idle();
    }
    // By the host's menu.
    void Command(const char* caption) {
        host.Menu().Refresh();
        Trigger(*host.menuBar(), caption);
    }
    QWidget& OpenedMain() {
        if (!bench.Expert()->MainWindow()) Command("TG&lotta Expert");
        return *bench.UiPort().WindowOf(*bench.Expert()->MainWindow());
    }
    QMenuBar& Menu() { return *OpenedMain().findChild<QMenuBar*>("MainMenu"); }
    CodeEditor& Code(const char* unit) {
        host.OpenUnit(PathText(folder / unit));
        Idle();
        return *host.Code();
    }
    // From the expert's submenu of the code editor's context menu.
    void Choose(CodeEditor& code, const char* caption) {
        bool chosen = false;
        QTimer::singleShot(0, &host, [&] {
            QWidget* popup = QApplication::activePopupWidget();
            QAction* expert = popup ? Find(popup->actions(), "TGlotta Expert") : nullptr;
            if (expert) {
                expert->menu()->popup(popup->geometry().topRight()); // its commands are enabled now
                QAction* command = Find(expert->menu()->actions(), caption);
                if (command && (chosen = command->isEnabled())) command->trigger();
                expert->menu()->close();
            }
            if (popup) popup->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, {}, code.mapToGlobal(QPoint()));
        QApplication::sendEvent(code.viewport(), &event);
        Idle();
        EXPECT_TRUE(chosen) << caption;
    }
    void SelectForm(const char* form) {
        GridView& list = Grid(OpenedMain(), "lvFormNames");
        ClickCell(list, RowWith(list, 0, form), 0);
    }
    // What is done in the review before "Modify Source"; rows where no call can stand are deleted.
    void Review(std::function<void(GridView&, QWidget&)> use = {}) {
        uses.push_back([this, use](TForm& form, QWidget& window) {
            ASSERT_NE(dynamic_cast<TfrmFound*>(&form), nullptr);
            Idle(); // until the window is active and takes shortcuts
            GridView& grid = Grid(window, "sgStrings");
            for (int row = 0; row < grid.model()->rowCount(); ++row)
                if (grid.Grid()->Look(std::size_t(row)) == RowLook::Noted)
                    ClickCell(grid, row, 2, Qt::ControlModifier);
            if (grid.Grid()->SelectedCount() > 0) QTest::keyClick(&grid, Qt::Key_Delete, Qt::ControlModifier);
            EXPECT_EQ(grid.Grid()->SelectedCount(), 0u);
            if (use) use(grid, window);
            Trigger(window, "Modify Source");
        });
    }
    void ChooseUnit(const char* unit) {
        uses.push_back([this, unit](TForm& form, QWidget& window) {
            ASSERT_NE(dynamic_cast<TfrmTranslUnits*>(&form), nullptr);
            QTest::keyClicks(window.findChild<QLineEdit*>("edUnitName"), unit);
            Idle();
            Click(window, "btOK");
        });
    }
    // Saves all and compares what differs from the sample with data/<name>.
    void ExpectFiles(const char* sample, const char* name) {
        Command("Sa&ve All");
        const Files before = FilesIn(PathFromText(GLOTTA_SOURCE_DIR) / "samples" / sample);
        Files changed = FilesIn(folder.Path());
        std::erase_if(changed, [&](const auto& file) {
            const auto old = before.find(file.first);
            return file.first.starts_with("settings.reg") ||
                   (old != before.end() && old->second == file.second);
        });
        const Files expected = FilesIn(fs::path(GLOTTA_SOURCE_DIR) / "tests/workbench/data" / name);
        std::string names, expectedNames;
        for (const auto& file : changed)
            names += file.first + " ";
        for (const auto& file : expected)
            expectedNames += file.first + " ";
        EXPECT_EQ(names, expectedNames);
        for (const auto& [file, bytes] : expected)
            EXPECT_EQ(changed[file], bytes) << name << "/" << file;
    }
};

constexpr const char* OrderDesk = "delphi/OrderDesk";

TEST(Job, FormWithEverythingOfTheReview) {
    Job job;
    job.SelectForm("MainForm");
    job.Review([&](GridView& grid, QWidget& window) {
        job.TypeCell(grid, job.RowWith(grid, 2, "'Ready'"), 1, "IDS_READY");
        job.ClickCell(grid, job.RowWith(grid, 2, "'New order'"), 2);
        job.Trigger(window, "Delete");
        job.ClickCell(grid, job.RowWith(grid, 2, "'Sent'"), 2);
        job.Trigger(window, "&Mark to Ignore");
    });
    job.Trigger(job.Menu(), "&With form...");
    job.ExpectFiles(OrderDesk, "form");
}

TEST(Job, DataModule) {
    Job job;
    job.SelectForm("Data");
    job.Review();
    job.Trigger(job.Menu(), "&With form...");
    job.ExpectFiles(OrderDesk, "datamodule");
}

TEST(Job, UnitWithoutFormIntoTheFormThatIsChosen) {
    Job job;
    job.SelectForm("MainForm");
    QTest::keyClick(&job.Grid(job.OpenedMain(), "lvFormNames"), Qt::Key_Return); // puts a component on it
    job.Idle();
    job.ChooseUnit("Tot");
    job.Review();
    job.Trigger(job.Menu(), "With&out form...");
    job.ExpectFiles(OrderDesk, "unit");
}

TEST(Job, ConstSection) {
    Job job;
    job.SelectForm("MainForm");
    job.Review();
    QAction* consts = job.Find(job.Menu().actions(), "&Const Section");
    ASSERT_NE(consts, nullptr);
    job.Find(consts->menu()->actions(), "&With form...")->trigger();
    job.Idle();
    job.ExpectFiles(OrderDesk, "const");
}

TEST(Job, SelectionFromTheEditor) {
    Job job;
    job.OpenedMain();
    CodeEditor& code = job.Code("Main.pas");
    code.setSelection(69, 0, 72, 0);
    job.Review();
    job.Choose(code, "Scan selected source...");
    job.ExpectFiles(OrderDesk, "selection");
}

TEST(Job, CppBuilderForm) {
    Job job("cbuilder/AlarmClock", "AlarmClock.bpr");
    job.SelectForm("ClockForm");
    job.Review();
    job.Trigger(job.Menu(), "&With form...");
    job.ExpectFiles("cbuilder/AlarmClock", "cbuilder");
}

// Of all forms the first one's scan is stopped: nothing of the run remains.
TEST(Job, StoppedRunChangesNothing) {
    Job job;
    GridView& list = Job::Grid(job.OpenedMain(), "lvFormNames");
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
    ASSERT_GT(list.Grid()->SelectedCount(), 2u);
    QTimer stop;
    QObject::connect(&stop, &QTimer::timeout, [] {
        QWidget* progress = QApplication::activeModalWidget();
        auto* cancel = progress && progress->objectName() == "progress" ? progress->findChild<QPushButton*>("cancel") : nullptr;
        if (cancel && cancel->isVisible()) QTest::mouseClick(cancel, Qt::LeftButton);
    });
    stop.start(0);
    job.Trigger(job.Menu(), "&With form...");
    EXPECT_EQ(job.messages, "");
    EXPECT_FALSE(job.host.CanSaveAll());
    EXPECT_EQ(job.bench.Ide().ModuleCount(), 1) << "the project alone is open, as before";
    for (const auto& [file, bytes] : FilesIn(PathFromText(GLOTTA_SOURCE_DIR) / "samples" / OrderDesk))
        EXPECT_EQ(BytesOf(job.folder / file), bytes) << file;
}

// Opens, scans, cancels, rewrites, undoes, unloads and loads again: nothing changes on disk, nothing stays
// behind.
TEST(Job, UndoneAndUnloaded) {
    Job job;
    job.SelectForm("MainForm");
    job.uses.push_back([](TForm&, QWidget&) {}); // cancelled
    job.Trigger(job.Menu(), "&With form...");
    const auto text = [&] { return S(job.Code("Main.pas").text()); };
    const std::string before = text();
    job.SelectForm("MainForm");
    job.Review();
    job.Trigger(job.Menu(), "&With form...");
    EXPECT_NE(text(), before);
    job.Command("&Undo");
    EXPECT_EQ(text(), before);
    job.Command("&Unload TGlotta Expert");
    job.host.Menu().Refresh();
    EXPECT_EQ(job.Find(job.host.menuBar()->actions(), "TG&lotta Expert"), nullptr);
    int windows = 0;
    for (QWidget* window : QApplication::topLevelWidgets())
        windows += window->isVisible() && window != &job.host && !qobject_cast<QMenu*>(window);
    EXPECT_EQ(windows, 0);
    job.Command("&Load TGlotta Expert");
    EXPECT_TRUE(job.OpenedMain().isVisible());
}

} // namespace
} // namespace glotta
