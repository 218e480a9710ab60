#include "storage/ProjectSettingsForm.h"

#include "storage/DictionaryLanguages.h"
#include "support/ScriptedUi.h"
#include "support/TempFolder.h"

namespace glotta {
namespace {

using Form = TfrmProjectTranslationSettings;

std::string Word(std::uint32_t value) {
    std::string bytes;
    for (int i = 0; i < 4; ++i)
        bytes += static_cast<char>(value >> 8 * i);
    return bytes;
}

// A name of ASCII letters as a dictionary holds it.
std::string Name(const std::string& name) {
    std::string bytes = Word(static_cast<std::uint32_t>(2 * name.size()));
    for (const char letter : name)
        bytes += std::string{letter, '\0'};
    return bytes;
}

std::string Shown(const TStringList& list) {
    std::string text;
    for (const std::string& item : list.Items())
        text += item + ";";
    return text;
}

TEST(DictionaryLanguages, NamesOfBothKindsOfFile) {
    const std::string languages = Word(7) + Word(2) + Name("English") + Name("Deutsch");
    struct {
        std::string bytes, names;
    } const dictionaries[] = {
        {"", ""},
        {languages, "English;Deutsch;"},
        {Word(0) + Word(9) + std::string(8, 'x') + languages, "English;Deutsch;"},
        {languages.substr(0, languages.size() - 1), "a.dic: byte 30: the dictionary ends too early"},
        {Word(7) + Word(0xFFFFFFFF) + Word(0xFFFFFFF0) + "xy",
         "a.dic: byte 12: the dictionary ends too early"},
    };
    for (const auto& each : dictionaries) {
        std::string names;
        const std::string failed =
            MessageOf([&] { names = Shown(TStringList(ParseDicLanguages("a.dic", each.bytes))); });
        EXPECT_EQ(failed == "no error" ? names : failed, each.names);
    }
    // A name runs as far as its closing tag stands in the line, counted from the line's start.
    EXPECT_EQ(Shown(TStringList(
                  ParseDixLanguages("<LANGUAGE>no</LANGUAGE>\r\n<HEAD>\r\n<LANGUAGE>English</LANGUAGE>\n"
                                    " <LANGUAGE>no\n<LANGUAGE>open\n</HEAD>\n<LANGUAGE>no</LANGUAGE>"))),
              "English</LANGUAGE>;;");
    EXPECT_EQ(ParseDixLanguages("<LANGUAGE>no</LANGUAGE>").size(), 0U);
}

struct SettingsDesk {
    TempFolder folder;
    ScriptedUi ui;
    TGlottaProjectSettings settings;
    SettingsDesk() { settings.SetFileName(folder / "App.gxproj"); }
    std::string File(const char* name) const { return (folder / name).string(); }
};

TEST(ProjectSettingsForm, StartsWithWhatTheFileSays) {
    SettingsDesk desk;
    const auto shown = [&] {
        Form form(desk.ui, desk.settings, {"Main", "data"});
        std::string text = Shown(form.FormNames()) + " " + form.cbDispatcherForm();
        for (const TField<bool>* box : {&form.ckbConfirm, &form.ckbCaseSensitive, &form.ckbSkipAmpersands,
                                        &form.ckbParseMultilines, &form.ckbOverwrite, &form.ckbForceEmpties})
            text += (*box)() ? '1' : '0';
        return text;
    };
    EXPECT_EQ(shown(), ";data;Main; 100000"); // with none to choose
    desk.folder.Put("App.gxproj", "[settings]\r\ndontaskfordictionary=1\r\nDictionaryIgnoreCase=1\r\n"
                                  "DispatcherForm=Main\r\n; kept\r\n[Other]\r\nMine=1\r\n");
    desk.settings.LoadFile();
    EXPECT_EQ(shown(), ";data;Main; Main010000");
    desk.ui.Modal<Form>([](Form& form) {
        form.ckbConfirm.Enter(true);
        return ModalResult::OK;
    });
    DisplayEditDialog(desk.ui, desk.settings, {"Main", "data"});
    EXPECT_EQ(ReadFile(desk.folder / "App.gxproj"),
              "[settings]\r\ndontaskfordictionary=0\r\nDictionaryIgnoreCase=1\r\nDispatcherForm=Main\r\n"
              "DefaultDictionary=\r\nDictionaryBaseLanguage=\r\nDictionarySkipAmpersands=0\r\n"
              "DictionaryParseMultilines=0\r\nDictionaryOverwriteExisting=0\r\nDictionaryForceEmpties=0\r\n"
              "DefaultTranslationFileName=\r\nDefaultFormForUnits=\r\nCommonContainerForm=\r\n"
              "; kept\r\n[Other]\r\nMine=1\r\n");
}

TEST(ProjectSettingsForm, TheDictionaryGivesTheLanguages) {
    SettingsDesk desk;
    desk.folder.Put("Words.DIC", Word(7) + Word(2) + Name("English") + Name("Deutsch"));
    desk.folder.Put("bad.dic", Word(7) + Word(2));
    Form form(desk.ui, desk.settings, {});
    const auto state = [&] { return Shown(form.BaseLanguages()) + (form.imWarning() ? "!" : ""); };
    form.cbBaseLanguage.Enter("Latin");
    EXPECT_EQ(state(), ""); // nothing to compare with
    desk.ui.File("Select file name...", {}).File("Select file name...", {desk.File("Words.DIC")});
    form.btDictionary.Execute();
    EXPECT_EQ(form.edDictionary(), "");
    form.btDictionary.Execute();
    EXPECT_EQ(state(), "English;Deutsch;!");
    form.cbBaseLanguage.Enter("Deutsch");
    EXPECT_EQ(state(), "English;Deutsch;");
    desk.ui.File("Select file name...", {desk.File("texts.glb")});
    form.btTranslationFile.Execute();
    EXPECT_EQ(form.edTranslationFile(), desk.File("texts.glb"));
    const std::string dialog = "Open Select file name...|";
    const std::string dictionaries = dialog + "Dictionaries (*.dic)|*.dic|XML dictionaries (*.dix)|*.dix -> ";
    EXPECT_EQ(desk.ui.Transcript(),
              dictionaries + "Cancel\n" + dictionaries + desk.File("Words.DIC") + "\n" + dialog +
                  "TGlotta text files (*.glt)|*.glt|TGlotta binary files (*.glb)|*.glb -> " +
                  desk.File("texts.glb") + "\n");

    // A damaged one is told and does not keep the dialog closed.
    desk.settings.SetOptionValue("DefaultDictionary", desk.File("bad.dic"));
    desk.ui.Message(desk.File("bad.dic") + ": byte 8: the dictionary ends too early");
    EXPECT_EQ(Form(desk.ui, desk.settings, {}).edDictionary(), desk.File("bad.dic"));
}

} // namespace
} // namespace glotta
