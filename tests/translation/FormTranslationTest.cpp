#include "translation/FormTranslation.h"

#include "host/PlainIde.h"
#include "platform/Error.h"
#include "platform/Text.h"
#include "support/FakeIde.h"
#include "support/ScriptedUi.h"
#include "support/TempFolder.h"
#include "translation/ConfigureLanguages.h"

namespace glotta {
namespace {

// A project of the forms Form1, Form2 ..., each with the given components.
struct Desk {
    explicit Desk(const std::vector<std::string>& components, const std::string& glottaForm = {}) {
        RegisterGlottaClasses();
        std::string uses;
        for (std::size_t i = 0; i < components.size(); ++i) {
            const std::string n = std::to_string(i + 1);
            const std::string fields =
                "    Glotta1: TGlotta;\r\n    Glotta2: TGlotta;\r\n    Disp1: TGlottaDispatcher;\r\n";
            folder.Put("Unit" + n + ".pas",
                       "unit Unit" + n + ";\r\n\r\ninterface\r\n\r\nuses\r\n  Forms, Glotta;\r\n\r\n" +
                           "type\r\n  TForm" + n + " = class(TForm)\r\n" +
                           (components[i].empty() ? "" : fields) + "  end;\r\n\r\nvar\r\n  Form" + n +
                           ": TForm" + n + ";\r\n\r\nimplementation\r\n\r\n{$R *.dfm}\r\n\r\nend.\r\n");
            folder.Put("Unit" + n + ".dfm",
                       "object Form" + n + ": TForm" + n + "\r\n" + components[i] + "end\r\n");
            uses += ",\r\n  Unit" + n + " in 'Unit" + n + ".pas' {Form" + n + "}";
        }
        ide.OpenProject(
            folder.Put("App.dpr", "program App;\r\n\r\nuses\r\n  Forms" + uses + ";\r\n\r\nbegin\r\nend.\r\n")
                .string());
        std::vector<std::string> errors;
        forms = ListProjectForms(*services.GetActiveProject(), errors);
        EXPECT_EQ(JoinLines(errors), "");
        for (FormsListItem& item : forms.items)
            item.selected = item.formName == glottaForm || glottaForm == "all";
    }

    FormsListItem& Item(int number) { return forms.items[std::size_t(number) - 1]; }
    // "2 TGlotta 1 open modified" of a form, and its component's languages.
    std::string State(int number) {
        const FormsListItem& item = Item(number);
        const bool open = services.IsFileOpen(item.fileName);
        std::string state = item.languages + " " + item.glotta + " " + std::to_string(item.imageIndex);
        if (open) state += services.GetModuleFromFileName(item.fileName)->Modified() ? " modified" : " open";
        if (const TgxCustomLang* glotta = translation.GetGlotta(item.formName))
            state += " " + glotta->Name() + ":" + std::to_string(glotta->NumberOfLanguages()) + ":" +
                     JoinLines(glotta->LangNames(), ",") + ":" + glotta->Language();
        return state;
    }

    TempFolder folder;
    PlainIde ide;
    FormsList forms;
    ScriptedUi ui;
    IdeServices services{ide.Services(), forms, ui};
    SettingsValues settings;
    FormTranslation translation{services, settings};
};

const std::string OneGlotta =
    "  object Glotta1: TGlotta\r\n    NumberOfLanguages = 3\r\n    LangNames.Strings = (\r\n"
    "      'A'\r\n      'B'\r\n      'C')\r\n  end\r\n";

TEST(FormTranslation, ANewComponentGetsTheDefaultLanguages) {
    const auto inserted = [](const char* names, int count) {
        Desk desk({"", OneGlotta}, "all");
        desk.settings.DefaultLangNames = names;
        desk.settings.NumLang = count;
        desk.translation.InsertTGlotta(desk.Item(1));
        const std::string first = desk.State(1);
        desk.translation.InsertTGlotta(desk.Item(1)); // has one now
        EXPECT_EQ(desk.State(1), first);
        EXPECT_EQ(desk.Item(2).languages, "3"); // selected too, yet none of its business
        EXPECT_FALSE(desk.services.IsFileOpen(desk.Item(2).fileName));
        return first;
    };
    EXPECT_EQ(inserted("English\r\nGerman\r\nFrench\r\nCzech\r\nDutch", 2),
              "2 TGlotta 1 modified Glotta1:2:English,German:English");
    EXPECT_EQ(inserted("English", 3),
              "3 TGlotta 1 modified Glotta1:3:English,Language N2,Language N3:English");
}

TEST(FormTranslation, AStaleEntryIsBroughtUpToDate) {
    Desk desk({OneGlotta});
    desk.Item(1).languages = "0";
    desk.Item(1).imageIndex = 0;
    int refreshed = 0;
    desk.translation.UpdateStatusBar = [&] { ++refreshed; };
    desk.translation.InsertTGlotta(desk.Item(1));
    EXPECT_EQ(desk.State(1), "3 TGlotta 1 open Glotta1:3:A,B,C:A");
    EXPECT_EQ(refreshed, 1);
}

TEST(FormTranslation, AComponentThatCannotBeInsertedIsReportedAndLeavesTheEntry) {
    Desk desk({""});
    desk.settings.DefaultComp = "TNowhere";
    desk.ui.Message(
        "Unable to insert TNowhere component! Error message:\r\nClass TNowhere not found\r\nPlease make "
        "sure the active project is a VCL application. If you have installed both CLX and VCL version "
        "please repeat your last action once again.");
    desk.translation.InsertTGlotta(desk.Item(1));
    EXPECT_TRUE(desk.ui.Transcript().starts_with("Error [TGlotta Expert (VCL Edition)]: Unable to insert "));
    EXPECT_EQ(desk.State(1), "0  0 open");

    desk.Item(1).fileName += "x";
    EXPECT_THROW(desk.translation.InsertTGlotta(desk.Item(1)), EGlottaSilent);
    EXPECT_THROW(desk.translation.InsertComponentOnForm("Form1", "TGlotta"), EGlottaSilent);
    EXPECT_THROW(desk.translation.ConfigureLangComponent(2, desk.Item(1), {}, {}, "TgxCustomLang", false),
                 EGlottaSilent);
}

TEST(FormTranslation, OnlyAFormThatWasClosedIsSavedAndClosedAgain) {
    const auto configured = [](bool open, std::string_view name) {
        Desk desk({OneGlotta});
        if (open) desk.services.OpenFile(desk.Item(1).fileName, false);
        desk.translation.ConfigureLangComponent(2, desk.Item(1), {"X", "Y", "Z"}, name, "TgxCustomLang",
                                                false);
        const bool stayed = desk.services.IsFileOpen(desk.Item(1).fileName);
        const bool saved = ReadFile(desk.folder / "Unit1.dfm").find("'Y'") != std::string::npos;
        return (stayed ? "open " : "closed ") + std::string(saved ? "saved " : "unsaved ") + desk.State(1);
    };
    EXPECT_EQ(configured(false, ""), "closed saved 2 TGlotta 1 Glotta1:2:X,Y:X");
    EXPECT_EQ(configured(true, "GLOTTA1"), "open unsaved 2 TGlotta 1 modified Glotta1:2:X,Y:X");
    EXPECT_EQ(configured(false, "other"), "closed unsaved 3 TGlotta 1 Glotta1:3:A,B,C:A");
}

TEST(FormTranslation, SetUpLangTakesTheEntryAndTheSelectedOnesBehindIt) {
    Desk desk({OneGlotta, OneGlotta, OneGlotta, ""}, "all");
    desk.Item(3).selected = false;
    desk.Item(1).selected = false;
    desk.translation.SetUpLang(1, desk.Item(2), {"X"}, "TgxCustomLang", true);
    EXPECT_EQ(desk.State(1), "3 TGlotta 1 Glotta1:3:A,B,C:A");
    EXPECT_EQ(desk.State(2), "1 TGlotta 1 Glotta1:1:X:X");
    EXPECT_EQ(desk.State(3), "3 TGlotta 1 Glotta1:3:A,B,C:A");
    EXPECT_EQ(desk.State(4), "1 TGlotta 1 modified Glotta1:1:X:X"); // inserted first
    EXPECT_TRUE(desk.forms.Selected().empty());
}

TEST(FormTranslation, TranslateOpensTheEditorOnEachSelectedForm) {
    const std::string two = OneGlotta + "  object Glotta2: TGlotta\r\n  end\r\n";
    Desk desk({OneGlotta, two, "", OneGlotta}, "all");
    desk.Item(4).selected = false;
    desk.translation.sbCaptionsClick(); // no editor yet: nothing happens
    EXPECT_EQ(desk.Item(3).languages, "0");

    std::string edited;
    desk.translation.TransEditorDlg = [&](TgxCustomLang& glotta) {
        edited += glotta.Owner()->Name() + " ";
        return glotta.Owner()->Name() == "Form3";
    };
    desk.ui.Message("Only one TgxCustomLang");
    desk.translation.sbCaptionsClick();
    EXPECT_EQ(edited, "Form1 Form3 ");
    EXPECT_EQ(desk.ui.Transcript(), "Progress: Opening forms...\nMessage: Only one TgxCustomLang -> OK\nProgress ends\n");
    EXPECT_FALSE(desk.services.GetModuleFromFileName(desk.Item(1).fileName)->Modified());
    EXPECT_TRUE(desk.services.GetModuleFromFileName(desk.Item(3).fileName)->Modified());
}

TEST(FormTranslation, RunsOverManyFormsStopBetweenTwo) {
    Desk desk({OneGlotta, OneGlotta, OneGlotta}, "all");
    int edited = 0;
    desk.translation.TransEditorDlg = [&](TgxCustomLang&) {
        if (++edited == 2) desk.ui.Cancel("Opening forms...");
        return true;
    };
    desk.translation.sbCaptionsClick();
    EXPECT_EQ(edited, 2);
    desk.ui.Cancel("Opening forms...");
    desk.translation.SetUpLang(5, desk.Item(1), {}, "TgxCustomLang", true);
    EXPECT_EQ(desk.Item(1).languages + desk.Item(2).languages, "33") << "nothing at all";
}

TEST(FormTranslation, AFormWithoutDesignerCannotBeTranslated) {
    FakeIde ide;
    FakeProject project("/p/App.dpr", "App");
    ide.open.push_back(&project);
    ide.Open("/p/Unit1.pas", "Form1");
    FormsListItem item;
    item.formName = "Form1";
    item.fileName = "/p/Unit1.pas";
    item.languages = "2";
    item.selected = true;
    ide.forms.items = {item};
    ScriptedUi ui;
    IdeServices services(BorlandIDEServices{ide, ide}, ide.forms, ui);
    const SettingsValues settings;
    FormTranslation translation(services, settings);
    translation.TransEditorDlg = [](TgxCustomLang&) { return true; };
    ui.Message("Nil designer");
    translation.sbCaptionsClick();
    EXPECT_EQ(ui.Transcript(), "Message: Nil designer -> OK\n");
}

TEST(FormTranslation, LanguagesEditsTheComponentOrItsDispatcher) {
    const std::string linked =
        "  object Glotta1: TGlotta\r\n    LangDispatcher = Form2.Disp1\r\n    NumberOfLanguages = "
        "2\r\n    LangNames.Strings = (\r\n      'A')\r\n  end\r\n";
    const std::string dispatcher = "  object Disp1: TGlottaDispatcher\r\n    NumberOfLanguages = 2\r\n    "
                                   "LangNames.Strings = (\r\n      'D'\r\n      'E')\r\n  end\r\n";
    const std::string question =
        "Selected component is linked to a dispatcher! Do you wish to edit languages of the "
        "dispatcher component?";
    const auto edit = [&](std::optional<ModalResult> answer, const std::string& onForm2) {
        Desk desk({answer ? linked : "", onForm2}, "Form1");
        desk.settings.DefaultLangNames = "English";
        if (answer) desk.ui.Message(question, *answer);
        if (answer == ModalResult::Yes && onForm2 != dispatcher) {
            desk.ui.Message("Lang error: Form2.Disp1 is not a dispatcher");
        } else {
            desk.ui.Modal<TfrmConfigureLanguages>([](auto& form) {
                form.edLangCount.Enter("3");
                form.btOK.Execute();
                return ModalResult::None;
            });
        }
        desk.translation.sbLanguagesClick();
        desk.ui.Done();
        std::string names;
        for (int i = 1; i <= 2; ++i) {
            const bool wasOpen = desk.services.IsFileOpen(desk.Item(i).fileName);
            const std::string file = "Unit" + std::to_string(i) + ".dfm";
            const std::string text = ReadFile(desk.folder / file);
            names += (wasOpen ? "open " : "closed ") +
                     std::string(text.find("N3'") == std::string::npos ? "old" : "new") + "; ";
        }
        return names + desk.State(1);
    };
    EXPECT_EQ(edit(ModalResult::Yes, dispatcher),
              "closed old; closed new; 2 TGlotta 1 Glotta1:2:A,Language N2:A");
    EXPECT_EQ(edit(ModalResult::No, dispatcher),
              "closed new; closed old; 3 TGlotta 1 Glotta1:3:A,Language N2,Language N3:A");
    EXPECT_EQ(edit(ModalResult::Yes, OneGlotta),
              "closed old; closed old; 2 TGlotta 1 Glotta1:2:A,Language N2:A");
    EXPECT_EQ(edit({}, ""),
              "open old; closed old; 3 TGlotta 1 modified Glotta1:3:English,Language N2,Language N3:English");
}

} // namespace
} // namespace glotta
