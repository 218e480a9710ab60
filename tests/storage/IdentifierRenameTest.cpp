#include "storage/IdentifierRename.h"

#include "storage/TranslationDesk.h"
#include "storage/_stridrepl.h"

namespace glotta {
namespace {

const std::string Skipped = "Couldn't retrieve unit source.\rUnit skipped!";
const std::string NoLines = "There is no lines to modify in unit source.";

struct RenameDesk : TranslationDesk {
    RenameDesk() {
        AddForm("Form1",
                "  object g: TGlotta|    NumberOfLanguages = 1|    Strings.Strings = (|      'OLD'#1'Text'|"
                "      'Z'#1'Zed')|  end|");
        folder.Put("Form1.pas", "a;\r\ng.GetText('OLD');\nGetTextC('OLD') + 'OLD'\r\nGetTextW('OLD')");
        AddUnit("Other", "x := g.GetText('OLD');");
        AddUnit("Unused", "GetTextW('OLD') GetText('Z')");
        AddUnit("Empty", "");
        Open();
        OpenUnit("Form1");
    }
    // The identifier that the component is to use.
    std::string Rename() {
        std::string newID = "New";
        IdentifierRename(services).OnChangeStrID("Form1", "OLD", newID);
        return newID;
    }
    IOTASourceEditor& Editor(const char* unit) { return *services.GetSourceEditorFromFileName(FileOf(unit)); }
    std::string Text(const char* unit) {
        return ReplaceStr(Editor(unit).CreateReader()->GetText(0, 1000), "\r\n", "~");
    }
    std::string Names(const TListBox& list) const {
        std::string text;
        for (const std::string& file : list.Items())
            text += PathText(PathFromText(file).stem()) + " ";
        return text;
    }
    std::string Messages() {
        std::string text;
        for (const std::string& line : SplitLines(ReplaceStr(ui.Transcript(), "\r", "~")))
            if (!line.starts_with("Progress")) text += line + "\n";
        return text;
    }
};

const auto Leave = [](ModalResult way) { return [way](TfrmStrReplace&) { return way; }; };

TEST(IdentifierRename, ShowsTheUnitsThenTheLines) {
    RenameDesk desk;
    desk.ui.Modal<TfrmStrReplace>([&](TfrmStrReplace& form) {
        const auto lists = [&] {
            return desk.Names(form.lbProjectUnits) + "| " + desk.Names(form.lbScanUnits);
        };
        EXPECT_EQ(lists(), "App Other Unused Empty | Form1 ");
        EXPECT_FALSE(form.btAdd.Enabled());
        form.lbProjectUnits.Select(1, true);
        form.lbProjectUnits.Select(3, true);
        form.btAdd.Execute();
        EXPECT_EQ(lists(), "App Unused | Form1 Other Empty ");
        form.btRemoveAll.Execute();
        EXPECT_EQ(lists(), "App Form1 Other Unused Empty | ");
        EXPECT_FALSE(form.btOK.Enabled());
        form.btAddAll.Execute();
        form.lbScanUnits.SelectOnly(0);
        form.btRemove.Execute();
        EXPECT_EQ(lists(), "App | Form1 Other Unused Empty ");
        EXPECT_EQ(form.btOK.caption, "&Next >>");
        form.btOK.Execute();
        return ModalResult::None;
    });
    desk.ui.Modal<TfrmStrReplace>([&](TfrmStrReplace& form) {
        EXPECT_EQ(form.btOK.caption, "&Replace");
        EXPECT_EQ(form.lblSourceLines(),
                  "Unit file: " + desk.FileOf("Form1") +
                      "\rSource line(s) with old string identifier that will be modified:");
        const SourceLinesList& lines = form.lvSourceLines;
        EXPECT_EQ(lines.CellText(0, 0) + lines.CellText(0, 1) + lines.CellText(0, 2),
                  "1g.GetText('OLD');g.GetText('New');");
        EXPECT_EQ(lines.CellText(1, 0) + lines.CellText(1, 2), "2GetTextC('New') + 'New'");
        form.lvSourceLines.SelectOnly(1);
        form.acEditResult.Execute();
        form.acInvertSelection.Execute();
        EXPECT_EQ(form.lvSourceLines.SelectedRows(), std::vector<std::size_t>{0});
        form.acDelete.Execute();
        EXPECT_EQ(lines.RowCount(), 1u);
        EXPECT_FALSE(form.lvSourceLines.Enter(0, SourceLinesList::Result, "two\r\nlines"));
        form.btOK.Execute();
        return ModalResult::None;
    });
    desk.ui.Input("Result line:", "mine");
    desk.ui.Modal<TfrmStrReplace>([&](TfrmStrReplace& form) {
        EXPECT_EQ(form.lvSourceLines.CellText(0, SourceLinesList::Result), "x := g.GetText('New');");
        return ModalResult::OK;
    });
    desk.ui.Message(NoLines).Message(Skipped);
    EXPECT_EQ(desk.Rename(), "New");
    EXPECT_EQ(desk.Text("Form1"), "a;~g.GetText('OLD');~mine~GetTextW('OLD')");
    EXPECT_TRUE(desk.Editor("Form1").Undo()); // one step
    EXPECT_FALSE(desk.Editor("Form1").Undo());
    EXPECT_EQ(desk.Text("Form1"), "a;~g.GetText('OLD');~GetTextC('OLD') + 'OLD'~GetTextW('OLD')");
    EXPECT_EQ(desk.Text("Other"), "x := g.GetText('New');"); // stays open, it is not saved
    EXPECT_FALSE(desk.services.IsFileOpen(desk.FileOf("Unused")));
    const std::string said = desk.Messages();
    EXPECT_NE(said.find("Information: " + NoLines +
                        " -> OK\nError: Couldn't retrieve unit source.~Unit skipped! -> OK\n"),
              std::string::npos)
        << said;
    EXPECT_NE(said.find("Input String ID Replacement|Result line:|GetTextC('New') + 'New' -> mine"),
              std::string::npos)
        << said;
}

TEST(IdentifierRename, EndsWhereItIsCancelled) {
    RenameDesk desk;
    desk.ui.Modal<TfrmStrReplace>(Leave(ModalResult::Cancel));
    EXPECT_EQ(desk.Rename(), "OLD");
    desk.ui.Modal<TfrmStrReplace>(Leave(ModalResult::OK)).Modal<TfrmStrReplace>(Leave(ModalResult::Cancel));
    EXPECT_EQ(desk.Rename(), "OLD");
    EXPECT_FALSE(desk.Editor("Form1").Modified());
    desk.ui.Modal<TfrmStrReplace>([](TfrmStrReplace& form) {
        form.btAddAll.Execute();
        return ModalResult::OK;
    });
    desk.ui.Modal<TfrmStrReplace>(Leave(ModalResult::OK)).Message(NoLines); // the project's source
    desk.ui.Modal<TfrmStrReplace>(Leave(ModalResult::Cancel));
    EXPECT_EQ(desk.Rename(), "New"); // Form1 calls it so
    EXPECT_EQ(desk.Text("Form1"), "a;~g.GetText('New');~GetTextC('New') + 'New'~GetTextW('OLD')");
    EXPECT_FALSE(desk.services.IsFileOpen(desk.FileOf("Other")));
}

TEST(IdentifierRename, TellsOfAUnitThatCannotBeWritten) {
    RenameDesk desk;
    desk.ui.Modal<TfrmStrReplace>(Leave(ModalResult::OK)).Modal<TfrmStrReplace>([&](TfrmStrReplace&) {
        desk.ide.CloseFile(desk.FileOf("Form1"));
        std::filesystem::remove(desk.FileOf("Form1"));
        return ModalResult::OK;
    });
    desk.ui.Message("There was an error occured during source update!");
    desk.Rename();
    desk.ui.Message(Skipped);
    desk.Rename(); // the form's unit is not open
    EXPECT_NE(desk.Messages().find(
                  "Error: There was an error occured during source update! -> OK\nError: Couldn't"),
              std::string::npos);
}

// With the command line the component takes part.
TEST(IdentifierRename, WithoutQuestions) {
    RenameDesk desk;
    IdentifierRename rename(desk.services);
    const auto refused = [&](const char* form, const char* oldID, const char* newID) {
        try {
            rename.Rename(form, oldID, newID, {desk.FileOf("Form1")});
        } catch (const Error& error) {
            return std::string(error.what());
        }
        return std::string("done");
    };
    EXPECT_EQ(refused("None", "OLD", "New"), "None: the project has no such form");
    EXPECT_EQ(refused("Form1", "None", "New"), "None: no component of Form1 has this identifier");
    EXPECT_EQ(refused("Form1", "OLD", "z"), "z: Form1.g has this identifier already");
    EXPECT_EQ(refused("Form1", "OLD", "OLD"), "OLD: Form1.g has this identifier already");
    for (const char* id : {"", " ", "a'b", "a\"b", "a\nb"})
        EXPECT_EQ(refused("Form1", "OLD", id).find("done"), std::string::npos) << id;
    EXPECT_FALSE(desk.Editor("Form1").Modified());
    EXPECT_EQ(rename.Rename("form1", "old", "Old", rename.UnitsInLanguageOf(desk.FileOf("Form1"))), 3u);
    EXPECT_EQ(desk.Text("Form1") + desk.Text("Other"),
              "a;~g.GetText('Old');~GetTextC('Old') + 'Old'~GetTextW('OLD')x := g.GetText('Old');");
    EXPECT_EQ(desk.Shown(), "Form1 1 modified: g Old|Text Z|Zed\n");
}

} // namespace
} // namespace glotta
