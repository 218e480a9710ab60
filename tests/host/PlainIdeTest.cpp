#include "host/PlainIde.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

using namespace glotta;

namespace {

const char* const PascalProject =
    "program Shop;\r\nuses Forms, Main in 'Main.pas' {Form1}, Child in 'child.pas' {Form2},\r\n"
    "  Store in 'Store.pas' {DataModule1: TDataModule}, Tools in 'Tools.pas';\r\nbegin\r\nend.\r\n";
const char* const MainUnit =
    "unit Main;\n\ninterface\n\nuses\n  Forms, StdCtrls;\n\ntype\n  TForm1 = class(TForm)\n"
    "    Button1: TButton;\n    procedure formcreate(Sender: TObject);\n  private\n  end;\n\nvar\n  Form1: "
    "TForm1;\n\n"
    "implementation\n\n{$R *.dfm}\n\nprocedure TForm1.formcreate(Sender: TObject);\nbegin\nend;\n\nend.\n";
const char* const MainForm =
    "object Form1: TForm1\r\n  Left = 0\r\n  Caption = 'One'\r\n  object Button1: TButton\r\n    Left = 1\r\n"
    "    Width = 9\r\n  end\r\n  object Timer1: TTimer\r\n    Left = 8\r\n    Top = 8\r\n  end\r\nend\r\n";
const char* const ChildUnit =
    "unit Child;\r\n\r\ninterface\r\n\r\nuses\r\n  Main;\r\n\r\ntype\r\n  TForm2 = class(TForm1)\r\n"
    "  private\r\n  end;\r\n\r\nimplementation\r\n\r\n{$R *.dfm}\r\n\r\nend.\r\n";
const char* const ChildForm = "inherited Form2: TForm2\r\n  Left = 5\r\nend\r\n";
const char* const StoreUnit =
    "unit Store;\r\ninterface\r\nuses Classes;\r\ntype\r\n  TDataModule1 = class(TDataModule)\r\n  end;\r\n"
    "implementation\r\n{$R *.dfm}\r\nend.\r\n";

const MethodType Notify{"Sender: TObject", "TObject *Sender"};

class PlainIdeTest : public testing::Test {
protected:
    PlainIdeTest() {
        folder_.Put("Shop.dpr", PascalProject);
        folder_.Put("Main.pas", MainUnit);
        folder_.Put("Main.dfm", MainForm);
        folder_.Put("Child.pas", ChildUnit);
        folder_.Put("Child.DFM", ChildForm);
        folder_.Put("Store.pas", StoreUnit);
        folder_.Put("Store.dfm", "object DataModule1: TDataModule1\r\n  Left = 1\r\nend\r\n");
        folder_.Put("Tools.pas", "unit Tools;\ninterface\nimplementation\nend.\n");
    }
    std::string Path(const std::string& name) const { return PathText(folder_.Path() / name); }
    std::string Disk(const std::string& name) const { return ReadFile(folder_.Path() / name); }
    PlainModule& Open(PlainIde& ide, const std::string& name) {
        if (!ide.OpenFile(Path(name)))
            throw Error(ide.Problems().empty() ? "not opened" : ide.Problems().back());
        return dynamic_cast<PlainModule&>(*ide.FindModule(Path(name)));
    }
    // "Main.dfm Main.pas", what differs from the disk.
    static std::string Modified(PlainIde& ide) {
        std::string names;
        for (const FileChange& change : ide.ModifiedFiles())
            names += (names.empty() ? "" : " ") + PathText(change.file.filename());
        return names;
    }
    // The lines that `now` has more than `before`, in order.
    static std::string Added(std::string_view before, std::string_view now) {
        const std::vector<std::string> old = SplitLines(before);
        std::string result;
        std::size_t at = 0;
        for (const std::string& line : SplitLines(now)) {
            if (at < old.size() && old[at] == line)
                ++at;
            else
                result += line + "\n";
        }
        return at == old.size() ? result : result + "lost: " + old[at];
    }
    TempFolder folder_;
};

} // namespace

TEST_F(PlainIdeTest, ModulesAreKnownByAnyNameOfTheirFiles) {
    PlainIde ide;
    IOTAProject* project = AsProject(&ide.OpenProject(Path("SHOP.dpr")));
    ASSERT_TRUE(project);
    EXPECT_EQ(project->Modules().size(), 4u);
    PlainModule& main = Open(ide, "MAIN.PAS");
    PlainModule& tools = Open(ide, "Tools.pas");
    EXPECT_EQ(main.FileName(), Path("Main.pas"));
    EXPECT_EQ(main.Name() + " " + tools.Name() + " " + std::to_string(main.GetModuleFileCount()),
              "Form1 Tools 2");
    EXPECT_EQ(ide.FindModule(Path("main.dfm")), &main);
    EXPECT_EQ(ide.FindFormModule("FORM1"), &main);
    EXPECT_EQ(ide.CurrentModule(), &tools);
    main.Source().Show();
    EXPECT_EQ(ide.CurrentModule(), &main);
    EXPECT_EQ(ide.ModuleCount(), 3);
    EXPECT_TRUE(ide.CloseFile(Path("Main.pas")));
    EXPECT_EQ(ide.CurrentModule(), &tools);
    EXPECT_FALSE(ide.OpenFile(Path("None.pas")));
    EXPECT_TRUE(ide.FindModule(Path("Shop.dpr"))->Close());
    EXPECT_EQ(ide.ModuleCount(), 0);
}

TEST_F(PlainIdeTest, CreatingAComponentAndMethodsInPascal) {
    PlainIde ide;
    ide.OpenProject(Path("Shop.dpr"));
    PlainModule& main = Open(ide, "Main.pas");
    PlainFormEditor& form = *main.Form();
    EXPECT_EQ(form.CreateComponent("tglotta").Name(), "Glotta1");
    EXPECT_EQ(form.Designer().CreateMethod("FormCreate", Notify), "formcreate")
        << "there already, in another case";
    EXPECT_EQ(form.Designer().CreateMethod("UpdateStrings", {}), "UpdateStrings");
    EXPECT_EQ(form.Designer().CreateMethod("UpdateStrings", {}), "UpdateStrings");
    EXPECT_EQ(Disk("Main.pas") + Disk("Main.dfm"), std::string(MainUnit) + MainForm)
        << "nothing is written unasked";
    ide.SaveAll();
    EXPECT_EQ(Disk("Main.pas"),
              "unit Main;\n\ninterface\n\nuses\n  Forms, StdCtrls, Glotta;\n\ntype\n  TForm1 = class(TForm)\n"
              "    Button1: TButton;\n    Glotta1: TGlotta;\n    procedure formcreate(Sender: TObject);\n    "
              "procedure UpdateStrings;\n"
              "  private\n  end;\n\nvar\n  Form1: TForm1;\n\n"
              "implementation\n\n{$R *.dfm}\n\nprocedure TForm1.formcreate(Sender: TObject);\nbegin\nend;\n\n"
              "procedure TForm1.UpdateStrings;\nbegin\n\nend;\n\nend.\n");
    EXPECT_EQ(Added(MainForm, Disk("Main.dfm")),
              "  object Glotta1: TGlotta\n    Left = 40\n    Top = 8\n  end\n");
    EXPECT_EQ(form.CreateComponent("TGlotta").Name(), "Glotta2");
    EXPECT_THROW(form.CreateComponent("TNowhere"), Error);
    form.Designer().ShowMethod("UpdateStrings");
    EXPECT_EQ(main.Source().View().CursorPos().line, 31);
}

TEST_F(PlainIdeTest, DescendantsOfProjectForms) {
    PlainIde ide;
    ide.OpenProject(Path("Shop.dpr"));
    PlainFormEditor& child = *Open(ide, "Child.pas").Form();
    Open(ide, "Main.pas").Form()->CreateComponent("TGlotta");
    EXPECT_TRUE(child.Designer().Root().InheritsFrom("TCustomForm"));
    EXPECT_EQ(child.CreateComponent("TGlotta").Name(), "Glotta2") << "the ancestor has Glotta1";
    EXPECT_EQ(Open(ide, "Main.pas").Form()->CreateComponent("TGlotta").Name(), "Glotta3")
        << "so has a descendant Glotta2";
    child.Designer().CreateMethod("FormCreate", Notify);
    EXPECT_NE(Open(ide, "Child.pas")
                  .Source()
                  .Buffer()
                  .Text()
                  .find("procedure TForm2.FormCreate(Sender: TObject);\r\nbegin\r\n  inherited;\r\n"),
              std::string::npos);
    EXPECT_FALSE(Open(ide, "Store.pas").Form()->Designer().Root().InheritsFrom("TCustomForm"));
    EXPECT_TRUE(Open(ide, "Store.pas").Form()->Designer().Root().InheritsFrom("TDataModule"));
}

TEST_F(PlainIdeTest, CreatingAComponentAndMethodsInCpp) {
    const std::string header =
        "#ifndef AlarmH\n#define AlarmH\n#include <Forms.hpp>\nclass TForm1 : public TForm\n{\n__published:\n"
        "  TButton *Button1;\nprivate:\npublic:\n  __fastcall TForm1(TComponent* Owner);\n};\n#endif\n";
    const std::string source =
        "#include <vcl.h>\n#pragma hdrstop\n#include \"Alarm.h\"\n#pragma package(smart_init)\n"
        "#pragma resource \"*.dfm\"\nTForm1 *Form1;\n";
    folder_.Put("Clock.cpp", "#include <vcl.h>\nUSEFORM(\"Alarm.cpp\", Form1);\n");
    folder_.Put("Alarm.h", header);
    folder_.Put("Alarm.cpp", source);
    folder_.Put("Alarm.dfm", MainForm);
    PlainIde ide;
    ide.OpenProject(Path("Clock.cpp"));
    PlainModule& alarm = Open(ide, "Alarm.cpp");
    for (int again = 0; again < 2; ++again) {
        if (again == 0) alarm.Form()->CreateComponent("TGlotta");
        EXPECT_EQ(alarm.Form()->Designer().CreateMethod("FormCreate", Notify), "FormCreate");
    }
    EXPECT_EQ(Modified(ide), "Alarm.dfm Alarm.h Alarm.cpp");
    ide.SaveAll();
    EXPECT_EQ(Added(header, Disk("Alarm.h")), "#include \"Glotta.hpp\"\n  TGlotta *Glotta1;\n"
                                              "  void __fastcall FormCreate(TObject *Sender);\n");
    EXPECT_EQ(Added(source, Disk("Alarm.cpp")).substr(0, 24), "#pragma link \"Glotta\"\n//");
    EXPECT_NE(Disk("Alarm.cpp").find("void __fastcall TForm1::FormCreate(TObject *Sender)\n{\n"),
              std::string::npos);
    EXPECT_EQ(Modified(ide), "");
}

TEST_F(PlainIdeTest, AModuleIsSavedWholeOrNotAtAll) {
    PlainIde ide;
    ide.OpenProject(Path("Shop.dpr"));
    PlainModule& main = Open(ide, "Main.pas");
    main.Form()->CreateComponent("TGlotta");
    main.Source().Apply({{{0, 0, "// \u0416\n"}}}); // not in Windows-1252
    EXPECT_THROW(ide.SaveFile(Path("Main.pas")), Error);
    EXPECT_THROW(ide.SaveAll(), Error);
    EXPECT_EQ(Disk("Main.pas") + Disk("Main.dfm"), std::string(MainUnit) + MainForm);
    EXPECT_TRUE(main.Modified());
    main.Source().Undo();

    folder_.Put("Main.pas", "somebody else's");
    EXPECT_THROW(ide.SaveFile(Path("Main.pas")), Error);
    EXPECT_THROW(ide.SaveAll(), Error);
    EXPECT_EQ(Disk("Main.pas") + Disk("Main.dfm"), std::string("somebody else's") + MainForm);
    folder_.Put("Main.pas", MainUnit);
    EXPECT_TRUE(ide.SaveFile(Path("Main.pas")));
    EXPECT_NE(Disk("Main.dfm"), MainForm);
    EXPECT_FALSE(main.Modified());
}

TEST_F(PlainIdeTest, DeferredSavesWaitForCommit) {
    PlainIde ide;
    ide.SetDeferWrites(true);
    ide.OpenProject(Path("Shop.dpr"));
    Open(ide, "Main.pas").Form()->CreateComponent("TGlotta");
    EXPECT_FALSE(ide.CloseFile(Path("Main.pas"))) << "not saved";
    EXPECT_TRUE(ide.SaveFile(Path("Main.pas")) && ide.CloseFile(Path("Main.pas")));
    EXPECT_EQ(Disk("Main.dfm"), MainForm);
    PlainFormEditor& form = *Open(ide, "Main.pas").Form();
    EXPECT_TRUE(form.Designer().Root().FindComponent("glotta1")) << "opened again as saved";
    form.CreateComponent("TGlotta");
    Open(ide, "Tools.pas").Source().Apply({{{0, 0, "//\n"}}});
    const std::vector<FileChange> changes = ide.ModifiedFiles();
    EXPECT_EQ(Modified(ide), "Main.dfm Main.pas Tools.pas");
    EXPECT_EQ(changes[0].oldBytes, MainForm);
    ide.Commit();
    EXPECT_EQ(Modified(ide), "Main.dfm Main.pas Tools.pas");
    EXPECT_NE(Disk("Main.dfm"), changes[0].newBytes) << "the second one is not saved yet";
    ide.SaveAll();
    EXPECT_EQ(Disk("Main.dfm"), changes[0].newBytes);
    EXPECT_EQ(Disk("Tools.pas"), "//\nunit Tools;\ninterface\nimplementation\nend.\n");
    EXPECT_EQ(Modified(ide), "");
}

TEST_F(PlainIdeTest, ADamagedFormLeavesTheUnit) {
    folder_.Put("Main.dfm", "object Form1: TForm1\r\n  Left = \r\nend\r\n");
    PlainIde ide;
    ide.OpenProject(Path("Shop.dpr"));
    PlainModule& main = Open(ide, "Main.pas");
    EXPECT_EQ(main.GetModuleFileCount(), 1);
    ASSERT_EQ(ide.Problems().size(), 1u);
    EXPECT_TRUE(ide.Problems()[0].starts_with(Path("Main.dfm") + ": line ")) << ide.Problems()[0];
}
