// The translation wizard over a small project: what it says, what it does, and what it leaves alone.
#include "editors/Translationwizard.h"
#include "editors/WizardMemo.h"
#include "host/PlainIde.h"
#include "platform/Text.h"
#include "support/ScriptedUi.h"
#include "support/TempFolder.h"
#include "translation/ConfigureLanguages.h"

namespace glotta {
namespace {

// The forms Data1, Form2, Form3 ..., each with the given components.
struct WizardDesk {
    explicit WizardDesk(const std::vector<std::string>& components) {
        RegisterGlottaClasses();
        std::string uses;
        for (std::size_t i = 0; i < components.size(); ++i) {
            const std::string n = std::to_string(i + 1), form = (i == 0 ? "Data" : "Form") + n;
            folder.Put(
                "Unit" + n + ".pas",
                "unit Unit" + n + ";\r\n\r\ninterface\r\n\r\nuses\r\n  Forms;\r\n\r\ntype\r\n  T" + form +
                    " = class(TForm)\r\n  end;\r\n\r\nimplementation\r\n\r\n{$R *.dfm}\r\n\r\nend.\r\n");
            folder.Put("Unit" + n + ".dfm",
                       "object " + form + ": T" + form + "\r\n" + components[i] + "end\r\n");
            uses += ",\r\n  Unit" + n + " in 'Unit" + n + ".pas' {" + form + "}";
        }
        ide.OpenProject(PathText(folder.Put("App.dpr", "program App;\r\n\r\nuses\r\n  Forms" + uses +
                                                           ";\r\n\r\nbegin\r\nend.\r\n")));
        std::vector<std::string> errors;
        forms = ListProjectForms(*services.GetActiveProject(), errors);
        settings.DefaultLangNames = "English\r\nGerman";
    }

    // Selects the forms and opens the wizard on them.
    TfrmTranslationWizard& Wizard(const std::string& selected) {
        for (FormsListItem& item : forms.items)
            item.selected = (" " + selected + " ").find(" " + item.formName + " ") != std::string::npos;
        wizard = std::make_unique<TfrmTranslationWizard>(
            TfrmTranslationWizard::Context{services, translation, settings, {}, {}, [this] { ++refreshes; }});
        return *wizard;
    }
    void Choose(TField<std::string>& field, const std::string& value) { field.Enter(value); }
    void Insert(std::size_t row, const std::string& componentClass) {
        wizard->lvSelectedForms.SelectOnly(int(row));
        Choose(wizard->cbGlottaToInsert, componentClass);
    }
    void Next(int times) {
        for (int i = 0; i < times; ++i)
            wizard->btnNext.Execute();
    }
    std::string File(const std::string& number) const {
        return ReadFile(folder / ("Unit" + number + ".dfm"));
    }
    // From now on another program writes to the form whenever its unit is opened here: it cannot be saved.
    void Disturb(const std::string& number) {
        struct Disturber : IOTAIDENotifier {
            std::filesystem::path unit;
            void FileNotification(TOTAFileNotification code, const std::string& fileName, bool&) override {
                if (code != ofnFileOpened || !SameFileName(fileName, PathText(unit))) return;
                auto form = unit;
                form.replace_extension(".dfm");
                WriteFileAtomically(form, ReadFile(form) + " ");
            }
        };
        auto disturber = std::make_shared<Disturber>();
        disturber->unit = folder / ("Unit" + number + ".pas");
        ide.Services().services->AddNotifier(disturber);
    }
    std::string OpenUnits() {
        std::string open;
        for (const FormsListItem& item : forms.items)
            if (IOTAModule* module = ide.FindModule(item.fileName))
                open += item.formName + (module->Modified() ? "* " : " ");
        return open;
    }

    TempFolder folder;
    PlainIde ide;
    FormsList forms;
    ScriptedUi ui;
    IdeServices services{ide.Services(), forms, ui};
    SettingsValues settings;
    FormTranslation translation{services, settings};
    std::unique_ptr<TfrmTranslationWizard> wizard;
    int refreshes = 0;
};

const std::string Dispatcher = "  object GlottaDispatcher1: TGlottaDispatcher\r\n  end\r\n";
const std::string Glotta = "  object Glotta1: TGlotta\r\n  end\r\n";

TEST(WizardMemo, TellsEveryActionInOrder) {
    WizardChoices choices;
    choices.forms = {{"Main", "TGlotta"}, {"About", ""}};
    choices.dispatcherForm = "Data";
    choices.dispatcher = "GlottaDispatcher1";
    choices.commonForm = "Main";
    choices.commonContainer = "Glotta1";
    const auto memo = [&] { return ReplaceStr(FillRequestedActions(choices), "\r\n", "\n"); };
    EXPECT_EQ(memo(), "The following components will be inserted:\n\t(None)\n\nLanguages settings:\n"
                      "\tUse GlottaDispatcher1 from Data\n\nCommonContainer settings:\n"
                      "\tSet CommonContainer to Glotta1 from Main");
    choices.forms = {{"Main", "", "TGlotta"}, {"Used", "TGlottaRT"}, {"About", "", "TGlottaLinked"}};
    choices.setDispatcher = choices.setCommonContainer = false;
    choices.languages = "English,German";
    choices.changeProperties = true;
    choices.properties[4] = true;
    EXPECT_EQ(memo(),
              "The following components will be inserted:\n\tMain:\tTGlotta\n\tAbout:\tTGlottaLinked\n\n"
              "Languages settings:\n\tSet English,German as languages settings\n\nAdditional settings:\n"
              "\tSet AutoSkipEmpties property to False\n\tSet ChangeLocales property to False\n"
              "\tSet DoRaiseExceptions property to False\n\tSet IsInheritedOwner property to False\n"
              "\tSet StoreAsUTF8 property to True\n\tSet TranslateExtendedFirst property to False\n"
              "\tSet UseDefaultLanguage property to False\n\tSet UseTaskMsgDlg property to False");
}

TEST(Wizard, PagesAndTheirRules) {
    WizardDesk desk({Dispatcher + Glotta, "", ""});
    TfrmTranslationWizard& wizard = desk.Wizard("Data1 Form2");
    std::string pages;
    const auto note = [&] {
        pages += std::to_string(wizard.Page()) + wizard.lbTitle() + (wizard.BackVisible() ? " back" : "") +
                 (wizard.btnBack.Enabled() ? "+" : "") + (wizard.btnNext.Enabled() ? " next" : "") +
                 (wizard.btnClose.Enabled() ? " close" : "") + "; ";
    };
    wizard.pbProgress.OnView = [&] {
        if (wizard.pbProgress() == 1) note(); // while it works
    };
    for (const WizardPage page : {tsWelcome, tsForms, tsLanguageSettings}) {
        EXPECT_EQ(wizard.Page(), page);
        note();
        desk.Next(1);
    }
    EXPECT_EQ(wizard.Page(), tsSetProperties);
    wizard.btnBack.Execute();
    EXPECT_EQ(wizard.cbDispatcherForm() + "." + wizard.cbDispatcher(), "Data1.GlottaDispatcher1"); // the first
    desk.Choose(wizard.cbDispatcherForm, "Form3");
    desk.Next(1);
    EXPECT_EQ(wizard.Page(), tsLanguageSettings); // no dispatcher chosen
    EXPECT_EQ(wizard.cbDispatcher() + (wizard.btnNext.Enabled() ? " next" : ""), "(none)");
    desk.Choose(wizard.cbDispatcherForm, "Data1");
    EXPECT_EQ(wizard.cbDispatcher() + (wizard.btnNext.Enabled() ? " next" : ""), "GlottaDispatcher1 next");
    // The container: of the form's own, or the one to be inserted; a form without any forbids to go on.
    EXPECT_EQ(wizard.cbCommonForm() + "." + wizard.cbCommonContainer(), "Data1.Glotta1");
    desk.Choose(wizard.cbCommonForm, "Form2");
    EXPECT_EQ(wizard.cbCommonContainer(), "Newly inserted (TGlotta)");
    desk.Choose(wizard.cbCommonForm, "Form3");
    EXPECT_EQ(wizard.cbCommonContainer() + (wizard.btnNext.Enabled() ? " next" : ""), "");
    wizard.ckbSetCommonContainer.Enter(false);
    EXPECT_TRUE(wizard.btnNext.Enabled());
    EXPECT_FALSE(wizard.cbCommonForm.Enabled());
    desk.Next(1);
    EXPECT_FALSE(wizard.gbProperties[0].Enabled());
    wizard.ckbChangeProperties.Enter(true);
    EXPECT_TRUE(wizard.gbProperties[0].Enabled());
    note();
    desk.Next(1);
    EXPECT_EQ(wizard.memActions().substr(0, 66),
              "The following components will be inserted:\r\n\tForm2:\tTGlotta\r\n\r\nLan");
    note();
    EXPECT_EQ(desk.OpenUnits(), ""); // looked into, nothing more
    desk.Next(1);
    note();
    EXPECT_EQ(pages, "0Translation Wizard next close; 1Insert components back+ next close; "
                     "2Fine Tunings back+ next close; 3Configure properties back+ next close; "
                     "4Confirmation back+ next close; 5Please wait... back; 6Wizard completed back close; ");
    EXPECT_EQ(desk.refreshes, 1);
    EXPECT_TRUE(wizard.Close(desk.ui, ModalResult::Cancel)); // done: no question
}

TEST(Wizard, TheInsertColumnFollowsTheCombo) {
    WizardDesk desk({Glotta, "", ""});
    TfrmTranslationWizard& wizard = desk.Wizard("Data1 Form2 Form3");
    const auto rows = [&] {
        std::string text;
        for (std::size_t row = 0; row < wizard.lvSelectedForms.RowCount(); ++row)
            for (std::size_t column = 0; column < 3; ++column)
                text += wizard.lvSelectedForms.CellText(row, column) + (column == 2 ? "; " : "|");
        return text;
    };
    EXPECT_FALSE(wizard.cbGlottaToInsert.Enabled());
    EXPECT_EQ(rows(), "Data1|TGlotta|(none); Form2||TGlotta; Form3||TGlotta; ");
    wizard.lvSelectedForms.SelectOnly(1);
    EXPECT_EQ(wizard.cbGlottaToInsert() + (wizard.cbGlottaToInsert.Enabled() ? " enabled" : ""),
              "TGlotta enabled");
    wizard.lvSelectedForms.Click(2, true);
    desk.Choose(wizard.cbGlottaToInsert, "TGlottaLinked");
    EXPECT_EQ(rows(), "Data1|TGlotta|(none); Form2||TGlottaLinked; Form3||TGlottaLinked; ");
    EXPECT_EQ(JoinLines(wizard.GlottaClasses, " "),
              "(none) TGlotta TGlottaRTSE TGlottaRT TGlottaLinked TGlottaTLV");
}

// Closed forms end saved and closed, the open one stays open and unsaved; the new container stands once.
TEST(Wizard, InsertsConnectsAndConfigures) {
    WizardDesk desk({Dispatcher, "", "", Glotta});
    desk.services.OpenFile(desk.forms.items[2].fileName, false);
    const std::string third = desk.File("3");
    TfrmTranslationWizard& wizard = desk.Wizard("Data1 Form2 Form3 Form4");
    desk.Insert(1, "TGlottaLinked");
    desk.Insert(2, "TGlottaLinked");
    desk.Next(2);
    desk.Choose(wizard.cbDispatcherForm, "Data1");
    desk.Choose(wizard.cbCommonForm, "Data1");
    desk.Next(1);
    wizard.ckbChangeProperties.Enter(true);
    wizard.gbProperties[7].Enter(true);
    std::string steps;
    wizard.lvProgress.OnView = [&](TGrid::Change) {
        for (std::size_t task = 0; task < WizardTaskCount; ++task)
            steps += wizard.lvProgress.CellText(task, 1).substr(0, 1);
        steps += " ";
    };
    desk.Next(2);
    EXPECT_EQ(steps, "PPP RPP DPP DRP DDP DDR DDD ");
    EXPECT_EQ(wizard.pbProgress(), wizard.ProgressMax());
    const auto component = [](const char* name, const char* own, const char* refs) {
        return std::string("  object ") + name + "\r\n" + refs +
               "    AutoSkipEmpties = False\r\n    ChangeLocales = False\r\n    DoRaiseExceptions = False\r\n"
               "    IsInheritedOwner = False\r\n    StoreAsUTF8 = False\r\n    TranslateExtendedFirst = "
               "False\r\n"
               "    UseDefaultLanguage = False\r\n    UseTaskMsgDlg = True\r\n" +
               own + "  end\r\n";
    };
    EXPECT_EQ(desk.File("1"), "object Data1: TData1\r\n" + Dispatcher +
                                  component("Glotta1: TGlotta", "    Left = 8\r\n    Top = 8\r\n",
                                            "    LangDispatcher = GlottaDispatcher1\r\n") +
                                  "end\r\n");
    EXPECT_EQ(desk.File("2"),
              "object Form2: TForm2\r\n" +
                  component("GlottaLinked1: TGlottaLinked",
                            "    CommonContainer = Data1.Glotta1\r\n    Left = 8\r\n    Top = 8\r\n",
                            "    LangDispatcher = Data1.GlottaDispatcher1\r\n") +
                  "end\r\n");
    EXPECT_EQ(desk.File("3"), third);
    EXPECT_EQ(desk.File("4"),
              "object Form4: TForm4\r\n" +
                  component("Glotta1: TGlotta", "", "    LangDispatcher = Data1.GlottaDispatcher1\r\n") +
                  "end\r\n");
    EXPECT_EQ(desk.OpenUnits(), "Form3* ");
    EXPECT_NE(ReadFile(desk.folder / "Unit2.pas").find("GlottaLinked1: TGlottaLinked;"), std::string::npos);
    EXPECT_TRUE(desk.ui.Transcript().empty()) << desk.ui.Transcript();
}

// The second form cannot be saved; the fourth's unit does not declare its class.
TEST(Wizard, AFormThatFailsIsNamedAndLeftAsItWas) {
    WizardDesk desk({"", Glotta, "", ""});
    desk.folder.Put("Unit4.pas", "unit Unit4;\r\n\r\nimplementation\r\n\r\n{$R *.dfm}\r\n\r\nend.\r\n");
    desk.Disturb("2");
    const std::string second = desk.File("2");
    TfrmTranslationWizard& wizard = desk.Wizard("Data1 Form2 Form3 Form4");
    desk.Next(2);
    wizard.rbSetManually.Execute();
    desk.Choose(wizard.edLanguagesToUse, "English,Dutch");
    wizard.ckbSetCommonContainer.Enter(false);
    desk.Next(2);
    const std::string refused = "Unable to insert TGlotta component! Error message:\r\nthe unit declares no "
                                "class TForm4\r\nPlease make "
                                "sure the active project is a VCL application. If you have installed both "
                                "CLX and VCL version please repeat "
                                "your last action once again.";
    const std::string failed =
        "The following forms could not be configured and are left as they were:\r\nForm2: " +
        PathText(desk.folder / "Unit2.dfm") +
        ": the file was changed by another program since it was opened; nothing was saved\r\nForm4";
    desk.ui.Message(refused).Message(failed);
    desk.Next(1);
    EXPECT_EQ(desk.ui.Transcript(),
              "Error [TGlotta Expert (VCL Edition)]: " + refused + " -> OK\nWarning: " + failed + " -> OK\n");
    EXPECT_EQ(wizard.lbFinal(), failed);
    EXPECT_EQ(desk.File("2"), second + " ");
    EXPECT_EQ(desk.OpenUnits(), "");
    EXPECT_NE(desk.File("3").find("'Dutch'"), std::string::npos);
    std::string list;
    for (const FormsListItem& item : desk.forms.items)
        list += item.formName + " " + item.languages + item.glotta + "; ";
    EXPECT_EQ(list, "Data1 2TGlotta; Form2 1TGlotta; Form3 2TGlotta; Form4 0; ");
}

// A container that cannot be saved stops the wizard before any other form refers to it.
TEST(Wizard, WithoutItsContainerOrDispatcherNothingIsDone) {
    WizardDesk desk({Dispatcher, Glotta});
    desk.Disturb("1");
    const std::string before = desk.File("1"), second = desk.File("2");
    TfrmTranslationWizard& wizard = desk.Wizard("Form2 Data1");
    desk.Next(2);
    desk.Choose(wizard.cbDispatcherForm, "Data1");
    desk.Choose(wizard.cbCommonForm, "Data1");
    EXPECT_EQ(wizard.cbCommonContainer(), "Newly inserted (TGlotta)");
    desk.Next(2);
    EXPECT_EQ(MessageOf([&] { desk.Next(1); }),
              PathText(desk.folder / "Unit1.dfm") +
                  ": the file was changed by another program since it was opened; nothing was saved");
    EXPECT_EQ(wizard.Page(), tsActionsMemo);
    desk.folder.Put("Unit1.dfm", "object Data1: TData1\r\nend\r\n");
    EXPECT_EQ(MessageOf([&] { desk.Next(1); }), "Data1 has no component GlottaDispatcher1");
    EXPECT_EQ(wizard.lvProgress.CellText(0, 1), "Running");
    EXPECT_EQ(std::string(TrimRight(desk.File("1"))) + desk.File("2") + desk.OpenUnits(),
              "object Data1: TData1\r\nend" + second);
    EXPECT_EQ(desk.refreshes, 0);
}

TEST(Wizard, AnOpenFormIsBroughtBackWithItsUnit) {
    WizardDesk desk({"  Caption = 'x'\r\n" + Glotta});
    FormsListItem& item = desk.forms.items[0];
    desk.services.OpenFile(item.fileName, false);
    FormTakeBack before(desk.services, item);
    desk.translation.ConfigureLangComponent(3, item, {"A", "B", "C"}, "Glotta1", "TgxCustomLang", false);
    desk.translation.InsertComponentOnForm("Data1", "TGlottaLinked")->SetBoolProp("StoreAsUTF8", true);
    desk.translation.InsertComponentOnForm("Data1", "TGlottaTLV");
    EXPECT_EQ(desk.ide.ModifiedFiles().size(), 2u);
    before.TakeBack();
    EXPECT_EQ(desk.ide.ModifiedFiles().size(), 0u);
    EXPECT_EQ(desk.OpenUnits(), "Data1 "); // without a question when it is closed
    EXPECT_EQ(desk.services.GetOwnerByName("Data1")->Components().size(), 1u);
    EXPECT_EQ(desk.translation.GetGlotta("Data1")->NumberOfLanguages(), 1);
    EXPECT_EQ(item.languages, "1");
}

TEST(Wizard, QuestionsBothWays) {
    const std::string quit = "Are you sure want to quit Wizard?";
    const std::string create = "This will insert new TGlottaDispatcher component on selected form! Continue?";
    WizardDesk desk({"", Glotta});
    TfrmTranslationWizard& wizard = desk.Wizard("Form2");
    desk.ui.Message(quit, ModalResult::No);
    EXPECT_FALSE(wizard.Close(desk.ui, ModalResult::Cancel));
    desk.Next(2);
    EXPECT_FALSE(wizard.btnCreateDispatcher.Enabled()); // on no form
    desk.Choose(wizard.cbDispatcherForm, "Data1");
    EXPECT_FALSE(wizard.btnConfigureDispatcher.Enabled());
    desk.ui.Message(create, ModalResult::No);
    wizard.btnCreateDispatcher.Execute();
    EXPECT_EQ(wizard.cbDispatcher(), "(none)");
    // Cut to the default number of languages, or padded.
    desk.settings.NumLang = 1;
    desk.ui.Message(create, ModalResult::Yes);
    wizard.btnCreateDispatcher.Execute();
    desk.settings.NumLang = 4;
    desk.ui.Message(create, ModalResult::Yes);
    wizard.btnCreateDispatcher.Execute();
    EXPECT_EQ(wizard.cbDispatcher(), "GlottaDispatcher2");
    const auto languages = [&](const char* name) {
        return JoinLines(desk.translation.LanguagesOfDispatcher(desk.forms.items[0], name), ",");
    };
    EXPECT_EQ(languages("GlottaDispatcher1"), "English");
    EXPECT_EQ(languages("GlottaDispatcher2"), "English,German,Language N3,Language N4");
    EXPECT_EQ(desk.OpenUnits(), "");
    const auto configure = [&](TAction& button, ModalResult result) {
        desk.ui.Modal<TfrmConfigureLanguages>([result](TfrmConfigureLanguages& form) {
            form.lbLangNames.Add("Last One");
            return result;
        });
        button.Execute();
    };
    configure(wizard.btnConfigureDispatcher, ModalResult::Cancel);
    configure(wizard.btnConfigureDispatcher, ModalResult::OK);
    EXPECT_EQ(languages("GlottaDispatcher2"), "English,German,Language N3,Language N4,Last One");
    EXPECT_NE(desk.File("1").find("'Last One'"), std::string::npos);
    EXPECT_EQ(desk.OpenUnits(), "");
    wizard.rbSetManually.Execute();
    configure(wizard.btnConfigureLanguages, ModalResult::Cancel);
    configure(wizard.btnConfigureLanguages, ModalResult::OK);
    EXPECT_EQ(wizard.edLanguagesToUse(), "English,German,\"Last One\"");
    desk.ui.Message(quit, ModalResult::Yes);
    EXPECT_TRUE(wizard.Close(desk.ui, ModalResult::Cancel));
    EXPECT_TRUE(
        desk.ui.Transcript().starts_with("Warning: " + quit + " -> No\nWarning: " + create + " -> No\n"));
}

} // namespace
} // namespace glotta
