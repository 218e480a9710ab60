#include "storage/IdentifierCheck.h"

#include "platform/Text.h"
#include "storage/RenameCandidates.h"

#include <gtest/gtest.h>
#include <map>

namespace glotta {
namespace {

const std::map<std::string, FormIDs, std::less<>> Forms = {
    {"form1",
     {"Form1",
      {{"glotta1", TStringList({"IDS_1", "IDS_2"})}, {"glotta2", TStringList({"IDS_1", "Straße"})}}}},
    {"form2", {"Form2", {{"Other", TStringList({"X"})}}}},
    {"bare", {"Bare", {}}},
};

std::string Checked(std::string_view source, const std::string& form = "Form1",
                    const SourceFlavour& flavour = PascalFlavour) {
    const FindFormIDs find = [](const std::string& name) {
        const auto found = Forms.find(LowerCase(name));
        return found == Forms.end() ? nullptr : &found->second;
    };
    std::string text;
    for (const BadID& bad : CheckIDs(source, flavour, form, find))
        text += bad.id + ": " + bad.Type() + " " + bad.Info() + "\n";
    return text;
}

TEST(IdentifierCheck, FindsWhatNoLineUses) {
    const std::string unused = ": Not used in source of current module. Index: ";
    EXPECT_EQ(Checked(""),
              "IDS_1" + unused + "0\nIDS_2" + unused + "1\nIDS_1" + unused + "0\nStraße" + unused + "1\n");
    // Letter case is ignored, comments and longer names count; a blank before the quote or another line do
    // not.
    EXPECT_EQ(Checked("s := GLOTTA1.gettext('ids_1'); // MyGetTextOrDefaultC('STRAßE' \r"
                      "GetTextW( 'IDS_2') GetText('IDS_2\nIDS_2') GetTextX('IDS_2')"),
              "IDS_2" + unused + "1\nSTRAßE: Can't be autochecked. Line: 1\n");
    EXPECT_EQ(Checked("a->GetTextOrDefaultW(\"IDS_1\"); GetTextC(\"IDS_2\") + GetTextOrDefault(\"Straße\")",
                      "Form1", CppFlavour),
              "Straße: Not found in Form1.glotta1 Line: 1\n");
    EXPECT_EQ(Checked("", "Bare") + Checked("", "Unknown") + Checked("", ""), "");
}

TEST(IdentifierCheck, FindsCallsThatAskInVain) {
    const std::string used = "{GetText('IDS_1' GetText('IDS_2' GetText('Straße'}";
    struct Case {
        const char *line, *rows;
    };
    const std::string unchecked = " Can't be autochecked. Line: 2\n";
    const auto missing = [](std::string id, std::string where) {
        return id + ": Not found in " + where + " Line: 2\n";
    };
    const auto vague = [&](std::string id) { return id + ":" + unchecked; };
    const std::pair<std::string, std::string> cases[] = {
        {"GetText('ids_1')", ""},
        {"GetText('X')", missing("X", "Form1.glotta1")},
        {"GetTextW('X') + GetText('IDS_1') + gettext('Y')",
         missing("X", "Form1.glotta1") + missing("Y", "Form1.glotta1")},
        {"GetText('X' + Suffix)", vague("X")},
        {"GetText('X') (* note *)", missing("X", "Form1.glotta1")},
        {"GetText('X' (* note *) )", missing("X", "Form1.glotta1")},
        {"GetText('X' (* note *))", vague("X")}, // a comment goes with one character more
        {"GetText('X'(* GetText('Y')", vague("X") + missing("Y", "Form1.glotta1")},
        {"GetText('X'  )", missing("X", "Form1.glotta1")},
        {"GetText('X')", missing("X", "Form1.glotta1")},
        // The component that is named; one that is not there gives way to the first.
        {"glotta2.GetText('straße')", ""},
        {"glotta2.GetText('IDS_2')", missing("IDS_2", "Form1.glotta2")},
        {"Any.GetText('IDS_2')", ""},
        {"self.GLOTTA2.GetText('IDS_2')", missing("IDS_2", "Form1.glotta2")},
        {"Form2.Other.GetText('x')", ""},
        {"form2.Other.GetText('IDS_1')", missing("IDS_1", "Form2.Other")},
        {"Form3.Other.GetText('X')", vague("X")},
        {"Forms[0].Other.GetText('X')", vague("X")},
        {"Bare.Other.GetText('IDS_1')", vague("IDS_1")},
        {"Form2->Other->GetText('X')", missing("X", "Form1.glotta1")}, // of the other language
        // What has no identifier ends the work on its line, not on the next.
        {"GetText('') + GetText('X')\nGetText('Y')", "Y: Not found in Form1.glotta1 Line: 3\n"},
        {"GetText('X') + GetText('Y", missing("X", "Form1.glotta1")},
    };
    for (const auto& [line, rows] : cases)
        EXPECT_EQ(Checked("GetText('Straße') GetText('IDS_2') {GetText('IDS_1')}\r\n" + line),
                  "Straße: Not found in Form1.glotta1 Line: 1\n" + rows)
            << line;
    EXPECT_EQ(
        Checked("GetText('X') Form2.Other.GetText('Y') Form2.Other.GetText('X') Self.a.GetText('X')", ""),
        "X: Can't be autochecked. Line: 1\nY: Not found in Form2.Other Line: 1\nX: Can't be autochecked. "
        "Line: 1\n");
    EXPECT_EQ(Checked("Form2->Other->GetText(\"Y\" /* n */ ); Form2.Other.GetText(\"Y\")", "", CppFlavour),
              "Y: Not found in Form2.Other Line: 1\nY: Can't be autochecked. Line: 1\n");
    // "this" is the form itself in C++ alone.
    EXPECT_EQ(Checked("this->glotta2->GetText(\"Straße\") + this->GetText(\"IDS_1\") + GetText(\"IDS_2\");\n"
                      "this->glotta1->GetText(\"Y\"); Self->glotta2->GetText(\"Y\"); This->glotta1->GetText(\"Y\")",
                      "Form1", CppFlavour),
              "Y: Not found in Form1.glotta1 Line: 2\nY: Not found in Form1.glotta2 Line: 2\n"
              "Y: Can't be autochecked. Line: 2\n");
    EXPECT_EQ(Checked("this.Other.GetText('X')", "Form2"), "X: Can't be autochecked. Line: 1\n");
}

std::string Renamed(std::string_view source, const SourceFlavour& flavour = PascalFlavour) {
    const auto lines = RenameCandidates(source, flavour, "OLD", "New_ß");
    std::string text;
    for (const RenameLine& line : lines)
        text += std::to_string(line.index) + " ";
    return text + "|" + ApplyEdits(source, RenameEdits(lines));
}

TEST(RenameCandidates, AreTheLinesThatFetchTheString) {
    EXPECT_EQ(Renamed("x;\r\nglotta1.GetText('OLD') + 'OLD';\n's' GetTextOrDefaultC(Id('OLD'))\rend."),
              "1 2 |x;\r\nglotta1.GetText('New_ß') + 'New_ß';\n's' GetTextOrDefaultC(Id('New_ß'))\rend.");
    for (const char* other :
         {"glotta1.GetTextW('OLD')", "glotta1.GetTextOrDefaultW('OLD')", "gettext('OLD')",
          "s := 'OLD'; x := GetText('Z')", "GetText('old')", "GetText(\"OLD\")", "GetText('\r\nOLD')", ""})
        EXPECT_EQ(Renamed(other), "|" + std::string(other));
    EXPECT_EQ(Renamed("a->GetTextC(\"OLD\", 'OLD')", CppFlavour), "0 |a->GetTextC(\"New_ß\", 'OLD')");
    // The first name in their order decides, wherever the others stand.
    EXPECT_EQ(Renamed("GetTextC('OLD') GetText('Z')"), "|GetTextC('OLD') GetText('Z')");
}

} // namespace
} // namespace glotta
