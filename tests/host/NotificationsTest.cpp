#include "host/Notifications.h"

#include "host/PlainIde.h"
#include "support/TempFolder.h"

namespace glotta {
namespace {

struct Listener : IOTAIDENotifier {
    std::string log;
    std::string keepOpen; // the file that it does not let go
    std::function<void()> then;
    void FileNotification(TOTAFileNotification code, const std::string& fileName, bool& cancel) override {
        const auto slash = fileName.find_last_of("/\\");
        const std::string name = fileName.substr(slash + 1);
        log += std::string(code == ofnFileOpened ? "+" : code == ofnFileClosing ? "-" : "!") + name + " ";
        cancel = cancel || (code == ofnFileClosing && name == keepOpen);
        if (then) then();
    }
};

TEST(Notifications, TellWhatThePlainIdeDoes) {
    TempFolder folder;
    for (const char* project : {"One", "Two"})
        folder.Put(std::string(project) + ".dpr",
                   std::string("program ") + project + ";\r\nuses\r\n  U in 'U.pas';\r\nend.\r\n");
    folder.Put("U.pas", "unit U;\r\n");
    const auto group =
        folder.Put("All.bpg", "PROJECTS = One.exe Two.exe\r\nOne.exe: One.dpr\r\n\t$(DCC)\r\nTwo.exe: "
                              "Two.dpr\r\n\t$(DCC)\r\n");
    PlainIde ide;
    auto listener = std::make_shared<Listener>();
    ide.Services().services->AddNotifier(listener);
    auto& opened = dynamic_cast<IOTAProjectGroup&>(ide.OpenProject(group.string()));
    opened.SetActiveProject(1);
    opened.SetActiveProject(1); // no change
    ide.OpenFile((folder / "U.pas").string());
    ide.OpenFile((folder / "U.pas").string()); // only to the front
    listener->keepOpen = "U.pas";
    EXPECT_FALSE(ide.CloseFile((folder / "U.pas").string()));
    listener->keepOpen.clear();
    EXPECT_TRUE(ide.CloseFile((folder / "U.pas").string()));
    EXPECT_EQ(listener->log, "+All.bpg !All.bpg !Two.dpr +U.pas -U.pas -U.pas ");
}

TEST(Notifications, ListenersMayLeaveWhileTheyAreTold) {
    Notifications notifications;
    auto first = std::make_shared<Listener>(), second = std::make_shared<Listener>();
    const int firstIndex = notifications.AddNotifier(first), secondIndex = notifications.AddNotifier(second);
    first->then = [&] {
        notifications.RemoveNotifier(firstIndex);
        notifications.RemoveNotifier(secondIndex);
        notifications.AddNotifier(second); // from the next event on
    };
    EXPECT_TRUE(notifications.Tell(ofnFileOpened, "a"));
    EXPECT_TRUE(notifications.Tell(ofnFileOpened, "b"));
    EXPECT_EQ(first->log + "| " + second->log, "+a | +b ");
}

TEST(HostMenus, HaveTheirSectionsAndEditorWindows) {
    HostMenus menus;
    std::string sections;
    for (std::size_t i = 0; i < menus.MainMenu().Items.Count(); ++i)
        sections += menus.MainMenu().Items[i].Name() + " ";
    EXPECT_EQ(sections,
              "FileMenu EditMenu SearchMenu ViewsMenu ProjectMenu RunMenu ComponentMenu ToolsMenu HelpMenu ");
    HostEditWindow& window = menus.AddEditWindow();
    EXPECT_EQ(menus.GetForm(0)->ClassName(), "TEditWindow");
    EXPECT_EQ(menus.GetForm(0)->FindPopupMenu("EditorLocalMenu"), &window.EditorLocalMenu);
    EXPECT_EQ(menus.GetForm(0)->FindPopupMenu("Other"), nullptr);
    menus.RemoveEditWindow(window);
    EXPECT_EQ(menus.FormCount(), 0);
    EXPECT_EQ(menus.GetForm(0), nullptr);
}

} // namespace
} // namespace glotta
