// Names that change on a form, and steps that go back and come again.
#include "host/IdeEditors.h"
#include "host/PlainIde.h"
#include "ide/DesignEditors.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "support/DiffText.h"
#include "support/ScriptedUi.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <map>

using namespace glotta;

namespace {

// Files as they are before and after what a test does.
class FormChanges : public testing::Test {
protected:
    void Put(const std::string& name, std::string_view marked) {
        const DiffText text(marked);
        folder_.Put(name, text.before);
        before_[name] = text.before;
        after_[name] = text.after;
    }
    PlainFormEditor& Open(const char* project, const char* unit) {
        ide_.OpenProject(PathText(folder_ / project));
        return OpenForm(unit);
    }
    PlainFormEditor& OpenForm(const char* unit) {
        EXPECT_TRUE(ide_.OpenFile(PathText(folder_ / unit)));
        return *dynamic_cast<PlainModule&>(*ide_.FindModule(PathText(folder_ / unit))).Form();
    }
    static void Rename(PlainFormEditor& form, const char* from, const char* to) {
        TComponent* component = form.Tree().Root().FindComponent(from);
        if (!component) component = &form.Tree().Root();
        form.Step([&] { form.Designer().RenameComponent(*component, to); });
    }
    // What saving would leave on disk; undone again and saved, nothing is left to save.
    void ExpectStep(PlainFormEditor& form) {
        EXPECT_EQ(Now(), after_);
        while (form.CanUndo())
            form.Undo();
        EXPECT_EQ(Now(), before_);
        EXPECT_EQ(ide_.ModifiedFiles().size(), 0u);
        for (int i = 0; i < ide_.ModuleCount(); ++i)
            EXPECT_FALSE(ide_.GetModule(i)->Modified()) << ide_.GetModule(i)->FileName();
        while (form.CanRedo())
            form.Redo();
        EXPECT_EQ(Now(), after_);
    }
    std::map<std::string, std::string> Now() {
        std::map<std::string, std::string> texts = before_;
        for (const FileChange& change : ide_.ModifiedFiles())
            texts[PathText(change.file.filename())] = change.newBytes;
        return texts;
    }

    TempFolder folder_;
    PlainIde ide_;
    std::map<std::string, std::string> before_, after_;
};

} // namespace

TEST_F(FormChanges, WhatNamesAComponentFollows) {
    Put("Shop.dpr", " program Shop;\n uses Main in 'Main.pas' {Form1};\n begin\n end.\n");
    Put("Main.pas", R"(
 unit Main;
 interface
 type
   TForm1 = class(TForm)
-    source1: TDataSource;
+    Orders: TDataSource;
     Grid: TDBGrid;
     procedure Source1Click(Sender: TObject);
     procedure GridClick(Sender: TObject);
   end;
 var Form1: TForm1;
 implementation
 procedure TForm1.Source1Click(Sender: TObject);
 begin
   Source1.Enabled := True;
 end;
 end.
)");
    Put("Main.dfm", R"(
 object Form1: TForm1
   Caption =   'Source1'
-  ActiveControl =  source1
+  ActiveControl =  Orders
   OnClick = Source1
-  object Source1: TDataSource
+  object Orders: TDataSource
     Left = 8
   end
   object Grid: TDBGrid
-    DataSource = SOURCE1
+    DataSource = Orders
     Align = Source1
     OnClick = GridClick
     Columns = <
       item
         FieldName = 'Source1'
-        Link = Source1
+        Link = Orders
         Other =   Source10
       end>
   end
   object Unknown: TUnheardOf
-    Links = (Source1 'Source1' 1)
+    Links = (Orders 'Source1' 1)
-    Inner.Link = Source1.Part
-    Outer = Form1.Source1
+    Inner.Link = Orders.Part
+    Outer = Form1.Orders
     Source = Sourcer
   end
 end
)");
    PlainFormEditor& form = Open("Shop.dpr", "Main.pas");
    Rename(form, "Source1", "Orders");
    ExpectStep(form);
}

TEST_F(FormChanges, AFormIsRenamedInUnitFormAndProject) {
    Put("Shop.dpr", R"(
 program Shop;
 uses
-  Main in 'Main.pas' {Form1: TForm},
+  Main in 'Main.pas' {Desk: TForm},
   Other in 'Other.pas' {Form1};
 begin
-  Application.CreateForm(TForm1, Form1);
+  Application.CreateForm(TDesk, Desk);
   Application.CreateForm(TForm2, Form2);
 end.
)");
    Put("Main.pas", R"(
 unit Main; { TForm1, Form1 }
 interface
 type
-  TForm1 = class;
-  TForms = class of TFORM1;
-  TForm1 = class(TForm)
+  TDesk = class;
+  TForms = class of TDesk;
+  TDesk = class(TForm)
     Button1: TButton;
-    {$IFDEF OLD}function Next: TForm1;{$ELSE}function Next(A: TForm1): TForm1;{$ENDIF}
+    {$IFDEF OLD}function Next: TDesk;{$ELSE}function Next(A: TDesk): TDesk;{$ENDIF}
   end;
 var
-  Form1: TForm1;
+  Desk: TDesk;
 implementation
 {$R *.dfm}
-function TForm1.Next(A: TForm1): TForm1;
+function TDesk.Next(A: TDesk): TDesk;
 begin
-  form1.Caption := 'Form1' + Other.Form1.Caption + Main.Form1.Name; // Form1
-  if A is TForm1 then Result := TForm1(A.Form1);
+  Desk.Caption := 'Form1' + Other.Form1.Caption + Main.Desk.Name; // Form1
+  if A is TDesk then Result := TDesk(A.Form1);
 end;
 end.
)");
    Put("Main.dfm", R"(
-object Form1: TForm1
+object Desk: TDesk
   Left   = 1
-  PopupParent = Form1
+  PopupParent = Desk
   object Button1: TButton
   end
 end
)");
    PlainFormEditor& form = Open("Shop.dpr", "Main.pas");
    Rename(form, "", "Desk");
    ExpectStep(form);
    const IOTAModuleInfo& info = AsProject(ide_.FindModule(PathText(folder_ / "Shop.dpr")))->Modules()[0];
    EXPECT_EQ(info.formName + " " + info.annotatedFormName, "Desk Desk");
    EXPECT_EQ(form.Designer().CreateMethod("FormCreate", {}), "FormCreate") << "the unit knows the class";
}

TEST_F(FormChanges, WhatAProjectSourceSaysOfAnotherNameStays) {
    Put("Shop.dpr", " program Shop;\n uses Main in 'Main.pas' {Wrong};\n begin\n end.\n");
    Put("Main.pas", "-unit Main; interface type TForm1 = class(TForm) end; implementation end.\n"
                    "+unit Main; interface type TDesk = class(TForm) end; implementation end.\n");
    Put("Main.dfm", "-object Form1: TForm1\n+object Desk: TDesk\n end\n");
    PlainFormEditor& form = Open("Shop.dpr", "Main.pas");
    Rename(form, "", "Desk");
    ExpectStep(form);
}

TEST_F(FormChanges, AFormOfCppIsRenamedInHeaderSourceAndProject) {
    Put("Clock.cpp", R"(
 #include <vcl.h>
-USEFORM("Alarm.cpp", Form1); /* TForm: File Type */
+USEFORM("Alarm.cpp", Desk); /* TForm: File Type */
 WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int)
 {
-    Application->CreateForm(__classid(TForm1), &Form1);
+    Application->CreateForm(__classid(TDesk), &Desk);
 }
)");
    Put("Alarm.h", R"(
-class TForm1 : public TForm
+class TDesk : public TForm
 {
 __published:
   TButton *Button1;
 public:
-  __fastcall TForm1(TComponent* Owner);
+  __fastcall TDesk(TComponent* Owner);
 };
-extern PACKAGE TForm1 *Form1;
+extern PACKAGE TDesk *Desk;
)");
    Put("Alarm.cpp", R"(
 #include "Alarm.h"
 #pragma resource "*.dfm"
-TForm1 *Form1;
-__fastcall TForm1::TForm1(TComponent* Owner) : TForm(Owner)
+TDesk *Desk;
+__fastcall TDesk::TDesk(TComponent* Owner) : TForm(Owner)
 {
-  Form1->Caption = "Form1"; Owner->Form1 = form1; // TForm1
+  Desk->Caption = "Form1"; Owner->Form1 = form1; // TForm1
 }
)");
    Put("Alarm.dfm", R"(
-object Form1: TForm1
+object Desk: TDesk
-  object Button1: TButton
+  object Go: TButton
   end
 end
)");
    after_["Alarm.h"].replace(after_["Alarm.h"].find("Button1"), 7, "Go");
    PlainFormEditor& form = Open("Clock.cpp", "Alarm.cpp");
    Rename(form, "", "Desk");
    Rename(form, "Button1", "Go");
    ExpectStep(form);
}

TEST_F(FormChanges, NamesThatCannotBe) {
    Put("Shop.dpr", " program Shop;\n uses Main in 'Main.pas' {Form1}, Child in 'Child.pas' {Form2};\n begin\n end.\n");
    Put("Main.pas", " unit Main;\n interface\n type TForm1 = class(TForm) Button1: TButton; Edit: TEdit; procedure Go; end;\n"
                    " var Form1: TForm1; Spare: Integer;\n implementation\n end.\n");
    Put("Main.dfm", " object Form1: TForm1\n   object Button1: TButton\n   end\n   object Edit: TEdit\n   end\n end\n");
    Put("Child.pas", " unit Child;\n interface\n type TForm2 = class(TForm1) Own: TLabel; end;\n implementation\n end.\n");
    Put("Child.dfm", " inherited Form2: TForm2\n   inherited Button1: TButton\n   end\n   object Own: TLabel\n   end\n end\n");
    PlainFormEditor& form = Open("Shop.dpr", "Main.pas");
    PlainFormEditor& child = OpenForm("Child.pas");
    const auto refused = [](PlainFormEditor& on, const char* from, const char* to) {
        return MessageOf([&] { Rename(on, from, to); }) + "\n";
    };
    std::string told;
    for (const char* name : {"", "1st", "Two words", "Begin", "edit", "form1", "Own", "go"})
        told += refused(form, "Button1", name);
    for (const char* name : {"Button1", "form2", "Spare", "Main"})
        told += refused(form, "", name);
    told += refused(child, "Button1", "Other");
    EXPECT_EQ(told, R"('' is not a valid component name
'1st' is not a valid component name
'Two words' is not a valid component name
'Begin' is not a valid component name
A component named edit already exists
A component named form1 already exists
A component named Own already exists
The name go is used already in the unit of Form1
A component named Button1 already exists
A form named form2 already exists
The name Spare is used already in the unit of Form1
The name Main is used already in the unit of Form1
Button1 is inherited and can be renamed only where it is declared
)");
    EXPECT_EQ(Now(), before_);
    EXPECT_FALSE(form.CanUndo());
    EXPECT_EQ(refused(form, "Button1", "BUTTON1"), "no error\n") << "only its letters' case";
}

TEST_F(FormChanges, StepsGoBackAndComeAgain) {
    Put("Main.pas", R"(
 unit Main;
 interface
 type
   TForm1 = class(TForm)
-    Button1: TButton;
+    Go: TButton;
+    procedure GoClick(Sender: TObject);
   end;
 implementation
+
+procedure TForm1.GoClick(Sender: TObject);
+begin
+
+end;
+
 end.
)");
    Put("Main.dfm", R"(
 object Form1: TForm1
-  Caption =   'One'
+  Caption = 'Two'
-  object Button1: TButton
+  object Go: TButton
     Tag =  1
+    OnClick = GoClick
   end
 end
)");
    ide_.OpenFile(PathText(folder_ / "Main.pas"));
    PlainFormEditor& form = OpenForm("Main.pas");
    TComponent& button = *form.Tree().Root().FindComponent("Button1");
    Rename(form, "Button1", "Go");
    form.Step([&] { form.Tree().Root().SetStrProp("Caption", "Two"); });
    form.Step([&] { button.SetMethodProp("OnClick", form.Designer().CreateMethod("GoClick", {"Sender: TObject", ""})); });
    form.Step([] {}); // nothing
    ExpectStep(form);

    // A text that a person went on with stays, but for the names.
    auto& source = dynamic_cast<PlainModule&>(form.Module()).Source();
    source.Type({{0, 0, "{mine}"}}, false);
    while (form.CanUndo())
        form.Undo();
    EXPECT_FALSE(form.Modified());
    std::string kept = "{mine}" + after_["Main.pas"];
    kept.replace(kept.find("Go:"), 2, "Button1");
    EXPECT_EQ(source.Buffer().Text(), kept);

    // A new step ends what could come again; saving moves the place to which undo leads back unmodified.
    form.Step([&] { button.SetOrdProp("Tag", 2); });
    EXPECT_FALSE(form.CanRedo());
    ide_.SaveAll();
    form.Undo();
    EXPECT_TRUE(form.Modified());
    form.Redo();
    EXPECT_FALSE(form.Modified());

    // Components that come and go, and a step that fails.
    const std::string bytes = form.Bytes(), text = source.Buffer().Text();
    form.Step([&] { form.CreateComponent("TTimer").SetOrdProp("Interval", 5); });
    form.Step([&] { form.DeleteComponent(button); });
    const std::string changed = form.Bytes();
    EXPECT_THROW(form.Step([&] {
        form.CreateComponent("TTimer");
        throw Error("no");
    }), Error);
    EXPECT_EQ(form.Bytes(), changed);
    form.Undo();
    form.Undo();
    EXPECT_EQ(form.Bytes() + source.Buffer().Text(), bytes + text);
    EXPECT_EQ(form.Tree().Root().FindComponent("Button1"), &button);
    form.Redo();
    form.Redo();
    EXPECT_EQ(form.Bytes(), changed);
    // What the expert changes by itself is no step.
    form.MarkModified();
    EXPECT_FALSE(form.CanUndo());
    EXPECT_TRUE(form.Modified());
}

// --- new components ---

namespace {

// Asks for a unit, as editors of packages do.
struct NeedsUnits : TSelectionEditor {
    using TSelectionEditor::TSelectionEditor;
    void RequiresUnits(std::vector<std::string>& units) const override { units.insert(units.end(), {"gxNeeds", "Forms"}); }
};
TSelectionEditorClass NeedsUnitsClass() {
    return {"NeedsUnits", [](DesignPlace place) { return std::make_unique<NeedsUnits>(place); }};
}

} // namespace

// A control goes into what is selected or what holds that, in front of windows when it has none; the unit gets the
// field and all units that are needed, in one step.
TEST_F(FormChanges, ANewComponentGetsWhatADesignerGives) {
    Put("Shop.dpr", " program Shop;\n uses Main in 'Main.pas' {Form1};\n begin\n end.\n");
    Put("Main.pas", R"(
 unit Main;
 interface
-uses Forms;
+uses Forms, Glotta, gxNeeds;
 type
   TForm1 = class(TForm)
     Panel1: TPanel;
     Label1: TLabel;
     Edit1: TEdit;
     Group1: TRadioGroup;
     Box1: TUnknownBox;
     Inner1: TLabel;
     Timer1: TTimer;
+    gxLabel1: TgxLabel;
+    gxLabel2: TgxLabel;
+    gxLabel3: TgxLabel;
+    GlottaCombo1: TGlottaCombo;
+    GlottaCombo2: TGlottaCombo;
+    Glotta1: TGlotta;
   end;
 implementation
 end.
)");
    Put("Main.dfm", R"( object Form1: TForm1
   ClientHeight = 101
   ClientWidth = 201
+  object gxLabel3: TgxLabel
+    Left = 80
+    Top = 40
+    Width = 41
+    Height = 13
+    Caption = 'gxLabel3'
+  end
   object Panel1: TPanel
     Width = 100
     Height = 60
     TabOrder = 4
     object Label1: TLabel
     end
+    object gxLabel1: TgxLabel
+      Left = 24
+      Top = 16
+      Width = 41
+      Height = 13
+      Caption = 'gxLabel1'
+    end
+    object gxLabel2: TgxLabel
+      Left = 32
+      Top = 24
+      Width = 41
+      Height = 13
+      Caption = 'gxLabel2'
+    end
     object Edit1: TEdit
     end
   end
   object Group1: TRadioGroup
   end
   inline Box1: TUnknownBox
     object Inner1: TLabel
     end
   end
+  object GlottaCombo1: TGlottaCombo
+    Left = 24
+    Top = 40
+    Width = 145
+    Height = 21
+    TabOrder = 5
+  end
+  object GlottaCombo2: TGlottaCombo
+    Left = 32
+    Top = 48
+    Width = 145
+    Height = 21
+    TabOrder = 6
+  end
   object Timer1: TTimer
     Left = 8
     Top = 8
   end
+  object Glotta1: TGlotta
+    Left = 40
+    Top = 8
+  end
 end
)");
    ide_.Design().RegisterSelectionEditor("TgxLabel", NeedsUnitsClass());
    PlainFormEditor& form = Open("Shop.dpr", "Main.pas");
    TComponent& root = form.Tree().Root();
    struct {
        const char *className, *selected;
    } const cases[] = {{"TgxLabel", "Panel1"},     {"TgxLabel", "Edit1"},    {"TgxLabel", "Timer1"},
                       {"TGlottaCombo", "Group1"}, {"TGlottaCombo", "Box1"}, {"TGlotta", "Panel1"}};
    for (const auto& each : cases)
        form.Step([&] { form.CreateComponent(each.className, root.FindComponent(each.selected)); });
    ExpectStep(form);
    // A verb of an editor asks again, when it changed something.
    form.Undo();
    auto& source = dynamic_cast<PlainModule&>(form.Module()).Source();
    const std::string text = source.Buffer().Text();
    ide_.Design().RegisterSelectionEditor("TEdit", {"", [](DesignPlace place) {
        struct Editor : TSelectionEditor {
            using TSelectionEditor::TSelectionEditor;
            void RequiresUnits(std::vector<std::string>& units) const override { units.push_back("Later"); }
        };
        return std::make_unique<Editor>(place);
    }});
    form.Designer().SelectComponent(root.FindComponent("Edit1"));
    form.EditStep([] {});
    EXPECT_EQ(source.Buffer().Text(), text);
    form.EditStep([&] {
        form.Designer().SelectedComponent()->SetOrdProp("Tag", 1);
        form.Designer().Modified();
    });
    EXPECT_NE(source.Buffer().Text().find(", Later;"), std::string::npos);
    form.Undo();
    EXPECT_EQ(source.Buffer().Text(), text);
}

TEST_F(FormChanges, ADataModuleTakesNoControls) {
    Put("Shop.cpp", " USEFORM(\"Data.cpp\", Store);\n");
    Put("Data.h", R"(
 #include <Classes.hpp>
+#include "Glotta.hpp"
+#include "gxNeeds.hpp"
+#include "Forms.hpp"
 class TStore : public TDataModule
 {
 __published:
   TTimer *Clock;
+  TGlotta *Glotta1;
 };
)");
    Put("Data.cpp", R"(
 #include "Data.h"
 #pragma package(smart_init)
+#pragma link "Glotta"
+#pragma link "gxNeeds"
+#pragma link "Forms"
 #pragma resource "*.dfm"
)");
    Put("Data.dfm", R"( object Store: TStore
   Height = 150
   Width = 215
   object Clock: TTimer
     Left = 40
     Top = 16
   end
+  object Glotta1: TGlotta
+    Left = 8
+    Top = 8
+  end
 end
)");
    ide_.Design().RegisterSelectionEditor("TGlotta", NeedsUnitsClass());
    PlainFormEditor& form = Open("Shop.cpp", "Data.cpp");
    form.Step([&] { form.CreateComponent("TGlotta", nullptr); });
    try {
        form.Step([&] { form.CreateComponent("TgxLabel", nullptr); });
        ADD_FAILURE() << "it took a label";
    } catch (const Error& error) {
        EXPECT_STREQ(error.what(), "TgxLabel is a control, and the data module Store takes only components that do not "
                                   "show at run time");
    }
    ExpectStep(form);
}

TEST_F(FormChanges, ReferencesReachOtherForms) {
    Put("Shop.dpr", " program Shop;\n uses Main in 'Main.pas' {Form1}, Store in 'Store.pas' {Data};\n begin\n end.\n");
    Put("Main.pas", " unit Main;\n interface\n type\n   TForm1 = class(TForm)\n     Grid: TDBGrid;\n   end;\n end.\n");
    Put("Main.dfm", R"( object Form1: TForm1
   object Grid: TDBGrid
+    DataSource = Data.Orders
   end
   object Source1: TDataSource
   end
 end
)");
    Put("Store.pas", " unit Store;\n interface\n type\n   TData = class(TDataModule)\n     Orders: TDataSource;\n   end;\n end.\n");
    Put("Store.dfm", " object Data: TData\n   object Orders: TDataSource\n   end\n   object Clock: TTimer\n   end\n end\n");
    PlainFormEditor& form = Open("Shop.dpr", "Main.pas");
    ScriptedUi ui;
    RegisterIdeEditors(ide_.Design(), ui);
    TComponent& grid = *form.Tree().Root().FindComponent("Grid");
    const auto editor = ide_.Design().PropertyEditorOf(grid, *grid.FindProperty("DataSource"), form.Designer());
    for (const char* refused : {"Data.Clock", "Data.None", "None.Orders", "Orders", "Form1.Orders", "Data.", "."})
        EXPECT_THROW(editor->SetValue(refused), Error) << refused;
    EXPECT_EQ(JoinLines(editor->GetValues(), " "), "Source1");
    editor->SetValue("form1.source1");
    EXPECT_EQ(editor->GetValue(), "Source1");
    form.Step([&] { editor->SetValue("data.orders"); }); // of a form that is not open
    OpenForm("Store.pas");
    EXPECT_EQ(JoinLines(editor->GetValues(), " "), "Source1 Data.Orders");
    EXPECT_EQ(Now(), after_);
}

TEST_F(FormChanges, RegisteredActionsAreMadeInActionLists) {
    Put("Shop.dpr", " program Shop;\n uses Main in 'Main.pas' {Form1};\n begin\n end.\n");
    Put("Main.pas", R"(
 unit Main;
 interface
-uses Forms;
+uses Forms, Glotta;
 type
   TForm1 = class(TForm)
     Actions: TActionList;
+    GlottaChangeLanguage1: TGlottaChangeLanguage;
   end;
 end.
)");
    Put("Main.dfm", R"( object Form1: TForm1
   object Actions: TActionList
     Left = 8
     Top = 8
     object Open: TAction
     end
+    object GlottaChangeLanguage1: TGlottaChangeLanguage
+      Category = 'Glotta'
+    end
   end
 end
)");
    PlainFormEditor& form = Open("Shop.dpr", "Main.pas");
    ScriptedUi ui;
    RegisterIdeEditors(ide_.Design(), ui);
    const auto editor = ide_.Design().ComponentEditorOf(*form.Tree().Root().FindComponent("Actions"), form.Designer());
    EXPECT_EQ(editor->GetVerbCount(), 0) << "no package has actions";
    const int group = ide_.Design().NewEditorGroup();
    ide_.Design().RegisterActions("Glotta", {"TGlottaChangeLanguage"}, {});
    TMenuItem item(editor->GetVerb(0));
    editor->PrepareItem(0, item);
    EXPECT_EQ(item.Caption() + ">" + item[0].Caption() + ">" + item[0][0].Caption(),
              "New Standard Action>Glotta>TGlottaChangeLanguage");
    form.EditStep([&] { item[0][0].Click(); });
    EXPECT_EQ(form.Designer().SelectedComponent()->Name(), "GlottaChangeLanguage1");
    ExpectStep(form);
    ide_.Design().FreeEditorGroup(group);
    EXPECT_EQ(editor->GetVerbCount(), 0);
}
