#include "expert/Glottaexp.h"

#include "expert/IdeNotifiers.h"
#include "host/PlainIde.h"
#include "platform/RegFileStore.h"
#include "platform/Text.h"
#include "scanner/_scan.h"
#include "settings/_expopt.h"
#include "storage/Projectsettings.h"
#include "support/DeskFakes.h"
#include "support/ScriptedUi.h"
#include "translation/TranslUnits.h"

namespace glotta {
namespace {

constexpr const char* MarkError = "There are no lines selected in the source editor!";

// The IDE with the sample project and a package that brings the expert.
struct Desk {
    TempFolder folder;
    ScriptedUi ui;
    RegFileStore registry{folder / "settings.reg"};
    HelperLibrary helper = HelperLibrary::Absent();
    FakeLauncher launcher;
    FakeAutomation automation;
    FakeTransEditor editor;
    PlainIde ide;
    TGlottaExpert* expert = nullptr;

    Desk() { CopySample(folder, "delphi/OrderDesk"); }
    TGlottaExpert& Load() {
        expert =
            ExpRegister({ide.Services(), ui, registry, helper, launcher, automation, &editor}).lock().get();
        return *expert;
    }
    void Unload() {
        ide.PackageWizards().UnloadAll();
        expert = nullptr;
    }
    std::string File(const char* name) { return (folder / name).string(); }
    void OpenProject() { ide.OpenProject(File("OrderDesk.dpr")); }
    // Loads the expert and opens its window by the menu.
    TfrmGlotta& OpenWindow() {
        OpenProject();
        Load();
        ui.Window<TfrmGlotta>();
        ide.Menus().MainMenu().Items.FindDeep("GlottaExpertMenuItem")->Click();
        return *expert->MainWindow();
    }
    // The sections that hold the expert's item: "ToolsMenu[0] Ctrl+L".
    std::string Items() {
        std::string text;
        const TMenuItem& top = ide.Menus().MainMenu().Items;
        for (std::size_t section = 0; section < top.Count(); ++section)
            for (std::size_t i = 0; i < top[section].Count(); ++i)
                if (top[section][i].Caption() == "TG&lotta Expert")
                    text += top[section].Name() + "[" + std::to_string(i) + "] " +
                            top[section][i].ShortCut() + ";";
        return text;
    }
    // Opens the file in the editor and selects the lines or the columns of one line.
    PlainSourceEditor& Edit(const char* name, EditPos start, EditPos after) {
        EXPECT_TRUE(ide.OpenFile(File(name)));
        auto& source = dynamic_cast<PlainModule&>(*ide.CurrentModule()).Source();
        source.View().SetBlock(start, after);
        return source;
    }
    // Chooses a command of the editor's submenu.
    void Choose(HostEditWindow& window, const char* caption) {
        TMenuItem* menu = window.EditorLocalMenu.Items.FindCaption("TGlotta Expert");
        ASSERT_NE(menu, nullptr);
        menu->Click();
        menu->FindCaption(caption)->Click();
    }
    std::string Notifiers() {
        std::string text;
        for (const auto& notifier : expert->ModuleNotifiers())
            text += notifier->Module()->Name() + (notifier->Registered() ? " " : "- ");
        return text;
    }
};

std::string SubMenu(HostEditWindow& window) {
    std::string text;
    window.EditorLocalMenu.Items.ForEach(
        [&](TMenuItem& item) { text += item.Caption() + (item.Enabled() ? "; " : " (off); "); });
    return text;
}

TEST(Expert, ComesWithItsMenusAndLeavesNothingBehind) {
    Desk desk;
    HostEditWindow& window = desk.ide.Menus().AddEditWindow();
    window.EditorLocalMenu.Items.Add("Copy");
    TMenuItem& tools = desk.ide.Menus().Section("ToolsMenu");
    for (const char* caption : {"A", "B", "C"})
        tools.Add(caption);
    TGlottaExpert& expert = desk.Load();
    EXPECT_EQ(expert.GetIDString() + "|" + expert.GetName().substr(0, 14) + "|" + expert.GetComment() + "|" +
                  expert.GetPage() + "|" + std::to_string(expert.GetState()),
              "Delphi.GlottaAddInExpert|TGlotta Expert|||0");
    EXPECT_EQ(desk.Items(), "ToolsMenu[2] Ctrl+L;");
    const std::string submenu =
        "Copy; TGlotta Expert; Scan selected source... (off); Mark to skip (off); -; View "
        "translation (off); ";
    EXPECT_EQ(SubMenu(window), submenu);
    expert.InstallEditorPopupMenu();
    EXPECT_EQ(SubMenu(window), submenu);
    EXPECT_TRUE(desk.editor.NavigateToSource && desk.editor.ShowAboutBox);
    desk.Unload();
    EXPECT_EQ(desk.Items() + SubMenu(window), "Copy; ");
    EXPECT_FALSE(desk.editor.NavigateToSource || desk.editor.ShowAboutBox);
    desk.OpenProject(); // nobody listens any more
    desk.Load();
    EXPECT_EQ(desk.Items() + SubMenu(window), "ToolsMenu[2] Ctrl+L;" + submenu);
}

TEST(Expert, TheItemFollowsTheOptions) {
    Desk desk;
    desk.OpenWindow();
    const auto choose = [&](const char* section, const char* shortcut) {
        desk.ui.Modal<TfrmOptions>([&](TfrmOptions& form) {
            form.cbMenuItems.Enter(section);
            form.hkInMenu.Enter(TextToShortCut(shortcut));
            form.btOK.Execute();
            return ModalResult::Cancel;
        });
        desk.expert->MainWindow()->sbOptionsClick();
        return desk.Items();
    };
    EXPECT_EQ(choose("HelpMenu", "Ctrl+Alt+G"), "HelpMenu[0] Ctrl+Alt+G;");
    EXPECT_EQ(choose("helpmenu", "F9"), ""); // exact names only; nothing is reported
    EXPECT_EQ(choose("FileMenu", "F9"), "FileMenu[0] F9;");
    // An IDE that rebuilt its menus gets the item again with its next notification.
    desk.ide.Menus().Section("FileMenu").Clear();
    desk.ide.OpenFile(desk.File("Main.pas"));
    EXPECT_EQ(desk.Items(), "FileMenu[0] F9;");
}

TEST(Expert, WithoutAProjectNothingOpens) {
    Desk desk;
    desk.Load().RunItemClick();
    EXPECT_EQ(desk.expert->MainWindow(), nullptr);
    EXPECT_EQ(desk.ui.Transcript(), "");
}

TEST(Expert, TheWindowIsOneUntilItIsClosed) {
    Desk desk;
    TfrmGlotta& first = desk.OpenWindow();
    desk.expert->RunItemClick();
    EXPECT_EQ(desk.expert->MainWindow(), &first);
    desk.expert->ProjectSettings()->SetOptionValue("DefaultFormForUnits", "Data");
    first.Close(desk.ui, ModalResult::Cancel);
    EXPECT_EQ(desk.expert->MainWindow(), nullptr);
    EXPECT_EQ(ReadFile(desk.folder / "OrderDesk.gxproj"), "[Settings]\r\nDefaultFormForUnits=Data\r\n");
    desk.ui.Window<TfrmGlotta>();
    desk.expert->RunItemClick();
    EXPECT_EQ(desk.expert->ProjectSettings()->GetOptionValue("defaultformforunits"), "Data");
    int closed = 0;
    desk.expert->MainWindow()->OnClose = [&] { ++closed; };
    desk.Unload(); // closes it
    EXPECT_EQ(closed, 1);
}

TEST(Expert, TellsWhatItIs) {
    Desk desk;
    desk.Load();
    const std::string about =
        "TGlotta Expert (VCL Edition)\r\nMakes the forms and units of a project translatable.";
    desk.ui.Message(about);
    desk.editor.ShowAboutBox();
    EXPECT_EQ(desk.ui.Transcript(), "Information: " + about + " -> OK\n");
}

TEST(Notifiers, HearOfOpenedAndClosedFiles) {
    Desk desk;
    desk.OpenProject();
    desk.Load();
    for (const char* unit : {"Main.pas", "Trace.pas", "About.pas"})
        desk.ide.OpenFile(desk.File(unit));
    EXPECT_EQ(desk.Notifiers(), "MainForm AboutBox "); // a unit without form has nothing to tell
    EXPECT_EQ(desk.expert->Services().Forms().items.size(), 0U);
    desk.ui.Window<TfrmGlotta>();
    desk.expert->RunItemClick();
    bool cancel = false;
    TgxAddInNotifier notifier(*desk.expert);
    notifier.FileNotification(ofnFileOpened, desk.File("Main.pas"), cancel); // a second one for the same file
    EXPECT_EQ(desk.Notifiers(), "MainForm AboutBox MainForm ");
    notifier.FileNotification(ofnFileClosing, desk.File("Main.pas"), cancel);
    EXPECT_EQ(desk.Notifiers(), "AboutBox MainForm ");
    EXPECT_TRUE(desk.ide.CloseFile(desk.File("About.pas")));
    EXPECT_EQ(desk.Notifiers(), "MainForm ");
    notifier.Detach();
    notifier.FileNotification(ofnFileOpened, desk.File("Main.pas"), cancel);
    EXPECT_EQ(desk.Notifiers(), "MainForm ");
    EXPECT_FALSE(cancel);
}

// A window that goes while its menu is looked for.
TEST(Notifiers, TellOfTroubleWithTheEditorMenuAndGoOn) {
    struct Broken : INTAServices, INTAForm {
        TMainMenu menu;
        bool broken = false;
        TMainMenu& MainMenu() override { return menu; }
        int FormCount() const override { return 1; }
        INTAForm* GetForm(int) override { return this; }
        std::string ClassName() const override { return "TEditWindow"; }
        TPopupMenu* FindPopupMenu(std::string_view) override {
            if (broken) throw Error("window is gone");
            return nullptr;
        }
    } menus;
    Desk desk;
    menus.menu.Items.Add("Tools", "ToolsMenu");
    BorlandIDEServices services = desk.ide.Services();
    services.menus = &menus;
    TGlottaExpert expert({services, desk.ui, desk.registry, desk.helper, desk.launcher, desk.automation});
    menus.broken = true;
    desk.ui.Message("TGlotta caused:! window is gone");
    expert.FileNotification(ofnFileOpened, "x.pas");
    menus.broken = false;
    EXPECT_EQ(menus.menu.Items[0].Count(), 1U);
    EXPECT_EQ(desk.ui.Transcript(), "Message: TGlotta caused:! window is gone -> OK\n");
}

TEST(Notifiers, TheListFollowsTheDesigner) {
    Desk desk;
    TfrmGlotta& window = desk.OpenWindow();
    desk.ide.OpenFile(desk.File("Main.pas"));
    auto& form = *dynamic_cast<PlainModule&>(*desk.ide.CurrentModule()).Form();
    const auto listed = [&](const char* name) {
        return desk.expert->Services().Forms().FindExact(name) != nullptr;
    };
    form.Designer().RenameComponent(form.Designer().Root(), "OrdersForm");
    EXPECT_TRUE(listed("OrdersForm") && !listed("MainForm"));
    // The translations of a component follow its name; identifiers of "Strings" don't.
    FormsListItem& entry = *desk.expert->Services().Forms().FindExact("OrdersForm");
    window.Translation().InsertTGlotta(entry);
    TgxCustomLang& glotta = *window.Translation().GetGlotta("OrdersForm");
    glotta.SetStrings(stCaptions,
                      {MakeRecord("btnNew.Caption", "New", 2), MakeRecord("btnNewer.Caption", "x", 2)});
    glotta.SetStrings(stStrings, {MakeRecord("btnNew.1", "y", 2)});
    form.Designer().RenameComponent(*form.Designer().Root().FindComponent("btnNew"), "btnAdd");
    EXPECT_EQ(RecordField(glotta.Strings(stCaptions)[0], 1) + " " +
                  RecordField(glotta.Strings(stCaptions)[1], 1) + " " +
                  RecordField(glotta.Strings(stStrings)[0], 1),
              "btnAdd.Caption btnNewer.Caption btnNew.1");
    EXPECT_EQ(window.StatusBar[2](), "Forms translated: 1 of 5");
}

TEST(Notifiers, AClosedProjectEmptiesTheList) {
    Desk desk;
    TfrmGlotta& window = desk.OpenWindow();
    EXPECT_TRUE(desk.ide.CloseFile(desk.File("OrderDesk.dpr")));
    EXPECT_EQ(window.lvFormNames.RowCount(), 0U);
    EXPECT_EQ(window.StatusBar[0]() + ", " + window.StatusBar[1](), "Forms count: 0, Units count: 0");
    EXPECT_EQ(desk.expert->ProjectSettings(), nullptr);
    desk.OpenProject(); // another active project fills it again
    EXPECT_EQ(window.lvFormNames.RowCount(), 5U);
}

TEST(SourceCommands, MarkToSkip) {
    Desk desk;
    HostEditWindow& window = desk.ide.Menus().AddEditWindow();
    desk.OpenProject();
    desk.Load();
    PlainSourceEditor& source = desk.Edit("About.pas", {27, 1}, {27, 38});
    desk.Choose(window, "Mark to skip");
    EXPECT_NE(source.Buffer().Text().find("begin\r\n\r\n{TGL:IGNORE ON}\r\n  lbProduct.Caption := 'Order "
                                          "Desk';\r\n{TGL:IGNORE OFF}\r\n\r\n"),
              std::string::npos)
        << source.Buffer().Text();
    EXPECT_TRUE(source.Undo()); // one step
    EXPECT_FALSE(source.Modified());
    desk.ui.Message(MarkError);
    source.View().SetBlock({3, 4}, {3, 4});
    desk.Choose(window, "Mark to skip"); // disabled
    desk.expert->MarkUnTranslatableSourceMenuClick();
    EXPECT_EQ(desk.ui.Transcript(), std::string("Error: ") + MarkError + " -> OK\n");
}

TEST(SourceCommands, ScanSelectedSource) {
    Desk desk;
    HostEditWindow& window = desk.ide.Menus().AddEditWindow();
    desk.OpenWindow();
    desk.expert->Settings().SetNoCommentsInSources(true);
    PlainSourceEditor& source = desk.Edit("About.pas", {28, 1}, {29, 1});
    desk.ui.Modal<TfrmFound>([&](TfrmFound& found) {
        std::string rows;
        for (std::size_t row = 0; row < found.sgStrings.RowCount(); ++row)
            rows += found.sgStrings.CellText(row, 0) + ":" + found.sgStrings.CellText(row, 2) + " ";
        EXPECT_EQ(rows, "29:'Version ' 29:' for small shops' "); // behind the new field of the class
        EXPECT_EQ(desk.expert->Services().modeMarker, 999);
        found.acModifySource.Execute();
        return ModalResult::Cancel;
    });
    desk.ui.Message("This will apply changes and modify source code. Continue?", ModalResult::Yes)
        .Message("Source file translated. All string constants added to \"Strings\" property.");
    desk.Choose(window, "Scan selected source...");
    EXPECT_EQ(desk.expert->Services().modeMarker, 0);
    EXPECT_NE(source.Buffer().Text().find("lbProduct.Caption := 'Order Desk';"), std::string::npos);
    EXPECT_EQ(source.Buffer().Text().find("'Version '"), std::string::npos);

    // A unit without a form: its strings go to a form's component, and only itself is offered.
    desk.Edit("Units/totals.pas", {19, 1}, {20, 1});
    desk.ui.Modal<TfrmTranslUnits>([](TfrmTranslUnits& units) {
        EXPECT_EQ(units.lbUnits.RowCount(), 1U);
        EXPECT_EQ(units.UnitName() + " " + units.FormName(), "Totals AboutBox");
        return ModalResult::Cancel;
    });
    desk.Choose(window, "Scan selected source...");

    const std::string stranger =
        desk.folder.Put("Stranger.pas", "unit Stranger;\r\nconst A = 'b';\r\n").string();
    desk.Edit("Stranger.pas", {2, 1}, {2, 9});
    desk.ui.Message("Current project doesn't include " + stranger + " file!");
    desk.Choose(window, "Scan selected source...");
    EXPECT_TRUE(desk.ui.Transcript().ends_with("Error: Current project doesn't include " + stranger +
                                               " file! -> OK\n"));
    desk.ui.Done();
}

TEST(SourceCommands, ViewTranslation) {
    Desk desk;
    HostEditWindow& window = desk.ide.Menus().AddEditWindow();
    desk.OpenWindow();
    const std::string view = "View translation";
    desk.Edit("About.pas", {27, 3}, {27, 12});
    desk.ui.Message("Current form is not translated!");
    desk.Choose(window, view.c_str());

    TfrmGlotta& main = *desk.expert->MainWindow();
    main.Translation().InsertTGlotta(*desk.expert->Services().Forms().FindExact("AboutBox"));
    TgxCustomLang& glotta = *main.Translation().GetGlotta("AboutBox");
    glotta.SetStrings(stStrings, {MakeRecord("lbProduct0", "no", 2), MakeRecord("lbProduct", "yes", 2)});
    desk.ide.SaveAll();
    desk.Choose(window, view.c_str());
    EXPECT_EQ(desk.editor.log, "Glotta1 stStrings[1]; "); // not the longer one in front of it
    EXPECT_FALSE(desk.ide.CurrentModule()->Modified());
    desk.editor.changes = true;
    desk.Choose(window, view.c_str());
    EXPECT_TRUE(desk.ide.CurrentModule()->Modified());

    glotta.SetStrings(stStrings, {});
    desk.ui.Message("lbProduct is not used as string identifier!");
    desk.Choose(window, view.c_str());
    EXPECT_TRUE(desk.ui.Transcript().ends_with("Error: lbProduct is not used as string identifier! -> OK\n"));
    const std::string stranger = desk.folder.Put("Stranger.pas", "unit Stranger;\r\n").string();
    desk.Edit("Stranger.pas", {1, 1}, {1, 5});
    desk.ui.Message("Current project doesn't include " + stranger + " file!");
    desk.Choose(window, view.c_str());
    desk.Edit("Units/totals.pas", {19, 1}, {20, 1});
    desk.Choose(window, view.c_str()); // no form is selected: nothing happens
    EXPECT_TRUE(desk.editor.NavigateToSource("nowhere", false) == false);
}

} // namespace
} // namespace glotta
