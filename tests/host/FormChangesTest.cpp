// Names that change on a form, and steps that go back and come again.
#include "host/FormChanges.h"

#include "platform/Error.h"

using namespace glotta;

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
