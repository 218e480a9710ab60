// Menus as data on a menu bar.
#include "workbench/MenuAdapter.h"
#include "workbench/QtText.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <gtest/gtest.h>

namespace glotta {
namespace {

struct Bar {
    TMainMenu menu{"MainMenu"};
    QMenuBar bar;
    TMenuItem& tools = menu.Items.Add("&Tools", "ToolsMenu");
    TMenuItem& empty = menu.Items.Add("&Run", "RunMenu");
    MenuAdapter adapter{bar, menu};
    std::string log;

    QMenu& Tools() { return *adapter.ActionOf(tools)->menu(); }
    std::string Shown() {
        QApplication::processEvents();
        std::string text;
        for (const QAction* top : bar.actions()) {
            if (!top->isVisible()) continue;
            text += S(top->text());
            for (const QAction* action : top->menu()->actions())
                text += action->isSeparator() ? " -" : " " + S(action->text()) + (action->isEnabled() ? "" : "(off)");
            text += ";";
        }
        return text;
    }
};

TEST(MenuAdapter, FollowsTheItems) {
    Bar bar;
    EXPECT_EQ(bar.Shown(), "");
    TMenuItem& one = bar.tools.Add("One", "One1", [&] { bar.log += "one "; });
    bar.tools.Add("-");
    bar.tools.Add("Two");
    EXPECT_EQ(bar.Shown(), "&Tools One - Two;");
    QAction* shown = bar.adapter.ActionOf(one);
    one.SetEnabled(false);
    one.SetCaption("1");
    EXPECT_EQ(bar.Shown(), "&Tools 1(off) - Two;");
    EXPECT_EQ(bar.adapter.ActionOf(one), shown); // states change in place
    one.SetEnabled(true);
    bar.empty.Add("Go");
    EXPECT_EQ(bar.Shown(), "&Tools 1 - Two;&Run Go;");
    bar.adapter.ActionOf(one)->trigger();
    EXPECT_EQ(bar.log, "one ");
}

TEST(MenuAdapter, AnItemMayGoWhileItsActionIsThere) {
    Bar bar;
    TMenuItem& item = bar.tools.Add("Unload", {}, [&] {
        bar.log += "unloaded";
        bar.tools.Clear();
    });
    bar.Shown();
    QAction* action = bar.adapter.ActionOf(item);
    action->trigger();
    action->trigger(); // the item is gone, its action not yet
    EXPECT_EQ(bar.log, "unloaded");
    EXPECT_EQ(bar.Shown(), "");
}

TEST(MenuAdapter, SubmenuIsPreparedWhenItOpens) {
    Bar bar;
    bar.tools.Add("Old");
    bar.tools.OnClick = [&] {
        bar.tools.Clear();
        bar.tools.Add("New");
    };
    bar.Shown();
    QMenu& menu = bar.Tools();
    menu.popup(QPoint(0, 0));
    QApplication::processEvents();
    EXPECT_TRUE(menu.isVisible()); // what it shows changed; it stays
    ASSERT_EQ(menu.actions().size(), 1);
    EXPECT_EQ(S(menu.actions()[0]->text()), "New");
    menu.close();
}

} // namespace
} // namespace glotta
