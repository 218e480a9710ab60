#include "scanner/UpdateStringsWiring.h"
#include "support/DiffText.h"

namespace glotta {
namespace {

WiringInput Input(bool isCpp = false) {
    WiringInput input;
    input.isCpp = isCpp;
    input.formName = "Form1";
    input.className = "TForm1";
    input.component = "Glotta1";
    input.reference = "Glotta1";
    input.replaceMethod = "GetTextOrDefault(";
    return input;
}

// Wires the text before, and once more the text after: that must change nothing.
void Expect(WiringInput input, std::string_view marked) {
    const DiffText diff(marked);
    input.text = diff.before;
    EXPECT_EQ(ApplyEdits(diff.before, WireUpdateStrings(input).edits), diff.after);
    input.text = diff.after;
    EXPECT_EQ(ApplyEdits(diff.after, WireUpdateStrings(input).edits), diff.after);
}

TEST(UpdateStringsWiring, OfFreshHandlers) {
    WiringInput input = Input();
    input.assignments = {{"Foo", "strFoo"}, {"Unit2.Bar", "strBar"}};
    Expect(input, R"(
 unit Unit1;
 interface
 implementation
 procedure TForm1.FormCreate(Sender: TObject);
 begin
+  UpdateStrings;

 end;

 procedure TForm1.Glotta1ChangeLanguage(Sender: TObject);
 begin

+  UpdateStrings;
 end;

 procedure TForm1.UpdateStrings;
 begin
-
+  Foo := Glotta1.GetTextOrDefault('strFoo');
+  Unit2.Bar := Glotta1.GetTextOrDefault('strBar');
 end;

 end.
)");
}

TEST(UpdateStringsWiring, OfHandlersWithNestedCodeAndOtherNames) {
    WiringInput input = Input();
    input.className = "TMain";
    input.creationHandler = "Created";
    input.languageHandler = "LangChanged";
    input.assignments = {{"A", "strA"}, {"B", "strB2"}, {"C", "strC"}, {"d", "strD"}};
    Expect(input, R"(
 unit Unit1;
 interface
 implementation
 { procedure TMain.FormCreate(Sender: TObject);
 begin }
 procedure TMain.Created(Sender: TObject);
   procedure Inner;
 begin
   // UpdateStrings;
 end;
 begin // starts
+  UpdateStrings;
   Inner;
 end;

 procedure TMain.LangChanged(Sender: TObject);
 begin
   if A then
   begin
     B;
 end;
-  if C then
+  if C then;
+  UpdateStrings;
 end;

 procedure TMain.UpdateStrings;
 begin
   a := Glotta1.GetTextOrDefault('strA');
-  B := Old.GetText('strB');
-  C := 'mine'
+  B := Glotta1.GetTextOrDefault('strB2');
+  C := 'mine';
+  d := Glotta1.GetTextOrDefault('strD');
 end;
 end.
)");
}

TEST(UpdateStringsWiring, OfADataModuleAndOfWhatIsMissing) {
    WiringInput input = Input();
    input.dataModule = true;
    Expect(input, R"(
 unit Unit1;
 interface
 implementation
 procedure TForm1.DataModuleCreate(Sender: TObject);
-begin Foo end;
+begin
+  UpdateStrings;
+Foo end;
 procedure TForm1.FormCreate; begin end;
 end.
)");
    input.text = "unit A; interface implementation procedure TForm1.FormCreate; begin end; end.";
    const Wiring wiring = WireUpdateStrings(input);
    EXPECT_EQ(wiring.creation || wiring.language || wiring.updateStrings || !wiring.edits.empty(), false);
}

TEST(UpdateStringsWiring, OfCpp) {
    WiringInput input = Input(true);
    input.assignments = {{"Foo", "strFoo"}};
    Expect(input, R"(
 void __fastcall TForm1::FormCreate(TObject *Sender)
 {
+  UpdateStrings();
   if (a) { b(); }
 }
 void __fastcall TForm1::Glotta1ChangeLanguage(
     TObject *Sender)
 {
+  UpdateStrings();
 }
 void __fastcall TForm1::UpdateStrings()
 {
+  Foo = Glotta1->GetTextOrDefault("strFoo");
 }
)");
}

TEST(UpdateStringsWiring, QualifiesWhatTheFormHides) {
    const std::string_view unit = "unit U; interface type TForm1 = class(TForm) Title: TLabel; end; implementation end.";
    std::string targets;
    for (const char* name : {"Foo", "title", "Caption"}) targets += AssignmentTarget(unit, "TForm1", name, "U") + " ";
    EXPECT_EQ(targets, "Foo U.title U.Caption ");
}

} // namespace
} // namespace glotta
