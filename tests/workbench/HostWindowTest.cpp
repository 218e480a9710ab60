// The host at work on the samples: project tree, editor and buffer, forms, saving, files that others change, the expert
// coming and going.
#include "expert/Glottaexp.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "support/DeskFakes.h"
#include "workbench/CodeEditor.h"
#include "workbench/FindBar.h"
#include "workbench/FormPage.h"
#include "workbench/HostWindow.h"
#include "workbench/MenuAdapter.h"
#include "workbench/ProjectTree.h"
#include "workbench/QtText.h"
#include "workbench/UnitPage.h"

#include <QtCore/QElapsedTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QTreeWidget>
#include <deque>
#include <gtest/gtest.h>

namespace glotta {
namespace {

struct Desk {
    TempFolder folder;
    Workbench bench{folder / "settings.reg"};
    HostWindow window{bench};
    std::string asked;
    std::deque<ModalResult> answers;

    explicit Desk(const char* sample = "delphi/OrderDesk", const char* project = "OrderDesk.dpr") {
        CopySample(folder, sample);
        bench.UiPort().AnswerMessage = [this](const std::string& text, const MsgButtons&) {
            asked += text + "\n";
            const ModalResult answer = answers.empty() ? ModalResult::Cancel : answers.front();
            if (!answers.empty()) answers.pop_front();
            return std::optional(answer);
        };
        window.show();
        if (project) window.OpenProject(PathText(folder / project));
        Idle();
    }
    ~Desk() {
        bench.UiPort().AnswerMessage = [](const std::string&, const MsgButtons&) { return std::optional(ModalResult::No); };
        window.CloseProject();
        bench.UnloadExpert();
    }
    static void Idle() {
        for (int i = 0; i < 4; ++i) {
            QApplication::processEvents();
            QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
    UnitPage& Open(const char* unit, bool form = false) {
        window.OpenUnit(PathText(folder / unit), form);
        Idle();
        return *window.Page();
    }
    CodeEditor& Code(const char* unit) { return *Open(unit).Code(); }
    TMenuItem& Item(std::string_view name) { return *bench.Ide().Menus().MainMenu().Items.FindDeep(name); }
    void Click(std::string_view name) {
        Idle();
        Item(name).Click();
        Idle();
    }
    std::string OnDisk(const char* file) { return ReadFile(folder / file); }
};

std::string Shown(const QTreeWidgetItem& item, int depth = 0) {
    std::string text = std::string(std::size_t(depth), ' ') + S(item.text(0)) + "\n";
    for (int i = 0; i < item.childCount(); ++i)
        text += Shown(*item.child(i), depth + 1);
    return text;
}

std::string Shown(Desk& desk) { return Shown(*desk.window.Tree().Tree().topLevelItem(0)); }

std::string Text(CodeEditor& editor) {
    const std::string text = S(editor.text());
    EXPECT_EQ(text, editor.Source().Buffer().Text());
    return text;
}

std::string Start(CodeEditor& editor, std::size_t size) { return Text(editor).substr(0, size); }

TEST(HostWindow, TreeOfBothSamples) {
    Desk delphi;
    EXPECT_EQ(Shown(delphi), "OrderDesk.dpr\n Main.pas\n  MainForm\n DataMod.pas\n  Data\n CustomerEdit.pas\n  CustomerForm\n"
                             " Receipt.pas\n  ReceiptForm\n About.pas\n  AboutBox\n Trace.pas\n totals.pas\n");
    Desk cpp("cbuilder/AlarmClock", "AlarmClock.bpr");
    EXPECT_EQ(Shown(cpp), "AlarmClock.bpr\n ClockMain.cpp\n  ClockForm\n Settings.cpp\n  SettingsModule\n Alarms.cpp\n");
    EXPECT_EQ(delphi.window.RecentProjects(), std::vector{PathText(delphi.folder / "OrderDesk.dpr")});
}

TEST(HostWindow, TypingGoesToTheBufferAndIsUndoneByWords) {
    Desk desk;
    CodeEditor& editor = desk.Code("Main.pas");
    const std::string before = Text(editor);
    editor.setFocus();
    QTest::keyClicks(&editor, "abc");
    EXPECT_EQ(Start(editor, 11), "abcunit Mai");
    EXPECT_EQ(S(desk.window.windowTitle()), "OrderDesk.dpr - Glotta Workbench");
    desk.Idle();
    EXPECT_EQ(S(desk.window.Page()->Title()), "Main.pas *");
    QTest::keyClick(&editor, Qt::Key_Return);
    EXPECT_EQ(Start(editor, 9), "abc\r\nunit");
    editor.UndoStep();
    EXPECT_EQ(Start(editor, 7), "abcunit");
    editor.UndoStep();
    EXPECT_EQ(Text(editor), before);
    EXPECT_FALSE(desk.window.Page()->Module().Modified());
    editor.RedoStep();
    EXPECT_EQ(Start(editor, 7), "abcunit");
    // Cutting over a line end, and pasting foreign line ends.
    editor.setSelection(0, 3, 2, 1);
    editor.removeSelectedText();
    EXPECT_EQ(Start(editor, 9), "abc Main ");
    editor.setCursorPosition(0, 0);
    editor.insert("x\ny");
    desk.Idle();
    EXPECT_EQ(Text(editor).substr(0, 6), "x\r\nyab");
}

TEST(HostWindow, WhatTheExpertWritesAppearsAsOneStep) {
    Desk desk;
    CodeEditor& editor = desk.Code("Main.pas");
    const std::string before = Text(editor);
    editor.setSelection(0, 5, 0, 9); // Main
    desk.Idle();
    PlainEditView& view = editor.Source().View();
    EXPECT_EQ(view.BlockStart(), (EditPos{1, 6}));
    EXPECT_EQ(view.BlockAfter(), (EditPos{1, 10}));
    {
        auto writer = editor.Source().CreateUndoableWriter();
        writer->Insert("// new\n");
        writer->CopyTo(5);
        writer->DeleteTo(9);
        writer->Insert("Ünit1");
    }
    EXPECT_EQ(Start(editor, 22), "// new\r\nunit Ünit1;\r\n");
    view.SetCursorPos({3, 1});
    view.SetBlock({2, 1}, {2, 5});
    EXPECT_EQ(S(editor.selectedText()), "unit");
    editor.UndoStep();
    EXPECT_EQ(Text(editor), before);
}

TEST(HostWindow, ReplaceAllIsOneStep) {
    Desk desk;
    CodeEditor& editor = desk.Code("Main.pas");
    const std::string before = Text(editor);
    desk.Click("SearchReplaceItem");
    auto* bar = desk.window.findChild<QLineEdit*>("find");
    bar->setText("string");
    desk.window.findChild<QLineEdit*>("replace")->setText("text");
    static_cast<FindBar*>(bar->parentWidget())->ReplaceAll();
    EXPECT_EQ(Text(editor).find("string"), std::string::npos);
    editor.UndoStep();
    EXPECT_EQ(Text(editor), before);
}

TEST(HostWindow, SaveAndTheQuestionWhenClosing) {
    Desk desk;
    const std::string before = desk.OnDisk("Main.pas");
    const auto type = [&](const char* text) {
        CodeEditor& editor = desk.Code("Main.pas");
        QTest::keyClicks(&editor, text);
    };
    desk.Code("Main.pas");
    EXPECT_FALSE(desk.Item("EditUndoItem").Enabled());
    type("{1}");
    desk.Idle();
    EXPECT_TRUE(desk.Item("EditUndoItem").Enabled());
    EXPECT_THROW(desk.window.OpenProject(PathText(desk.folder / "Gone.dpr")), Error); // and what is open stays
    EXPECT_TRUE(desk.window.HasPage());
    desk.Click("FileSaveItem");
    EXPECT_EQ(desk.OnDisk("Main.pas"), "{1}" + before);
    EXPECT_FALSE(desk.Item("FileSaveItem").Enabled());

    type("{2}");
    desk.answers = {ModalResult::Cancel};
    desk.Click("FileCloseItem");
    EXPECT_TRUE(desk.window.HasPage());
    desk.answers = {ModalResult::No};
    desk.Click("FileCloseItem");
    EXPECT_FALSE(desk.window.HasPage());
    EXPECT_EQ(desk.OnDisk("Main.pas"), "{1}" + before);

    type("{3}");
    desk.answers = {ModalResult::Yes};
    desk.window.close();
    EXPECT_EQ(desk.OnDisk("Main.pas"), "{3}{1}" + before);
    EXPECT_EQ(desk.asked, "Save changes to Main.pas?\nSave changes to Main.pas?\nSave changes to Main.pas?\n");
}

TEST(HostWindow, InspectorRenamesComponentAndField) {
    Desk desk;
    FormPage& form = *desk.Open("CustomerEdit.pas", true).Form();
    TComponent* label = nullptr;
    PlainFormEditor& editor = *static_cast<PlainModule&>(desk.window.Page()->Module()).Form();
    for (TComponent* each : editor.Tree().Root().Components())
        if (each->InheritsFrom("TLabel") && !label) label = each;
    ASSERT_NE(label, nullptr);
    form.Select(label);
    const std::string old = label->Name();
    const auto enter = [&](QTableWidget& table, const char* name, const char* value) {
        for (QTableWidgetItem* item : table.findItems(name, Qt::MatchExactly))
            table.item(item->row(), 1)->setText(value);
        desk.Idle();
    };
    enter(form.Inspector().Properties(), "Name", "TitleLabel");
    EXPECT_EQ(label->Name(), "TitleLabel");
    const std::string unit = static_cast<PlainModule&>(desk.window.Page()->Module()).Source().Buffer().Text();
    EXPECT_NE(unit.find("TitleLabel: TLabel;"), std::string::npos);
    EXPECT_EQ(unit.find(old + ": TLabel;"), std::string::npos);
    enter(form.Inspector().Properties(), "Name", "not a name");
    EXPECT_EQ(label->Name(), "TitleLabel");
    enter(form.Inspector().Properties(), "Left", "many");
    EXPECT_EQ(desk.asked, "'not a name' is not a valid component name\n'many' is not a valid value for Left\n");
    desk.asked.clear();
    enter(form.Inspector().Properties(), "Left", "33");
    enter(form.Inspector().Properties(), "Caption", "&Greeting");
    enter(form.Inspector().Events(), "OnClick", "TitleClick");
    desk.Click("FileSaveAllItem");
    EXPECT_EQ(desk.asked, "");
    const std::string file = desk.OnDisk("CustomerEdit.dfm");
    for (const char* line : {"object TitleLabel: TLabel", "Left = 33", "Caption = '&Greeting'", "OnClick = TitleClick"})
        EXPECT_NE(file.find(line), std::string::npos) << line << "\n" << file;
    EXPECT_NE(desk.OnDisk("CustomerEdit.pas").find("procedure TCustomerForm.TitleClick(Sender: TObject);"), std::string::npos);
}

TEST(HostWindow, WhatTheInspectorDidIsUndone) {
    Desk desk;
    FormPage& form = *desk.Open("CustomerEdit.pas", true).Form();
    QTableWidget& properties = form.Inspector().Properties();
    const auto type = [&](int row, const char* text) {
        desk.window.activateWindow();
        properties.setFocus();
        properties.setCurrentCell(row, 1);
        QTest::keyClick(&properties, Qt::Key_F2);
        auto* edit = properties.findChild<QLineEdit*>();
        ASSERT_NE(edit, nullptr);
        edit->setText(text);
        QTest::keyClick(edit, Qt::Key_Return);
        desk.Idle();
    };
    EXPECT_FALSE(desk.Item("EditUndoItem").Enabled());
    type(0, "Buyer");
    type(properties.findItems("Tag", Qt::MatchExactly).front()->row(), "7");
    EXPECT_EQ(S(desk.window.Page()->Title()), "CustomerEdit.pas *");
    EXPECT_TRUE(desk.bench.Ide().FindModule(PathText(desk.folder / "OrderDesk.dpr"))->Modified());
    EXPECT_NE(Shown(desk).find("CustomerEdit.pas\n  Buyer\n"), std::string::npos) << Shown(desk);
    QTest::keyClick(&properties, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&properties, Qt::Key_Z, Qt::ControlModifier);
    desk.Idle();
    EXPECT_EQ(S(properties.item(0, 1)->text()), "CustomerForm");
    EXPECT_FALSE(desk.Item("EditUndoItem").Enabled());
    EXPECT_FALSE(desk.Item("FileSaveAllItem").Enabled());
    QTest::keyClick(&properties, Qt::Key_Y, Qt::ControlModifier);
    desk.Idle();
    EXPECT_EQ(S(properties.item(0, 1)->text()), "Buyer");
    desk.Click("FileSaveAllItem");
    EXPECT_NE(desk.OnDisk("OrderDesk.dpr").find("CreateForm(TBuyer, Buyer)"), std::string::npos) << desk.OnDisk("OrderDesk.dpr");
    EXPECT_EQ(desk.asked, "");
}

TEST(HostWindow, InspectorRenamesTheMemberOfAHeader) {
    Desk desk("cbuilder/AlarmClock", "AlarmClock.bpr");
    FormPage& form = *desk.Open("ClockMain.cpp", true).Form();
    auto& module = static_cast<PlainModule&>(desk.window.Page()->Module());
    form.Select(module.Form()->Tree().Root().FindComponent("SetButton"));
    form.Inspector().Properties().item(0, 1)->setText("ChangeButton");
    desk.Click("FileSaveAllItem");
    EXPECT_NE(desk.OnDisk("ClockMain.h").find("TButton *ChangeButton;"), std::string::npos);
    EXPECT_NE(desk.OnDisk("ClockMain.dfm").find("object ChangeButton: TButton"), std::string::npos);
    EXPECT_EQ(desk.asked, "");
}

TEST(HostWindow, FilesChangedByOthersLoseNoEdit) {
    Desk desk;
    const auto change = [&](const char* file, const std::string& bytes) {
        desk.asked.clear();
        WriteFileAtomically(desk.folder / file, bytes);
        desk.window.CheckDisk();
        desk.Idle();
    };
    desk.Open("Main.pas");
    desk.answers = {ModalResult::Yes};
    change("Main.pas", "unit Main;\r\nend.\r\n");
    EXPECT_EQ(desk.asked, "Main.pas was changed by another program. Load it again?\n");
    EXPECT_EQ(Text(*desk.window.Code()), "unit Main;\r\nend.\r\n");

    QTest::keyClicks(desk.window.Code(), "{mine}");
    desk.answers = {ModalResult::No};
    change("Main.pas", "unit Theirs;\r\nend.\r\n");
    EXPECT_EQ(desk.asked, "Main.pas was changed by another program, and it has changes here that are not saved.\r\n"
                          "Load it again and lose the changes made here?\n");
    desk.window.CheckDisk(); // asked once
    desk.Click("FileSaveItem");
    EXPECT_EQ(desk.OnDisk("Main.pas"), "{mine}unit Main;\r\nend.\r\n");

    desk.asked.clear();
    std::filesystem::remove(desk.folder / "Main.pas");
    desk.window.CheckDisk();
    EXPECT_EQ(desk.asked, "Main.pas was deleted by another program. It stays open; saving writes it again.\n");
    desk.Click("FileSaveItem");
    EXPECT_EQ(desk.OnDisk("Main.pas"), "{mine}unit Main;\r\nend.\r\n");
}

TEST(HostWindow, ProjectFilesChangedByOthers) {
    Desk desk;
    const std::string before = desk.OnDisk("OrderDesk.dpr");
    std::string more = before;
    more.insert(more.find("  About in"), "  Extra in 'Extra.pas',\r\n  Lost in 'Lost.pas',\r\n");
    desk.folder.Put("Extra.pas", "unit Extra;\r\ninterface\r\nimplementation\r\nend.\r\n");
    QTest::keyClicks(&desk.Code("Main.pas"), "{mine}");
    const auto change = [&](const std::string& bytes, ModalResult answer) {
        WriteFileAtomically(desk.folder / "OrderDesk.dpr", bytes);
        desk.answers = {answer};
        desk.window.CheckDisk();
        desk.window.CheckDisk(); // asks once
        desk.Idle();
    };
    change(more, ModalResult::Yes);
    EXPECT_NE(Shown(desk).find(" Extra.pas\n Lost.pas\n About.pas"), std::string::npos) << Shown(desk);
    EXPECT_EQ(Start(desk.Code("Main.pas"), 6), "{mine}") << "open units stay";
    EXPECT_EQ(desk.bench.Ide().Problems().size(), 1u) << "the missing one";
    EXPECT_TRUE(desk.window.OpenUnit(PathText(desk.folder / "Extra.pas")));

    QTest::keyClicks(&desk.Code("OrderDesk.dpr"), "{own}");
    change(before, ModalResult::No);
    EXPECT_EQ(Start(desk.Code("OrderDesk.dpr"), 5), "{own}");
    desk.Click("FileSaveItem");
    EXPECT_EQ(desk.OnDisk("OrderDesk.dpr"), "{own}" + more);
    change(before, ModalResult::Yes);
    EXPECT_EQ(Text(desk.Code("OrderDesk.dpr")), before);
    std::filesystem::remove(desk.folder / "OrderDesk.dpr");
    desk.window.CheckDisk();
    EXPECT_EQ(desk.asked,
              "OrderDesk.dpr was changed by another program. Load it again?\n"
              "OrderDesk.dpr was changed by another program, and it has changes here that are not saved.\r\n"
              "Load it again and lose the changes made here?\n"
              "OrderDesk.dpr was changed by another program. Load it again?\n"
              "OrderDesk.dpr was deleted or renamed by another program. The project stays open as it was read.\n");
}

TEST(HostWindow, GroupFilesChangedByOthers) {
    Desk desk("delphi/OrderDesk", nullptr);
    const auto group = [](const char* more) {
        return std::string("<Project><ItemGroup><Projects Include=\"OrderDesk.dpr\"/>") + more + "</ItemGroup></Project>";
    };
    desk.folder.Put("Two.dpr", "program Two;\r\nbegin\r\nend.\r\n");
    desk.folder.Put("All.groupproj", group(""));
    desk.window.OpenProject(PathText(desk.folder / "All.groupproj"));
    QTest::keyClicks(&desk.Code("OrderDesk.dpr"), "{own}");
    desk.folder.Put("All.groupproj", group("<Projects Include=\"Two.dpr\"/>"));
    desk.answers = {ModalResult::Yes};
    desk.window.CheckDisk();
    EXPECT_NE(Shown(desk).find(" Two.dpr\n"), std::string::npos) << Shown(desk);
    EXPECT_EQ(Start(desk.Code("OrderDesk.dpr"), 5), "{own}") << "a project that is still listed";
    desk.folder.Put("All.groupproj", "<Project>");
    desk.answers = {ModalResult::Yes};
    desk.asked.clear();
    desk.window.CheckDisk();
    EXPECT_NE(desk.asked.find("All.groupproj: line 1: not well-formed XML"), std::string::npos) << desk.asked;
    EXPECT_NE(Shown(desk).find(" Two.dpr\n"), std::string::npos) << "stays as it was";
}

std::string MenuText(HostWindow& window, const HostMenus& menus) {
    window.Menu().Refresh();
    std::string text;
    for (const QAction* top : window.menuBar()->actions())
        for (const QAction* action : top->menu()->actions())
            text += S(action->text()) + " " + S(action->shortcut().toString()) + "\n";
    for (std::size_t i = 0; i < const_cast<HostWindow&>(window).EditWindow().EditorLocalMenu.Items.Count(); ++i)
        text += "local " + window.EditWindow().EditorLocalMenu.Items[i].Caption() + "\n";
    return text + std::to_string(menus.FormCount());
}

int Docks(const HostWindow& window) { return int(window.findChildren<QDockWidget*>().size()); }

TEST(HostWindow, ExpertComesAndGoesLeavingNothing) {
    Desk desk;
    HostMenus& menus = desk.bench.Ide().Menus();
    desk.Open("Main.pas");
    const std::string without = MenuText(desk.window, menus);
    for (int round = 0; round < 2; ++round) {
        desk.Click("ComponentLoadItem");
        desk.Open("About.pas"); // the expert's menu comes to the editor window
        const std::string with = MenuText(desk.window, menus);
        EXPECT_NE(with.find("TG&lotta Expert"), std::string::npos);
        EXPECT_NE(with.find("local TGlotta Expert"), std::string::npos);
        EXPECT_EQ(menus.Section("ToolsMenu")[2].Name(), "GlottaExpertMenuItem");
        desk.Click("GlottaExpertMenuItem"); // its main window
        EXPECT_TRUE(desk.bench.Expert()->MainWindow() != nullptr);
        if (round == 1) {
            desk.bench.Expert()->MainWindow()->Dockable1Click();
            desk.Idle();
            EXPECT_EQ(Docks(desk.window), 3);
        }
        desk.Click("ComponentUnloadItem");
        EXPECT_EQ(Docks(desk.window), 2);
        EXPECT_FALSE(desk.bench.Expert());
        desk.window.PageOf(*desk.bench.Ide().CurrentModule())->Module().Close();
        desk.Idle();
        EXPECT_EQ(MenuText(desk.window, menus), without);
    }
}

TEST(HostWindow, TheExpertDocksWhereItDidLast) {
    Desk desk;
    desk.window.setGeometry(40, 40, 1280, 720);
    desk.Click("ComponentLoadItem");
    desk.Click("GlottaExpertMenuItem");
    const auto form = [&] { return desk.bench.Expert()->MainWindow(); };
    const auto window = [&] { return desk.bench.UiPort().WindowOf(*form()); };
    const auto dock = [&] { return desk.window.findChild<QDockWidget*>("TGlottaExpertIDEDockableForm"); };
    const auto turn = [&] {
        form()->Dockable1Click();
        desk.Idle();
    };
    window()->setGeometry(100, 90, 620, 410);
    desk.Idle();
    turn();
    ASSERT_NE(dock(), nullptr);
    EXPECT_EQ(desk.window.dockWidgetArea(dock()), Qt::RightDockWidgetArea);
    EXPECT_TRUE(window()->isVisible() && !window()->isWindow());
    EXPECT_EQ(dock()->windowTitle(), Q(form()->caption));
    if (const QString folder = qEnvironmentVariable("GLOTTA_PICTURES"); !folder.isEmpty())
        desk.window.grab().save(folder + "/" + qEnvironmentVariable("GLOTTA_THEME", "Light").toLower() + "-host-docked.png");
    desk.window.addDockWidget(Qt::BottomDockWidgetArea, dock());
    turn(); // stands by itself again
    EXPECT_EQ(dock(), nullptr);
    EXPECT_TRUE(window()->isWindow() && window()->isVisible());
    EXPECT_EQ(window()->geometry(), QRect(100, 90, 620, 410));
    turn();
    ASSERT_NE(dock(), nullptr);
    EXPECT_EQ(desk.window.dockWidgetArea(dock()), Qt::BottomDockWidgetArea);

    dock()->close(); // closes the expert's window, which comes back docked
    desk.Idle();
    EXPECT_FALSE(form() && form()->Visible());
    EXPECT_EQ(dock(), nullptr);
    desk.Click("GlottaExpertMenuItem");
    ASSERT_NE(dock(), nullptr);
    EXPECT_EQ(desk.window.dockWidgetArea(dock()), Qt::BottomDockWidgetArea);
    desk.Click("ComponentUnloadItem");
    EXPECT_EQ(Docks(desk.window), 2);

    desk.window.close();
    HostWindow next(desk.bench);
    next.show();
    next.OpenProject(PathText(desk.folder / "OrderDesk.dpr"));
    desk.bench.LoadExpert();
    desk.Click("GlottaExpertMenuItem");
    auto* again = next.findChild<QDockWidget*>("TGlottaExpertIDEDockableForm");
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(next.dockWidgetArea(again), Qt::BottomDockWidgetArea);
    next.CloseProject();
    desk.bench.UnloadExpert();
    desk.Idle();
}

// Both windows have Ctrl+F, Ctrl+A and F12.
TEST(HostWindow, KeysGoToTheDockedExpertWhileTheFocusIsInIt) {
    Desk desk;
    desk.Click("ComponentLoadItem");
    desk.Click("GlottaExpertMenuItem");
    TfrmGlotta& form = *desk.bench.Expert()->MainWindow();
    form.Dockable1Click();
    CodeEditor& code = desk.Code("Main.pas");
    QWidget& list = *desk.bench.UiPort().WindowOf(form)->findChild<QWidget*>("lvFormNames");
    std::string seen;
    desk.bench.UiPort().UseModal = [&](TForm& modal, QWidget&) {
        seen += modal.caption + ", ";
        modal.Close(desk.bench.UiPort(), ModalResult::Cancel);
    };
    const auto press = [&](QWidget& where, QKeyCombination keys) {
        desk.window.activateWindow();
        where.setFocus();
        desk.Idle();
        QTest::keyClick(&where, keys.key(), keys.keyboardModifiers());
        desk.Idle();
    };
    auto& find = *desk.window.findChild<QLineEdit*>("find");
    const auto formShows = [&] { return desk.window.Page()->ShownForm() != nullptr; };
    press(list, Qt::CTRL | Qt::Key_A);
    seen += std::to_string(form.lvFormNames.SelectedCount()) + " selected, ";
    form.lvFormNames.SelectOnly(0);
    press(list, Qt::CTRL | Qt::Key_F);
    seen += find.isVisible() ? "find bar, " : "";
    press(code, Qt::Key_F12);
    seen += formShows() ? "form, " : "";
    press(code, Qt::Key_F12);
    press(code, Qt::CTRL | Qt::Key_F);
    seen += find.isVisible() ? "find bar, " : "";
    press(list, Qt::Key_F12); // "View Form"
    seen += formShows() ? S(desk.window.Page()->Title()) + ", " : "";
    press(list, Qt::CTRL | Qt::Key_W);
    seen += desk.bench.Expert()->MainWindow() ? "" : "closed";
    EXPECT_EQ(seen, "5 selected, Find Phrase, form, find bar, About.pas, closed");
}

void OpenEveryForm(Desk& desk) {
    desk.Click("ProjectOpenFormsItem");
    for (int i = 0; i < desk.bench.Ide().ModuleCount(); ++i) {
        IOTAModule* module = desk.bench.Ide().GetModule(i);
        UnitPage* page = desk.window.PageOf(*module);
        if (!page) continue;
        desk.bench.Ide().BringToFront(*module);
        desk.Idle();
        page->ShowForm();
        desk.Idle();
        const QString folder = qEnvironmentVariable("GLOTTA_FORM_PICTURES");
        const QPixmap picture = page->grab();
        if (!folder.isEmpty()) picture.save(folder + "/" + Q(module->Name()) + ".png");
        EXPECT_FALSE(module->Modified()) << module->FileName();
    }
}

TEST(HostWindow, ProjectOfManyForms) {
    constexpr int Forms = 300;
    Desk desk("delphi/OrderDesk", nullptr);
    std::string project = "program Big;\r\nuses\r\n";
    for (int i = 0; i < Forms; ++i) {
        const std::string n = std::to_string(i);
        project += "  Unit" + n + " in 'Unit" + n + ".pas' {Form" + n + (i + 1 < Forms ? "},\r\n" : "};\r\n");
        desk.folder.Put("Unit" + n + ".pas", "unit Unit" + n + ";\r\ninterface\r\ntype\r\n  TForm" + n +
                                                 " = class(TForm)\r\n    Button1: TButton;\r\n  end;\r\nimplementation\r\nend.\r\n");
        desk.folder.Put("Unit" + n + ".dfm", "object Form" + n + ": TForm" + n + "\r\n  Caption = 'Form'\r\n  object Button1: TButton\r\n"
                                                 "    Caption = 'OK'\r\n  end\r\nend\r\n");
    }
    desk.folder.Put("Big.dpr", project + "begin\r\nend.\r\n");
    QElapsedTimer timer;
    timer.start();
    desk.window.OpenProject(PathText(desk.folder / "Big.dpr"));
    desk.Idle();
    EXPECT_LT(timer.elapsed(), 1000);
    RecordProperty("tree_ms", int(timer.elapsed()));
    EXPECT_EQ(desk.window.Tree().Tree().topLevelItem(0)->childCount(), Forms);
    desk.Click("ProjectOpenFormsItem");
    EXPECT_EQ(desk.bench.Ide().ModuleCount(), Forms + 1);
    EXPECT_EQ(S(desk.window.Page()->Title()), "Unit299.pas");
}

// GLOTTA_PROJECTS: further projects, one path per line; their forms leave pictures in GLOTTA_FORM_PICTURES.
TEST(HostWindow, EveryFormOfTheNamedProjects) {
    for (const QString& file : qEnvironmentVariable("GLOTTA_PROJECTS").split('\n', Qt::SkipEmptyParts)) {
        Desk desk("delphi/OrderDesk", nullptr);
        QElapsedTimer timer;
        timer.start();
        ASSERT_TRUE(desk.window.OpenProject(S(file)));
        desk.Idle();
        const auto tree = timer.restart();
        OpenEveryForm(desk);
        std::printf("%s: tree %lld ms, %d modules with every form %lld ms, %zu problems\n", qPrintable(file), tree,
                    desk.bench.Ide().ModuleCount(), timer.elapsed(), desk.bench.Ide().Problems().size());
    }
}

// With GLOTTA_PICTURES set to a folder the windows leave their pictures there.
TEST(HostWindow, ShowsCodeAndFormsOfBothSamples) {
    const auto picture = [](Desk& desk, const char* name) {
        desk.Idle();
        EXPECT_FALSE(desk.window.grab().isNull());
        const QString folder = qEnvironmentVariable("GLOTTA_PICTURES");
        if (folder.isEmpty()) return;
        const QString theme = qEnvironmentVariable("GLOTTA_THEME", "Light").toLower();
        desk.window.grab().save(folder + "/" + theme + "-host-" + name + ".png");
    };
    Desk delphi;
    delphi.window.resize(1280, 720);
    delphi.Click("ComponentLoadItem");
    delphi.Code("Main.pas").GoToLine(60);
    picture(delphi, "code");
    delphi.Click("SearchReplaceItem");
    picture(delphi, "find");
    delphi.Open("Main.pas", true);
    picture(delphi, "form");
    delphi.Open("DataMod.pas", true);
    picture(delphi, "data-module");
    Desk cpp("cbuilder/AlarmClock", "AlarmClock.bpr");
    cpp.window.resize(1280, 720);
    FormPage& form = *cpp.Open("ClockMain.cpp", true).Form();
    form.Select(static_cast<PlainModule&>(cpp.window.Page()->Module()).Form()->Tree().Root().Components().front());
    picture(cpp, "cpp-form");
    cpp.Open("Settings.cpp");
    picture(cpp, "cpp-code");
}

} // namespace
} // namespace glotta
