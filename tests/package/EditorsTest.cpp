// The package's editors on a form: verbs, messages, values.
#include "editors/Excludededitor.h"
#include "editors/Excludepropertyeditor.h"
#include "editors/_gxcomboproped.h"
#include "host/DesignRegistry.h"
#include "host/IdeEditors.h"
#include "host/StringListEditor.h"
#include "package/Gxreg.h"
#include "platform/Error.h"
#include "platform/RegFileStore.h"
#include "runtime/GlottaCombo.h"
#include "support/DeskFakes.h"
#include "support/FakeIde.h"

namespace glotta {
namespace {

const std::string Form = R"(object Form1: TForm1
  Caption = 'Orders'
  object Button1: TButton
    Caption = 'Save'
  end
  object Button2: TButton
    Caption = 'Open'
  end
  object Glotta1: TGlotta
    NumberOfLanguages = 2
    LangNames.Strings = (
      'English'
      'German'
      'left over')
    ActiveLanguage = 2
  end
  object Linked1: TGlottaLinked
  end
  object Linked2: TGlottaLinked
  end
  object Dispatcher1: TGlottaDispatcher
    LangNames.Strings = (
      'English'
      'French')
  end
  object Combo1: TGlottaCombo
  end
end
)";
const std::string Bare = "object Form2: TForm2\r\n  object Edit1: TEdit\r\n  end\r\nend\r\n";

struct NoWizards : IOTAWizardServices {
    std::vector<std::shared_ptr<IOTAWizard>> wizards;
    void RegisterPackageWizard(std::shared_ptr<IOTAWizard> wizard) override { wizards.push_back(std::move(wizard)); }
};

struct Desk {
    TempFolder folder;
    FakeIde ide;
    ScriptedUi& ui = ide.ui;
    RegFileStore registry{folder / "settings.reg"};
    HelperLibrary helper = HelperLibrary::Absent();
    FakeLauncher launcher;
    FakeAutomation automation;
    FakeTransEditor editor;
    NoWizards wizards;
    DesignRegistry design;
    FakeForm* form = nullptr;

    Desk() {
        RegisterGlottaClasses();
        form = ide.OpenForm("/p/Unit1.pas", "Form1", Form).form.get();
        RegisterIdeEditors(design, ui);
        BorlandIDEServices services = ide.services.Ide();
        services.wizards = &wizards;
        services.design = &design;
        Gxreg::Register({services, ui, registry, helper, launcher, automation, &editor});
    }
    TComponent& Find(const char* name) { return *form->Root().FindComponent(name); }
    TgxCustomLang& Lang() { return dynamic_cast<TgxCustomLang&>(Find("Glotta1")); }
    std::unique_ptr<IComponentEditor> Editor(const char* name) { return design.ComponentEditorOf(Find(name), *form); }
    std::unique_ptr<IProperty> Property(const char* name, const char* property) {
        return design.PropertyEditorOf(Find(name), *Find(name).FindProperty(property), *form);
    }
    std::unique_ptr<ISelectionEditor> Exclude() {
        return std::move(design.SelectionEditorsOf({&Find("Button1")}, *form).at(0));
    }
    std::string Values(const char* name, const char* property) {
        return Property(name, property)->GetValue() + ": " + JoinLines(Property(name, property)->GetValues(), " ");
    }
};

// "[x] caption" of an item and of what is below it.
std::string Shown(const TMenuItem& item, const std::string& indent = {}) {
    std::string text = indent + (item.Checked() ? "[x] " : "") + item.Caption() + (item.Enabled() ? "" : " (off)") + "\n";
    for (std::size_t i = 0; i < item.Count(); ++i)
        text += Shown(item[i], indent + "  ");
    return text;
}
std::string Menu(IComponentEditor& editor) {
    std::string text;
    for (int verb = 0; verb < editor.GetVerbCount(); ++verb) {
        TMenuItem item(editor.GetVerb(verb));
        editor.PrepareItem(verb, item);
        text += Shown(item);
    }
    return text;
}

TEST(TranslationsEditor, VerbsAndWhatTheyDo) {
    Desk desk;
    const auto editor = desk.Editor("Glotta1");
    EXPECT_EQ(Menu(*editor), "Translation Editor...\nUpdate Translations\nClear Translations\nIgnore Removals\n-\n"
                             "Translate source\n  Source\n  CONST Declaration\n");
    editor->ExecuteVerb(3);
    EXPECT_NE(Menu(*editor).find("[x] Ignore Removals"), std::string::npos);
    editor->ExecuteVerb(3);
    EXPECT_FALSE(desk.Lang().IgnoreRemovals());
    EXPECT_EQ(desk.form->timesModified, 0); // a toggle is no change of the form

    editor->Edit(); // nothing changed in the dialog
    EXPECT_EQ(desk.form->timesModified, 0);
    desk.editor.changes = true;
    editor->ExecuteVerb(0);
    EXPECT_EQ(desk.editor.log, "Glotta1; Glotta1; ");
    EXPECT_EQ(desk.form->timesModified, 1);

    editor->ExecuteVerb(1);
    EXPECT_EQ(desk.Lang().Strings(stCaptions).Count(), 3u);
    EXPECT_EQ(desk.form->timesModified, 2);
    const std::string question = "This will delete all translation data stored in component! Continue?";
    desk.ui.Message(question, ModalResult::No).Message(question, ModalResult::Yes);
    editor->ExecuteVerb(2);
    EXPECT_EQ(desk.Lang().Strings(stCaptions).Count(), 3u);
    editor->ExecuteVerb(2);
    EXPECT_EQ(desk.Lang().Strings(stCaptions).Count(), 0u);
    EXPECT_EQ(desk.form->timesModified, 3);
    EXPECT_EQ(desk.ui.Transcript(), "Warning: " + question + " -> No\nWarning: " + question + " -> Yes\n");
    // The submenu is there when the expert is gone, and does nothing.
    TMenuItem item(editor->GetVerb(5));
    editor->PrepareItem(5, item);
    desk.wizards.wizards.clear();
    item[0].Click();
}

TEST(ExcludeComponent, IsEnabledForOneComponentThatIsNoLocalization) {
    Desk desk;
    const auto editor = desk.Exclude();
    std::string table;
    for (const std::vector<const char*>& names : std::vector<std::vector<const char*>>{
             {}, {"Button1"}, {"Button1", "Button2"}, {"Glotta1"}, {"Linked1"}, {"Dispatcher1"}, {"Combo1"}}) {
        IDesignerSelections selection;
        for (const char* name : names) {
            selection.push_back(&desk.Find(name));
            table += std::string(name) + " ";
        }
        TMenuItem item(editor->GetVerb(0));
        editor->PrepareItem(0, item, selection);
        table += item.Enabled() ? "yes; " : "no; ";
    }
    EXPECT_EQ(table, "no; Button1 yes; Button1 Button2 no; Glotta1 no; Linked1 no; Dispatcher1 no; Combo1 yes; ");
    std::vector<std::string> units;
    editor->RequiresUnits(units);
    EXPECT_EQ(editor->GetVerb(0) + std::to_string(units.size()), "Exclude from translation...0");
}

TEST(ExcludeComponent, AddsTheNameOrTheClassOnce) {
    Desk desk;
    const auto editor = desk.Exclude();
    const std::string question = "Click \"Yes\" to exclude Button1 from translations.\r\n"
                                 "Click \"Yes to All\" to exsclude all TButton components from translations.\r\n"
                                 "Click \"Cancel\" to cancel this action.";
    const auto exclude = [&](ModalResult answer) {
        desk.ui.Message(question, answer);
        editor->ExecuteVerb(0, {&desk.Find("Button1")});
        return JoinLines(desk.Lang().GetStrings("DoNotTranslate"), " ") + "/" + std::to_string(desk.form->timesModified);
    };
    EXPECT_EQ(exclude(ModalResult::Cancel), "/0");
    EXPECT_EQ(exclude(ModalResult::YesToAll), "!TButton/1");
    EXPECT_EQ(exclude(ModalResult::YesToAll), "!TButton/2");
    EXPECT_EQ(exclude(ModalResult::Yes), "!TButton Button1/3");
    desk.Lang().SetDoNotList({"BUTTON1"});
    EXPECT_EQ(exclude(ModalResult::Yes), "BUTTON1/4");
    editor->ExecuteVerb(0, {});
    editor->ExecuteVerb(0, {&desk.Find("Button1"), &desk.Find("Button2")});

    FakeForm& bare = *desk.ide.OpenForm("/p/Unit2.pas", "Form2", Bare).form;
    desk.ui.Message("Unable to locate TGlotta component!");
    editor->ExecuteVerb(0, {bare.Root().FindComponent("Edit1")});
    EXPECT_EQ(bare.timesModified, 0);
    EXPECT_EQ(desk.ui.Transcript().substr(0, desk.ui.Transcript().find(" -> ")),
              "Warning: " + question);
}

TEST(PropertyEditors, AttributesAndValues) {
    Desk desk;
    const auto attributes = [&](const char* name, const char* property) {
        return desk.Property(name, property)->GetAttributes();
    };
    const unsigned dialog = paMultiSelect | paReadOnly | paDialog;
    for (const char* property : {"Captions", "DoNotTranslate", "SmartExcludeProps", "ExtendedTranslations"})
        EXPECT_EQ(attributes("Glotta1", property), dialog) << property;
    EXPECT_EQ(attributes("Combo1", "LanguageInfos"), dialog);
    EXPECT_EQ(attributes("Glotta1", "Language"), unsigned(paValueList | paMultiSelect | paRevertable));
    EXPECT_EQ(desk.Property("Glotta1", "ExtendedTranslations")->GetValue(), "(TExtendedTranslations)");
    EXPECT_EQ(desk.Values("Glotta1", "Language") + "; " + desk.Values("Dispatcher1", "Language") + "; " +
                  desk.Values("Linked1", "CommonContainer"),
              "German: English German; English: English French; : Glotta1");

    desk.Property("Glotta1", "Language")->SetValue("English");
    desk.Property("Dispatcher1", "Language")->SetValue("french");
    desk.Property("Linked1", "CommonContainer")->SetValue("glotta1");
    EXPECT_EQ(desk.form->timesModified, 3);
    EXPECT_EQ(desk.Lang().ActiveLanguage(), 1);
    EXPECT_EQ(dynamic_cast<TGlottaDispatcher&>(desk.Find("Dispatcher1")).ActiveLanguage(), 2);
    EXPECT_EQ(desk.Property("Linked1", "CommonContainer")->GetValue(), "Glotta1");
    desk.Property("Linked1", "CommonContainer")->SetValue("");
    EXPECT_EQ(desk.Property("Linked1", "CommonContainer")->GetValue(), "");
    EXPECT_THROW(desk.Property("Glotta1", "Language")->SetValue("left over"), Error);
    for (const char* refused : {"Linked2", "Button1", "Nobody"})
        EXPECT_THROW(desk.Property("Linked1", "CommonContainer")->SetValue(refused), Error) << refused;
    EXPECT_EQ(desk.form->timesModified, 4);
}

TEST(PropertyEditors, EachOpensItsDialogOnItsPlace) {
    Desk desk;
    for (int kind = 0; kind < stListView_TreeView_Items; ++kind)
        desk.Property("Glotta1", std::string(StringsPropertyName(TStringsType(kind))).c_str())->Edit();
    EXPECT_EQ(desk.editor.log,
              "Glotta1 stCaptions[-1]; Glotta1 stHints[-1]; Glotta1 stDisplayLabels[-1]; Glotta1 stStrings[-1]; "
              "Glotta1 stFonts[-1]; Glotta1 stMultiLines[-1]; Glotta1 stDlgsCaptions[-1]; Glotta1 stOtherStrings[-1]; "
              "Glotta1 stLocales[-1]; Glotta1 stCharSets[-1]; Glotta1 stCollections[-1]; ");
    EXPECT_EQ(desk.form->timesModified, 0);
    desk.editor.changes = true;
    desk.Property("Glotta1", "Hints")->Edit();
    EXPECT_EQ(desk.form->timesModified, 1);
    desk.editor.changes = false;
    desk.editor.log.clear();
    desk.Property("Glotta1", "ExtendedTranslations")->Edit(); // modifies whatever the person did
    EXPECT_EQ(desk.editor.log + std::to_string(desk.form->timesModified), "Glotta1 extended; 2");

    std::string pages;
    for (const std::string_view list : ExclusionProperties) {
        desk.ui.Modal<TfrmExcludeFromTranslation>([&](TfrmExcludeFromTranslation& form) {
            pages += std::to_string(form.pcExcluded()) + " ";
            form.Model.modified = pages == "0 1 2 ";
            return form.Model.modified ? ModalResult::OK : ModalResult::Cancel;
        });
        desk.Property("Glotta1", std::string(list).c_str())->Edit();
    }
    EXPECT_EQ(pages + std::to_string(desk.form->timesModified), "0 1 2 3");
}

TEST(DispatcherEditor, ADoubleClickEditsWhatSetsTheComponentUp) {
    Desk desk;
    desk.ui.Modal<TStringsEditDlg>([](TStringsEditDlg& form) {
        EXPECT_EQ(form.Memo() + form.LineCount(), "English\r\nFrench\r\n2 lines");
        form.Memo.Enter("English\r\nFrench\r\nDutch");
        EXPECT_EQ(form.LineCount(), "3 lines");
        return ModalResult::OK;
    });
    desk.Editor("Dispatcher1")->Edit();
    EXPECT_EQ(JoinLines(desk.Find("Dispatcher1").GetStrings("LangNames"), " "), "English French Dutch");
    EXPECT_EQ(desk.form->timesModified, 1);

    const auto message = [&] {
        try {
            desk.Editor("Combo1")->Edit();
            return std::string();
        } catch (const std::exception& error) {
            return std::string(error.what());
        }
    };
    EXPECT_EQ(message(), "Please assign either Glotta or GlottaDispatcher property first!");
    EXPECT_EQ(desk.form->timesModified, 1);
    desk.Find("Combo1").Node().Set("GlottaDispatcher", FormValue::Identifier("Dispatcher1"));
    desk.ui.Modal<TfrmGlottaComboEditor>([](TfrmGlottaComboEditor&) { return ModalResult::Cancel; });
    EXPECT_EQ(message(), "");
    EXPECT_EQ(desk.form->timesModified, 2);
    EXPECT_EQ(desk.Editor("Dispatcher1")->GetVerbCount(), 0);
}

} // namespace
} // namespace glotta
