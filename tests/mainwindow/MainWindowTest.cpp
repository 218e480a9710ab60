#include "mainwindow/MainWindow.h"

#include "host/PlainIde.h"
#include "mainwindow/CommandRunner.h"
#include "mainwindow/MainCommands.h"
#include "platform/RegFileStore.h"
#include "platform/Text.h"
#include "scanner/_scan.h"
#include "settings/ExpertSettings.h"
#include "settings/_expopt.h"
#include "storage/ProjectSettingsForm.h"
#include "support/DeskFakes.h"
#include "support/ScriptedUi.h"
#include "translation/TranslUnits.h"

#include <set>

namespace glotta {
namespace {

// The window over the sample project, as the expert would fill it.
struct Desk {
    TempFolder folder;
    ScriptedUi ui;
    RegFileStore registry{folder / "settings.reg"};
    ExpertSettings settings{registry, {NamesArray.begin(), NamesArray.end()}};
    HelperLibrary helper = HelperLibrary::Absent();
    FakeLauncher launcher;
    FakeAutomation automation;
    FakeTransEditor editor;
    PlainIde ide;
    FormsList forms, external;
    IdeServices services{ide.Services(), forms, ui};
    ScanResults results;
    std::unique_ptr<TGlottaProjectSettings> projectSettings;
    std::string log; // what the window asked of the expert
    std::unique_ptr<TfrmGlotta> window;

    Desk() {
        CopySample(folder, "delphi/OrderDesk");
        ide.OpenProject((folder / "OrderDesk.dpr").string());
    }
    void Create() {
        MainWindowContext context{services, settings,        registry, helper,     results,
                                  external, projectSettings, launcher, automation, &editor};
        context.ProjectClosed = [this] { log += "closed; "; };
        context.ReinstallMenu = [this] { log += "menu " + settings.Values().MenuSection + "; "; };
        context.WindowClosed = [this] { log += "gone; "; };
        context.ShowAboutBox = [this] { log += "about; "; };
        window = std::make_unique<TfrmGlotta>(std::move(context));
        window->FillFromProject(*services.GetActiveProject());
    }
    TfrmGlotta& Open() {
        Create();
        ui.Window<TfrmGlotta>();
        window->Open();
        return *window;
    }
    void Select(const char* form) { window->lvFormNames.SelectOnly(int(RowOf(form))); }
    std::size_t RowOf(const char* form) { return std::size_t(forms.FindExact(form) - forms.items.data()); }
    void Command(const char* id) {
        TMenuItem* item = window->MainMenu.Items.FindDeep(id);
        ASSERT_NE(item, nullptr) << id;
        EXPECT_TRUE(item->Enabled()) << id;
        item->Click();
    }
    std::string Column(std::size_t column) {
        std::string text;
        for (std::size_t row = 0; row < window->lvFormNames.RowCount(); ++row)
            text += (row ? " " : "") + window->lvFormNames.CellText(row, column);
        return text;
    }
    std::string Status() {
        return window->StatusBar[0]() + ", " + window->StatusBar[1]() + ", " + window->StatusBar[2]();
    }
    // Of everything that the menu has, the enabled commands.
    std::string Enabled(const TMenuItem& items) {
        std::string text;
        items.ForEach([&](TMenuItem& item) {
            if (item.Enabled() && !item.Name().empty() && !item.IsSeparator()) text += item.Name() + " ";
        });
        return text;
    }
};

TEST(MainWindow, OpensFilledSortedAndAtTheCurrentEditor) {
    Desk desk;
    ASSERT_TRUE(desk.ide.OpenFile((desk.folder / "Receipt.pas").string()));
    TfrmGlotta& window = desk.Open();
    EXPECT_EQ(desk.Column(FormsGrid::FormName), "AboutBox CustomerForm Data MainForm ReceiptForm");
    EXPECT_EQ(desk.Column(FormsGrid::Languages), "0 0 0 0 0");
    EXPECT_EQ(desk.Status(), "Forms count: 5, Units count: 7, Forms translated: 0 of 5");
    EXPECT_EQ(window.lvFormNames.Row(), 4);
    EXPECT_EQ(desk.forms.Selected().front()->formName, "ReceiptForm");
    EXPECT_EQ(desk.ui.Transcript(), "Show TGlotta Expert (VCL Edition)\n");
    window.Open(); // again: to the front; the order turns as a click on the header turns it
    EXPECT_EQ(desk.ui.Transcript(),
              "Show TGlotta Expert (VCL Edition)\nBringToFront TGlotta Expert (VCL Edition)\n");
    EXPECT_EQ(desk.Column(FormsGrid::FormName), "ReceiptForm MainForm Data CustomerForm AboutBox");
    std::vector<std::string> names{"old"};
    window.FillProjectForms(names);
    EXPECT_EQ(JoinLines(names, " "), desk.Column(FormsGrid::FormName));
}

TEST(MainWindow, AColumnClickSortsAndTurns) {
    Desk desk;
    desk.Create();
    const char* const languages[] = {"2", "10", "2", "0", "10"};
    for (std::size_t i = 0; i < 5; ++i)
        desk.forms.items[i].languages = languages[i];
    desk.Select("Data");
    const auto click = [&](std::size_t column) {
        desk.window->lvFormNamesColumnClick(column);
        return desk.Column(FormsGrid::FormName) + " " + std::to_string(desk.settings.Values().SortOrder);
    };
    EXPECT_EQ(click(FormsGrid::UnitName), "AboutBox CustomerForm Data MainForm ReceiptForm 1");
    EXPECT_EQ(click(FormsGrid::UnitName), "ReceiptForm MainForm Data CustomerForm AboutBox -1");
    // Equal counts are never equal: they keep their order up and turn it down.
    EXPECT_EQ(click(FormsGrid::Languages), "ReceiptForm MainForm CustomerForm Data AboutBox 1");
    EXPECT_EQ(click(FormsGrid::Languages), "AboutBox Data CustomerForm MainForm ReceiptForm -1");
    EXPECT_EQ(desk.settings.Values().SortedColumn, int(FormsGrid::Languages));
    EXPECT_EQ(desk.forms.Selected().front()->formName, "Data"); // the selection follows its form
    EXPECT_EQ(CompareFormItems(desk.forms.items[0], desk.forms.items[1], FormsGrid::Languages), -1);
    desk.forms.items[1].languages = "many";
    EXPECT_EQ(MessageOf([&] { click(FormsGrid::Languages); }), "'many' is not a valid integer value");
}

TEST(MainWindow, CommandsAreEnabledByWhatTheirTagsNeed) {
    Desk desk;
    TfrmGlotta& window = desk.Open();
    const std::string always = "sbSaveProject sbLoadProject MergeProject1 tbAddExternalFile Close1 "
                               "TranslateUnit1 WithoutForm1 SelectAll1 StayonTop1 CheckbadstringIDsinunit1 "
                               "DictionaryManager1 sbOptions About1 ";
    EXPECT_EQ(desk.Enabled(window.MainMenu.Items), always);
    EXPECT_EQ(desk.Enabled(window.ToolBar.Items), "sbSaveProject sbLoadProject tbAddExternalFile sbOptions ");
    desk.Select("Data");
    EXPECT_EQ(desk.Enabled(window.MainMenu.Items),
              "sbCaptions Wizard1 sbLanguages sbSaveForms sbSaveProject sbLoadForms sbLoadProject MergeProject1 "
              "tbAddExternalFile Close1 Translatesource1 TranslateUnit1 Const1 WithoutForm1 ViewForm1 SelectAll1 "
              "StayonTop1 Findword1 Replacephrase1 Updatetranslation1 ClearTranslations1 Excludeproperties1 "
              "CheckbadstringIDsinunit1 DictionaryManager1 sbOptions About1 ");
    EXPECT_EQ(
        desk.Enabled(window.PopupMenu.Items),
        "sbCaptions sbLanguages Translatesource1 Const1 ViewForm1 SelectAll1 StayonTop1 Updatetranslation1 "
        "sbOptions About1 ");
    EXPECT_EQ(desk.Enabled(window.ToolBar.Items),
              "sbCaptions sbLanguages sbSaveForms sbSaveProject sbLoadForms sbLoadProject tbAddExternalFile "
              "Translatesource1 Const1 ViewForm1 Findword1 sbOptions ");
    window.pcForms.Enter(1); // nothing is selected in the list of that page
    EXPECT_EQ(desk.Enabled(window.ToolBar.Items), "sbSaveProject sbLoadProject tbAddExternalFile sbOptions ");

    // Each command stands once per menu; what has no handler is never enabled; names are unique.
    std::set<std::string_view> ids;
    for (const MainCommand& command : MainCommands()) {
        EXPECT_TRUE(ids.insert(command.id).second) << command.id;
        EXPECT_TRUE(!command.menu.empty() || !command.popup.empty()) << command.id;
        if (!command.execute) window.MainMenu.Items.FindDeep(command.id)->Click();
    }
    EXPECT_EQ(desk.log, "");
}

TEST(MainWindow, ColumnWidthsAndPlacementAreKept) {
    Desk desk;
    desk.settings.SetColumnWidths("120, wide");
    TfrmGlotta& window = desk.Open();
    EXPECT_EQ(window.ColumnWidths(), (std::vector<int>{120, 130, 260, 80, 110}));
    window.ColumnWidths.Enter({1, 2, 3, 4, 5});
    window.Placement.Enter(FormPlacement{10, 20, 300, 200, false});
    desk.Command("StayonTop1");
    EXPECT_TRUE(window.MainMenu.Items.FindDeep("StayonTop1")->Checked());
    window.CreateServer();
    desk.Command("Close1");
    EXPECT_EQ(desk.log, "closed; gone; ");
    EXPECT_EQ(desk.automation.log,
              "class of dicmngr.TGlottaDicMngr; create dicmngr.TGlottaDicMngr; release; ");
    EXPECT_EQ(desk.settings.Values().ColumnWidths, "1,2,3,4,5");
    desk.Create();
    EXPECT_EQ(desk.window->Placement(), (FormPlacement{10, 20, 300, 200, false}));
    EXPECT_TRUE(desk.window->StayOnTop());
}

TEST(MainWindow, WizardsComeFromTheRegistry) {
    Desk desk;
    const std::string key(TfrmGlotta::WizardsKey);
    const std::string program = desk.folder.Put("wizard.exe", "").string(),
                      gone = (desk.folder / "gone.exe").string();
    desk.registry.WriteString(key, "WizardName1", "&Second");
    desk.Create();
    EXPECT_FALSE(desk.window->MainMenu.Items.FindName("Wizards1")->Enabled()); // the first one is missing
    desk.registry.WriteString(key, "WizardName0", "&First");
    desk.registry.WriteString(key, "WizardExe0", program);
    desk.registry.WriteString(key, "WizardExe1", gone);
    desk.registry.WriteString(key, "WizardName3", "never");
    TfrmGlotta& window = desk.Open();
    TMenuItem& wizards = *window.MainMenu.Items.FindName("Wizards1");
    ASSERT_EQ(wizards.Count(), 2U);
    wizards[0].Click();
    desk.Select("Data");
    wizards[0].Click();
    const std::string project = program + " -p \"" + (desk.folder / "OrderDesk.dpr").string() + "\" -s \"";
    EXPECT_EQ(desk.launcher.log,
              project + "\"\n" + project + (desk.folder / "DataMod.pas").string() + "\"\n");
    desk.ui.Message("Could not find " + gone);
    EXPECT_TRUE(wizards[1].Enabled() && wizards[1].Tag() == -1);
    wizards[1].Click();
    EXPECT_TRUE(desk.ui.Transcript().ends_with("Message: Could not find " + gone + " -> OK\n"));
}

TEST(MainWindow, TheDictionaryManagerIsStartedAnew) {
    Desk desk;
    desk.Open();
    desk.automation.log.clear();
    desk.Command("DictionaryManager1");
    desk.Command("DictionaryManager1");
    desk.window->CreateServer(); // one is held
    EXPECT_EQ(desk.automation.log, "create dicmngr.TGlottaDicMngr; release; create dicmngr.TGlottaDicMngr; ");
    desk.automation.registered = false;
    desk.ui.Message("dicmngr.TGlottaDicMngr is not registered");
    desk.Command("DictionaryManager1");
    EXPECT_TRUE(desk.ui.Transcript().ends_with("Error: dicmngr.TGlottaDicMngr is not registered -> OK\n"));
    desk.Create(); // a missing registration does not keep the window from opening
}

TEST(MainWindow, FormsAreTranslatedAndViewed) {
    Desk desk;
    TfrmGlotta& window = desk.Open();
    desk.Select("CustomerForm");
    desk.editor.changes = true;
    desk.Command("sbCaptions");
    EXPECT_EQ(desk.editor.log, "Glotta1; ");
    EXPECT_EQ(desk.Column(FormsGrid::Glotta), " TGlotta   ");
    EXPECT_EQ(desk.Status(), "Forms count: 5, Units count: 7, Forms translated: 1 of 5");
    EXPECT_EQ(window.CurrentComponentClass(), "");
    desk.Select("CustomerForm");
    EXPECT_EQ(window.CurrentComponentClass(), "TGlotta");
    window.lvFormNamesDblClick(desk.RowOf("Data"));
    EXPECT_EQ(desk.Column(FormsGrid::Languages), "0 2 2 0 0");
    desk.Select("MainForm");
    desk.Command("ViewForm1");
    EXPECT_EQ(desk.services.GetCurrentIdeModule()->Name(), "MainForm");

    // Filled anew the list tells what the open forms hold, saved or not.
    window.FillFromProject(*desk.services.GetActiveProject());
    window.ShowFilled();
    EXPECT_EQ(desk.Status(), "Forms count: 5, Units count: 7, Forms translated: 2 of 5");
    desk.settings.SetOpenAllForms(true);
    desk.Select("CustomerForm");
    window.Open();
    EXPECT_EQ(desk.ide.ModuleCount(), 6); // the project and its forms
    EXPECT_EQ(desk.services.GetCurrentIdeModule()->Name(), "MainForm");
    desk.Command("SelectAll1");
    EXPECT_EQ(desk.forms.Selected().size(), 5U);
}

TEST(MainWindow, ASourceScanIsReviewedAndWritten) {
    Desk desk;
    desk.settings.SetNoCommentsInSources(true);
    desk.Open();
    desk.Select("AboutBox");
    desk.ui.Modal<TfrmFound>([](TfrmFound& found) {
        EXPECT_EQ(found.caption, "Found String Constants (About)");
        found.acModifySource.Execute();
        return ModalResult::Cancel;
    });
    desk.ui.Message("This will apply changes and modify source code. Continue?", ModalResult::Yes)
        .Message("Source file translated. All string constants added to \"Strings\" property.");
    desk.Command("Translatesource1");
    const std::string source = desk.services.GetUnitSource((desk.folder / "About.pas").string());
    EXPECT_NE(source.find("lbProduct.Caption := Glotta1.GetTextOrDefault('IDS_0');"), std::string::npos)
        << source;
    EXPECT_EQ(desk.Column(FormsGrid::Languages), "2 0 0 0 0");

    // What was skipped can be looked at; a unit whose review is left alone stays as it is.
    desk.settings.SetSkipWords(TStringList(std::vector<std::string>{"nothing to pay"}));
    desk.projectSettings = std::make_unique<TGlottaProjectSettings>();
    desk.ui.Modal<TfrmTranslUnits>([](TfrmTranslUnits& units) {
        EXPECT_EQ(JoinLines(units.lbUnits.Items(), " ") + ": " + units.cbFormNames(),
                  "Totals Trace: AboutBox");
        units.lbUnits.SelectOnly(0);
        units.btOK.Execute();
        return ModalResult::Cancel;
    });
    desk.ui.Modal<TfrmFound>([](TfrmFound&) { return ModalResult::Cancel; })
        .Message("This will close the Found Strings form! Continue?", ModalResult::Yes);
    desk.Command("TranslateUnit1");
    desk.ui.Window<TfrmSkippedStrings>([](TfrmSkippedStrings& skipped) {
        EXPECT_EQ(skipped.StatusText() + " " + skipped.lbStrings.CellText(1, 0),
                  "Strings Skipped: 2 nothing to pay");
    });
    desk.Command("ViewSkipped1");
    desk.ui.Done();
}

TEST(MainWindow, AConstantScanWiresTheForm) {
    Desk desk;
    desk.Open();
    desk.Select("MainForm");
    desk.ui.Modal<TfrmFound>([](TfrmFound& found) {
        found.acModifySource.Execute();
        return ModalResult::Cancel;
    });
    desk.ui.Message("This will apply changes and modify source code. Continue?", ModalResult::Yes)
        .Message("Source file translated. All string constants added to \"Strings\" property.\r\nYou need to "
                 "change CONST to "
                 "VAR declaration or turn ON \"Assignable typed constants\" compiler option!");
    desk.Command("Const1");
    const std::string source = desk.services.GetUnitSource((desk.folder / "Main.pas").string());
    EXPECT_NE(
        source.find("procedure TMainForm.FormCreate(Sender: TObject);\r\nbegin\r\n  UpdateStrings;\r\n"),
        std::string::npos)
        << source;
    desk.Select("AboutBox");
    desk.ui.Message("There are no strings in CONST section of \"About\" unit!");
    desk.Command("Const1");
    desk.ui.Done();
}

TEST(MainWindow, ExternalFilesHaveTheirOwnPage) {
    Desk desk;
    TfrmGlotta& window = desk.Open();
    const std::string unit =
        desk.folder
            .Put("other/Ext.pas", "unit Ext;\r\n\r\ninterface\r\n\r\nuses\r\n  Forms;\r\n\r\n"
                                  "type\r\n  TExtForm = class(TForm)\r\n  end;\r\n\r\n"
                                  "implementation\r\n\r\n{$R *.dfm}\r\n\r\nend.\r\n")
            .string();
    desk.folder.Put("other/Ext.dfm", "object ExtForm: TExtForm\r\nend\r\n");
    const std::string bare = desk.folder.Put("other/Bare.pas", "unit Bare;\r\nend.\r\n").string();
    desk.ui.File("", {});
    desk.Command("tbAddExternalFile");
    desk.ui.File("", {unit, bare, unit});
    desk.Command("tbAddExternalFile");
    EXPECT_TRUE(desk.ui.Transcript().ends_with("Open |Pascal Files(*.pas)|*.pas -> " + unit +
                                               "\nBringToFront TGlotta Expert (VCL Edition)\n"));
    ASSERT_EQ(window.lvExternalFiles.RowCount(), 1U);
    const auto listed = [&] {
        const TgxExternalFiles& external = desk.window->ExternalFiles;
        return external.ProjectName() + "|" + JoinLines(external.Files().Items(), "|");
    };
    const std::string files = (desk.folder / "OrderDesk.dpr").string() + "|" + unit;
    EXPECT_EQ(listed(), files);
    EXPECT_EQ(desk.ide.ModuleCount(), 1); // closed again
    window.pcForms.Enter(1);
    EXPECT_FALSE(window.MainMenu.Items.FindDeep("sbCaptions")->Enabled());
    window.lvExternalFiles.SelectOnly(0);
    desk.Command("sbCaptions");
    EXPECT_EQ(desk.editor.log, "Glotta1; ");
    EXPECT_EQ(window.lvExternalFiles.CellText(0, FormsGrid::FormName) + " " +
                  window.lvExternalFiles.CellText(0, FormsGrid::Languages),
              "ExtForm 2");
    EXPECT_EQ(desk.Status(), "Forms count: 5, Units count: 7, Forms translated: 0 of 5");
    desk.Create(); // another window shows them, too
    EXPECT_EQ(listed(), files);
}

TEST(MainWindow, TranslationFilesAreOfTheFormsOnThePageThatShows) {
    Desk desk;
    TfrmGlotta& window = desk.Open();
    const auto file = [&](const char* name) { return (desk.folder / name).string(); };
    window.lvFormNamesDblClick(desk.RowOf("MainForm"));
    window.lvFormNamesDblClick(desk.RowOf("AboutBox"));
    desk.ui.File("Select file...", {file("all.glb")});
    desk.Command("sbSaveProject");
    desk.Select("MainForm");
    desk.ui.File("Select file...", {file("one.glt")}).Input("Input delimeter:", "|");
    desk.Command("sbSaveForms");
    for (const char* id : {"sbLoadProject", "sbLoadForms", "MergeForms1", "MergeProject1"}) {
        desk.ui.File("Select file...", {file("all.glb")});
        desk.Command(id);
    }
    for (const char* hint : {"Save project", "Save form(s)", "Load project", "Load form(s)"}) {
        desk.ui.File("Select file...", {}); // given up
        window.ToolBar.Items.FindCaption(hint)->Click();
    }
    TranslationFiles files;
    EXPECT_TRUE(files.FindBinary(file("all.glb"), "AboutBox") && files.FindBinary(file("all.glb"), "MainForm"));
    EXPECT_TRUE(files.FindText(file("one.glt"), "MainForm") && !files.FindText(file("one.glt"), "AboutBox"));

    window.pcForms.Enter(1); // nothing there
    desk.ui.Message("Project or file is not translated!");
    desk.Command("sbSaveProject");
    desk.ui.File("", {file("About.pas")});
    desk.Command("tbAddExternalFile");
    desk.ui.File("Select file...", {file("external.glb")});
    desk.Command("sbSaveProject");
    EXPECT_TRUE(files.FindBinary(file("external.glb"), "AboutBox") &&
                !files.FindBinary(file("external.glb"), "MainForm"));
}

TEST(MainWindow, ProjectSettingsAreEditedForAnOpenProject) {
    Desk desk;
    TfrmGlotta& window = desk.Open();
    TMenuItem& item = *window.MainMenu.Items.FindDeep("acProjectSettings");
    EXPECT_FALSE(item.Enabled());
    desk.projectSettings = std::make_unique<TGlottaProjectSettings>();
    desk.projectSettings->SetFileName(desk.folder / "OrderDesk.gxproj");
    window.CheckEnableActions();
    for (const ModalResult way : {ModalResult::Cancel, ModalResult::OK}) {
        desk.ui.Modal<TfrmProjectTranslationSettings>([&](TfrmProjectTranslationSettings& form) {
            EXPECT_EQ(JoinLines(form.FormNames().Items(), " "), " AboutBox CustomerForm Data MainForm ReceiptForm");
            form.cbFormForUnits.Enter("MainForm");
            form.ckbConfirm.Enter(false);
            return way;
        });
        desk.Command("acProjectSettings");
        EXPECT_EQ(std::filesystem::exists(desk.folder / "OrderDesk.gxproj"), way == ModalResult::OK);
    }
    EXPECT_EQ(ReadFile(desk.folder / "OrderDesk.gxproj"),
              "[Settings]\r\nDefaultDictionary=\r\nDictionaryBaseLanguage=\r\nDontAskForDictionary=1\r\n"
              "DictionaryIgnoreCase=0\r\nDictionarySkipAmpersands=0\r\nDictionaryParseMultilines=0\r\n"
              "DictionaryOverwriteExisting=0\r\nDictionaryForceEmpties=0\r\nDefaultTranslationFileName=\r\n"
              "DefaultFormForUnits=MainForm\r\nDispatcherForm=\r\nCommonContainerForm=\r\n");
    window.ClearProject();
    window.CheckEnableActions();
    EXPECT_FALSE(item.Enabled());
}

TEST(MainWindow, UnitsNeedAFormWithAComponent) {
    Desk desk;
    desk.Open();
    const std::string none = "No forms found with TGlotta! Double click on the form to insert TGlotta.";
    desk.ui.Message(none).Message(none);
    desk.Command("TranslateUnit1");
    desk.Command("WithoutForm1");
    desk.window->lvFormNamesDblClick(0);
    desk.ui.Modal<TfrmTranslUnits>([](TfrmTranslUnits&) { return ModalResult::Cancel; });
    desk.Command("WithoutForm1"); // given up: nothing happens
    desk.ui.Done();
    EXPECT_EQ(desk.log, "");
}

TEST(MainWindow, OptionsAreAppliedAndTheMenuMadeAnew) {
    Desk desk;
    desk.Open();
    desk.ui.Modal<TfrmOptions>([](TfrmOptions& form) {
        form.edHCPfx.Enter("never");
        return ModalResult::Cancel;
    });
    desk.Command("sbOptions");
    desk.ui.Modal<TfrmOptions>([](TfrmOptions& form) {
        EXPECT_EQ(form.edHCPfx() + " " + JoinLines(form.cbReplaceMethod.Items, ""),
                  "IDS_ GetText(GetTextC(GetTextOrDefault(GetTextOrDefaultC(GetTextOrDefaultW(GetTextW(");
        form.cbMenuItems.Enter("HelpMenu");
        form.btOK.Execute();
        return ModalResult::Cancel;
    });
    desk.Command("sbOptions");
    desk.ui.Modal<TfrmOptions>([](TfrmOptions& form) {
        form.edNLang.Enter("x");
        return ModalResult::OK;
    });
    desk.ui.Message("'x' is not a valid integer value");
    desk.Command("sbOptions");
    desk.Command("About1");
    EXPECT_EQ(desk.log, "menu HelpMenu; about; ");
    EXPECT_EQ(desk.settings.Values().HCPrefix, "IDS_");
}

TEST(MainWindow, ADamagedFormKeepsItsRowAndSaysWhy) {
    Desk desk;
    desk.folder.Put("Main.dfm", "object MainForm: TMainForm\r\n  Caption = \r\n");
    desk.Create();
    const std::size_t row = desk.RowOf("MainForm");
    EXPECT_EQ(desk.window->lvFormNames.Look(row), RowLook::Noted);
    EXPECT_EQ(desk.window->lvFormNames.Hint(row),
              (desk.folder / "Main.dfm").string() + ": line 3: the file ends in a value");
    EXPECT_EQ(desk.window->lvFormNames.Look(desk.RowOf("Data")), RowLook::Plain);
}

TEST(MainWindow, ChecksTheIdentifiersOfFormsAndUnits) {
    Desk desk;
    desk.Open();
    desk.Select("MainForm");
    desk.ui.Message("All IDs on form MainForm are used.\rAll internal and external IDs resolved.");
    desk.window->Translation().InsertTGlotta(*desk.forms.FindExact("MainForm"));
    desk.window->CheckEnableActions();
    desk.Command("CheckunusedIDs1");

    desk.ui.Modal<TfrmTranslUnits>([&](TfrmTranslUnits& dialog) {
        EXPECT_EQ(dialog.caption + "|" + dialog.lblUnits(), "Check bad string IDs in unit(s)|&Select Unit(s):");
        EXPECT_EQ(JoinLines(dialog.lbUnits.Items(), " "),
                  "About CustomerEdit DataMod Main OrderDesk Receipt Totals Trace");
        EXPECT_FALSE(dialog.cbFormNames.Visible());
        dialog.lbUnits.Click(0);
        dialog.lbUnits.Click(7, true);
        EXPECT_TRUE(dialog.btOK.Enabled());
        return ModalResult::OK;
    });
    desk.ui.Message("All external IDs in unit(s) resolved.");
    desk.Command("CheckbadstringIDsinunit1");
    desk.ui.Modal<TfrmTranslUnits>([](TfrmTranslUnits&) { return ModalResult::Cancel; });
    desk.Command("CheckbadstringIDsinunit1");
}

TEST(CommandRunner, EndsInSilenceOrWithOneMessage) {
    ScriptedUi ui;
    ui.Message("disk full");
    EXPECT_TRUE(RunCommand(ui, [] {}));
    EXPECT_FALSE(RunCommand(ui, [] { throw EGlottaSilent(); }));
    EXPECT_FALSE(RunCommand(ui, [] { throw Error("disk full"); }));
    EXPECT_EQ(ui.Transcript(), "Error: disk full -> OK\n");
}

} // namespace
} // namespace glotta
