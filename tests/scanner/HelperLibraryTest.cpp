#include "scanner/HelperLibrary.h"

#include <chrono>
#include <thread>

namespace glotta {
namespace {

// One letter per character: x in a comment, - outside.
std::string Marks(const HelperLibrary& helper, std::string_view text, std::size_t characters, bool isCpp) {
    std::string marks;
    helper.InitInternalPasSource(std::string(text).c_str());
    for (int i = 1; i <= static_cast<int>(characters); ++i)
        marks += helper.IsCommentAt(0, i, isCpp) ? 'x' : '-';
    return marks;
}

TEST(HelperLibrary, TellsComments) {
    const HelperLibrary helper;
    ASSERT_TRUE(helper.Loaded() && helper.HasCommentTest() && helper.HasRegExp());
    EXPECT_EQ(Marks(helper, "a{b}'{'(*c*)//d\ne", 18, false), "-xxx---xxxxxxxx---");
    EXPECT_EQ(Marks(helper, "a/*b*/\"/*\"//c\n{", 16, true), "-xxxxx----xxx---");
    EXPECT_EQ(Marks(helper, "\xD0\xB6{\xD0\xB6}\xD0\xB6{}", 6, false), "-xxx-x");
}

TEST(HelperLibrary, TakesPlacesInAnyOrder) {
    const HelperLibrary helper;
    std::string text;
    for (int line = 0; line < 3000; ++line)
        text += "\xC3\xA4{\xC3\xA4}b\r\n"; // seven characters a line, the comment at 2 to 4
    helper.InitInternalPasSource(text.c_str());
    for (int line : {2999, 0, 1500, 1501, 1499, 2}) {
        std::string marks;
        for (int column = 9; column >= 0; --column) {
            const bool inLine = helper.IsCommentAt(line + 1, column, false);
            const bool inText = helper.IsCommentAt(-1, line * 7 + column, false);
            if (column >= 1 && column <= 5) {
                EXPECT_EQ(inLine, inText) << line << ':' << column;
            }
            marks += inLine ? 'x' : '-';
        }
        EXPECT_EQ(marks, "-----xxx--") << line;
    }
    EXPECT_FALSE(helper.IsCommentAt(0, 1 << 30, false));
    EXPECT_FALSE(helper.IsCommentAt(1 << 30, 1, false));
}

TEST(HelperLibrary, EachThreadHasItsOwnSource) {
    const HelperLibrary helper;
    helper.InitInternalPasSource("{a}");
    std::thread([&] {
        EXPECT_FALSE(helper.IsCommentAt(0, 1, false));
        helper.InitInternalPasSource("b{}");
    }).join();
    EXPECT_TRUE(helper.IsCommentAt(0, 1, false));
}

TEST(HelperLibrary, MatchesWholeTexts) {
    const HelperLibrary helper;
    struct {
        const char *pattern, *text;
        bool matches;
    } const cases[] = {
        {"OK", "OK", true},
        {"OK", "OK!", false},
        {"a|ab", "ab", true},
        {"OK.*", "OK!", true},
        {"[", "[", false},
        {"\xD0\x96.", "\xD0\x96\xD0\xB6", true},
        {"\\w+", "\xD0\x96", true},
        {"a.b",
         "a\xFF"
         "b",
         true},
        {"", "", true},
        {"(?i)ok", "OK", true},
        {"^$|x", "x", true},
        {"(?R)", "x", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(helper.REStringMatches(c.pattern, c.text), c.matches) << c.pattern << " on " << c.text;
}

TEST(HelperLibrary, HostilePatternsEndSoon) {
    const HelperLibrary helper;
    const auto start = std::chrono::steady_clock::now();
    std::string text(5000, 'a');
    text.back() = '!';
    for (const char* pattern :
         {"(a+)+$", "(a|aa)+", "(a*)*b", "((((a*)*)*)*)*b", "(.*)(.*)(.*)(.*)(.*)x", "(?:(a)|b)*(?1)*$"})
        EXPECT_FALSE(helper.REStringMatches(pattern, text.c_str())) << pattern;
    for (int i = 0; i < 3000; ++i) // more than are kept compiled
        EXPECT_TRUE(helper.REStringMatches(("a{" + std::to_string(i) + "}").c_str(),
                                           std::string(static_cast<std::size_t>(i), 'a').c_str()));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(HelperLibrary, IsAbsentWithoutComplaint) {
    for (const HelperLibrary& helper : {HelperLibrary("No_Such_Library"), HelperLibrary::Absent()})
        EXPECT_FALSE(helper.Loaded() || helper.HasCommentTest() || helper.HasRegExp());
}

} // namespace
} // namespace glotta
