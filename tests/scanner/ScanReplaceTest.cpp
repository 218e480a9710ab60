#include "scanner/ScanDesk.h"

namespace glotta {
namespace {

const std::string Translated = "Source file translated. All string constants added to \"Strings\" property.";
const std::string ReviewOK = "Modal Found String Constants (Unit1) -> OK\n";

std::string Lines(const std::string& text) {
    return ReplaceStr(text, "\n", "\r\n");
}

// Unit1 with the form Form1, its component and the method Go; and Tools, a unit without a form.
ScanDesk::Files Project(const std::string& statements, const std::string& constants = "") {
    return {
        {"P.dpr", Lines("program P;\nuses\n  Forms,\n  Unit1 in 'Unit1.pas' {Form1},\n  Tools in "
                        "'Tools.pas';\nbegin\nend.\n")},
        {"Unit1.pas", Lines("unit Unit1;\ninterface\nuses Forms, Classes, Glotta;\n" +
                            (constants.empty() ? "" : "const\n" + constants) +
                            "type\n  TForm1 = class(TForm)\n    Glotta1: TGlotta;\n    procedure Go;\n  "
                            "end;\nvar\n  Form1: TForm1;\n"
                            "implementation\n{$R *.dfm}\nprocedure TForm1.Go;\nbegin\n" +
                            statements + "end;\nend.\n")},
        {"Unit1.dfm", Lines("object Form1: TForm1\n  Caption = 'Form1'\n  object Glotta1: TGlotta\n    Left "
                            "= 8\n    Top = 8\n"
                            "  end\nend\n")},
        {"Tools.pas",
         Lines("unit Tools;\ninterface\nconst\n  Hint = 'A hint';\nprocedure Tell;\nimplementation\n"
               "uses Dialogs;\nprocedure Tell;\nbegin\n  ShowMessage('Told');\nend;\nend.\n")},
    };
}

struct Case {
    std::string what, statements;
    std::function<void(ScanDesk&)> before; // the component's strings, the settings
    std::function<void(TfrmFound&)> review;
    std::string told, changed, strings;
};

TEST(ScanReplace, RewritesWhatTheReviewKept) {
    const auto type = [](std::size_t row, FoundGrid::Column column, const std::string& text) {
        return [=](TfrmFound& form) { form.sgStrings.Enter(row, column, text); };
    };
    const std::string done = "Information: " + Translated + " -> OK\n";
    const auto leftAlone = [](const std::string& rows) {
        return "Information: Left alone, because the unit would not be sound:" + rows + " -> OK\n";
    };
    const std::vector<Case> cases = {
        {"equal literals share one identifier and keep their tails",
         "  A := 'One';\n  B := 'One' + C;\n",
         {},
         {},
         done,
         "-  A := 'One';\n-  B := 'One' + C;\n+  A := Glotta1.GetText('IDS_0');\n+  B := "
         "Glotta1.GetText('IDS_0') + C;\n",
         "IDS_0=One\n"},
        {"a text that the component holds keeps its identifier; numbers step over taken ones",
         "  A := 'Old';\n  B := 'New';\n  C := 'Newer';\n",
         [](ScanDesk& desk) {
             desk.Glotta("Form1").AddString("ids_0", "Other");
             desk.Glotta("Form1").AddString("IDS_2", "Old");
         },
         {},
         done,
         "-  A := 'Old';\n-  B := 'New';\n-  C := 'Newer';\n+  A := Glotta1.GetText('IDS_2');\n"
         "+  B := Glotta1.GetText('IDS_3');\n+  C := Glotta1.GetText('IDS_4');\n",
         "ids_0=Other\nIDS_2=Old\nIDS_3=New\nIDS_4=Newer\n"},
        {"an edited identifier",
         "  A := 'One';\n",
         {},
         type(0, FoundGrid::StringID, "sOne"),
         done,
         "-  A := 'One';\n+  A := Glotta1.GetText('sOne');\n",
         "sOne=One\n"},
        {"a deleted and an ignored row",
         "  A := 'One';\n  B('Two', 'Three'); // why\n  C := 'Four';\n",
         {},
         [](TfrmFound& form) {
             form.sgStrings.At(0).Deleted = true;
             form.sgStrings.At(1).Ignored = form.sgStrings.At(2).Ignored = true;
         },
         done,
         "-  B('Two', 'Three'); // why\n-  C := 'Four';\n+  B('Two', 'Three'); // why {TGL:IGNORE}\n"
         "+  C := Glotta1.GetText('IDS_3');\n",
         "IDS_3=Four\n"},
        {"a replacement typed without its tail",
         "  A := 'One' + B;\n  C := 'Two';\n",
         {},
         [](TfrmFound& form) {
             form.sgStrings.Enter(0, FoundGrid::Replacement, "Load('IDS_0')");
             form.sgStrings.Enter(1, FoundGrid::Replacement, "Load('IDS_1')");
         },
         done,
         "-  A := 'One' + B;\n-  C := 'Two';\n+  A := Load('IDS_0') + B;\n+  C := Load('IDS_1');\n",
         "IDS_0=One\nIDS_1=Two\n"},
        {"a replacement that would break the unit is left alone alone",
         "  A := 'One';\n  B := 'Two';\n",
         {},
         type(0, FoundGrid::Replacement, "Load('IDS_0';"),
         leftAlone("|Line 15, IDS_0: its replacement is no expression") + done,
         "-  B := 'Two';\n+  B := Glotta1.GetText('IDS_1');\n",
         "IDS_1=Two\n"},
        {"nothing is left to write",
         "  A := 'One';\n",
         {},
         type(0, FoundGrid::Replacement, "Load; Save;"),
         leftAlone("|Line 15, IDS_0: its replacement is no expression"),
         "",
         ""},
        {"all rows deleted",
         "  A := 'One';\n",
         {},
         [](TfrmFound& form) { form.sgStrings.At(0).Deleted = true; },
         "",
         "",
         ""},
        {"with the form's name",
         "  A := 'One';\n",
         [](ScanDesk& desk) { desk.settings.SetAddFormName(true); },
         {},
         done,
         "-  A := 'One';\n+  A := Form1.Glotta1.GetText('IDS_0');\n",
         "IDS_0=One\n"},
        {"what was decoded reaches the component",
         "  A := 'It''s'#13#10'here';\n",
         {},
         {},
         done,
         "-  A := 'It''s'#13#10'here';\n+  A := Glotta1.GetText('IDS_0');\n",
         "IDS_0=It's|here\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        ScanDesk desk("P.dpr", Project(c.statements));
        desk.Open("Unit1.pas");
        if (c.before) c.before(desk);
        const std::string source = desk.Source("Unit1.pas");
        desk.Accept(c.review);
        if (c.told.find("Left alone") != std::string::npos) {
            const std::size_t begin = c.told.find("Left"), end = c.told.find(" -> ", begin);
            desk.ui.Message(ReplaceStr(c.told.substr(begin, end - begin), "|", "\r\n"));
        }
        if (c.told.ends_with(done)) desk.ui.Message(Translated);
        EXPECT_EQ(desk.driver.DoScanReplace("Form1", "", false, false), !c.changed.empty());
        EXPECT_EQ(desk.Told(), ReviewOK + c.told);
        EXPECT_EQ(ChangedLines(source, desk.Source("Unit1.pas")), c.changed);
        EXPECT_EQ(desk.Strings("Form1"), c.strings);
        if (!c.changed.empty()) {
            auto* editor = desk.services.GetSourceEditorFromFileName(PathText(desk.folder / "Unit1.pas"));
            EXPECT_TRUE(editor->Undo());
            EXPECT_EQ(desk.Source("Unit1.pas"), source);
        }
    }
}

// Each way out before the source is changed: what is told, in order; nothing is modified.
TEST(ScanReplace, EndsWithoutChange) {
    struct Way {
        std::string statements;
        std::function<void(ScanDesk&)> act;
        std::string told;
    };
    const auto scan = [](bool constMode, bool cancelled = false) {
        return [=](ScanDesk& desk) {
            if (cancelled) desk.Cancel();
            EXPECT_FALSE(desk.driver.DoScanReplace("Form1", "", constMode, false));
        };
    };
    const auto message = [](const std::string& text, auto act) {
        return [=](ScanDesk& desk) {
            desk.ui.Message(text);
            act(desk);
        };
    };
    const std::string none = "No strings found in the \"Unit1\" source!",
                      noConst = "There are no strings in CONST section of \"Unit1\" unit!",
                      noForm = "No forms found with TGlotta! Double click on the form to insert TGlotta.";
    const auto refused = [](const std::string& stringsForm, bool constMode) {
        return [=](ScanDesk& desk) {
            ScanCommands commands = desk.Commands();
            if (constMode)
                EXPECT_THROW(commands.WithoutForm1Click("Tools", stringsForm), EGlottaSilent);
            else
                EXPECT_THROW(commands.TranslateUnit1Click("Tools", stringsForm), EGlottaSilent);
        };
    };
    const auto info = [](const std::string& text) { return "Information: " + text + " -> OK\n"; };
    const std::vector<Way> ways = {
        {"", message(none, scan(false)), info(none)},
        {"  A := '...'; // 'c'\n", message(none, scan(false)), info(none)},
        {"  A := 'One';\n", message(noConst, scan(true)), info(noConst)},
        {"  A := 'One';\n", scan(false, true), "Modal Found String Constants (Unit1) -> Cancel\n"},
        {"", message(noForm, refused("", false)), info(noForm)},
        {"", message(noForm, refused("Form2", true)), info(noForm)},
        {"",
         [](ScanDesk& desk) {
             EXPECT_EQ(MessageOf([&] { desk.driver.DoScanReplace("Unit9", "Form1", false, false); }),
                       "Unit9: the project has no such unit");
         },
         ""},
        {"  A := 'One';\n",
         [](ScanDesk& desk) {
             desk.ui.Modal<TfrmFound>([](TfrmFound&) -> ModalResult { throw Error("fault in the review"); });
             EXPECT_EQ(MessageOf([&] { desk.driver.DoScanReplace("Form1", "", false, false); }),
                       "fault in the review");
         },
         ""},
    };
    for (const Way& way : ways) {
        SCOPED_TRACE(way.told + way.statements);
        ScanDesk desk("P.dpr", Project(way.statements));
        desk.settings.SetExcludeChars(".");
        desk.Open("Unit1.pas");
        way.act(desk);
        EXPECT_EQ(desk.Told(), way.told);
        EXPECT_EQ(desk.Strings("Form1"), "");
        EXPECT_TRUE(desk.ide.ModifiedFiles().empty());
    }
}

TEST(ScanReplace, ProgressIsToldAndEndsAlsoOnAnException) {
    ScanDesk desk("P.dpr", Project("  A := 'One';\n  B := 'Two';\n"));
    desk.Open("Unit1.pas"); // which shows a progress of its own
    desk.Accept();
    desk.ui.Message(Translated);
    desk.driver.DoScanReplace("Form1", "", false, false);
    std::string progress;
    for (const std::string& line : SplitLines(desk.ui.Transcript()))
        if (line.starts_with("Progress"))
            progress += line.substr(line.starts_with("Progress:") ? 10 : 9) + "|";
    EXPECT_EQ(progress, "Scanning...|ends|Scanning...|Found strings so far: 1|Found strings so far: "
                        "2|Verifying found strings...|"
                        "Checking duplicates...|ends|Modifying source...|ends|");

    // The first result of the scan meets a user interface that fails.
    struct FailingUi : ScriptedUi {
        void SetProgress(const std::string& text) override {
            ScriptedUi::SetProgress(text);
            if (text.starts_with("Found")) throw Error("fault");
        }
    } failing;
    ScanDesk second("P.dpr", Project("  A := 'One';\n"));
    IdeServices services(second.ide.Services(), second.forms, failing);
    ScanReplace driver({services, second.settings, second.registry, second.helper, second.results},
                       ScanReplace::Review::Dialog);
    EXPECT_EQ(MessageOf([&] { driver.DoScanReplace("Form1", "", false, false); }), "fault");
    EXPECT_TRUE(failing.Transcript().ends_with("Progress ends\n")) << failing.Transcript();
}

TEST(ScanReplace, SelectionCountsInTheWholeUnit) {
    ScanDesk desk("P.dpr", Project("  A := 'One';\n  B := 'Two';\n  C := 'Three';\n"));
    desk.Open("Unit1.pas");
    const std::string source = desk.Source("Unit1.pas");
    desk.services.GetSourceEditorFromFileName(PathText(desk.folder / "Unit1.pas"))
        ->View()
        .SetBlock({16, 1}, {17, 1});
    desk.Accept([](TfrmFound& form) {
        std::string rows;
        for (std::size_t i = 0; i < form.sgStrings.RowCount(); ++i)
            rows += form.sgStrings.CellText(i, 0) + " " + form.sgStrings.CellText(i, 2) + ";";
        EXPECT_EQ(rows, "16 'Two';");
    });
    desk.ui.Message(Translated);
    EXPECT_TRUE(desk.driver.DoScanReplace("Form1", "", false, true));
    EXPECT_EQ(ChangedLines(source, desk.Source("Unit1.pas")),
              "-  B := 'Two';\n+  B := Glotta1.GetText('IDS_0');\n");
}

const std::string TypedConstants = Translated + "\r\nYou need to change CONST to VAR declaration or turn ON "
                                                "\"Assignable typed constants\" compiler option!";

TEST(ScanReplace, AUnitWithoutFormUsesTheOneOfAnother) {
    ScanDesk desk("P.dpr", Project(""), ScanReplace::Review::None);
    desk.Open("Tools.pas");
    const std::string tools = desk.Source("Tools.pas");
    desk.ui.Message(Translated).Message(TypedConstants);
    EXPECT_TRUE(desk.Commands().TranslateUnit1Click("Tools", "Form1"));
    EXPECT_EQ(ChangedLines(tools, desk.Source("Tools.pas")),
              "-uses Dialogs;\n+uses Dialogs, Unit1;\n-  ShowMessage('Told');\n"
              "+  ShowMessage(Form1.Glotta1.GetText('IDS_1'));\n");

    const std::string form = desk.Source("Unit1.pas"), localized = desk.Source("Tools.pas");
    EXPECT_TRUE(desk.Commands().WithoutForm1Click("Tools", "Form1"));
    EXPECT_EQ(ChangedLines(localized, desk.Source("Tools.pas")),
              "-  Hint = 'A hint';\n+\tHint: string = ''; // TGL: Localized (Don't modify!)\n");
    EXPECT_EQ(
        ChangedLines(form, desk.Source("Unit1.pas")),
        "+    procedure FormCreate(Sender: TObject);\n+    procedure Glotta1ChangeLanguage(Sender: "
        "TObject);\n"
        "+    procedure UpdateStrings;\n+\n+uses\n+  Tools;\n+\n"
        "+procedure TForm1.FormCreate(Sender: TObject);\n+begin\n+  UpdateStrings;\n+\n+end;\n+\n"
        "+procedure TForm1.Glotta1ChangeLanguage(Sender: TObject);\n+begin\n+\n+  UpdateStrings;\n+end;\n+\n"
        // Hint is a property of the form, so the unit has to be named.
        "+procedure TForm1.UpdateStrings;\n+begin\n+  Tools.Hint := Glotta1.GetText('strHint');\n+end;\n+\n");
    EXPECT_EQ(desk.Strings("Form1"), "IDS_1=Told\nstrHint=A hint\n");
    EXPECT_EQ(desk.Told(), "Information: " + Translated + " -> OK\nInformation: " +
                               ReplaceStr(TypedConstants, "\r\n", "|") + " -> OK\n");
}

TEST(ScanReplace, ConstantsAreWiredOnce) {
    const auto constants = "  Title = 'A title';\n  Bound = 'abc';\n  Twice = Bound + 'x';\n";
    ScanDesk desk("P.dpr", Project("  Go;\n", constants));
    desk.settings.SetEmptyConstsValues(false);
    desk.Open("Unit1.pas");
    const std::string before = desk.Source("Unit1.pas");
    const auto run = [&] { return desk.Commands().Const1Click(*desk.forms.FindExact("Form1")); };
    desk.Accept();
    desk.ui.Message(TypedConstants);
    EXPECT_TRUE(run());
    const std::string unit = desk.Source("Unit1.pas");
    EXPECT_EQ(
        ChangedLines(before, unit),
        "-  Title = 'A title';\n+\tTitle: string = 'A title'; // TGL: Localized (Don't modify!)\n"
        "+    procedure FormCreate(Sender: TObject);\n+    procedure Glotta1ChangeLanguage(Sender: "
        "TObject);\n"
        "+    procedure UpdateStrings;\n+\n"
        "+procedure TForm1.FormCreate(Sender: TObject);\n+begin\n+  UpdateStrings;\n+\n+end;\n+\n"
        "+procedure TForm1.Glotta1ChangeLanguage(Sender: TObject);\n+begin\n+\n+  UpdateStrings;\n+end;\n+\n"
        "+procedure TForm1.UpdateStrings;\n+begin\n+  Title := Glotta1.GetText('strTitle');\n+end;\n+\n");
    desk.Accept(); // what cannot be localized is found again, and left alone again
    EXPECT_FALSE(run());
    EXPECT_EQ(desk.Source("Unit1.pas"), unit);
    EXPECT_EQ(desk.Strings("Form1"), "strTitle=A title\n");
}

TEST(ScanReplace, AConstantThatAnotherUnitNeedsStaysOne) {
    ScanDesk::Files files = Project("", "  Title = 'A title';\n");
    files["Tools.pas"] = ReplaceStr(files["Tools.pas"], "Hint = 'A hint';", "Hint = Title + '!';");
    ScanDesk desk("P.dpr", files, ScanReplace::Review::None);
    EXPECT_FALSE(desk.driver.FindsConstants("Tools")); // the first unit of the run needs the second one's
    EXPECT_FALSE(desk.driver.FindsConstants("Form1"));
    EXPECT_EQ(desk.results.found[0].Note, "used where a constant expression is required");
    desk.Told();
}

TEST(ScanReplace, ADataModuleHasItsOwnCreationHandler) {
    ScanDesk::Files files = Project("", "  Title = 'A title';\n");
    for (auto& [name, text] : files)
        text = ReplaceStr(ReplaceStr(text, "class(TForm)", "class(TDataModule)"), "{Form1}",
                          "{Form1: TDataModule}");
    files["Unit1.dfm"] =
        ReplaceStr(files["Unit1.dfm"], "  Caption = 'Form1'\r\n", "  OldCreateOrder = False\r\n");
    ScanDesk desk("P.dpr", files, ScanReplace::Review::None);
    desk.ui.Message(TypedConstants);
    EXPECT_TRUE(desk.Commands().Const1Click(*desk.forms.FindExact("Form1")));
    EXPECT_NE(desk.Source("Unit1.pas")
                  .find("procedure TForm1.DatamoduleCreate(Sender: TObject);\r\nbegin\r\n  UpdateStrings;"),
              std::string::npos)
        << desk.Source("Unit1.pas");
    desk.Told();
}

TEST(ScanReplace, InCpp) {
    const std::string head = "//---\n#include <vcl.h>\n#pragma hdrstop\n";
    ScanDesk desk(
        "P.cpp",
        {{"P.bpr", "<?xml version='1.0' encoding='utf-8' ?>\n<PROJECT><MACROS/><FILELIST>\n"
                   "<FILE FILENAME=\"P.cpp\" FORMNAME=\"\" UNITNAME=\"P\" CONTAINERID=\"CCompiler\" "
                   "DESIGNCLASS=\"\"/>\n"
                   "<FILE FILENAME=\"Unit1.cpp\" FORMNAME=\"Form1\" UNITNAME=\"Unit1\" "
                   "CONTAINERID=\"CCompiler\" DESIGNCLASS=\"\"/>\n"
                   "<FILE FILENAME=\"Tools.cpp\" FORMNAME=\"\" UNITNAME=\"Tools\" CONTAINERID=\"CCompiler\" "
                   "DESIGNCLASS=\"\"/>\n"
                   "</FILELIST></PROJECT>\n"},
         {"P.cpp", head + "USEFORM(\"Unit1.cpp\", Form1);\nUSEUNIT(\"Tools.cpp\");\n"},
         {"Unit1.h", "#ifndef Unit1H\n#define Unit1H\n#include \"Glotta.hpp\"\nclass TForm1 : public "
                     "TForm\n{\n__published:\n"
                     "\tTGlotta *Glotta1;\nprivate:\npublic:\n\t__fastcall TForm1(TComponent* "
                     "Owner);\n\tvoid Go();\n};\n"
                     "extern PACKAGE TForm1 *Form1;\n#endif\n"},
         {"Unit1.cpp",
          head + "#include \"Unit1.h\"\n#pragma resource \"*.dfm\"\nTForm1 *Form1;\n"
                 "void TForm1::Go()\n{\n  Caption = \"One\";\n  sprintf(buffer, \"Two %d\", 2);\n}\n"},
         {"Unit1.dfm", "object Form1: TForm1\n  Caption = 'Form1'\n  object Glotta1: TGlotta\n  end\nend\n"},
         {"Tools.cpp", head + "#include \"Tools.h\"\nvoid Tell()\n{\n  ShowMessage(\"Told\");\n}\n"}},
        ScanReplace::Review::None);
    for (const char* unit : {"Unit1.cpp", "Tools.cpp"})
        desk.Open(unit);
    const std::string unit = desk.Source("Unit1.cpp"), tools = desk.Source("Tools.cpp");
    desk.ui.Message(Translated).Message(Translated);
    EXPECT_TRUE(desk.Commands().Translatesource1Click(*desk.forms.FindExact("Form1")));
    EXPECT_EQ(desk.results.found[3].Note, "argument of sprintf is a char pointer: add .c_str() to the call");
    EXPECT_EQ(ChangedLines(unit, desk.Source("Unit1.cpp")),
              "-  Caption = \"One\";\n+  Caption = Glotta1->GetText(\"IDS_2\");\n");
    EXPECT_TRUE(desk.Commands().TranslateUnit1Click("Tools", "Form1"));
    EXPECT_EQ(ChangedLines(tools, desk.Source("Tools.cpp")),
              "+#include \"Unit1.h\"\n-  ShowMessage(\"Told\");\n+  "
              "ShowMessage(Form1->Glotta1->GetText(\"IDS_1\"));\n");
    EXPECT_EQ(desk.Strings("Form1"), "IDS_2=One\nIDS_1=Told\n");
    desk.Told();
}

} // namespace
} // namespace glotta
