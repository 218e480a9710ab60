#include "runtime/FormTranslations.h"

#include "platform/Error.h"
#include "platform/Text.h"
#include "runtime/CustomLang.h"
#include "support/TempFolder.h"

using namespace glotta;

namespace {

// "E,G: a|x|y; b|z": languages, then records of the captions.
FormTranslations Read(std::string_view text) {
    FormTranslations form;
    const std::size_t colon = text.find(':');
    const std::string_view languages = text.substr(0, colon);
    form.languages.names.clear();
    for (int i = 1; i == 1 || !ExtractWord(i, languages, ',').empty(); ++i)
        form.languages.names.emplace_back(ExtractWord(i, languages, ','));
    form.languages.count = static_cast<int>(form.languages.names.size());
    for (int i = 1; !Trim(ExtractWord(i, text.substr(colon + 1), ';')).empty(); ++i) {
        std::string record(Trim(ExtractWord(i, text.substr(colon + 1), ';')));
        std::replace(record.begin(), record.end(), '|', ItemDelimiter);
        form.records[stCaptions].push_back(record);
    }
    return form;
}

std::string Shown(const FormTranslations& form) {
    std::string text;
    for (int i = 0; i < form.languages.count; ++i)
        text += (i ? "," : "") + form.languages.names[static_cast<std::size_t>(i)];
    for (const std::string& record : form.records[stCaptions])
        text += (&record == form.records[stCaptions].data() ? ": " : "; ") + record;
    std::replace(text.begin(), text.end(), ItemDelimiter, '|');
    return text;
}

struct Component {
    explicit Component(const std::string& properties, const std::string& form = "Form1")
        : file(FormFile::Parse("object " + form +
                                   ": TForm1\n  object B: TButton\n    Caption = 'c'\n  end\n"
                                   "  object g: TGlotta\n" +
                                   properties + "  end\nend\n",
                               "Main.dfm")),
          tree((RegisterGlottaClasses(), file), "TForm"),
          lang(dynamic_cast<TgxCustomLang&>(*tree.Root().FindComponent("g"))) {}
    std::string Text() {
        tree.BeforeWrite();
        return file.Write();
    }
    FormFile file;
    ComponentTree tree;
    TgxCustomLang& lang;
};

constexpr const char* Translated =
    "    LangNames.Strings = (\n      'E'\n      'G')\n    Captions.Strings = (\n"
    "      'B.Caption'#1'old'#1'alt'\n      'Gone.Caption'#1'g'#1'w')\n";

} // namespace

TEST(FormTranslations, MergingAddsAndRemovesNothing) {
    const char* cases[][3] = {
        {"E,G: a|x|y", "E,G: a|x|y", "E,G: a|x|y"},
        {"E,G: a|x|", "E,G: a|new|y", "E,G: a|new|y"},
        {"E,G: a|x|y", "E,G: a||; A", "E,G: a|x|y; A||"},
        {"E,G: a|x|y; b|1|2", "E,G: B|3|4; c|5|6", "E,G: a|x|y; b|3|4; c|5|6"},
        {"E,G: a|x|y", "g,e: a|Y|X", "E,G: a|X|Y"},
        {"E,G: a|x|y", "F,G: a|f|z; b|g|h", "E,G,F: a|x|z|f; b||h|g"},
        {"E: a|x|hidden; b", "E,G: c|1|2", "E,G: a|x|; b||; c|1|2"},
        {"E,E: a|x|y; a|1|2", "E,E: a|X|Y; a|3|4; a|5|6", "E,E: a|X|Y; a|3|4; a|5|6"},
        {"E,G: a|x", "E,G: a|x|", "E,G: a|x"},
        {"E,G,C: a", "E,C: a|x|z", "E,G,C: a|x||z"},
        {"E: a|x", "E: a|x|lost", "E: a|x"},
    };
    for (const auto& [present, added, expected] : cases) {
        const FormTranslations merged = Merged(Read(present), Read(added));
        EXPECT_EQ(Shown(merged), expected);
        EXPECT_EQ(Merged(merged, Read(added)), merged);
    }
    FormTranslations many;
    many.languages.SetCount(Languages::Max);
    EXPECT_EQ(MessageOf([&] { Merged(many, Read("G:")); }), "There cannot be more than 1000 languages");
    FormTranslations spare = Read("E,G:"); // a name beyond the languages
    spare.languages.count = 1;
    EXPECT_EQ(Merged(spare, Read("C:")).languages.names, (std::vector<std::string>{"E", "C", "G"}));
}

TEST(FormTranslations, OtherLanguagesTakeTheTextsOfTheSameName) {
    EXPECT_EQ(Shown(InLanguages(Read("E,G,C: a|x|y|z; b"), Read("c,E,F:").languages)), "c,E,F: a|z|x|; b|||");
}

TEST(CustomLangFiles, TravelFromFormToFormThroughBothKinds) {
    const TempFolder folder;
    for (const char* name : {"a.glt", "b.GLB", "c.txt"}) {
        const std::string file = PathText(folder / name);
        const bool binary = IsBinaryTranslationFile(file);
        EXPECT_EQ(binary, name == std::string("b.GLB"));
        const auto save = [&](TgxCustomLang& lang, TranslationFiles& files) {
            binary ? lang.SaveAllToBinaryFile(files, file) : lang.SaveAllToFile(files, file, "~");
        };
        const auto load = [&](TgxCustomLang& lang) {
            TranslationFiles files;
            return binary ? lang.LoadAllFromBinaryFile(files, file) : lang.LoadAllFromFile(files, file, true);
        };
        Component from(Translated);
        Component other("    Captions.Strings = (\n      'o'#1'o')\n", "Form2");
        {
            TranslationFiles files;
            save(from.lang, files);
            save(other.lang, files);
            EXPECT_FALSE(std::filesystem::exists(folder / name));
            files.Flush();
        }
        Component to("    ActiveLanguage = 1\n    Hints.Strings = (\n      'gone'#1'x')\n", "FORM1");
        EXPECT_TRUE(load(to.lang));
        EXPECT_EQ(to.lang.Translations(), from.lang.Translations());
        EXPECT_EQ(to.lang.NumberOfLanguages(), 2);
        const std::string before = from.Text();
        EXPECT_TRUE(load(from.lang));
        EXPECT_EQ(from.Text(), before) << "nothing that is equal is written anew";
        Component absent(Translated, "Form3");
        EXPECT_FALSE(load(absent.lang));
        EXPECT_EQ(absent.Text(), Component(Translated, "Form3").Text());
        Component merged("    LangNames.Strings = (\n      'F')\n");
        TranslationFiles files;
        EXPECT_TRUE(merged.lang.MergeAllFromFile(files, file));
        EXPECT_EQ(Shown(merged.lang.Translations()), "F,E,G: B.Caption||old|alt; Gone.Caption||g|w");

        const std::string good = ReadFile(folder / name);
        save(from.lang, files);
        std::filesystem::last_write_time(folder / name, {});
        files.Flush();
        EXPECT_EQ(std::filesystem::last_write_time(folder / name), std::filesystem::file_time_type{});

        const std::string bad = binary ? good.substr(0, good.size() - 1) : good + "[x.Hints]";
        folder.Put(name, bad);
        TranslationFiles damaged;
        for (int attempt = 0; attempt < 2; ++attempt) {
            const std::string message = MessageOf([&] { save(from.lang, damaged); });
            EXPECT_TRUE(message.starts_with(file + ": ")) << message;
            EXPECT_EQ(MessageOf([&] { load(absent.lang); }), message);
            EXPECT_EQ(MessageOf([&] { absent.lang.MergeAllFromFile(damaged, file); }), message);
        }
        damaged.Flush();
        EXPECT_EQ(ReadFile(folder / name), bad);
        EXPECT_EQ(absent.Text(), Component(Translated, "Form3").Text());
        std::filesystem::remove(folder / name);
        EXPECT_TRUE(MessageOf([&] { load(absent.lang); }).starts_with(file + ": "));
    }
}

TEST(CustomLangFiles, AComponentMayKeepItsLanguages) {
    const TempFolder folder;
    folder.Put(
        "a.glt",
        "[Form1.Languages]\nNumberOfLanguages=2\nLanguage1=G\nLanguage2=E\n[Form1.Captions]\nx=g~!@#$e\n");
    Component to(Translated);
    TranslationFiles files;
    EXPECT_TRUE(to.lang.LoadAllFromFile(files, PathText(folder / "a.glt"), false));
    EXPECT_EQ(Shown(to.lang.Translations()), "E,G: x|e|g");
}

TEST(CustomLangFiles, RefreshedListsLoseNothing) {
    Component form(Translated);
    form.lang.RefreshLists();
    EXPECT_EQ(Shown(form.lang.Translations()), "E,G: B.Caption|c|alt; Gone.Caption|g|w");
}

TEST(CustomLangFiles, TheDelimiterIsReadFromTheFile) {
    const TempFolder folder;
    const std::pair<const char*, const char*> cases[] = {{"", "?"},
                                                         {"[x]\nDelimiter=a\n", "?"},
                                                         {"[Options]\nDelimiter=\n", "?"},
                                                         {"[x]\n[OPTIONS]\ndelimiter = a,b \n", "a,b"},
                                                         {"[Options]\nDelimiter=\\s|\\s\n", " | "}};
    EXPECT_EQ(ReadGLTDelimiter(PathText(folder / "a.glt"), "?"), "?");
    for (const auto& [content, delimiter] : cases)
        EXPECT_EQ(ReadGLTDelimiter(PathText(folder.Put("a.glt", content)), "?"), delimiter) << content;
}
