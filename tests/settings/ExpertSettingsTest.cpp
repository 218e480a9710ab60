#include "settings/ExpertSettings.h"
#include "platform/RegFileStore.h"
#include "platform/Text.h"
#include "support/TempFolder.h"

using namespace glotta;

namespace {

const std::string Base = "\\Software\\Quorlane\\TGlotta";
const std::string Exp = Base + "\\ExpSettings";

// Remembers what is written.
class LoggingStore : public RegFileStore {
public:
    using RegFileStore::RegFileStore;
    void WriteString(std::string_view key, std::string_view name, std::string_view value) override {
        log +=
            std::string(key.substr(Base.size())) + "|" + std::string(name) + "=" + std::string(value) + ";";
        RegFileStore::WriteString(key, name, value);
    }
    std::string log;
};

struct Profile {
    TempFolder folder;
    LoggingStore store{folder / "settings.reg"};
    std::optional<ExpertSettings> settings;

    void Put(const std::string& name, const std::string& value) { store.WriteString(Exp, name, value); }
    ExpertSettings& Start() {
        store.log.clear();
        return settings.emplace(store, std::vector<std::string>{"TGlotta", "TGlottaRTSE", "TGlottaRT"});
    }
    // All settings as "name=text", those with the initial text of a fresh profile left out.
    std::string Changes() {
        TempFolder fresh;
        RegFileStore empty(fresh / "x.reg");
        const ExpertSettings usual(empty, {"TGlotta"});
        std::string changes;
        for (const std::string& name : ExpertSettings::Names())
            if (settings->GetByName(name) != usual.GetByName(name))
                changes += name + "=" + ReplaceStr(settings->GetByName(name), "\n", "/") + ";";
        return changes;
    }
};

} // namespace

TEST(ExpertSettings, AFreshProfile) {
    Profile profile;
    const SettingsValues& values = profile.Start().Values();
    std::string shown;
    for (const std::string& name : ExpertSettings::Names())
        shown += name + "=" + profile.settings->GetByName(name) + "\n";
    EXPECT_EQ(shown, R"(MenuSection=ToolsMenu
ShortCut=Ctrl+L
NumLang=2
OpenAllForms=0
DefaultComp=TGlotta
CnstPermanent=0
CnstPrefix=str
HCPrefix=IDS_
AddFormName=0
ReplaceMethod=GetTextOrDefault(
IgnorableLength=1
SortOrder=-1
SortedColumn=0
DefaultLangNames=
CommentsLength=0
EmptyConstsValues=1
ExcludeChars=\|/?><.,":;]}[{=+-_)(!@#$%^&*`~' 
SkipLines=
SkipWords=
ColumnWidths=
LastFilterIndex=1
UseRegExpForSkip=0
PreviewLines=5
NoCommentsInSources=0
MultiProjFolder=
MultiProjFileName=
MultiProjTemplate=
MultiProjUseTemplate=0
Delimiter=~!@#$
UseCustom=0
UserFile=
)");
    EXPECT_EQ(values.ExcludeChars.size(), 33u);
    EXPECT_EQ(values.ShortCut, scCtrl | 'L');
    EXPECT_EQ(profile.store.log, "");
    EXPECT_TRUE(profile.store.KeyExists(Base));
}

TEST(ExpertSettings, ANumberThatIsNoneEndsTheReading) {
    struct Case {
        const char *name, *text, *changes;
    };
    const Case cases[] = {
        // The settings behind it keep their initial values, also where their read default is another.
        {"DefNumLang", "abc",
         "MenuSection=HelpMenu;IgnorableLength=0;SortOrder=0;PreviewLines=0;Delimiter=|;"},
        {"CnstPermanent", "",
         "MenuSection=HelpMenu;IgnorableLength=0;SortOrder=0;PreviewLines=0;Delimiter=|;"},
        {"IgnorableLength", "abc", "MenuSection=HelpMenu;HCPrefix=HC;Delimiter=|;"},
        {"DefNumLang", "$10", "MenuSection=HelpMenu;NumLang=16;HCPrefix=HC;Delimiter=|;"},
    };
    for (const Case& c : cases) {
        Profile profile;
        profile.Put("MenuSection", "HelpMenu");
        profile.Put("HCPrefix", "HC");
        profile.store.WriteString(Base, "Delimiter", "|");
        profile.Put(c.name, c.text);
        profile.Start();
        EXPECT_EQ(profile.Changes(), c.changes) << c.name << " " << c.text;
    }
}

TEST(ExpertSettings, ValuesAreReadAsTheyAreStored) {
    Profile profile;
    profile.Put("ShortCut", "ctrl+SHIFT+f5");
    profile.Put("DefaultComponent", "tglotta");
    profile.Put("SkipWords", "one\r\nДва\r\n^three");
    profile.Put("SkipLines", "");
    profile.Put("ColumnWidths", " \t100,80,120\r\n");
    profile.Put("EmptyConstsValues", "0");
    profile.Put("UseRegExpForSkip", "junk");
    profile.Put("UseCustom", "1");
    profile.Put("UserFile", "x");
    EXPECT_EQ(profile.Start().Values().SkipWords.Count(), 3u);
    EXPECT_EQ(profile.Changes(), "ShortCut=Shift+Ctrl+F5;EmptyConstsValues=0;SkipWords=one/Два/^three;"
                                 "ColumnWidths=100,80,120;");
    profile.Put("DefaultComponent", "TGlottaRT");
    EXPECT_EQ(profile.Start().Values().DefaultComp, "TGlottaRT");
    profile.Put("DefaultComponent", "tglottart");
    EXPECT_EQ(profile.Start().Values().DefaultComp, "TGlotta");
    EXPECT_EQ(profile.store.log, "");
}

TEST(ExpertSettings, SettersWriteAtOnce) {
    Profile profile;
    ExpertSettings& settings = profile.Start();
    // Unchanged: those of the first group write nothing.
    settings.SetCnstPrefix("str");
    settings.SetNumLang(2);
    settings.SetShortCut(scCtrl | 'L');
    settings.SetOpenAllForms(false);
    settings.SetUseCustom(false);
    settings.SetMenuSection("ToolsMenu");
    settings.SetMultiProjFileName("");
    settings.SetMultiProjFolder("");
    settings.SetMultiProjTemplate("");
    settings.SetMultiProjUseTemplate(false);
    settings.SetDefaultComp("TGlotta");
    settings.SetIgnorableLength(1);
    settings.SetCnstPermanent(0);
    settings.SetHCPrefix("IDS_");
    EXPECT_EQ(profile.store.log, "");
    // The others write on every call.
    settings.SetAddFormName(false);
    settings.SetReplaceMethod("GetTextOrDefault(");
    settings.SetSortedColumn(0);
    settings.SetSortOrder(-1);
    settings.SetDefaultLangNames("");
    settings.SetCommentsLength(0);
    settings.SetEmptyConstsValues(true);
    settings.SetExcludeChars("x");
    settings.SetSkipLines({});
    settings.SetSkipWords({});
    settings.SetColumnWidths("");
    settings.SetLastFilterIndex(1);
    settings.SetUseRegExpForSkip(false);
    settings.SetPreviewLines(5);
    settings.SetNoCommentsInSources(false);
    EXPECT_EQ(ReplaceStr(profile.store.log, "\\ExpSettings|", ""),
              "AddFormName=0;ReplaceMethod=GetTextOrDefault(;SortedColumn=0;SortOrder=-1;DefaultLangNames=;"
              "CommentsLength=0;EmptyConstsValues=1;ExcludeChars=x;SkipLines=;SkipWords=;ColumnWidths=;"
              "LastFilterIndex=1;UseRegExpForSkip=0;PreviewLines=5;NoCommentsInSources=0;");
    profile.store.log.clear();
    settings.SetNumLang(5);
    settings.SetShortCut(scAlt | scShift | 'Q');
    settings.SetUseCustom(true);
    settings.SetCnstPrefix("STR"); // compared exactly
    settings.SetSkipWords(TStringList({"a b", "c"}));
    EXPECT_EQ(
        ReplaceStr(profile.store.log, "\\ExpSettings|", ""),
        "DefNumLang=5;ShortCut=Shift+Alt+Q;UseCustom=1;UserFile=;CnstPrefix=STR;SkipWords=a b\r\nc\r\n;");
    profile.Start();
    EXPECT_EQ(profile.Changes(),
              "ShortCut=Shift+Alt+Q;NumLang=5;CnstPrefix=STR;ExcludeChars=x;SkipWords=a b/c;");
}

TEST(ExpertSettings, ByNameForPeople) {
    Profile profile;
    ExpertSettings& settings = profile.Start();
    settings.OverrideByName("hcprefix", "X_");
    settings.OverrideByName("Delimiter", ";");
    EXPECT_EQ(profile.store.log, "");
    EXPECT_EQ(profile.Changes(), "HCPrefix=X_;Delimiter=;;");
    settings.SetByName("addformname", "Yes");
    settings.SetByName("skipwords", "a\nb");
    settings.SetByName("Delimiter", "|");
    EXPECT_EQ(profile.store.log,
              "\\ExpSettings|AddFormName=1;\\ExpSettings|SkipWords=a\r\nb\r\n;|Delimiter=|;");
    const char* const bad[][3] = {
        {"NumLang", "0", "Setting NumLang: a whole number from 1 to 2147483647 expected, not \"0\""},
        {"NumLang", "x", "Setting NumLang: a whole number from 1 to 2147483647 expected, not \"x\""},
        {"CnstPermanent", "2", "Setting CnstPermanent: a whole number from 0 to 1 expected, not \"2\""},
        {"OpenAllForms", "2", "Setting OpenAllForms: 1 or 0 expected, not \"2\""},
        {"ShortCut", "Ctrl+", "Setting ShortCut: a shortcut such as \"Ctrl+L\" expected, not \"Ctrl+\""},
        {"ReplaceMethod", "Get",
         "Setting ReplaceMethod: the name of a look-up method and an opening parenthesis expected, not "
         "\"Get\""},
        {"DefaultComp", "tglotta",
         "Setting DefaultComp: TGlotta or TGlottaRTSE or TGlottaRT expected, not \"tglotta\""},
        {"Nothing", "", "Unknown setting \"Nothing\""},
    };
    for (const auto& [name, text, message] : bad)
        EXPECT_EQ(MessageOf([&] { settings.SetByName(name, text); }), message);
    EXPECT_EQ(profile.Changes(), "HCPrefix=X_;AddFormName=1;SkipWords=a/b;Delimiter=|;");
}

TEST(ExpertSettings, ADamagedStoreIsToldAndKept) {
    TempFolder folder;
    const auto file =
        folder.Put("bad.reg", "Windows Registry Editor Version 5.00\n\n[HKEY_CURRENT_USER\\X]\n\"a=1\n");
    RegFileStore store(file);
    EXPECT_EQ(MessageOf([&] { ExpertSettings(store, {"TGlotta"}); }),
              PathText(file) + ": line 4: a quote is not closed");
    EXPECT_EQ(ReadFile(file), "Windows Registry Editor Version 5.00\n\n[HKEY_CURRENT_USER\\X]\n\"a=1\n");
}

TEST(ShortCutText, GoesBothWays) {
    for (unsigned code = 0; code <= 0xFFFF; ++code) {
        const auto shortCut = static_cast<TShortCut>(code);
        const std::string text = ShortCutToText(shortCut);
        const bool pad = (code & 0xFF) >= 0x60 && (code & 0xFF) <= 0x69; // its digits are read as the others
        if (text.empty() || pad || (code & 0x1F00) != 0) continue;
        ASSERT_EQ(TextToShortCut(text), shortCut) << text;
    }
    EXPECT_EQ(ShortCutToText(TextToShortCut("alt+CTRL+shift+del")), "Shift+Ctrl+Alt+Del");
    EXPECT_EQ(TextToShortCut("^l"), TextToShortCut("Ctrl+L"));
    for (const char* text : {"", "Ctrl+", "Ctrl+Foo", "F25", "Ctrl", "ЖЖ"})
        EXPECT_EQ(TextToShortCut(text), 0) << text;
}
