#include "storage/IdentifierChecks.h"

#include "storage/TranslationDesk.h"

namespace glotta {
namespace {

const std::string NoLines = "All internal and external IDs resolved.";

struct CheckDesk : TranslationDesk {
    std::unique_ptr<TfrmBadIDs> window;

    // Each component: its name, then its identifiers.
    void Add(const std::string& name, const std::vector<std::vector<std::string>>& components,
             const std::string& source) {
        std::string text;
        for (const std::vector<std::string>& ids : components) {
            text +=
                "  object " + ids.front() + ": TGlotta|    NumberOfLanguages = 1|    Strings.Strings = (|";
            for (std::size_t i = 1; i < ids.size(); ++i)
                text += "      '" + ids[i] + "'#1'Text'" + (i + 1 < ids.size() ? "|" : "");
            text += ")|  end|";
        }
        AddForm(name, text);
        folder.Put(name + ".pas", source);
    }
    void OpenProject() {
        Open();
        for (FormsListItem& item : forms.items) // as the list's form files are read
            item.languages = item.glotta.empty() ? "0" : "1";
    }
    void CheckForms(const std::vector<std::string>& names) {
        Select(names);
        IdentifierChecks(services).CheckunusedIDs1Click(window);
    }
    void CheckUnits(const std::vector<std::string>& names) {
        std::vector<std::string> files;
        for (const std::string& name : names)
            files.push_back(FileOf(name));
        IdentifierChecks(services).CheckbadstringIDsinunit1Click(window, files);
    }
    std::string Rows() const {
        std::string text;
        for (std::size_t row = 0; window && row < window->IDsList.RowCount(); ++row)
            for (std::size_t column = 0; column < BadIDsList::Columns; ++column)
                text += (column == BadIDsList::FileName
                             ? PathText(PathFromText(window->IDsList.CellText(row, column)).filename())
                             : window->IDsList.CellText(row, column)) +
                        (column + 1 < BadIDsList::Columns ? "|" : "\n");
        return text;
    }
    // What came up since the last time, but for the progress.
    std::string Said() {
        std::string text;
        for (const std::string& line : SplitLines(ReplaceStr(ui.Transcript().substr(heard_), "\r", "~")))
            if (!line.starts_with("Progress")) text += line + "\n";
        heard_ = ui.Transcript().size();
        return ReplaceStr(text, folder.Path().string() + "/", "");
    }
    std::string OpenUnits() {
        std::string text;
        for (const FormsListItem& item : forms.items)
            if (ide.FindModule(item.fileName)) text += item.formName + " ";
        return text;
    }

private:
    std::size_t heard_ = 0;
};

struct Sample : CheckDesk {
    Sample() {
        Add("Form1", {{"glotta1", "A", "B", "C"}, {"glotta2", "B", "X"}},
            "x := glotta1.GetText('B');\r\ny := glotta2.GetText('X') + Form2.glotta.GetText('No');\r\n");
        Add("Form2", {{"glotta", "P"}}, "gettextw('p')\nGetText(P)");
        Add("Plain", {}, "GetText('P')");
        AddUnit("Other", "Form2.glotta.GetText('P');\r\nForm1.Glotta1.GetText('X');\nGetText('Q')");
        AddUnit("Good", "Form2.glotta.GetText('P')");
        OpenProject();
    }
};

TEST(IdentifierChecks, OfForms) {
    Sample desk;
    desk.CheckForms({});
    EXPECT_EQ(desk.window, nullptr);
    desk.ui.Message("Form Plain is not translated!");
    desk.CheckForms({"Plain"});
    desk.ui.Message("All IDs on form Form2 are used.\r" + NoLines);
    desk.CheckForms({"Form2"});
    EXPECT_EQ(desk.Said(), "Error: Form Plain is not translated! -> OK\n"
                           "Information: All IDs on form Form2 are used.~" +
                               NoLines + " -> OK\n");
    desk.ui.Window<TfrmBadIDs>();
    desk.ui.Message("All IDs on selected forms are used.\r" + NoLines);
    desk.CheckForms({"Plain", "Form2"});
    EXPECT_EQ(desk.Said(), "Show Bad string IDs\nInformation: All IDs on selected forms are used.~" +
                               NoLines + " -> OK\n");

    desk.window->ColumnWidths.Enter({1, 2, 3, 4});
    desk.OpenUnit("Form2");
    desk.ui.Window<TfrmBadIDs>();
    desk.CheckForms({"Form1", "Form2"});
    EXPECT_EQ(desk.Rows(), "A|Not used in source of current module.|Index: 0|Form1.pas\n"
                           "C|Not used in source of current module.|Index: 2|Form1.pas\n"
                           "No|Not found in Form2.glotta|Line: 2|Form1.pas\n");
    EXPECT_EQ(desk.window->ColumnWidths(), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_EQ(desk.window->StatusTexts()[1], "3");
    EXPECT_EQ(desk.OpenUnits(), "Form2 "); // the others are closed again

    // What the person stopped is not called good.
    desk.ui.steps = 0;
    desk.CheckForms({"Form2"});
    desk.ui.steps = -1;
    std::filesystem::remove(desk.FileOf("Form1"));
    desk.ui.Message("Couldnot open file:\r" + desk.FileOf("Form1") + "\r\nUnit skipped!");
    desk.CheckForms({"Form1"});
    EXPECT_EQ(desk.Said(),
              "Show Bad string IDs\nError: Couldnot open file:~Form1.pas~\nUnit skipped! -> OK\n");
}

TEST(IdentifierChecks, OfUnits) {
    Sample desk;
    desk.ui.Message("All external IDs in unit(s) resolved.").Window<TfrmBadIDs>();
    desk.CheckUnits({"Good"});
    desk.CheckUnits({"Good", "Other", "Form1"});
    EXPECT_EQ(desk.Rows(), "X|Not found in Form1.glotta1|Line: 2|Other.pas\n"
                           "Q|Can't be autochecked.|Line: 3|Other.pas\n"
                           "B|Can't be autochecked.|Line: 1|Form1.pas\n"
                           "X|Can't be autochecked.|Line: 2|Form1.pas\n"
                           "No|Not found in Form2.glotta|Line: 2|Form1.pas\n");
    std::filesystem::remove(desk.FileOf("Good"));
    desk.ui.Message("Couldnot open file:\r" + desk.FileOf("Good") + "\r\nUnit skipped!");
    desk.CheckUnits({"Good"});
    EXPECT_EQ(desk.Said(), "Information: All external IDs in unit(s) resolved. -> OK\nShow Bad string IDs\n"
                           "Error: Couldnot open file:~Good.pas~\nUnit skipped! -> OK\n");
    EXPECT_EQ(desk.OpenUnits(), "");
}

TEST(BadIDs, SortByColumnsAndByTheNumberInInfo) {
    CheckDesk desk;
    desk.window = std::make_unique<TfrmBadIDs>(desk.services);
    using enum BadID::Problem;
    BadIDsList& list = desk.window->IDsList;
    list.SetRows({{{"b", NotFound, 10, "F", "g"}, "1", ""},
                  {{"A", NotUsed, 9, "", ""}, "2", ""},
                  {{"c", NotUsed, 100, "", ""}, "0", ""}});
    list.SelectOnly(0);
    const auto sorted = [&](std::size_t column, bool descending) {
        list.Sort(column, descending);
        std::string ids;
        for (std::size_t row = 0; row < list.RowCount(); ++row)
            ids += list.CellText(row, BadIDsList::ID);
        return ids + std::to_string(list.Row());
    };
    EXPECT_EQ(sorted(BadIDsList::Info, false), "Abc1");
    EXPECT_EQ(sorted(BadIDsList::Info, true), "cbA1");
    EXPECT_EQ(sorted(BadIDsList::Type, false), "bcA0");
    EXPECT_EQ(sorted(BadIDsList::ID, true), "cbA1");
    EXPECT_EQ(sorted(BadIDsList::FileName, false), "cbA1");
}

TEST(BadIDs, DeletesAsTheAnswersSay) {
    const auto question = [](const std::string& id) {
        return "This will delete " + id + " from Form1.g! Continue?";
    };
    const auto run = [&](const std::vector<std::pair<std::string, ModalResult>>& answers) {
        CheckDesk desk;
        desk.Add("Form1", {{"g", "A", "B", "Used", "C", "D"}}, "GetText('Used') GetText('No')");
        desk.OpenProject();
        desk.ui.Window<TfrmBadIDs>();
        desk.CheckForms({"Form1"});
        for (std::size_t row = 0; row < 5; ++row) // that of the call, too
            desk.window->IDsList.Select(row, row != 2);
        for (const auto& [id, answer] : answers)
            desk.ui.Message(question(id), answer);
        desk.Said();
        desk.window->acDelete.Execute();
        EXPECT_EQ(desk.Said().substr(0, 9), "Warning: ");
        return ReplaceStr(desk.Shown(), "|Text", "") +
               ReplaceStr(ReplaceStr(desk.Rows(), "Not used in source of current module.", ""), "|Form1.pas",
                          "");
    };
    using enum ModalResult;
    const std::string call = "No|Not found in Form1.g|Line: 1\n";
    EXPECT_EQ(run({{"A", Yes}, {"B", No}, {"D", Yes}}),
              "Form1 1 modified: g B Used C\nB||Index: 0\nC||Index: 2\n" + call);
    EXPECT_EQ(run({{"A", No}, {"B", YesToAll}}),
              "Form1 1 modified: g A Used C\nA||Index: 0\nC||Index: 2\n" + call);
    EXPECT_EQ(run({{"A", Yes}, {"B", Cancel}}),
              "Form1 1 modified: g B Used C D\nB||Index: 0\nC||Index: 2\nD||Index: 3\n" + call);
    EXPECT_EQ(run({{"A", Cancel}}),
              "Form1 1: g A B Used C D\nA||Index: 0\nB||Index: 1\nC||Index: 3\nD||Index: 4\n" + call);
}

TEST(BadIDs, LeadToTheirPlace) {
    Sample desk;
    desk.ui.Window<TfrmBadIDs>();
    desk.CheckForms({"Form1"});
    const auto show = [&](std::size_t row) { desk.window->LVIDsDblClick(row); };
    show(2);
    ASSERT_EQ(desk.OpenUnits(), "Form1 ");
    const IOTAEditView& view = desk.services.GetCurrentSourceEditor()->View();
    EXPECT_EQ(view.BlockStart(), (EditPos{2, 50}));
    EXPECT_EQ(view.BlockAfter(), (EditPos{2, 54}));

    desk.ide.CloseFile(desk.FileOf("Form1"));
    desk.window->IDsList.SelectOnly(1);
    desk.window->acViewSource.Execute();
    IDesigner* const designer = desk.services.GetDesignerByFormName("Form1");
    ASSERT_NE(designer, nullptr);
    EXPECT_EQ(designer->SelectedComponent(), designer->Root().FindComponent("glotta1"));

    desk.ide.CloseFile(desk.FileOf("Form1"));
    std::filesystem::remove(desk.FileOf("Form1"));
    desk.Said();
    desk.ui.Message("Nil designer");
    show(0);
    EXPECT_EQ(desk.Said(), "Message: Nil designer -> OK\n");
    EXPECT_THROW(show(2), Error);
}

} // namespace
} // namespace glotta
