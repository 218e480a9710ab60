#include "runtime/TranslationFiles.h"

#include "platform/Text.h"
#include "runtime/Crc32.h"
#include "runtime/GlbFile.h"
#include "runtime/GltFile.h"
#include "runtime/Record.h"
#include "support/TempFolder.h"

using namespace glotta;

namespace {

FormTranslations Form(std::vector<std::string> languages, std::vector<std::vector<std::string>> captions = {},
                      std::vector<std::vector<std::string>> strings = {}) {
    FormTranslations form;
    form.languages.count = static_cast<int>(languages.size());
    form.languages.names = std::move(languages);
    for (const auto& fields : captions)
        form.records[stCaptions].push_back(JoinFields(fields));
    for (const auto& fields : strings)
        form.records[stStrings].push_back(JoinFields(fields));
    return form;
}

std::string Glt(const std::string& before, std::string_view delimiter,
                const std::vector<std::pair<std::string, FormTranslations>>& forms) {
    GltFile file("a.glt", before);
    file.SetDelimiter(delimiter);
    for (const auto& [name, form] : forms)
        file.Put(name, form);
    return file.ToBytes();
}

std::string Glb(const std::vector<std::pair<std::string, FormTranslations>>& forms) {
    GlbFile file;
    for (const auto& [name, form] : forms)
        file.Put(name, form);
    return file.ToBytes();
}

// Lines as a person writes them, as the file has them.
std::string Bytes(std::string_view lines) {
    return "\xEF\xBB\xBF" + ReplaceStr(lines, "\n", "\r\n");
}

std::string GltError(std::string_view lines) {
    return MessageOf([&] { GltFile("a.glt", Bytes(lines)); });
}

} // namespace

TEST(GltFile, IsWrittenForPeople) {
    FormTranslations form =
        Form({"English", "German"}, {{"Form1.Caption", "Main", "Haupt"}},
             {{"IDS_0", "Two\r\nlines", ""}, {"IDS_1", "C:\\ ~!@#$ [x]=1; \"q\" ", "\u00DC"}});
    form.records[stListView_TreeView_Items] = {"List.Items[0]"};
    form.languages.active = 2;
    EXPECT_EQ(Glt("", "~!@#$", {{"Form1", form}, {"Form2", Form({"E"})}}), Bytes(R"([Options]
Delimiter=~!@#$

[Form1.Languages]
NumberOfLanguages=2
ActiveLanguage=2
Language1=English
Language2=German

[Form1.Captions]
Form1.Caption=Main~!@#$Haupt

[Form1.Strings]
IDS_0=Two\r\nlines~!@#$
IDS_1=C:\\ \~!@#$ [x]=1; "q"\s~!@#$Ü

[Form1.ListView_TreeView_Items]
List.Items[0]=\0

[Form2.Languages]
NumberOfLanguages=1
ActiveLanguage=1
Language1=E
)"));
}

TEST(TranslationFormats, EveryTextSurvivesWithEveryDelimiter) {
    std::vector<std::string> texts = {"",
                                      " ",
                                      " a ",
                                      "\t",
                                      "\\",
                                      "\\\\n",
                                      "\\e",
                                      "\\0",
                                      "a=b",
                                      "=",
                                      ";c",
                                      "# c",
                                      "[s]",
                                      "[s",
                                      "\"q\"",
                                      "'",
                                      "a\r\nb",
                                      "\r",
                                      "\n\n",
                                      "\x01\x02",
                                      "\x01",
                                      "\x7F",
                                      "~",
                                      "~!@#",
                                      "~!@#$",
                                      "~~!@#$",
                                      "a~!@#$b",
                                      ",",
                                      "a,b,",
                                      "sand",
                                      "an",
                                      "aan",
                                      "aaa",
                                      "\u0416",
                                      "\u65E5",
                                      "\U0001F600",
                                      "\u2028x",
                                      "\uFEFF",
                                      "\u0085",
                                      "^%|`&",
                                      " | ",
                                      "e",
                                      "u{41}",
                                      "\\u{41}",
                                      "x\\",
                                      "\U0010FE80",
                                      "\U0010F000",
                                      std::string("a\0b", 3),
                                      "\xEF\xBF\xBD",
                                      "\u00E9\u00E9"};
    const std::vector<std::string> delimiters = {
        "~!@#$", ",",  "=",      "and",           "a", "aa", " ",     " | ",  "\t", "\\",   "\\n",   ";",
        "[",     "\"", "\u00E9", "\\^%|`&\u00A1", "0", "e",  "u{41}", "\x01", "-",  "\x7F", "\u2028"};
    FormTranslations form;
    form.languages.names = {"E", ""};
    form.languages.count = 2;
    form.languages.active = 2;
    int kind = 0;
    for (const std::string& a : texts) {
        form.languages.names.push_back(a);
        std::vector<std::string>& records = form.records[static_cast<std::size_t>(kind++ % StringsTypeCount)];
        records.push_back(JoinFields({a}));
        records.push_back(JoinFields({"x", a}));
        for (const std::string& b : texts)
            records.push_back(JoinFields({a, b, a, b}));
    }
    const std::vector<std::string> names = {"Form1", "Options", "a.b", "", "] \r\n=", ";\u0416"};
    std::vector<std::pair<std::string, FormTranslations>> forms;
    for (const std::string& name : names)
        forms.emplace_back(name, name == "a.b" ? form : Form({name}, {{name, name}}));
    const std::string glb = Glb(forms);
    GlbFile binary("a.glb", glb);
    EXPECT_TRUE(binary.ToBytes() == glb);
    std::string glt; // goes from delimiter to delimiter
    for (const std::string& delimiter : delimiters) {
        const std::string fresh = Glt("", delimiter, forms);
        glt = Glt(glt, delimiter, forms);
        EXPECT_TRUE(glt == fresh) << delimiter;
        EXPECT_TRUE(Glt(glt, delimiter, forms) == glt) << delimiter;
        GltFile text("a.glt", glt);
        EXPECT_EQ(text.Delimiter(), delimiter);
        EXPECT_FALSE(HasRawCharacters(Decode(glt, {EncodingKind::Utf8, 1252, true}))) << delimiter;
        for (const auto& [name, saved] : forms) {
            ASSERT_TRUE(text.Find(name) && binary.Find(name)) << delimiter << name;
            EXPECT_TRUE(*text.Find(name) == saved) << delimiter << name;
            EXPECT_TRUE(*binary.Find(name) == saved);
        }
    }
}

TEST(TranslationFormats, BytesThatAreNoTextBecomeWhatStandsForThem) {
    const FormTranslations form = Form({"E"}, {{"a", "x\xFFy"}}), read = Form({"E"}, {{"a", "x\U0010FEFFy"}});
    EXPECT_EQ(*GltFile("a.glt", Glt("", ",", {{"F", form}})).Find("f"), read);
    EXPECT_EQ(*GlbFile("a.glb", Glb({{"F", form}})).Find("f"), read);
}

TEST(GltFile, SavingAFormLeavesTheRest) {
    const std::string before = R"(; made by hand
[Notes]
some line
[Form2.Languages]
Translator=Eva
Language1=E
NumberOfLanguages=1
; not yet
[Form2.Captions]
 ; in front of b
 B = b
a =a
; in front of gone
Gone=g
; at the end

; hints of the second form
[form2.hints]
h=h
[Form2.Other]
x
[options]
  delimiter = ,
[Form3.Languages]
NumberOfLanguages=1
language1=E
[Form3.Fonts]
f= x)";
    FormTranslations form = Form({"E"}, {{"a", "new"}, {"B", "b,b"}, {"c", ""}}, {{"s", "t"}});
    EXPECT_EQ(Glt(Bytes(before), ",", {{"FORM2", form}, {"Form4", Form({"E"})}}), Bytes(R"(; made by hand
[Notes]
some line
[Form2.Languages]
NumberOfLanguages=1
ActiveLanguage=1
Translator=Eva
Language1=E
; not yet
[Form2.Captions]
a=new
 ; in front of b
B=b\,b
c=
; in front of gone
; at the end

; hints of the second form
[form2.hints]

[Form2.Strings]
s=t

[Form2.Other]
x
[options]
  delimiter = ,
[Form3.Languages]
NumberOfLanguages=1
language1=E
[Form3.Fonts]
f= x

[Form4.Languages]
NumberOfLanguages=1
ActiveLanguage=1
Language1=E
)"));
    GltFile untouched("a.glt", Bytes(before));
    untouched.SetDelimiter(",");
    untouched.Put("Form3", *GltFile("a.glt", Bytes(before)).Find("form3"));
    EXPECT_FALSE(untouched.Changed());
    EXPECT_EQ(untouched.ToBytes(), Bytes(before));
}

TEST(GltFile, ANewDelimiterIsTheWholeFiles) {
    EXPECT_EQ(
        Glt(Bytes("[A.Languages]\nNumberOfLanguages=2\nLanguage1=\\s\nLanguage2=\n\n[A.Strings]\nx=1~!@#$a\\^"
                  "b\n"),
            "\\", {}),
        Bytes("[Options]\nDelimiter=\\\nEscape=^\n\n[A.Languages]\nNumberOfLanguages=2\nActiveLanguage=1\n"
              "Language1=^s\nLanguage2=\n\n[A.Strings]\nx=1\\a^^b\n"));
    EXPECT_EQ(MessageOf([] { Glt("", "", {}); }), "You cannot use empty delimiter!");
    EXPECT_EQ(MessageOf([] { Glt("", "a\n", {}); }),
              "A delimiter cannot hold line breaks or bytes that are no text");
}

TEST(GltFile, DamageIsToldWithItsLine) {
    const std::string head = "[A.Languages]\nNumberOfLanguages=1\nLanguage1=E\n";
    const std::string cases[][2] = {
        {"[A.Captions]\n", "1: form A has no section with its languages"},
        {"\n;\n[A.Languages]\n", "3: NumberOfLanguages is missing"},
        {"[A.Languages]\nNumberOfLanguages=1001\n", "2: NumberOfLanguages must be a number from 1 to 1000"},
        {"[A.Languages]\nNumberOfLanguages=x\n", "2: NumberOfLanguages must be a number from 1 to 1000"},
        {"[A.Languages]\nNumberOfLanguages=2\nLanguage1=E\n", "1: Language2 is missing"},
        {head + "Language3=F\n", "1: Language2 is missing"},
        {head + "ActiveLanguage=2\n", "1: the active language is none of the languages"},
        {head + "ActiveLanguage=0\n", "4: ActiveLanguage must be a number from 1 to 1000"},
        {head + head, "4: section [A.Languages] is there twice"},
        {head + "[a.languages]\n", "4: section [a.languages] is there twice"},
        {head + "[A.Fonts]\nx\n", "5: there is no \"=\" between identifier and texts"},
        {head + "[A.Fonts\n[A.Hints]\n[x\n", "6: there is no \"=\" between identifier and texts"},
        {head + "[A.Fonts]\nx=C:\\dir\n", "5: unknown escape \"\\d\""},
        {head + "[A.Fonts]\nx\\=a\n", "5: unknown escape \"\\\""},
        {head + "[A.Fonts]\nx=\\u{110000}\n", "5: unknown escape \"\\u\""},
        {head + "[A.Fonts]\nx=\\u{D800}\n", "5: unknown escape \"\\u\""},
        {head + "[A.Fonts]\nx=\\u{41\n", "5: unknown escape \"\\u\""},
        {head + "[A.Fonts]\nx=a\xFF\n", "5: this holds bytes that are no text in the file's encoding"},
        {"[Options]\nEscape=ab\n", "1: Escape must be one character"},
        {"[Options]\nDelimiter=a\nEscape=a\n", "2: unknown escape \"a\""},
        {"[Options]\nEscape=~\n", "1: Delimiter must not be empty nor hold the Escape character"},
    };
    for (const auto& [lines, message] : cases)
        EXPECT_EQ(GltError(lines), "a.glt: line " + message) << lines;
}

TEST(GltFile, IsReadInTheEncodingItHas) {
    const std::string lines = "[A.Languages]\nNumberOfLanguages=1\nLanguage1=\u0416\n";
    const auto name = [](std::string_view bytes) {
        return GltFile("a.glt", bytes, Encoding{EncodingKind::CodePage, 1251}).Find("A")->languages.names[0];
    };
    for (const char* encoding : {"utf-8", "utf-8-bom", "utf-16le", "windows-1251"})
        EXPECT_EQ(name(Encode(lines, *EncodingByName(encoding)).bytes), "\u0416") << encoding;
}

TEST(GlbFile, HasThisLayout) {
    const FormTranslations form = Form({"E", "G"}, {{"a", std::string(130, 'x'), ""}, {"b"}});
    const std::string data = std::string("\1F\2\1\2\1E\1G\2\1a\2\x82\1", 15) + std::string(130, 'x') +
                             std::string("\0\1b\0", 4) + std::string(11, '\0');
    std::string sum;
    for (int shift = 0; shift < 32; shift += 8)
        sum += static_cast<char>(Crc32(data) >> shift);
    EXPECT_EQ(Crc32("123456789"), 0xCBF43926u);
    EXPECT_EQ(Glb({{"F", form}}),
              std::string("\x89GLB\r\n\x1A\n\1\0\0\0\1\0\0\0\xA0\0\0\0", 20) + sum + data);
}

TEST(GlbFile, NoDamageIsOverlooked) {
    const std::string good =
        Glb({{"A", Form({"E", "G"}, {{"a", "x", "y"}}, {{"s", "\u0416"}})}, {"B", Form({"E"})}});
    const auto refused = [](const std::string& bytes) {
        return MessageOf([&] { GlbFile("a.glb", bytes); }).starts_with("a.glb: offset ");
    };
    for (std::size_t size = 0; size < good.size(); ++size)
        EXPECT_TRUE(refused(good.substr(0, size))) << size;
    for (std::size_t at = 0; at < good.size() * 8; ++at) {
        std::string bad = good;
        bad[at / 8] = static_cast<char>(bad[at / 8] ^ (1 << at % 8));
        EXPECT_TRUE(refused(bad)) << "bit " << at;
    }
    EXPECT_TRUE(refused(good + '\0'));
    // Data with a right checksum that is wrong nevertheless.
    const auto message = [](const std::string& data) {
        std::string bytes = std::string("\x89GLB\r\n\x1A\n\1\0\0\0\1\0\0\0", 16);
        for (const std::uint32_t number : {static_cast<std::uint32_t>(data.size()), Crc32(data)})
            for (int shift = 0; shift < 32; shift += 8)
                bytes += static_cast<char>(number >> shift);
        return MessageOf([&] { GlbFile("a.glb", bytes + data); });
    };
    const std::string head = "\1F\1\1\1\1E", none(12, '\0');
    const std::pair<std::string, std::string> cases[] = {
        {head + none, "no error"},
        {head + none + "x", "a.glb: offset 43: there is more data than this form has"},
        {head + none.substr(1), "a.glb: offset 42: the data ends too early"},
        {std::string("\1F\0", 3) + none, "a.glb: offset 26: the number of languages cannot be 0"},
        {"\1F\xE9\7" + none, "a.glb: offset 26: the number of languages cannot be 1001"},
        {"\1F\1\2" + none, "a.glb: offset 27: the active language cannot be 2"},
        {"\1F\1\1" + none, "a.glb: offset 28: there are more languages than names"},
        {"\1\xFF\1\1\1\1E" + none, "a.glb: offset 25: this is no UTF-8"},
        {head + "\xFF\xFF\xFF\xFF\xF" + none, "a.glb: offset 31: there is no room for 4294967295 entries"},
        {head + "\xFF\xFF\xFF\xFF\x1F" + none, "a.glb: offset 31: this number is too large"},
        {"\x80\x80\x80\x80\x80\x80", "a.glb: offset 24: this number is too large"},
    };
    for (const auto& [data, expected] : cases)
        EXPECT_EQ(message(data), expected);
}
