#include "vcl/Menu.h"

namespace glotta {
namespace {

// "File(Open Save -) Edit()"
std::string Shown(const TMenuItem& item) {
    std::string text;
    for (std::size_t i = 0; i < item.Count(); ++i) {
        text += (i ? " " : "") + item[i].Caption();
        if (item[i].Count() > 0) text += "(" + Shown(item[i]) + ")";
    }
    return text;
}

TEST(Menu, ItemsAreInsertedFoundAndFreed) {
    TMainMenu menu;
    TMenuItem& file = menu.Items.Add("File", "FileMenu");
    file.Add("Open", "Open1");
    file.Insert(0, std::make_unique<TMenuItem>("New", "New1"));
    file.Insert(99, std::make_unique<TMenuItem>("-"));
    menu.Items.Insert(0, std::make_unique<TMenuItem>("Edit", "EditMenu"));
    EXPECT_EQ(Shown(menu.Items), "Edit File(New Open -)");
    EXPECT_EQ(menu.Items.FindName("filemenu"), nullptr); // exact
    EXPECT_EQ(menu.Items.FindName("Open1"), nullptr);    // children only
    EXPECT_EQ(menu.Items.FindDeep("Open1")->Parent(), &file);
    EXPECT_EQ(file.FindCaption("Open"), &file[1]);
    file[1].Free();
    menu.Items.Delete(0);
    EXPECT_EQ(Shown(menu.Items), "File(New -)");
}

TEST(Menu, AViewHearsOfEveryChangeAndOfNothingElse) {
    TPopupMenu menu("Popup");
    TMenuItem& item = menu.Items.Add("A").Add("B");
    int changes = 0;
    menu.OnView = [&] { ++changes; };
    item.SetEnabled(true);
    item.SetCaption("B");
    EXPECT_EQ(changes, 0);
    item.SetChecked(true);
    item.SetShortCut("Ctrl+B");
    item.Add("C");
    item.Clear();
    EXPECT_EQ(changes, 4);
}

// The expert's item is freed and made again while its own click is at work.
TEST(Menu, AnItemMayBeFreedByItsOwnHandler) {
    TMainMenu menu;
    TMenuItem& item = menu.Items.Add("A");
    std::string log;
    item.OnClick = [&menu, &log] {
        menu.Items.Clear();
        log += "clicked";
    };
    item.SetEnabled(false);
    item.Click();
    EXPECT_EQ(log, "");
    item.SetEnabled(true);
    item.Click();
    EXPECT_EQ(log, "clicked");
    EXPECT_EQ(menu.Items.Count(), 0U);
}

} // namespace
} // namespace glotta
