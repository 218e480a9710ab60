#include "platform/Text.h"
#include "storage/DictionaryLanguages.h"
#include "storage/ExternalFiles.h"
#include "storage/ProjectSettingsForm.h"
#include "support/ScriptedUi.h"
#include "support/TempFolder.h"

using namespace glotta;

namespace {

using Form = TfrmProjectTranslationSettings;

std::string Word(unsigned value) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(value >> shift & 0xFF);
    return bytes;
}
std::string Name(const std::string& ascii) {
    std::string bytes = Word(static_cast<unsigned>(ascii.size() * 2));
    for (const char c : ascii)
        bytes += {c, '\0'};
    return bytes;
}
std::string Joined(const std::vector<std::string>& names) {
    return JoinLines(names, "|");
}

const std::string NewDic =
    Word(0) + Word(7) + Word(1) + Word(1) + Word(9) + Word(2) + Name("English") + Name("Deutsch");

} // namespace

TEST(ProjectSettings, OptionsOfAnySpelling) {
    TempFolder folder;
    TGlottaProjectSettings settings;
    EXPECT_EQ(MessageOf([&] { settings.SaveFile(); }), "Storage file not initialized!");
    settings.SetFileName(folder / "Project1.gxproj");
    settings.SetOptionValue("dictionaryignorecase", "1");
    settings.SetOptionValue("DispatcherForm", "Form1");
    EXPECT_EQ(settings.GetOptionValue("DictionaryIgnoreCase") + settings.GetOptionValue("DispatcherFORM") +
                  settings.GetOptionValue("DontAskForDictionary") + settings.GetOptionValue("Unknown"),
              "1Form10");
    EXPECT_EQ(folder.Shown(), "");
    settings.SaveFile();
    EXPECT_FALSE(settings.GetIsChanged());
    settings.SetOptionValue("Unknown", "x");
    EXPECT_TRUE(settings.GetIsChanged());
    settings.SaveFile();
    EXPECT_EQ(folder.Shown(),
              "Project1.gxproj=[Settings]\r\ndictionaryignorecase=1\r\nDispatcherForm=Form1\r\n;");
}

TEST(ProjectSettings, TheDialogWritesAllOptions) {
    TempFolder folder;
    TGlottaProjectSettings settings;
    settings.SetFileName(folder / "P.gxproj");
    const auto dic = PathText(folder.Put("a.DIC", NewDic));
    ScriptedUi ui;
    ui.Modal<Form>([](Form&) { return ModalResult::Cancel; });
    DisplayEditDialog(ui, settings, {"Form2", "form1"});
    EXPECT_EQ(folder.Shown(), "a.DIC=" + NewDic + ";");

    ui.Modal<Form>([&](Form& form) {
          EXPECT_TRUE(form.ckbConfirm());
          EXPECT_FALSE(form.ckbCaseSensitive());
          EXPECT_EQ(Joined(form.FormNames().Items()), "form1|Form2");
          form.btDictionary.Execute();
          EXPECT_EQ(Joined(form.BaseLanguages().Items()), "English|Deutsch");
          EXPECT_FALSE(form.imWarning());
          form.cbBaseLanguage.Enter("Dansk");
          EXPECT_TRUE(form.imWarning());
          form.cbBaseLanguage.Enter("ENGLISH");
          EXPECT_FALSE(form.imWarning());
          form.ckbConfirm.Enter(false);
          form.ckbCaseSensitive.Enter(true);
          form.cbFormForUnits.Enter("Form2");
          form.SwitchPage();
          EXPECT_TRUE(form.sbProject() && !form.sbDictionary());
          return ModalResult::OK;
      }).File("Select file name...", {dic});
    DisplayEditDialog(ui, settings, {"Form2", "form1"});
    EXPECT_EQ(
        ReadFile(folder / "P.gxproj"),
        "[Settings]\r\nDefaultDictionary=" + dic +
            "\r\nDictionaryBaseLanguage=ENGLISH\r\nDontAskForDictionary=1\r\nDictionaryIgnoreCase=1\r\n"
            "DictionarySkipAmpersands=0\r\nDictionaryParseMultilines=0\r\nDictionaryOverwriteExisting=0\r\n"
            "DictionaryForceEmpties=0\r\nDefaultTranslationFileName=\r\nDefaultFormForUnits=Form2\r\n"
            "DispatcherForm=\r\nCommonContainerForm=\r\n");

    ui.Modal<Form>([&](Form& form) { // a form that is gone is no item of the list
        EXPECT_FALSE(form.ckbConfirm());
        EXPECT_EQ(form.cbFormForUnits(), "");
        EXPECT_EQ(Joined(form.BaseLanguages().Items()), "English|Deutsch");
        return ModalResult::Cancel;
    });
    DisplayEditDialog(ui, settings, {"form1"});
}

TEST(ProjectSettings, LanguagesOfDictionaries) {
    TempFolder folder;
    const auto dic = [&](const std::string& bytes) { return ReadDicLanguages(folder.Put("a.dic", bytes)); };
    EXPECT_EQ(Joined(dic(NewDic)), "English|Deutsch");
    EXPECT_EQ(Joined(dic(Word(5) + Word(1) + Name("Dansk") + "more")), "Dansk");
    EXPECT_EQ(Joined(dic(Word(5) + Word(1) + Word(3) + std::string("\x16\x04x", 3))), "Ж");
    EXPECT_TRUE(dic("").empty());
    for (std::size_t cut = 1; cut < NewDic.size(); ++cut)
        EXPECT_NE(MessageOf([&] { dic(NewDic.substr(0, cut)); }), "no error") << cut;
    EXPECT_NE(MessageOf([&] { dic(Word(5) + Word(0xFFFFFFFF) + Word(0xFFFFFFF0)); }), "no error");
    EXPECT_NE(MessageOf([&] { ReadDicLanguages(folder / "none.dic"); }), "no error");

    const auto dix = [&](const std::string& text) {
        return Joined(ReadDixLanguages(folder.Put("a.dix", text)));
    };
    EXPECT_EQ(
        dix("<LANGUAGE>Before</LANGUAGE>\r\n<HEAD>\r\n<LANGUAGE>English</LANGUAGE>\r\n "
            "<LANGUAGE>x</LANGUAGE>\r\n"
            "<LANGUAGE>Česky</LANGUAGE>tail\r\n<LANGUAGE>open\r\n</HEAD>\r\n<LANGUAGE>After</LANGUAGE>"),
        "English</LANGUAGE>|Česky</LANGUAGE>|");
    EXPECT_EQ(dix("<head>\n<LANGUAGE>English</LANGUAGE>"), "");
    EXPECT_TRUE(ReadDixLanguages(folder / "none.dix").empty());
}

TEST(ExternalFiles, SaveRunsWhenThereIsSomething) {
    struct Counting : TgxExternalFiles {
        void Save() override { ++saves; }
        int saves = 0;
    } files;
    files.SetProjectName("P");
    files.SetFiles({});
    EXPECT_EQ(files.saves, 0);
    files.AddFile("a.pas");
    files.SetProjectName("P");
    files.SetProjectName("Q");
    EXPECT_EQ(files.saves, 2);
    files.loading = true;
    files.SetFiles(TStringList({"x"}));
    files.Clear();
    EXPECT_EQ(files.saves, 2);
}
