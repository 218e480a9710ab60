#include "ide/UnitSourceEditing.h"
#include "ide/UnitEdits.h"
#include "runtime/CustomLang.h"
#include "support/DiffText.h"
#include "support/FakeIde.h"

namespace glotta {
namespace {

// A form whose designer creates methods in the unit's text, as a host does.
class EditedForm : public FakeForm {
public:
    EditedForm(FakeModule& module, const std::string& dfm, const std::string& base)
        : FakeForm(module, dfm, base), source_(*module.source) {}
    std::string CreateMethod(const std::string& name, const MethodType& type) override {
        const std::string declared = pascal::FindMethod(source_.text, Root().ClassName(), name);
        if (!declared.empty()) return declared;
        source_.text = ApplyEdits(
            source_.text, pascal::AddMethod(source_.text, Root().ClassName(), name, type.pascalParameters));
        return name;
    }

private:
    FakeSource& source_;
};

// The bindings of the form and its components after two runs of the three operations; the unit must be as told.
std::string Insert(const std::string& dfm, const std::string& base, std::string_view marked) {
    RegisterGlottaClasses();
    const DiffText diff(marked);
    FakeIde ide;
    FakeProject project("/p/App.dpr", "App");
    ide.open.push_back(&project);
    FakeModule& module = ide.OpenForm("/p/Unit1.pas", "Form1", dfm, base);
    module.source->text = diff.before;
    module.form = std::make_unique<EditedForm>(module, dfm, base);
    for (int run = 0; run < 2; ++run) {
        InsertFormEvent(ide.services, "Form1", "FormCreate", false);
        InsertGlottaEvent(ide.services, "Form1", "ChangeLanguage", false);
        InsertFormMethod(ide.services, "Form1", "UpdateStrings", false);
        EXPECT_EQ(module.source->text, diff.after) << "run " << run;
    }
    TComponent& root = module.form->Root();
    std::string told = root.GetMethodProp("OnCreate");
    for (const TComponent* component : root.Components())
        told += " " + component->Name() + ":" + component->GetMethodProp("OnChangeLanguage");
    return told;
}

TEST(UnitSourceEditing, HooksNewHandlersOnce) {
    EXPECT_EQ(Insert("object Form1: TForm1\r\n  object glotta1: TGlotta\r\n  end\r\n  object glotta2: TGlotta\r\n"
                     "  end\r\nend\r\n",
                     "TForm", R"(
 unit Unit1;
 interface
 type
   TForm1 = class(TForm)
+    procedure FormCreate(Sender: TObject);
+    procedure glotta1ChangeLanguage(Sender: TObject);
+    procedure UpdateStrings;
   end;
 implementation

+procedure TForm1.FormCreate(Sender: TObject);
+begin
+
+end;
+
+procedure TForm1.glotta1ChangeLanguage(Sender: TObject);
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
)"),
              "FormCreate glotta1:glotta1ChangeLanguage glotta2:");
}

TEST(UnitSourceEditing, ANewHandlerCallsTheFormerOne) {
    // The base is a form class that only its own unit knows.
    EXPECT_EQ(Insert("object Form1: TForm1\r\n  OnCreate = Created\r\n  object glotta1: TGlotta\r\n"
                     "    OnChangeLanguage = Changed\r\n  end\r\nend\r\n",
                     "TBaseForm", R"(
 unit Unit1;
 interface
 type
   TForm1 = class(TBaseForm)
     procedure Created(Sender: TObject);
     procedure FormCreate(ASender: TObject);
     procedure Changed(Sender: TObject);
+    procedure glotta1ChangeLanguage(Sender: TObject);
+    procedure UpdateStrings;
   end;
 implementation
 procedure TForm1.Created(Sender: TObject);
 begin
 end;
 procedure TForm1.FormCreate(ASender: TObject);
 begin // not hooked so far
+  Created(ASender);
 end;
 procedure TForm1.Changed(Sender: TObject);
 begin
   glotta1ChangeLanguage(nil);
 end;

+procedure TForm1.glotta1ChangeLanguage(Sender: TObject);
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
)"),
              "FormCreate glotta1:glotta1ChangeLanguage");
}

TEST(UnitSourceEditing, DataModulesAndFramesDiffer) {
    EXPECT_EQ(Insert("object Form1: TForm1\r\n  OnCreate = DataModuleCreate\r\nend\r\n", "TDataModule", R"(
 unit Unit1;
 interface
 type
   TForm1 = class(TDataModule)
     procedure DataModuleCreate(Sender: TObject);
+    procedure UpdateStrings;
   end;
 implementation
 procedure TForm1.DataModuleCreate(Sender: TObject);
 begin
 end;

+procedure TForm1.UpdateStrings;
+begin
+
+end;
+
 end.
)"),
              "DataModuleCreate");
    EXPECT_EQ(Insert("object Form1: TForm1\r\nend\r\n", "TFrame", R"(
 unit Unit1;
 interface
 type
   TForm1 = class(TFrame)
+    procedure UpdateStrings;
   end;
 implementation

+procedure TForm1.UpdateStrings;
+begin
+
+end;
+
 end.
)"),
              "");
}

} // namespace
} // namespace glotta
