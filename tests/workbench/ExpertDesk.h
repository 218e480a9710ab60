// The expert at work over the sample project, in its windows.
#pragma once
#include "expert/Glottaexp.h"
#include "host/PlainIde.h"
#include "platform/RegFileStore.h"
#include "support/DeskFakes.h"
#include "translation/TransEditor.h"
#include "workbench/GridView.h"
#include "workbench/MenuAdapter.h"
#include "workbench/QtUi.h"

#include <QtCore/QDir>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolButton>
#include <deque>
#include <gtest/gtest.h>
#include <map>

namespace glotta {

// What a person does with mouse and keyboard. A message that comes up is answered by the first button's
// meaning, and noted.
struct Hands {
    std::string messages;
    std::deque<std::optional<std::string>> inputs;
    // What a person does in the modal windows that come up, in this order.
    std::deque<std::function<void(TForm&, QWidget&)>> uses;

    ~Hands() { EXPECT_TRUE(uses.empty()) << "a window did not come up"; }
    void Take(QtUi& ui) {
        ui.AnswerMessage = [this](const std::string& text, const MsgButtons& buttons) {
            messages += text + "\n";
            return std::optional(buttons.front());
        };
        ui.AnswerInput = [this](const std::string& prompt, const std::string&) -> std::optional<std::string> {
            messages += prompt + "\n";
            if (inputs.empty()) return {};
            auto answer = inputs.front();
            inputs.pop_front();
            return answer;
        };
        ui.UseModal = [this, &ui](TForm& form, QWidget& window) {
            if (uses.empty()) {
                ADD_FAILURE() << "unexpected: " << form.caption;
            } else {
                const auto use = std::move(uses.front());
                uses.pop_front();
                use(form, window);
            }
            if (form.modalResult == ModalResult::None) form.Close(ui, ModalResult::Cancel);
        };
    }

    static void Idle() {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    // With GLOTTA_PICTURES set to a folder, the window's picture is left there.
    static void Picture(QWidget& window, const char* name) {
        Idle();
        const QString folder = qEnvironmentVariable("GLOTTA_PICTURES");
        if (folder.isEmpty()) return;
        QDir().mkpath(folder);
        window.grab().save(folder + "/" + qEnvironmentVariable("GLOTTA_THEME", "Light").toLower() + "-" + name +
                           ".png");
    }
    // The action with this caption, in menus at any depth.
    static QAction* Find(const QList<QAction*>& actions, const char* caption) {
        for (QAction* action : actions) {
            if (action->text() == caption) return action;
            if (action->menu())
                if (QAction* below = Find(action->menu()->actions(), caption)) return below;
        }
        return nullptr;
    }
    static void Trigger(QWidget& owner, const char* caption) {
        Idle();
        QAction* action = Find(owner.actions(), caption);
        ASSERT_NE(action, nullptr) << caption;
        ASSERT_TRUE(action->isEnabled()) << caption;
        action->trigger();
        Idle();
    }
    static void Click(QWidget& window, const char* button) {
        auto* found = window.findChild<QAbstractButton*>(button);
        ASSERT_NE(found, nullptr) << button;
        QTest::mouseClick(found, Qt::LeftButton);
    }
    static GridView& Grid(QWidget& window, const char* name) { return *window.findChild<GridView*>(name); }
    static void ClickCell(GridView& grid, int row, int column, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        grid.scrollTo(grid.Model().index(row, column));
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, keys,
                          grid.visualRect(grid.Model().index(row, column)).center());
    }
    // Types a text into a cell and ends it by Enter.
    static void TypeCell(GridView& grid, int row, int column, const char* text) {
        ClickCell(grid, row, column);
        QTest::keyClick(&grid, Qt::Key_F2);
        auto* edit = grid.findChild<QLineEdit*>();
        ASSERT_NE(edit, nullptr);
        edit->selectAll();
        QTest::keyClicks(edit, text);
        QTest::keyClick(edit, Qt::Key_Return);
        Idle();
    }
    static int RowWith(const GridView& grid, int column, const char* text) {
        for (int row = 0; row < grid.model()->rowCount(); ++row)
            if (grid.model()->index(row, column).data().toString() == text) return row;
        ADD_FAILURE() << "no row " << text;
        return 0;
    }
};

// In a host of nothing but a menu.
struct ExpertDesk : Hands {
    TempFolder folder;
    QtUi ui;
    RegFileStore registry{folder / "settings.reg"};
    HelperLibrary helper;
    FakeLauncher launcher;
    FakeAutomation automation;
    TransEditorDialog editor{ui};
    PlainIde ide;
    QMainWindow host;
    MenuAdapter menus{*host.menuBar(), ide.Menus().MainMenu()};
    TGlottaExpert* expert = nullptr;

    explicit ExpertDesk(const char* sample = "delphi/OrderDesk", const char* project = "OrderDesk.dpr") {
        CopySample(folder, sample);
        Take(ui);
        ui.mainWindow = &host;
        host.resize(900, 200);
        host.show();
        ide.OpenProject((folder / project).string());
        expert =
            ExpRegister({ide.Services(), ui, registry, helper, launcher, automation, &editor}).lock().get();
    }
    ~ExpertDesk() {
        ide.PackageWizards().UnloadAll();
        Idle();
    }
    // By the host's menu, as a person does.
    QWidget& OpenMainWindow() {
        menus.Refresh();
        Trigger(*host.menuBar(), "TG&lotta Expert");
        QWidget* const window = ui.WindowOf(*expert->MainWindow());
        EXPECT_NE(window, nullptr);
        return *window;
    }
};

} // namespace glotta
