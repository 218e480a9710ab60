#include "platform/IniFile.h"
#include "platform/IntText.h"
#include "support/TempFolder.h"

using namespace glotta;

TEST(IniFile, KeepsTheFileAroundAChange) {
    TempFolder folder;
    const auto file =
        folder.Put("p.gxproj", "; head\n\n[Settings]\nFirst = 1 \n;comment\nnoequals\n"
                               "Other=x\n\n; about B\n[B]\nk=v\n[settings]\nThird=3\nfirst=9\nlast=end");
    TgxMemIniFile ini(file);
    EXPECT_EQ(ini.ReadString("SETTINGS", "first", "") + ini.ReadString("settings", "third", "") +
                  ini.ReadString("b", "K", "") + ini.ReadString("b", "none", "-"),
              "13v-");
    EXPECT_EQ(ini.Sections(), (std::vector<std::string>{"Settings", "B"}));
    EXPECT_EQ(ini.Keys("settings"), (std::vector<std::string>{"First", "Other", "Third", "last"}));
    ini.WriteString("settings", "FIRST", "one");
    ini.WriteBool("Settings", "New", true);
    ini.WriteString("Settings", "last", "END");
    ini.DeleteKey("settings", "OTHER");
    ini.WriteInteger("C", "n", -1);
    ini.UpdateFile();
    EXPECT_EQ(ReadFile(file),
              "; head\n\n[Settings]\nFirst = one\n;comment\nnoequals\nNew=1\n\n; about B\n[B]\nk=v\n"
              "[settings]\nThird=3\nfirst=9\nlast=END\n\n[C]\nn=-1\n");
    ini.EraseSection("SETTINGS");
    ini.UpdateFile();
    EXPECT_EQ(ReadFile(file), "; head\n\n[B]\nk=v\n[C]\nn=-1\n");
}

TEST(IniFile, AnUntouchedFileComesBackInEveryEncoding) {
    TempFolder folder;
    const std::string files[] = {"",
                                 "[S]\r\nk=\xCF\xF0 caf\xE9\r\n",
                                 "\xEF\xBB\xBF[S]\rk=v\r",
                                 "\xFF\xFE[\0S\0]\0\n\0k\0=\0v\0",
                                 "junk\n=no key\n[unclosed\nkey=before any section? \x81\n",
                                 "[a]\n[a]\n\n\n=\n ; \n[]\nx=\n"};
    for (const std::string& bytes : files) {
        const auto file = folder.Put("x.ini", bytes);
        TgxMemIniFile(file).UpdateFile();
        EXPECT_EQ(ReadFile(file), bytes);
    }
}

TEST(IniFile, EncodingGrowsOnlyWhenItMust) {
    TempFolder folder;
    const auto file = folder.Put("x.ini", "[S]\r\nk=caf\xE9\r\n");
    TgxMemIniFile ini(file);
    ini.WriteString("S", "a", "ü");
    ini.UpdateFile();
    EXPECT_EQ(ReadFile(file), "[S]\r\nk=caf\xE9\r\na=\xFC\r\n");
    ini.WriteString("S", "a", "Ж");
    ini.UpdateFile();
    EXPECT_EQ(ReadFile(file), "\xEF\xBB\xBF[S]\r\nk=café\r\na=Ж\r\n");
    TgxMemIniFile cyrillic(folder.Put("c.ini", "[S]\nk=\xCF\n"), EncodingByName("1251"));
    EXPECT_EQ(cyrillic.ReadString("S", "k", ""), "П");
}

TEST(IniFile, RefusesWhatItCannotHold) {
    TempFolder folder;
    TgxMemIniFile ini(folder / "x.ini");
    const std::string file = PathText(folder / "x.ini");
    EXPECT_EQ(MessageOf([&] { ini.WriteString("S", "k", "a\nb"); }),
              file + ": [S] k: an INI file cannot hold a line break");
    EXPECT_EQ(MessageOf([&] { ini.WriteString("S]", "k", "v"); }),
              file + ": [S]] k: a section name cannot hold \"]\"");
    for (const char* key : {"", "a=b", "[k]", ";k", " "})
        EXPECT_NE(MessageOf([&] { ini.WriteString("S", key, "v"); }), "no error") << key;
    EXPECT_TRUE(ini.Sections().empty());
}

TEST(IntText, ReadsNumbersAsTheyAreWritten) {
    const auto shown = [](const char* text) {
        const auto number = StrToInt(text);
        return number ? std::to_string(*number) : std::string("-");
    };
    std::string result;
    for (const char* text :
         {"0", " 12", "+7", "-2147483648", "2147483647", "2147483648", "$ff", "0x10", "-$1", "$FFFFFFFF",
          "$100000000", "", "-", "$", "1 ", "1x", "abc", "99999999999999999999"})
        result += shown(text) + " ";
    EXPECT_EQ(result, "0 12 7 -2147483648 2147483647 - 255 16 -1 -1 - - - - - - - - ");
}
