// "Help" and F1 open the section of the window that asks, also over a modal one.
#include "expert/Glottaexp.h"
#include "workbench/ExpertDesk.h"
#include "workbench/HostWindow.h"

#include <QtGui/QTextBlock>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTextBrowser>

namespace glotta {
namespace {

// The heading at which the help over a window stands; empty when there is no help.
std::string Topic(QWidget& window) {
    auto* help = window.findChild<QDialog*>("HelpWindow");
    if (!help || !help->isVisible()) return {};
    if (qEnvironmentVariableIsSet("GLOTTA_PICTURES"))
        help->grab().save(qEnvironmentVariable("GLOTTA_PICTURES") + "/help.png");
    const std::string topic = help->findChild<QTextBrowser*>()->textCursor().block().text().toStdString();
    help->close();
    return topic;
}

TEST(HelpWindow, OpensAtTheSectionOfTheWindowThatAsks) {
    TempFolder folder;
    CopySample(folder, "delphi/OrderDesk");
    Workbench bench(folder / "settings.reg");
    HostWindow host(bench);
    Hands hands;
    hands.Take(bench.UiPort());
    host.show();
    bench.LoadExpert();
    host.OpenProject((folder / "OrderDesk.dpr").string());
    host.Menu().Refresh();
    hands.Trigger(*host.menuBar(), "TG&lotta Expert");
    QWidget& main = *bench.UiPort().WindowOf(*bench.Expert()->MainWindow());
    QMenuBar& menu = *main.findChild<QMenuBar*>("MainMenu");
    GridView& list = hands.Grid(main, "lvFormNames");
    hands.ClickCell(list, hands.RowWith(list, 0, "MainForm"), 0);

    std::string topics;
    const auto ask = [&](const char* button) {
        hands.uses.push_back([&, button](TForm&, QWidget& window) {
            hands.Idle();
            if (!button)
                QTest::keyClick(&window, Qt::Key_F1);
            else if (auto* found = window.findChild<QAbstractButton*>(button))
                found->click();
            else
                hands.Trigger(window, button);
            topics += Topic(window) + "\n";
        });
    };
    hands.Find(menu.actions(), "&Help")->menu()->actions().front()->trigger();
    topics += Topic(main) + "\n";
    ask("btHelp");
    hands.Trigger(menu, "O&ptions...");
    QTest::keyClick(&list, Qt::Key_Return); // puts a component on the form
    ask("btnHelp");
    hands.Trigger(menu, "&Languages...");
    ask(nullptr);
    hands.Trigger(menu, "&Translate");
    ask("Help");
    hands.Trigger(menu, "&With form...");
    ask(nullptr);
    hands.Trigger(menu, "With&out form...");
    hands.Trigger(*host.menuBar(), "&Contents");
    topics += Topic(host) + "\n";
    EXPECT_EQ(topics, "Main window\nOptions\nConfigure languages\nTranslation editor\nFound strings\n"
                      "Unit choice\nMain window\n");
    hands.Trigger(menu, "S&kipped Strings...");
    QWidget* skipped = QApplication::activeWindow();
    ASSERT_NE(skipped, nullptr);
    QTest::keyClick(skipped, Qt::Key_F1);
    EXPECT_EQ(Topic(*skipped), "Skipped strings");
    bench.UnloadExpert();
    host.CloseProject();
}

} // namespace
} // namespace glotta
