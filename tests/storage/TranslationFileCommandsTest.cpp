#include "storage/TranslationFileCommands.h"

#include "platform/RegFileStore.h"
#include "settings/ExpertSettings.h"
#include "storage/FormComponents.h"
#include "storage/Projectsettings.h"
#include "storage/TranslationDesk.h"

namespace glotta {
namespace {

std::string Components(const std::string& text, const std::string& name = "TGlotta") {
    return "  object A: TButton|    Caption = '" + text + "'|  end|  object lang: " + name +
           "|    NumberOfLanguages = 2|    LangNames.Strings = (|      'English'|      'German')|" +
           "    Strings.Strings = (|      'IDS_0'#1'" + text + "'#1'" + text + " de')|  end|";
}

// Raises in whatever the file commands ask of it.
class Broken : public TGlottaRT {
public:
    using TGlottaRT::TGlottaRT;
    void SaveAllToFile(TranslationFiles&, const std::string&, const std::string&) override { Raise(); }
    void SaveAllToBinaryFile(TranslationFiles&, const std::string&) override { Raise(); }
    bool LoadAllFromFile(TranslationFiles&, const std::string&, bool) override { Raise(); }

private:
    [[noreturn]] static void Raise() { throw Error("broken"); }
};

struct FilesDesk : TranslationDesk {
    RegFileStore registry{folder / "settings.reg"};
    ExpertSettings settings{registry, {NamesArray.begin(), NamesArray.end()}};
    FormTranslation translation{services, settings.Values()};
    TGlottaProjectSettings project;

    FilesDesk() {
        AddForm("First", Components("one"));
        AddForm("Plain", "");
        AddForm("Last", Components("two"));
    }
    ~FilesDesk() { RegisterGlottaClasses(); }
    FilesDesk(const FilesDesk&) = delete;
    FilesDesk& operator=(const FilesDesk&) = delete;

    void Open() {
        TranslationDesk::Open();
        RegisterComponentClass(
            "TGlottaRT",
            [](ComponentTree& tree, FormNode& node, TComponent* owner) -> std::unique_ptr<TComponent> {
                return std::make_unique<Broken>(tree, node, owner);
            });
        project.SetFileName(folder / "App.gxproj");
    }
    std::string File(const char* name) const { return (folder / name).string(); }
    // Runs a command as the main window does; the error's message when it ends with one.
    std::string Save(int mode) {
        return MessageOf([&] { Commands().sbSaveAllClick(mode); });
    }
    std::string Load(int mode) {
        return MessageOf([&] { Commands().sbLoadAllClick(mode); });
    }
    TranslationFileCommands Commands() { return {services, translation, settings, &project}; }
    FilesDesk& Choose(const char* name) {
        ui.File("Select file...", {File(name)});
        return *this;
    }
    // The forms whose translations a file holds.
    std::string FormsIn(const char* name) {
        TranslationFiles files;
        std::string found;
        for (const FormsListItem& item : forms.items)
            if (IsBinaryTranslationFile(name) ? files.FindBinary(File(name), item.formName)
                                              : files.FindText(File(name), item.formName))
                found += item.formName + " ";
        return found;
    }
    // What was asked and told since the last call, without the progress.
    std::string Told() {
        std::string told;
        for (const std::string& line : SplitLines(ui.Transcript().substr(told_)))
            if (!line.empty() && !line.starts_with("Progress")) told += line + "\n";
        told_ = ui.Transcript().size();
        return ReplaceStr(told, folder.Path().string() + "/", "");
    }

private:
    std::size_t told_ = 0;
};

constexpr int Project = TranslationFileCommands::Project, Selected = TranslationFileCommands::SelectedForms;
constexpr const char* Filter = "|TGlotta text files (*.glt)|*.glt|TGlotta binary files (*.glb)|*.glb -> ";
const std::string SaveDialog = std::string("Save Select file...") + Filter;
const std::string OpenDialog = std::string("Open Select file...") + Filter;
const std::string Delimiter = "Input Saving to file|Input delimeter:|";
const std::string NotTranslated = "Project or file is not translated!";
const std::string Differs =
    "The existing delimiter in file differs from new one. This may cause errors in future "
    "reading translation information Continue?";

// In each kind of file; the open unit stays open, the closed one closed.
TEST(TranslationFileCommands, AProjectGoesIntoAFileAndComesBack) {
    for (const char* name : {"app.glt", "app.GlB", "app.txt"}) {
        FilesDesk desk;
        desk.Open();
        ASSERT_TRUE(desk.OpenUnit("Last"));
        desk.Choose(name);
        if (!IsBinaryTranslationFile(name)) desk.ui.Input("Input delimeter:", "~!@#$");
        EXPECT_EQ(desk.Save(Project), "no error");
        const std::string saved = ReadFile(desk.folder / name);
        EXPECT_EQ(saved.starts_with("\xEF\xBB\xBF"), !IsBinaryTranslationFile(name));
        EXPECT_EQ(desk.FormsIn(name), "First Last ");
        EXPECT_EQ(desk.Shown(), "First 2: lang IDS_0|one|one de\nPlain 0:\n"
                                "Last 2 open: lang A.Caption|two| IDS_0|two|two de\n");

        desk.forms.items[0].languages = "7"; // as another file had left it
        for (const char* form : {"First", "Last"}) {
            ASSERT_TRUE(desk.OpenUnit(form));
            FindGlotta(desk.services, form)->ClearTranslations();
        }
        desk.services.MarkModifiedForm(desk.FileOf("First"));
        ASSERT_TRUE(desk.services.SaveFile(desk.FileOf("First")) &&
                    desk.services.CloseFile(desk.FileOf("First")));
        EXPECT_EQ(desk.Choose(name).Load(Project), "no error");
        EXPECT_EQ(desk.Shown(), "First 2: lang A.Caption|one| IDS_0|one|one de\nPlain 0:\n"
                                "Last 2 modified: lang A.Caption|two| IDS_0|two|two de\n");
        desk.Choose(name);
        if (!IsBinaryTranslationFile(name)) desk.ui.Input("Input delimeter:", "~!@#$");
        EXPECT_EQ(desk.Save(Project), "no error");
        EXPECT_EQ(ReadFile(desk.folder / name), saved);
    }
}

TEST(TranslationFileCommands, MergingAddsAndLeavesTheLanguagesColumn) {
    FilesDesk desk;
    desk.Open();
    desk.Choose("app.glb").Save(Project);
    ASSERT_TRUE(desk.OpenUnit("First"));
    TgxCustomLang& lang = *FindGlotta(desk.services, "First");
    lang.SetStrings(stStrings, {MakeRecord("IDS_0", "one", 2), MakeRecord("MINE", "m", 2)});
    desk.forms.items[0].languages = "7";
    desk.Select({"First"});
    EXPECT_EQ(desk.Choose("app.glb").Load(TranslationFileCommands::MergeForms), "no error");
    EXPECT_EQ(desk.Shown(), "First 7 modified: lang A.Caption|one| IDS_0|one|one de MINE|m|\nPlain 0:\n"
                            "Last 2: lang IDS_0|two|two de\n");
    EXPECT_EQ(desk.Choose("app.glb").Load(TranslationFileCommands::MergeProject), "no error");
    EXPECT_EQ(desk.Shown().substr(0, 7) + desk.Shown().substr(desk.Shown().find("Last")),
              "First 7Last 2: lang A.Caption|two| IDS_0|two|two de\n");
}

TEST(TranslationFileCommands, TheDelimiterIsAskedForAndChecked) {
    struct {
        std::optional<std::string> answer;
        ModalResult differs; // None: not asked
        std::string told, delimiter;
    } const cases[] = {
        {std::nullopt, ModalResult::None, "~!@#$ -> Cancel\n", "~!@#$"},
        {"", ModalResult::None, "~!@#$ -> \nError: You cannot use empty delimiter! -> OK\n", "~!@#$"},
        {"~!@#$", ModalResult::None, "~!@#$ -> ~!@#$\n", "~!@#$"},
        {"||", ModalResult::No, "~!@#$ -> ||\nWarning: " + Differs + " -> No\n", "~!@#$"},
        {"||", ModalResult::Yes, "~!@#$ -> ||\nWarning: " + Differs + " -> Yes\n", "||"},
    };
    FilesDesk desk;
    desk.Open();
    desk.Choose("new.glt").ui.Input("Input delimeter:", "##"); // a new file: nothing differs
    EXPECT_EQ(desk.Save(Project), "no error");
    EXPECT_EQ(desk.Commands().GetGLTFileDelimiter(desk.File("new.glt")), "##");
    desk.Choose("app.glt").ui.Input("Input delimeter:", "~!@#$");
    EXPECT_EQ(desk.Save(Project), "no error");
    desk.Told();
    for (const auto& each : cases) {
        desk.Choose("app.glt").ui.Input("Input delimeter:", each.answer);
        if (each.answer == "") desk.ui.Message("You cannot use empty delimiter!");
        if (each.differs != ModalResult::None) desk.ui.Message(Differs, each.differs);
        EXPECT_EQ(desk.Save(Project), "no error");
        EXPECT_EQ(desk.Told(), SaveDialog + "app.glt\n" + Delimiter + each.told);
        EXPECT_EQ(desk.Commands().GetGLTFileDelimiter(desk.File("app.glt")), each.delimiter);
    }
    desk.folder.Put("bare.glt", "");
    EXPECT_EQ(desk.Commands().GetGLTFileDelimiter(desk.File("bare.glt")), "~!@#$");
}

TEST(TranslationFileCommands, SelectedFormsGetAComponentButOneAloneMustBeTranslated) {
    FilesDesk desk;
    desk.AddForm("Bare", "");
    desk.Open();
    desk.Save(Selected); // nothing is selected
    desk.Load(TranslationFileCommands::MergeForms);
    desk.Select({"Plain"});
    desk.ui.Message(NotTranslated).Message(NotTranslated);
    desk.Save(Selected);
    desk.Load(Selected);
    EXPECT_EQ(desk.Told(), "Error: " + NotTranslated + " -> OK\nError: " + NotTranslated + " -> OK\n");
    EXPECT_EQ(desk.Choose("app.glb").Save(Project), "no error"); // the others take nobody along
    EXPECT_EQ(desk.FormsIn("app.glb"), "First Last ");
    desk.Select({"Plain", "Bare"});
    EXPECT_EQ(desk.Choose("some.glb").Save(Selected), "no error");
    EXPECT_EQ(desk.FormsIn("some.glb"), "Plain Bare ");
    for (FormsListItem& item : desk.forms.items)
        item.languages = "0";
    desk.ui.Message(NotTranslated).Message(NotTranslated);
    desk.Save(Project);
    desk.Load(TranslationFileCommands::MergeProject);
}

TEST(TranslationFileCommands, AFailingFormEndsEachKindOfSaveInItsOwnWay) {
    const std::string told = "Unable to export form to file!\r\nError: broken. Form: Wrong";
    struct {
        const char* file;
        int mode;
        std::string error, forms; // what the command ends with, and what the file holds then
    } const cases[] = {{"app.glt", Project, "broken", "First "},
                       {"app.glt", Selected, "broken", "First "},
                       {"app.glb", Selected, "no error", "First "},
                       {"app.glb", Project, "no error", "First Last "}};
    for (const auto& each : cases) {
        FilesDesk desk;
        desk.AddForm("Wrong", Components("x", "TGlottaRT"));
        desk.Open();
        std::swap(desk.forms.items[1], desk.forms.items[3]); // between the others
        desk.Select({"First", "Wrong", "Last"});
        desk.Choose(each.file);
        if (!IsBinaryTranslationFile(each.file)) desk.ui.Input("Input delimeter:", "~!@#$");
        if (IsBinaryTranslationFile(each.file)) desk.ui.Message(told);
        EXPECT_EQ(desk.Save(each.mode), each.error);
        EXPECT_EQ(desk.FormsIn(each.file), each.forms) << each.file << each.mode;
        EXPECT_FALSE(desk.services.IsFileOpen(desk.FileOf("Wrong")));
    }
}

TEST(TranslationFileCommands, StoppedOrFailingCommandsLeaveWholeFormsAndTheOldFile) {
    FilesDesk desk;
    desk.Open();
    EXPECT_EQ(desk.Choose("app.glb").Save(Project), "no error");
    const std::string saved = ReadFile(desk.folder / "app.glb");
    ASSERT_TRUE(desk.OpenUnit("First"));
    FindGlotta(desk.services, "First")->ClearTranslations();
    desk.ui.steps = 1;
    EXPECT_EQ(desk.Choose("app.glb").Save(Project), "no error");
    EXPECT_EQ(ReadFile(desk.folder / "app.glb"), saved);
    desk.ui.steps = 1;
    EXPECT_EQ(desk.Choose("app.glb").Load(Project), "no error");
    EXPECT_EQ(desk.Shown(), "First 2 modified: lang A.Caption|one| IDS_0|one|one de\nPlain 0:\n"
                            "Last 2: lang IDS_0|two|two de\n");
    desk.ui.steps = -1;

    const std::string before = desk.Shown();
    desk.folder.Put("app.glb", saved.substr(0, saved.size() - 3));
    EXPECT_TRUE(desk.Choose("app.glb").Load(Project).starts_with(desk.File("app.glb") + ": "));
    EXPECT_TRUE(desk.Choose("app.glb").Save(Project).starts_with(desk.File("app.glb") + ": ")); // told once
    EXPECT_EQ(ReadFile(desk.folder / "app.glb").size(), saved.size() - 3);
    EXPECT_NE(desk.Choose("none.glt").Load(Project), "no error");
    EXPECT_EQ(desk.Shown(), before);

    // A form that the IDE cannot give is passed over.
    desk.forms.items[0].formName = "Other";
    desk.folder.Put("app.glb", saved);
    desk.Choose("app.glb").ui.Message(
        "Unable to obtain the interface of form module! Please check your project "
        "source.");
    desk.Told();
    EXPECT_EQ(desk.Load(Project), "no error");
    EXPECT_EQ(desk.Told(), OpenDialog +
                               "app.glb\nError: Unable to obtain the interface of form module! Please check "
                               "your project source. -> OK\n");
    EXPECT_EQ(desk.Shown().substr(desk.Shown().find("Last")),
              "Last 2: lang A.Caption|two| IDS_0|two|two de\n");
}

TEST(TranslationFileCommands, DialogsProposeTheProjectsFileAndKeepTheFilter) {
    FilesDesk desk;
    desk.Open();
    desk.settings.SetLastFilterIndex(2);
    desk.project.SetOptionValue("DefaultTranslationFileName", "..\\texts\\App.glt");
    struct Proposals : ScriptedUi {
        std::string log;
        bool Execute(FileDialog& dialog) override {
            log += (dialog.save ? "save " : "open ") + dialog.defaultExtension + " " +
                   std::to_string(dialog.filterIndex) + " " + dialog.fileName + "\n";
            dialog.filterIndex = dialog.save ? 1 : 2;
            return false;
        }
    } ui;
    IdeServices services(desk.ide.Services(), desk.forms, ui);
    TranslationFileCommands commands(services, desk.translation, desk.settings, &desk.project);
    commands.sbSaveAllClick(Project);
    commands.sbLoadAllClick(Project);
    const std::string file = (desk.folder.Path().parent_path() / "texts" / "App.glt").string();
    EXPECT_EQ(ui.log, "save glt 2 " + file + "\nopen glt 2 " + file + "\n");
}

} // namespace
} // namespace glotta
