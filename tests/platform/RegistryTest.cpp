#include "platform/RegFileStore.h"
#include "platform/Text.h"
#include "support/TempFolder.h"

#include <thread>

using namespace glotta;

namespace {

const std::string Head = "Windows Registry Editor Version 5.00\r\n";

std::string Shown(RegistryStore& store, std::string_view key) {
    std::string shown;
    for (const std::string& name : store.ValueNames(key))
        shown += name + "=" + store.ReadString(key, name).value_or("(none)") + ";";
    return shown;
}

} // namespace

TEST(RegFileStore, WritesWhatTheRegistryEditorReads) {
    TempFolder folder;
    const auto file = folder / "deep/settings.reg";
    RegFileStore store(file);
    EXPECT_FALSE(store.ReadString("\\Software\\A", "x"));
    store.CreateKey("\\Software\\A");
    store.WriteString("\\Software\\A\\B", "na\"me", "C:\\dir \"quoted\" Жё");
    store.WriteString("\\software\\a\\b", "Lines", "a\r\nЖ\r\n");
    store.WriteString("\\Software\\A", "", "the default");
    store.WriteString("Software\\A", "Empty", "");
    EXPECT_EQ(ReadFile(file), Head + "\r\n[HKEY_CURRENT_USER\\Software\\A]\r\n"
                                     "@=\"the default\"\r\n"
                                     "\"Empty\"=\"\"\r\n"
                                     "\r\n[HKEY_CURRENT_USER\\Software\\A\\B]\r\n"
                                     "\"na\\\"me\"=\"C:\\\\dir \\\"quoted\\\" Жё\"\r\n"
                                     "\"Lines\"=hex(1):61,00,0d,00,0a,00,16,04,0d,00,0a,00,00,00\r\n");
    RegFileStore again(file);
    EXPECT_EQ(Shown(again, "\\SOFTWARE\\a\\b"), "na\"me=C:\\dir \"quoted\" Жё;Lines=a\r\nЖ\r\n;");
    EXPECT_TRUE(again.KeyExists("\\Software"));
    EXPECT_FALSE(again.KeyExists("\\Soft"));
    again.WriteString("\\Software\\A", "EMPTY", "full");
    again.DeleteValue("\\Software\\A", "");
    EXPECT_EQ(Shown(again, "\\Software\\A"), "Empty=full;");
}

TEST(RegFileStore, TextOfAnyKindComesBack) {
    TempFolder folder;
    std::string all = "\U0001F600 ";
    for (char32_t c = 0; c < 0x300; ++c)
        AppendChar(all, c);
    const std::string values[] = {all,
                                  all + all,
                                  "\\",
                                  "\"",
                                  "a\\",
                                  "\r",
                                  "\n\n",
                                  std::string(1, '\0'),
                                  std::string(200, '\t'),
                                  "[HKEY]",
                                  "; x",
                                  " lead and trail "};
    RegFileStore store(folder / "s.reg");
    int count = 0;
    for (const std::string& value : values)
        store.WriteString("\\K", std::to_string(count++), value);
    RegFileStore again(folder / "s.reg");
    for (int i = 0; i < count; ++i)
        EXPECT_EQ(again.ReadString("\\K", std::to_string(i)), values[i]) << i;
}

TEST(RegFileStore, KeepsWhatItDoesNotKnow) {
    TempFolder folder;
    const std::string text =
        "\r\nWindows Registry Editor Version 5.00\r\n; exported\r\n"
        "[HKEY_LOCAL_MACHINE\\Software]\r\n\"a\"=dword:0000002a ; forty-two\r\n"
        "  [HKEY_CURRENT_USER\\K]  \r\n"
        "\"bin\"=hex:01,02,\\\r\n  ff\r\n\"none\"=hex:\r\n\"multi\"=hex(7):61,00,00,00,00,00\r\n"
        "\"expand\"=hex(2):25,00,41,00,25,00,00,00\r\n\"gone\"=-\r\n"
        "\"broken\"=\"two\r\nlines\"\r\n\"x\"=\"1\"\r\n\"X\"=\"2\"\r\n\r\n"
        "[-HKEY_CURRENT_USER\\Old]\r\n[HKEY_CURRENT_USER\\k]\r\n\"y\"=\"last\"";
    for (const bool wide : {false, true}) {
        const auto encoding = *EncodingByName(wide ? "utf-16le" : "utf-8-bom");
        const auto file = folder.Put("s.reg", Encode(text, encoding).bytes);
        RegFileStore store(file);
        EXPECT_EQ(
            Shown(store, "\\K"),
            "bin=(none);none=(none);multi=(none);expand=%A%;gone=(none);broken=two\r\nlines;X=2;y=last;");
        store.WriteString("\\K", "y", "last"); // as it is
        EXPECT_EQ(ReadFile(file), Encode(text, encoding).bytes);
        store.WriteString("\\K", "gone", "Ж");
        store.WriteString("\\L", "z", "new");
        store.DeleteValue("\\K", "x");
        std::string expected = ReplaceStr(text, "\"gone\"=-", "\"gone\"=\"Ж\"");
        expected = ReplaceStr(expected, "\"x\"=\"1\"\r\n\"X\"=\"2\"\r\n", "");
        expected += "\r\n\r\n[HKEY_CURRENT_USER\\L]\r\n\"z\"=\"new\"\r\n";
        EXPECT_EQ(ReadFile(file), Encode(expected, encoding).bytes);
    }
}

TEST(RegFileStore, NamesTheDamagedLine) {
    struct Case {
        const char *text, *message;
    };
    const Case cases[] = {
        {"\nREGEDIT4\n", "line 2: \"Windows Registry Editor Version 5.00\" expected"},
        {"H[K\n", "line 2: \"]\" expected"},
        {"H[]\n", "line 2: a key without a name"},
        {"H[K] x\n", "line 2: unexpected text behind the key"},
        {"H\"a\"=\"b\"\n", "line 2: a value before the first key"},
        {"H[K]\njunk\n", "line 3: a key, a value or a comment expected"},
        {"H[K]\n\"a\n\"=1\n", "line 3: a quote is not closed"},
        {"H[K]\n\"a\" \"b\"\n", "line 3: \"=\" expected"},
        {"H[K]\n\"a\"=\"b\n\"c\"=\"d\"\n", "line 3: unexpected text behind the value"},
        {"H[K]\n\"a\"=\"b\n\n", "line 3: a quote is not closed"},
        {"H[K]\n\"a\"=\"b\\", "line 3: a quote is not closed"},
        {"H[K]\n\"a\"=1\n", "line 3: this kind of value is unknown"},
        {"H[K]\n\"a\"=dword:xyz\n", "line 3: a number has one to eight hexadecimal digits"},
        {"H[K]\n\"a\"=hex(1:00\n", "line 3: \"hex(kind):\" expected"},
        {"H[K]\n\"a\"=hex(1)00\n", "line 3: \":\" expected behind hex"},
        {"H[K]\n\"a\"=hex:00,\\\n  0g\n", "line 4: unexpected text behind the value"},
        {"H[K]\n\"a\"=hex:00,\\\n  g\n", "line 4: a hexadecimal byte expected"},
        {"H[K]\n\"a\"=hex:00,\\", "line 3: the value is cut off"},
        {"H[K]\n\n\"a\"=hex(1):00\n", "line 4: a text has an even number of bytes"},
    };
    TempFolder folder;
    for (const Case& c : cases) {
        std::string text = c.text;
        if (text[0] == 'H') text = Head + text.substr(1);
        const auto file = folder.Put("bad.reg", text);
        RegFileStore store(file);
        EXPECT_EQ(MessageOf([&] { store.ReadString("\\K", "a"); }), PathText(file) + ": " + c.message)
            << text;
        EXPECT_NE(MessageOf([&] { store.WriteString("\\K", "a", "b"); }), "no error");
        EXPECT_EQ(ReadFile(file), text);
    }
    folder.Put("empty.reg", "");
    RegFileStore(folder / "empty.reg").WriteString("\\K", "a", "b");
    EXPECT_TRUE(ReadFile(folder / "empty.reg").starts_with(Head));
}

TEST(RegFileStore, TwoProgramsAtOnceLoseNothing) {
    TempFolder folder;
    constexpr int Writers = 4, Values = 15;
    std::vector<std::thread> threads;
    for (int writer = 0; writer < Writers; ++writer)
        threads.emplace_back([&, writer] {
            RegFileStore store(folder / "s.reg");
            store.ValueNames("\\K"); // an old state in memory
            for (int i = 0; i < Values; ++i)
                store.WriteString("\\K", std::to_string(writer) + "." + std::to_string(i), "x");
        });
    for (std::thread& thread : threads)
        thread.join();
    RegFileStore store(folder / "s.reg");
    EXPECT_EQ(store.ValueNames("\\K").size(), std::size_t(Writers * Values));
}

TEST(TRegIniFile, HoldsEverythingAsText) {
    TempFolder folder;
    RegFileStore store(folder / "s.reg");
    TRegIniFile ini(store, "\\Base");
    ini.WriteInteger("Sub", "number", -5);
    ini.WriteBool("", "switch", true);
    EXPECT_EQ(Shown(store, "\\Base\\Sub") + Shown(store, "\\Base"), "number=-5;switch=1;");
    EXPECT_EQ(ini.ReadInteger("sub", "NUMBER", 7), -5);
    EXPECT_EQ(ini.ReadInteger("Sub", "missing", 7), 7);
    EXPECT_TRUE(ini.ReadBool("", "switch", false));
}
