#include "platform/Text.h"
#include "platform/StringList.h"

using namespace glotta;

TEST(Text, CountsAndCutsByCharacters) {
    const std::string text = "Ünïcödé 日本語 😀 plain ascii tail that is longer than a word";
    std::vector<std::size_t> starts; // by decoding, against the word-wise counting
    for (std::size_t pos = 0; pos < text.size(); NextChar(text, pos))
        starts.push_back(pos);
    EXPECT_EQ(CharCount(text), starts.size());
    starts.push_back(text.size());
    for (std::size_t i = 0; i < starts.size(); ++i) {
        EXPECT_EQ(ByteOffset(text, i), starts[i]);
        EXPECT_EQ(CharPrefix(text, i), text.substr(0, starts[i]));
        EXPECT_EQ(CharCount(text.substr(starts[i])), starts.size() - 1 - i);
    }
    EXPECT_EQ(ByteOffset(text, 1000), text.size());
}

TEST(Text, MalformedBytesAreOneCharacterEach) {
    const std::string text = "\xC3\xE2\x82\xED\xA0\x80\xF8\xC0\x80z";
    std::string decoded;
    for (std::size_t pos = 0; pos < text.size();)
        AppendChar(decoded, NextChar(text, pos));
    EXPECT_EQ(decoded, "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDz");
    EXPECT_EQ(UpperCase(text), "\xC3\xE2\x82\xED\xA0\x80\xF8\xC0\x80Z");
}

TEST(Text, CaseFollowsUnicode) {
    EXPECT_EQ(UpperCase("straße żółć привет ελλάς ﬁ ı"), "STRAßE ŻÓŁĆ ПРИВЕТ ΕΛΛΆΣ ﬁ ı");
    EXPECT_EQ(LowerCase("ŻÓŁĆ ПРИВЕТ İ \u212A"), "żółć привет İ \u212A");
    EXPECT_TRUE(SameText("Größe", "GRÖßE"));
    EXPECT_FALSE(SameText("i", "ı")); // ASCII equals ASCII only
    EXPECT_FALSE(SameText("Größe", "Größ"));
    EXPECT_TRUE(StartsWithText("ПРИВЕТ", "прив"));
    EXPECT_EQ(TextHash()("Größe"), TextHash()("GRÖßE"));
    EXPECT_LT(CompareText("alpha", "BETA"), 0);
    EXPECT_GT(CompareText("alphabet", "ALPHA"), 0);
    EXPECT_EQ(CompareText("żaba", "ŻABA"), 0);
}

TEST(Text, LinesEndInAnyWay) {
    EXPECT_EQ(JoinLines(SplitLines("a\r\nb\nc\rd\n\n\re"), "|"), "a|b|c|d|||e");
    EXPECT_EQ(SplitLines("a\r\n").size(), 1u);
    EXPECT_EQ(SplitLines("\r\n").size(), 1u);
    EXPECT_TRUE(SplitLines("").empty());
    EXPECT_EQ(Trim("\t \x01 a b\r\n"), "a b");
    EXPECT_EQ(ReplaceStr("aaa'b'", "aa", "x") + ReplaceStr("x", "", "y"), "xa'b'x");
}

TEST(StringList, CommaTextComesBack) {
    const std::vector<std::vector<std::string>> lists = {
        {}, {""}, {"", ""}, {"a b", "c,d", "e\"f", "g"}, {"x", ""}, {"\"", "\r\n"}};
    for (const auto& items : lists) {
        TStringList list;
        list.SetCommaText(TStringList(items).CommaText());
        EXPECT_EQ(list.Items(), items);
    }
    TStringList list;
    list.SetCommaText("  60, 80 ,\"a \"\"b\"\"\" , tail rest,");
    EXPECT_EQ(JoinLines(list.Items(), "|"), "60|80|a \"b\"|tail|rest|");
}

TEST(StringList, IndexFollowsEveryChange) {
    TStringList list;
    list.Add("One");
    list.Add("ДВА");
    EXPECT_EQ(list.IndexOf("два"), 1);
    list.Add("one");
    EXPECT_EQ(list.IndexOf("ONE"), 0);
    list.Delete(0);
    EXPECT_EQ(list.IndexOf("ONE"), 1);
    list.Insert(0, "zero");
    list.Put(2, "two");
    EXPECT_EQ(list.IndexOf("one"), -1);
    EXPECT_EQ(list.IndexOf("Two"), 2);
    EXPECT_EQ(list.Text(), "zero\r\nДВА\r\ntwo\r\n");
}
