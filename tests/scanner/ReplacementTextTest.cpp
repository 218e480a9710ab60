#include "ScanListing.h"

#include "scanner/LiteralReader.h"
#include "scanner/PhasesAfterScan.h"
#include "scanner/ReplacementText.h"

namespace glotta {
namespace {

TEST(ReplacementText, WritesTheCall) {
    struct {
        ReplacementParts parts;
        const SourceFlavour& flavour;
        int commentsLength;
        bool noComments;
        const char* expected;
    } const cases[] = {
        {{"glotta1", "IDS_0", "Hello world"},
         PascalFlavour,
         0,
         false,
         "glotta1.GetText('IDS_0' (* 'Hello world' *) )"},
        {{"glotta1", "IDS_0", "Hello"}, PascalFlavour, 0, true, "glotta1.GetText('IDS_0')"},
        {{"glotta1", "IDS_0", "Hello", Tail::Concatenation},
         CppFlavour,
         0,
         true,
         "glotta1->GetText(\"IDS_0\") + "},
        {{"F.g", "A", "Hello", Tail::Statement}, PascalFlavour, 5, false, "F.g.GetText('A' (* 'Hello' *) );"},
        {{"g", "A", "Hello world"}, CppFlavour, 5, false, "g->GetText(\"A\" /* \"Hello...\" */ )"},
        {{"g", "A", "Grüße!"}, PascalFlavour, 3, false, "g.GetText('A' (* 'Grü...' *) )"},
        {{"g", "A", "Hello", Tail::None, true}, PascalFlavour, 0, false, "g.GetText('A')"},
        {{"g", "A", "a*)b**))\r\nc\td"}, PascalFlavour, 0, false, "g.GetText('A' (* 'a* )b** )) c d' *) )"},
        {{"g", "A", "a*)b*/"}, CppFlavour, 0, false, "g->GetText(\"A\" /* \"a*)b* /\" */ )"},
    };
    for (const auto& testCase : cases) {
        SettingsValues settings;
        settings.ReplaceMethod = "GetText(";
        settings.CommentsLength = testCase.commentsLength;
        settings.NoCommentsInSources = testCase.noComments;
        EXPECT_EQ(BuildReplacement(testCase.parts, testCase.flavour, settings), testCase.expected);
    }
}

TEST(ReplacementText, WritesNoCommentInsideAnOpenOne) {
    const ScanOutput output =
        RunScan({"", "(* It\n 'ab'\n*) { It\n 'cd'\n} A('ef');", "", &PascalFlavour, false, false});
    std::string all;
    for (std::size_t i = 0; i < output.found.Count(); ++i)
        all += output.found[i].Replacement + '\n';
    EXPECT_EQ(all, "glotta1.GetTextOrDefault('IDS_0')\n"
                   "glotta1.GetTextOrDefault('IDS_1' (* 'cd' *) )\n"
                   "glotta1.GetTextOrDefault('IDS_2' (* 'ef' *) )\n");
}

// The rows after both phases: identifier and replacement.
std::string AfterPhases(const std::string& source, const std::vector<ComponentString>& strings) {
    SettingsValues settings;
    settings.NoCommentsInSources = true;
    ScanOutput output = RunScan({"", source, "", &PascalFlavour, false, true,
                                 [](SettingsValues& s) { s.NoCommentsInSources = true; }});
    const ReplacementContext context{"glotta1", PascalFlavour, settings};
    VerifyFound(output.found, strings, context);
    ShareDuplicates(output.found, context);
    std::string result;
    for (std::size_t i = 0; i < output.found.Count(); ++i)
        result += output.found[i].ID + ' ' + output.found[i].Replacement + '\n';
    return result;
}

TEST(PhasesAfterScan, ReuseIdentifiersAndKeepTails) {
    EXPECT_EQ(AfterPhases("A('one', 'two'); S := 'one' + N + 'one'; T := 'it''s';",
                          {{"X_1", "two"}, {"X_2", "it's"}, {"X_3", "two"}, {"X_4", "One"}}),
              "IDS_0 glotta1.GetTextOrDefault('IDS_0')\n"
              "X_3 glotta1.GetTextOrDefault('X_3')\n"
              "IDS_0 glotta1.GetTextOrDefault('IDS_0') + \n"
              "IDS_0 glotta1.GetTextOrDefault('IDS_0');\n"
              "X_2 glotta1.GetTextOrDefault('X_2');\n");
}

TEST(LiteralReader, TellsTerminatedExpressions) {
    struct {
        const char* text;
        bool expected;
    } const cases[] = {
        {"'ab';", true},          {"'ab' +", false},      {"", true},       {"'ab'; (* x *)", true},
        {"'ab' (* x; *)", false}, {"'ab' + // x;", true}, {"'a;b'", false}, {"'ab' + { x; }", true},
    };
    for (const auto& testCase : cases)
        EXPECT_EQ(IsStringTerminated(testCase.text, PascalFlavour), testCase.expected) << testCase.text;
}

TEST(SourceFlavour, FollowsTheExtension) {
    std::string cpp;
    for (const char* name : {"a.cpp", "A.H", "a.C", "a.hpp", "a.pas", "a.dpr", "cpp", "a.b/c"})
        if (FlavourOf(name).IsCPPSource) cpp += std::string(name) + ' ';
    EXPECT_EQ(cpp, "a.cpp A.H a.C ");
}

} // namespace
} // namespace glotta
