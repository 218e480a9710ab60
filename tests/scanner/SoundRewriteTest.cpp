#include "scanner/SoundRewrite.h"

namespace glotta {
namespace {

// Replaces `from` by `to` in the text; an edit without `from` inserts before `at`.
struct Change {
    std::string_view from, to;
};

std::string Verdict(std::string_view text, std::initializer_list<Change> rows,
                    std::initializer_list<Change> others = {}, bool isCpp = false) {
    const auto edits = [&](std::initializer_list<Change> changes, bool insert) {
        TextEdits result;
        for (const Change& change : changes) {
            const std::size_t at = text.find(change.from);
            EXPECT_NE(at, std::string_view::npos) << change.from;
            result.push_back({at, insert ? at : at + change.from.size(), std::string(change.to)});
        }
        return result;
    };
    const EditVerdicts verdicts = CheckEdits(text, edits(rows, false), edits(others, true), isCpp);
    std::string result;
    for (const auto* list : {&verdicts.rows, &verdicts.others})
        for (const std::string& reason : *list)
            result += (result.empty() ? "" : "; ") + (reason.empty() ? "sound" : reason);
    return result;
}

TEST(SoundRewrite, RowsOfPascal) {
    EXPECT_EQ(Verdict("s := 'a' + 'b' + x;", {{"'a' + 'b' + ", "G('1' (* 'a' *) ) + "}}), "sound");
    EXPECT_EQ(Verdict("s := 'a'#13'b' ;t", {{"'a'#13'b' ;", "G('1');"}}), "sound");
    EXPECT_EQ(Verdict("s := #13'a';", {{"'a'", "G('1')"}}), "cuts a token");
    EXPECT_EQ(Verdict("s := 'it''s';", {{"'it'", "G('1')"}}), "cuts a token");
    EXPECT_EQ(Verdict("s := 'a' + x;", {{"'a' + x", "G('1')"}}), "covers more than a literal expression");
    EXPECT_EQ(Verdict("s := 'a'; t", {{"'a'; t", "G('1');"}}), "covers more than a literal expression");
    EXPECT_EQ(Verdict("s := 'a'{c};", {{"'a'{c}", "G('1')"}}), "covers more than a literal expression");
    EXPECT_EQ(Verdict("s := x;", {{"x", "G('1')"}}), "covers more than a literal expression");
    EXPECT_EQ(Verdict("s := 'a';", {{"'a'", "G('1' (* 'a*) *) )"}}), "its replacement is no expression");
    EXPECT_EQ(Verdict("s := 'a';", {{"'a'", "G('1' (* 'a'"}}), "its replacement leaves a comment open");
    EXPECT_EQ(Verdict("s := 'a' + x;", {{"'a'", "G('1') // a"}}), "its replacement leaves a comment open");
    EXPECT_EQ(Verdict("s := 'a';", {{"'a';", "G('1')"}}), "its replacement ends otherwise");
    EXPECT_EQ(Verdict("s := 'a';", {{"'a'", "G('1';)"}}), "its replacement is no expression");
    EXPECT_EQ(Verdict("if s='a'then", {{"'a'", "G('1')"}}), "sound");
    EXPECT_EQ(Verdict("if x or'a'", {{"'a'", "G('1')"}}), "joins what stands before it");
    EXPECT_EQ(Verdict("s := 'a'else", {{"'a'", "G('1')+x"}}), "joins what stands behind it");
    EXPECT_EQ(Verdict("{ 'a' 'b' } x", {{"'a'", "G('1')"}, {"'b'", "}"}}),
              "sound; changes what stands around it");
    EXPECT_EQ(Verdict("{$I 'a'}", {{"'a'", "G('1')"}}), "cuts a token");
}

TEST(SoundRewrite, RowsOfCpp) {
    const auto cpp = [](std::string_view text, std::initializer_list<Change> rows) {
        return Verdict(text, rows, {}, true);
    };
    EXPECT_EQ(cpp("s = _T(\"a\");", {{"_T(\"a\");", "g->G(\"1\" /* \"a\" */ );"}}), "sound");
    EXPECT_EQ(cpp("s = L\"a\\\\\";", {{"\"a\\\\\"", "g->G(\"1\")"}}), "cuts a token");
    EXPECT_EQ(cpp("return\"a\";", {{"\"a\"", "g->G(\"1\")"}}), "joins what stands before it");
    EXPECT_EQ(cpp("#define A \"a\"\n", {{"\"a\"", "g->G(\"1\")"}}), "cuts a token");
    EXPECT_EQ(cpp("f('\"', \"a\")", {{"\"', \"", "x"}}), "cuts a token");
}

TEST(SoundRewrite, OtherEditsAndTheWhole) {
    const std::string_view unit = "uses A;\r\nbegin\r\n  s := 'a'; // note\r\nend;\r\n";
    EXPECT_EQ(
        Verdict(unit, {{"'a'", "G('1')"}},
                {{";\r\nbegin", ", B"}, {"  s :=", "  UpdateStrings;\r\n"}, {"\r\nend", " {TGL:IGNORE}"}}),
        "sound; sound; sound; sound");
    EXPECT_EQ(Verdict(unit, {{"'a'", "G('1')"}}, {{"\r\nend", "UpdateStrings;"}}),
              "sound; changes what stands around it");
    EXPECT_EQ(Verdict(unit, {}, {{"gin", "x"}, {"  s :=", "{ open"}, {"s :=", "'"}}),
              "cuts a token; its replacement leaves a comment open; its replacement is no complete text");
    EXPECT_EQ(Verdict(unit, {{"'a'", "G('1')"}, {"'a';", "G('2');"}}), "sound; overlaps another change");
}

} // namespace
} // namespace glotta
