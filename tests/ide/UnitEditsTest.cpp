#include "ide/UnitEdits.h"
#include "platform/Error.h"
#include "support/DiffText.h"

namespace glotta {
namespace {

// One operation on the class TForm1: "field Glotta1 TGlotta", "method Foo A: B", "uses Unit2" ...
TextEdits Edit(std::string_view text, std::string_view command) {
    const auto word = [&] {
        const std::size_t end = std::min(command.find(' '), command.size());
        const std::string_view result = command.substr(0, end);
        command.remove_prefix(std::min(end + 1, command.size()));
        return result;
    };
    const std::string_view verb = word(), name = word();
    if (verb == "field") return pascal::AddField(text, "tform1", name, command);
    if (verb == "method") return pascal::AddMethod(text, "tform1", name, command);
    if (verb == "uses") return pascal::AddImplementationUses(text, name);
    if (verb == "interface-uses") return pascal::AddInterfaceUses(text, name);
    if (verb == "rename") return pascal::RemoveOrRenameField(text, "TForm1", name, command);
    if (verb == "member") return cpp::AddMember(text, "TForm1", name, command);
    if (verb == "declaration") return cpp::AddMethodDeclaration(text, "TForm1", name, command);
    if (verb == "body") return cpp::AddMethodBody(text, "TForm1", name, command);
    return cpp::AddInclude(text, name, verb == "include<>");
}

std::string RunAll(std::string text, std::string_view commands) {
    while (!commands.empty()) {
        const std::size_t end = std::min(commands.find('|'), commands.size());
        text = ApplyEdits(text, Edit(text, commands.substr(0, end)));
        commands.remove_prefix(std::min(end + 1, commands.size()));
    }
    return text;
}

// The commands make of the text what it says, and nothing more when they are repeated.
void Expect(std::string_view commands, std::string_view marked) {
    const DiffText diff(marked);
    EXPECT_EQ(RunAll(diff.before, commands), diff.after) << commands;
    EXPECT_EQ(RunAll(diff.after, commands), diff.after) << "again: " << commands;
}

TEST(UnitEdits, AddToAnOrdinaryUnit) {
    Expect("field Glotta1 TGlotta|method FormCreate Sender: TObject|method UpdateStrings|"
           "interface-uses Glotta|uses Main|uses Unit1|uses windows", R"(
 unit Unit1;

 interface

 uses
-  Windows, Forms;
+  Windows, Forms, Glotta;

 type
   TForm1 = class;
   TForm1Class = class of TForm1;
   TOther = class(TForm) FormCreate: Integer; procedure UpdateStrings; end;

   TForm1 = class(TForm, IFoo) { the form }
     Button1: TButton;
     Private: TEdit; // a field
+    Glotta1: TGlotta;
     procedure Button1Click(Sender: TObject);
     procedure Wrapped(Sender: TObject;
       var Key: Word); message 5; // keys
+    procedure FormCreate(Sender: TObject);
+    procedure UpdateStrings;
   private
     FormCreated: Boolean;
   public
     class function UpdateStrings2: TList<TFoo>;
   end;

 implementation

+uses
+  Main;
+
 {$R *.dfm}

 procedure TForm1.Button1Click(Sender: TObject);
 begin
   case 1 of 1: begin end; end;
 end;

+procedure TForm1.FormCreate(Sender: TObject);
+begin
+
+end;
+
+procedure TForm1.UpdateStrings;
+begin
+
+end;
+
 end.
)");
}

TEST(UnitEdits, StayOutOfConditionalCode) {
    Expect("interface-uses Glotta|uses Main|field Glotta1 TGlotta|method UpdateStrings", R"(
 unit Unit1;
 interface
 uses
-  Windows, {$IFDEF CLX} QForms {$ELSE} Forms {$ENDIF};
+  Windows, Glotta, {$IFDEF CLX} QForms {$ELSE} Forms {$ENDIF};
 type
 {$IFDEF CLX}
   TForm1 = class(TQForm)
 {$ELSE}
   TForm1 = class(TForm)
 {$ENDIF}
+    Glotta1: TGlotta;
 {$IFDEF EXTRA}
     Extra1: TExtra;
     procedure ExtraClick(Sender: TObject);
 {$ENDIF}
+    procedure UpdateStrings;
   end;
 implementation
 {$IFDEF EXTRA}
 uses
-  Extra;
+  Extra, Main;
+{$ELSE}
+uses
+  Main;
 {$ENDIF}
 procedure TForm1.ExtraClick(Sender: TObject);
 begin
   {$IFDEF A} if A then begin {$ELSE} if B then begin {$ENDIF}
   end;
 end;

+procedure TForm1.UpdateStrings;
+begin
+
+end;
+
 {$IFDEF EXTRA}
 initialization
 {$ENDIF}
 end.
)");
    Expect("uses Main", R"(
 unit Unit1;
 interface
 implementation
 {$IFDEF A}
-uses X {$IFDEF B}, Y {$ENDIF};
+uses X, Main {$IFDEF B}, Y {$ENDIF};
 {$ELSE}
-uses
-  Z,
-  Sub.Unit2;
+uses
+  Z,
+  Sub.Unit2,
+  Main;
 {$ENDIF}
 end.
)");
}

TEST(UnitEdits, UsesClausesOfEveryKind) {
    Expect("uses Main", R"(
 program Project1;
 uses
   Forms,
-  Unit1 in 'Unit1.pas' {Form1};
+  Unit1 in 'Unit1.pas' {Form1},
+  Main;
 begin
 end.
)");
    Expect("interface-uses Vcl.Glotta|interface-uses Forms|uses Glotta", R"(
 unit My.Unit1;
 interface
 uses
   Winapi.Windows, Winapi.Messages, System.SysUtils, System.Variants, Vcl.Forms,
-  System.Classes, Vcl.Graphics, Vcl.Controls, Vcl.Dialogs, Vcl.StdCtrls, Vcl.Menus;
+  System.Classes, Vcl.Graphics, Vcl.Controls, Vcl.Dialogs, Vcl.StdCtrls, Vcl.Menus,
+  Vcl.Glotta;
 implementation
-uses Glotta;
-
 type A = class end;
 end.
)");
    Expect("interface-uses Glotta", R"(
 unit Unit1; interface
+
+uses
+  Glotta;
 // nothing is used
 implementation
-uses A, { the } Glotta, B;
+uses A, { the } B;
 end.
)");
}

TEST(UnitEdits, ClassesOfEveryShape) {
    Expect("field Glotta1 TGlotta|method UpdateStrings", R"(
 program Project1;
 uses Forms;
 type
   TForm2 = class abstract(TForm)
   type
     TForm1 = class procedure UpdateStrings; end;
   end;
   THelper = class helper for TForm1
     procedure UpdateStrings;
   end;
   TRec = record case Integer of 0: (A: record B: Integer; end); end;
   TEvent = procedure(A: Integer) of object;
   TBox<T: class, constructor> = class(TList<T>) end;
-  TFORM1 = class(Forms.TForm);
+  TFORM1 = class(Forms.TForm)
+    Glotta1: TGlotta;
+    procedure UpdateStrings;
+  end;
 procedure Local;
   procedure Inner; begin end;
 begin
 end;
 procedure Elsewhere; external 'a.dll';

+procedure TFORM1.UpdateStrings;
+begin
+
+end;
+
 begin
   Local;
 end.
)");
    Expect("method GLOTTA2|field glotta1 TGlotta", R"(
 unit Unit1;
 interface
 type
   TForm1 = class(TForm)
     {$IFDEF A} A, Glotta1: TGlotta; {$ENDIF}
   {$IFNDEF A}
     procedure Glotta2;
   {$ENDIF}
   end;
 implementation
 end.
)");
    Expect("rename A|rename E F|rename B X", R"(
 unit Unit1;
 interface
 type
   TForm1 = class(TForm)
-    A: TA;
-    B, C: TB; E: TE;
+    X, C: TB; F: TE;
   end;
 implementation
 end.
)");
}

TEST(UnitEdits, CppHeaderAndSource) {
    Expect("include<> Glotta.hpp|include StdCtrls.hpp|member Glotta1 TGlotta|declaration FormCreate TObject *Sender|"
           "declaration UpdateStrings", R"(
 // the form
 #ifndef Unit1H
 #define Unit1H
 //---------------------------------------------------------------------------
 #include <StdCtrls.hpp>
 #include <Forms.hpp> // forms
+#include <Glotta.hpp>
 #ifdef EXTRA
 #include <Extra.hpp>
 #endif
 class TForm1;
 class TOther : public TForm { __published: void __fastcall FormCreate(TObject *Sender); };
 template <class TForm1> struct Box;
 //---------------------------------------------------------------------------
 class PACKAGE TForm1 : public Forms::TForm
 {
 __published:	// IDE-managed Components
 	TButton *Button1;
+	TGlotta *Glotta1;
 	void __fastcall Button1Click(TObject *Sender);
 	void __fastcall Wrapped(TObject *Sender,
 	  WORD &Key);
+	void __fastcall FormCreate(TObject *Sender);
+	void __fastcall UpdateStrings();
 private:	// User declarations
 	int formcreate; // not FormCreate
 public:		// User declarations
 	__fastcall TForm1(TComponent* Owner);
 };
 #endif
)");
    Expect("body FormCreate TObject *Sender|body UpdateStrings|include Unit2.h|include sub/UNIT1.h", R"(
 #include <vcl.h>
 #pragma hdrstop

 #include "Unit1.h"
+#include "Unit2.h"
 //---------------------------------------------------------------------------
 #pragma package(smart_init)
 #pragma resource "*.dfm"
 TForm1 *Form1;
 //---------------------------------------------------------------------------
 __fastcall TForm1::TForm1(TComponent* Owner) : TForm(Owner)
 {
   Call("TForm1::UpdateStrings() {"); // TForm1::UpdateStrings() { }
 }
 //---------------------------------------------------------------------------
+
+void __fastcall TForm1::FormCreate(TObject *Sender)
+{
+
+}
+//---------------------------------------------------------------------------
+
+void __fastcall TForm1::UpdateStrings()
+{
+
+}
+//---------------------------------------------------------------------------
)");
}

TEST(UnitEdits, TellWhatAUnitDeclares) {
    const std::string_view unit = "unit A.B; interface uses X.Y, Z in 'z.pas'; type TForm1 = class(Forms.TBase<T>, IFoo)\r\n"
                                  "procedure formcreate; end; T2 = class end; implementation uses W; end.";
    std::string told = pascal::UnitName(unit) + " " + pascal::ClassParent(unit, "tform1") + " " +
                       pascal::ClassParent(unit, "T2") + " " + pascal::ClassParent(unit, "T3") + " " +
                       pascal::FindMethod(unit, "TFORM1", "FormCreate") + ":";
    for (const std::string& name : pascal::UsedUnits(unit)) told += " " + name;
    const std::string_view header = "class A : public B, public C {}; class TForm1 : virtual public Forms::TForm {"
                                    "void f(); int g; };";
    told += "; " + cpp::ClassParent(header, "TForm1") + " " + cpp::FindMethod(header, "TForm1", "f") +
            cpp::FindMethod(header, "TForm1", "g") + cpp::FindMethod(header, "TForm1", "F");
    EXPECT_EQ(told, "A.B TBase TObject  formcreate: X.Y Z W; TForm f");
}

TEST(UnitEdits, FindBodiesAmidNestedRoutines) {
    const std::string_view unit =
        "unit A; interface implementation procedure TForm1.Foo(A, B: Integer; const C: string);\r\n"
        "var P: procedure; type T = record procedure X; end; procedure Inner; forward;\r\n"
        "procedure Inner; begin try finally end end; { begin }\r\n"
        "begin(* *) 'end' ; asm mov eax, 1 end; end; procedure TForm2.Bar; begin end; end.";
    const auto inside = [&](bool isCpp, std::string_view text, std::string_view name) {
        const auto body = FindMethodBody(text, isCpp, isCpp ? "TForm1" : "TFORM1", name);
        if (!body) return std::string("none");
        std::string all(text.substr(body->open, body->close - body->open));
        for (const std::string& parameter : body->parameters) all += "/" + parameter;
        return all;
    };
    EXPECT_EQ(inside(false, unit, "FOO"), "(* *) 'end' ; asm mov eax, 1 end; /A/B/C");
    EXPECT_EQ(inside(false, unit, "Bar"), "none");
    const std::string_view source = "void __fastcall TForm1::Foo(TObject *A, int &B) const { if (1) { \"}\" } }";
    EXPECT_EQ(inside(true, source, "Foo"), " if (1) { \"}\" } /A/B");
    EXPECT_EQ(inside(true, source, "foo"), "none");
}

TEST(UnitEdits, SayWhatIsMissing) {
    const std::string_view unit = "unit A; interface type TForm1 = class(TForm) end;";
    for (const char* command : {"field A B", "method A", "uses B"})
        try {
            Edit(std::string_view(command) == "field A B" ? "unit A; interface implementation end." : unit, command);
            ADD_FAILURE() << command;
        } catch (const Error& error) {
            EXPECT_NE(std::string(error.what()), "");
        }
    // Whatever the bytes are, there is an answer.
    for (std::string_view text : {"", "= class", "class(", "unit", "uses", "{$ELSE}{$ENDIF}end.", "type TForm1 = class(",
                                  "type TForm1 = class procedure", "interface implementation procedure (",
                                  "class TForm1 : {", "class TForm1 {", "#include", "#", "#ifndef\n#define", "}}}"})
        for (const char* command : {"field A B", "method A", "uses B", "interface-uses B", "rename A", "member A B",
                                    "declaration A", "body A", "include A"})
            try {
                ApplyEdits(text, Edit(text, command));
            } catch (const Error&) {
            }
}

} // namespace
} // namespace glotta
