// What a designer puts on a form, and the editors of the IDE itself.
#include "host/FormChanges.h"

#include "host/IdeEditors.h"
#include "ide/DesignEditors.h"
#include "platform/Error.h"
#include "support/ScriptedUi.h"

using namespace glotta;

namespace {

// Asks for a unit, as editors of packages do.
struct NeedsUnits : TSelectionEditor {
    using TSelectionEditor::TSelectionEditor;
    void RequiresUnits(std::vector<std::string>& units) const override { units.insert(units.end(), {"gxNeeds", "Forms"}); }
};
TSelectionEditorClass NeedsUnitsClass() {
    return {"NeedsUnits", [](DesignPlace place) { return std::make_unique<NeedsUnits>(place); }};
}

using NewComponents = FormChanges;

} // namespace

// A control goes into what is selected or what holds that, in front of windows when it has none; the unit gets the
// field and all units that are needed, in one step.
TEST_F(NewComponents, ANewComponentGetsWhatADesignerGives) {
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

TEST_F(NewComponents, ADataModuleTakesNoControls) {
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

TEST_F(NewComponents, ReferencesReachOtherForms) {
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

TEST_F(NewComponents, RegisteredActionsAreMadeInActionLists) {
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
