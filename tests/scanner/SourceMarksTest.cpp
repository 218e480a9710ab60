#include "scanner/SourceMarks.h"

#include "host/PlainIde.h"
#include "platform/Text.h"
#include "support/FakeIde.h"
#include "support/ScriptedUi.h"
#include "support/TempFolder.h"

namespace glotta {
namespace {

// A project with one unit, which is open and current.
struct Desk {
    Desk(const std::string& unitFile, const std::string& text) {
        const std::string file = folder.Put(unitFile, text).string();
        const std::string name = unitFile.substr(0, unitFile.find('.'));
        ide.OpenProject(folder
                            .Put("App.dpr", "program App;\r\n\r\nuses\r\n  " + name + " in '" + unitFile +
                                                "';\r\n\r\nbegin\r\nend.\r\n")
                            .string());
        services.OpenFile(file, true);
    }
    std::string Text() { return services.GetUnitSource(services.GetCurrentSourceEditor()->FileName()); }
    IOTAEditView& View() { return services.GetCurrentSourceEditor()->View(); }

    TempFolder folder;
    PlainIde ide;
    FormsList forms;
    ScriptedUi ui;
    IdeServices services{ide.Services(), forms, ui};
};

TEST(SourceMarks, ASelectionIsPutBetweenTheMarkersOfItsLanguage) {
    Desk pascal("Main.pas", "A;\r\nB;\r\nC;\r\n");
    pascal.View().SetBlock({2, 1}, {3, 1});
    MarkSourceSelectionToSkip(pascal.services);
    EXPECT_EQ(pascal.Text(), "A;\r\n\r\n{TGL:IGNORE ON}\r\nB;\r\n\r\n{TGL:IGNORE OFF}\r\nC;\r\n");
    EXPECT_TRUE(pascal.services.GetCurrentSourceEditor()->Undo());
    EXPECT_EQ(pascal.Text(), "A;\r\nB;\r\nC;\r\n");

    Desk cpp("Main.cpp", "a;\r\nb;\r\n");
    cpp.View().SetBlock({1, 1}, {1, 3});
    MarkSourceSelectionToSkip(cpp.services);
    EXPECT_EQ(cpp.Text(), "\r\n/*TGL:IGNORE ON*/\r\na;\r\n/*TGL:IGNORE OFF*/\r\n\r\nb;\r\n");
}

TEST(SourceMarks, TheWholeLinesOfALiteralAreMarked) {
    const auto marked = [](const std::string& text, const std::string& literal) {
        Desk desk("Main.pas", text);
        TgxFoundSourceString found;
        found.SourceText = literal;
        found.Position = CharCount(text.substr(0, text.find(literal))) + 1;
        MarkStringToSkip(desk.services, &found);
        return ReplaceStr(ReplaceStr(desk.Text(), "{TGL:IGNORE ", "{"), "\r\n", "|");
    };
    EXPECT_EQ(marked("A;\r\n  Ж('x');\r\nC;\r\n", "'x'"), "A;||{ON}|  Ж('x');||{OFF}|C;|");
    EXPECT_EQ(marked("A;\r\n  B :=\r\n'x'\r\n  + 'y';\r\nC;\r\n", "'x'\r\n  + 'y'"),
              "A;||{ON}|  B :=|'x'|  + 'y';||{OFF}|C;|"); // the character before is the former line's end
    EXPECT_EQ(marked("'x'", "'x'"), "|{ON}|'x'|{OFF}|");
    EXPECT_EQ(marked("A;\r\nB('x');", "'x'"), "A;||{ON}|B('x');|{OFF}|");

    Desk desk("Main.pas", "'x'");
    MarkStringToSkip(desk.services, nullptr);
    EXPECT_EQ(desk.Text(), "'x'");
    FakeIde nothingOpen;
    const TgxFoundSourceString found;
    MarkStringToSkip(nothingOpen.services, &found);
    MarkSourceSelectionToSkip(nothingOpen.services);
    EXPECT_FALSE(ShowStringInSource(nothingOpen.services, "IDS_0", true));
}

TEST(SourceMarks, AnIdentifierIsShownWhereItIsTheFirstArgument) {
    Desk desk("Main.pas", "F(A, 'IDS_1');\r\nG( 'IDS_1');\r\nЖ; glotta1.GetText('ids_1');\r\n"
                          "Ж; glotta1.GetText('IDS_1');\r\nglotta1.GetText('IDS_1');\r\n");
    desk.View().SetCursorPos({1, 1});
    EXPECT_FALSE(ShowStringInSource(desk.services, "IDS_2", true));
    EXPECT_FALSE(ShowStringInSource(desk.services, "IDS", true));
    EXPECT_EQ(desk.View().CursorPos(), (EditPos{1, 1}));
    for (const bool activate : {false, true}) {
        EXPECT_TRUE(ShowStringInSource(desk.services, "IDS_1", activate));
        EXPECT_EQ(desk.View().CursorPos(), (EditPos{4, 20})); // on the quote
    }
}

TEST(SourceMarks, ThePreviewIsCutAroundTheLine) {
    FakeIde ide;
    FakeProject project("/p/App.dpr", "App");
    ide.open.push_back(&project);
    std::string text;
    for (int line = 1; line <= 9; ++line)
        text += std::to_string(line) + "\r\n";
    const auto preview = [&](int around, std::size_t position, int line) {
        int previewLine = -5;
        const std::string lines =
            GetCurrentSourcePreview(ide.services, around, position, line, previewLine, text);
        return ReplaceStr(lines, "\r\n", "") + ":" + std::to_string(previewLine);
    };
    EXPECT_EQ(preview(3, 1, 2), ":-5"); // no editor
    ide.current = &ide.Open("/p/Main.pas", "Main", text);
    EXPECT_EQ(preview(3, 1, 2), "12345:1");
    EXPECT_EQ(preview(3, 1, 5), "2345678:3");
    EXPECT_EQ(preview(3, 1, 9), "3456789:6");
    EXPECT_EQ(preview(0, 1, 9), "9:0");
    EXPECT_EQ(preview(1, 7, 0), "234:1"); // position 7 is on line 3
    EXPECT_EQ(preview(-1, 1, 4), "4:0");
    EXPECT_EQ(preview(2, 1, 90), "56789:85");
}

} // namespace
} // namespace glotta
