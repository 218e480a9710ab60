#include "scanner/_scan.h"

#include "platform/RegFileStore.h"
#include "scanner/PhasesAfterScan.h"
#include "scanner/SourceScan.h"
#include "settings/ExpertSettings.h"
#include "support/FakeIde.h"
#include "support/ScriptedUi.h"
#include "support/TempFolder.h"

#include <chrono>
#include <optional>

namespace glotta {
namespace {

constexpr const char* StateKey = "\\Software\\Quorlane\\TGlotta\\FoundStrings";

const std::string Unit = "begin\r\n"
                         "  A := 'One';\r\n"
                         "  B := 'Two' + X;\r\n"
                         "  C := 'One';\r\n"
                         "  D('Three', 'Line'#13#10'break');\r\n"
                         "end.\r\n";

// A scanned unit and what its review needs.
struct Desk {
    explicit Desk(const std::string& unit = Unit, const SourceFlavour& unitFlavour = PascalFlavour)
        : source(unit), flavour(unitFlavour) {
        settings.SetReplaceMethod("GetText(");
        settings.SetNoCommentsInSources(true);
        settings.SetPreviewLines(1);
        const HelperLibrary helper = HelperLibrary::Absent();
        ScanInput input;
        input.text = source;
        input.flavour = &flavour;
        input.component = "glotta1";
        found = ScanSource(input, ScanRules(settings.Values(), helper)).found;
        ShareDuplicates(found, {"glotta1", flavour, settings.Values()});
        ide.open.push_back(&project);
        ide.current = &ide.Open("/p/Unit1.pas", "Form1", source);
    }
    TfrmFound& Form() {
        if (!form)
            form.emplace(ReviewContext{services, settings, registry, found, skipped, source, flavour, "Form1",
                                       "glotta1", glotta});
        return *form;
    }
    // "2 IDS_0 'One' => glotta1.GetText('IDS_0');" for each found row, then the deleted ones behind "--".
    std::string Rows() {
        std::string text = Listing(Form().sgStrings);
        if (Form().sgDeleted.RowCount() > 0) text += "--\n" + Listing(Form().sgDeleted);
        return text;
    }
    static std::string Listing(const FoundGrid& grid) {
        std::string text;
        for (std::size_t row = 0; row < grid.RowCount(); ++row) {
            text += grid.CellText(row, 0) + " " + grid.CellText(row, 1) + " " + grid.CellText(row, 2) +
                    " => " + grid.CellText(row, 3);
            text += grid.Look(row) == RowLook::Marked ? " ignored\n" : "\n";
        }
        return text;
    }

    TempFolder folder;
    RegFileStore registry{folder / "settings.reg"};
    ExpertSettings settings{registry, {"TGlotta"}};
    std::string source;
    const SourceFlavour& flavour;
    FakeIde ide;
    FakeProject project{"/p/App.dpr", "App"};
    ScriptedUi ui;
    IdeServices services{BorlandIDEServices{ide, ide}, ide.forms, ui};
    TgxFoundSourceStrings found;
    std::vector<TgxSkippedString> skipped;
    const TgxCustomLang* glotta = nullptr;
    std::optional<TfrmFound> form;
};

const std::string One = "2 IDS_0 'One' => glotta1.GetText('IDS_0');\n";
const std::string Two = "3 IDS_1 'Two' => glotta1.GetText('IDS_1') + \n";
const std::string OneAgain = "4 IDS_0 'One' => glotta1.GetText('IDS_0');\n";
const std::string Three = "5 IDS_3 'Three' => glotta1.GetText('IDS_3')\n";
const std::string Break = "5 IDS_4 'Line'#13#10'break' => glotta1.GetText('IDS_4')\n";

std::string Status(const TfrmFound& form) {
    const auto texts = form.StatusTexts();
    return texts[0] + ", " + texts[1] + ", " + texts[2];
}

TEST(Review, RowsAreDeletedAndRestoredInTheirPlaces) {
    Desk desk;
    TfrmFound& form = desk.Form();
    EXPECT_EQ(form.caption, "Found String Constants (Form1)");
    EXPECT_EQ(desk.Rows(), One + Two + OneAgain + Three + Break);
    desk.ui.Message("Delete selected row (IDS_0)?", ModalResult::No);
    form.acDeleteRow.Execute();
    form.acSwitchDeleted.Execute(); // disabled: nothing was deleted
    EXPECT_FALSE(form.ShowsDeleted());

    desk.ui.Message("Delete selected row (IDS_0)?", ModalResult::Yes);
    form.acDeleteRow.Execute();
    form.sgStrings.Click(1, true);
    form.sgStrings.Click(3, false, true);
    EXPECT_EQ(Status(form), "Found strings: 4, Deleted strings: 1, Selected rows: 3");
    desk.ui.Message("Delete selected rows?", ModalResult::Yes);
    form.acDeleteRow.Execute();
    EXPECT_EQ(desk.Rows(), Two + "--\n" + One + OneAgain + Three + Break);
    EXPECT_TRUE(desk.found[0].Deleted && !desk.found[1].Deleted);

    form.acSwitchDeleted.Execute();
    EXPECT_EQ(form.acSwitchDeleted.caption + ": " + form.acSwitchDeleted.hint, "Found: Shows found rows");
    EXPECT_FALSE(form.acDeleteRow.Enabled() || form.acStartID.Enabled() ||
                 form.acRestoreDeletedRow.Enabled());
    form.sgDeleted.Click(1);
    form.acRestoreDeletedRow.Execute();
    EXPECT_EQ(desk.Rows(), Two + OneAgain + "--\n" + One + Three + Break);
    form.acInvertSelection.Execute();
    form.acRestoreDeletedRow.Execute();
    EXPECT_EQ(desk.Rows(), One + Two + OneAgain + Three + Break);
    EXPECT_FALSE(form.ShowsDeleted()); // back by itself
    EXPECT_EQ(form.acSwitchDeleted.caption + ": " + form.acSwitchDeleted.hint, "Deleted: Shows deleted rows");
    EXPECT_FALSE(desk.found[0].Deleted);
    EXPECT_EQ(desk.ui.Transcript(), "Confirmation: Delete selected row (IDS_0)? -> No\n"
                                    "Confirmation: Delete selected row (IDS_0)? -> Yes\n"
                                    "Confirmation: Delete selected rows? -> Yes\n");
}

TEST(Review, RowsThatContainATextAreDeletedAndTheTextIsRemembered) {
    Desk desk;
    const std::string prompt = "Type string which is included in rows which should be deleted:";
    for (const char* typed : {"", "one", "One", "e\r\nb"})
        desk.ui.Input(prompt, typed);
    desk.ui.Input(prompt, {});
    desk.Form().sgStrings.Click(3, true);
    for (int times = 0; times < 5; ++times)
        desk.Form().acDeleteRowsContains.Execute();
    EXPECT_EQ(desk.Rows(), Two + Three + "--\n" + One + OneAgain + Break);
    EXPECT_EQ(desk.Form().sgStrings.SelectedRows(), std::vector<std::size_t>{1}); // still 'Three'
    const std::string ask = "Input TGlotta Expert|" + prompt + "|";
    EXPECT_EQ(desk.ui.Transcript(), ask + " -> \n" + ask + " -> one\n" + ask + "one -> One\n" + ask +
                                        "One -> e\r\nb\n" + ask + "e\r\nb -> Cancel\n");
}

TEST(Review, ExcludedTextsGoToTheSkipWords) {
    const auto excluded = [](std::vector<std::size_t> rows, const std::string& question, ModalResult answer,
                             const std::string& note = {}) {
        Desk desk;
        desk.settings.SetSkipWords(TStringList({"two"}));
        for (const std::size_t row : rows)
            desk.Form().sgStrings.Click(row, true);
        desk.ui.Message(question, answer);
        if (!note.empty()) desk.ui.Message(note);
        desk.Form().acExclude.Execute();
        EXPECT_TRUE(desk.ui.Transcript().starts_with("Confirmation: " + question));
        const ExpertSettings stored(desk.registry, {"TGlotta"});
        return desk.Rows() + "words: " + JoinLines(stored.Values().SkipWords.Items(), ",") + "\n" +
               Status(desk.Form());
    };
    const std::string one = "Exclude all \"One\" and add it to Skip Words for future skipping?";
    const std::string counts = ", Deleted strings: 0, Selected rows: ";
    EXPECT_EQ(excluded({}, one, ModalResult::No),
              One + Two + OneAgain + Three + Break + "words: two\nFound strings: 5" + counts + "0");
    EXPECT_EQ(excluded({2}, one, ModalResult::Yes),
              Two + Three + Break + "words: two,One\nFound strings: 3" + counts + "0");
    const auto several = [](const std::string& phrases) {
        return "This will exclude phrases:\r\n" + phrases +
               "\r\nand add them to \"Skip Words\" option for future skipping! Continue?";
    };
    EXPECT_EQ(excluded({0, 1, 2}, several("One\r\nTwo"), ModalResult::Yes),
              Three + Break + "words: two,One\nFound strings: 2" + counts + "0");
    EXPECT_EQ(
        excluded(
            {3, 4}, several("Three\r\nLine\r\nbreak"), ModalResult::Yes,
            "Texts of several lines are not added to \"Skip Words\". They are excluded from this scan only."),
        One + Two + OneAgain + "words: two,Three\nFound strings: 3" + counts + "0");
}

TEST(Review, StartIDNumbersTheRowsAndStepsOverIdentifiersOfOtherTexts) {
    const std::string prompt = "Input start ID (IDS_):";
    const auto ids = [&](std::vector<std::size_t> rows, std::optional<std::string> start,
                         bool fails = false) {
        Desk desk;
        for (const std::size_t row : rows)
            desk.Form().sgStrings.Click(row, true);
        desk.ui.Input(prompt, start);
        if (fails) desk.ui.Message("For automatic generation start ID shall be integer!");
        desk.Form().acStartID.Execute();
        std::string text;
        for (std::size_t row = 0; row < desk.found.Count(); ++row) {
            const TgxFoundSourceString& found = desk.found[row];
            EXPECT_NE(found.Replacement.find("('" + found.ID + "')"), std::string::npos) << found.Replacement;
            text += found.ID.substr(4) + " ";
        }
        return text + (fails ? desk.ui.Transcript().substr(desk.ui.Transcript().find('\n') + 1) : "");
    };
    EXPECT_EQ(ids({}, "10"), "10 11 10 12 13 "); // equal literals go on sharing
    EXPECT_EQ(ids({}, " 0 "), "0 1 0 2 3 ");
    EXPECT_EQ(ids({3, 4}, "0"), "0 1 0 2 3 "); // 0 and 1 stand for texts of other rows
    EXPECT_EQ(ids({2}, "0"), "0 1 0 3 4 ");    // the other row with IDS_0 has the same text
    EXPECT_EQ(ids({0, 1}, "3"), "5 6 0 3 4 ");
    EXPECT_EQ(ids({}, {}), "0 1 0 3 4 ");
    for (const char* wrong : {"x", "", "1.5", "99999999999"})
        EXPECT_EQ(ids({}, wrong, true),
                  "0 1 0 3 4 Error: For automatic generation start ID shall be integer! -> OK\n");
}

TEST(Review, TypedIdentifiersChangeTheQuotedOneOnly) {
    Desk desk;
    FoundGrid& grid = desk.Form().sgStrings;
    desk.found[1].Replacement = "IDS_10 + glotta1.GetText('IDS_1' (* 'IDS_10' *) ) + ";
    EXPECT_TRUE(grid.Enter(1, FoundGrid::StringID, "IDS_10"));
    EXPECT_EQ(desk.found[1].ID + ": " + desk.found[1].Replacement,
              "IDS_10: IDS_10 + glotta1.GetText('IDS_10' (* 'IDS_10' *) ) + ");
    EXPECT_FALSE(grid.Enter(0, FoundGrid::LineNo, "7"));
    EXPECT_TRUE(grid.Enter(0, FoundGrid::Replacement, "Anything 'at all'"));
    EXPECT_EQ(desk.found[0].Replacement + desk.found[0].ID, "Anything 'at all'IDS_0");

    const std::string bad =
        "String ID shall not be empty and shall not contain quotes or control characters!";
    for (const char* id : {"", "a'b", "a\x01"}) {
        desk.ui.Message(bad);
        EXPECT_FALSE(grid.Enter(2, FoundGrid::StringID, id));
    }
    desk.ui.Message("String ID \"ids_3\" is already used for another string!");
    EXPECT_FALSE(grid.Enter(2, FoundGrid::StringID, "ids_3"));
    EXPECT_TRUE(desk.ui.Transcript().ends_with(
        "Error: String ID \"ids_3\" is already used for another string! -> OK\n"));
    EXPECT_EQ(desk.found[2].ID, "IDS_0");
}

TEST(Review, AnIdentifierOfTheComponentIsNotTakenForAnotherText) {
    RegisterGlottaClasses();
    FormFile file =
        FormFile::Parse("object Form1: TForm1\r\n  object glotta1: TGlotta\r\n    Strings.Strings = (\r\n"
                        "      'IDS_7'#1'Seven'#1\r\n      'IDS_8'#1'One'#1)\r\n  end\r\nend\r\n",
                        "Unit1.dfm");
    ComponentTree tree(file, "TForm");
    Desk desk;
    desk.glotta = dynamic_cast<TgxCustomLang*>(tree.Root().FindComponent("glotta1"));
    desk.ui.Message("String ID \"IDS_7\" is already used for another string!");
    EXPECT_FALSE(desk.Form().sgStrings.Enter(0, FoundGrid::StringID, "IDS_7"));
    EXPECT_TRUE(desk.Form().sgStrings.Enter(0, FoundGrid::StringID, "IDS_8"));
    desk.ui.Input("Input start ID (IDS_):", "7");
    desk.Form().acStartID.Execute();
    EXPECT_EQ(desk.found[0].ID + " " + desk.found[1].ID, "IDS_8 IDS_9");
}

TEST(Review, ReplacementsAreTypecastOnceAndRebuiltByMethod) {
    Desk desk;
    desk.Form().acInvertSelection.Execute();
    desk.Form().acTypecastPChar.Execute();
    desk.Form().acTypecastPChar.Execute();
    std::string cast;
    for (std::size_t row = 0; row < 4; ++row)
        cast += desk.found[row].Replacement + "|";
    EXPECT_EQ(
        cast,
        "PChar(glotta1.GetText('IDS_0'));|PChar(glotta1.GetText('IDS_1')) + |PChar(glotta1.GetText('IDS_0'))"
        ";|PChar(glotta1.GetText('IDS_3'))|");
    desk.Form().acRemoveSelection.Execute();
    std::string methods;
    for (TAction& action : desk.Form().acUseMethod) {
        action.Execute();
        methods +=
            action.caption + (action.Checked() ? ": " : " unchecked: ") + desk.found[0].Replacement + "\n";
    }
    EXPECT_EQ(
        methods,
        "GetText: glotta1.GetText('IDS_0');\nGetTextC: glotta1.GetTextC('IDS_0');\n"
        "GetTextOrDefault: glotta1.GetTextOrDefault('IDS_0');\n"
        "GetTextOrDefaultC: glotta1.GetTextOrDefaultC('IDS_0');\n"
        "GetTextOrDefaultW: glotta1.GetTextOrDefaultW('IDS_0');\nGetTextW: glotta1.GetTextW('IDS_0');\n");
    EXPECT_EQ(desk.found[1].Replacement, "PChar(glotta1.GetText('IDS_1')) + "); // not chosen
}

TEST(Review, IgnoreMarksShowInTheGrid) {
    Desk desk;
    TfrmFound& form = desk.Form();
    desk.found[1].Note = "in a const section";
    form.acMarktoIgnore.Execute();
    form.sgStrings.SetRow(1);
    form.acSelectRow.Execute();
    EXPECT_EQ(form.sgStrings.Hint(1) + " " + form.lblNote(), "in a const section in a const section");
    EXPECT_EQ(form.sgStrings.Look(1), RowLook::Noted);
    form.sgStrings.Click(4, true);
    form.acMarktoIgnore.Execute();
    const auto marks = [&] {
        std::string text;
        for (std::size_t row = 0; row < desk.found.Count(); ++row)
            text += form.sgStrings.Look(row) == RowLook::Marked && desk.found[row].Ignored ? 'x' : '.';
        return text;
    };
    EXPECT_EQ(marks(), "xx..x");
    form.sgStrings.Select(1, false);
    form.acRemoveIgnoreMark.Execute();
    EXPECT_EQ(marks(), "xx...");
}

TEST(Review, ThePreviewFollowsTheRow) {
    Desk desk;
    TfrmFound& form = desk.Form();
    form.sgStrings.SetRow(3);
    EXPECT_EQ(form.edPreview() + "|" + std::to_string(form.PreviewLine) + ":" +
                  std::to_string(form.PreviewColumn) + "+" + std::to_string(form.PreviewLength),
              "  C := 'One';\r\n  D('Three', 'Line'#13#10'break');\r\nend.|1:4+7");
    form.sgStrings.SetRow(-1);
    EXPECT_EQ(form.edPreview(), "");
}

TEST(Review, TheWayOutIsAskedFor) {
    const std::string selected = "There are some row(s) selected. Continue?",
                      apply = "This will apply changes and modify source code. Continue?",
                      leave = "This will close the Found Strings form! Continue?";
    Desk desk;
    desk.Form().GridCols.Enter({10, 20});
    desk.ui.Modal<TfrmFound>([](TfrmFound& form) {
        form.acCancel.Execute();
        form.acModifySource.Execute();
        form.acSelectRow.Execute();
        form.acModifySource.Execute();
        EXPECT_EQ(form.modalResult, ModalResult::None);
        form.acModifySource.Execute();
        return ModalResult::None;
    });
    desk.ui.Message(leave, ModalResult::No)
        .Message(apply, ModalResult::No)
        .Message(selected, ModalResult::No);
    desk.ui.Message(selected, ModalResult::Yes).Message(apply, ModalResult::Yes);
    EXPECT_EQ(desk.ui.ShowModal(desk.Form()), ModalResult::OK);
    EXPECT_EQ(desk.ui.Transcript(), "Confirmation: " + leave + " -> No\nWarning: " + apply +
                                        " -> No\nWarning: " + selected + " -> No\nWarning: " + selected +
                                        " -> Yes\nWarning: " + apply +
                                        " -> Yes\nModal Found String Constants (Form1) -> None\n");
    desk.form.reset();
    desk.ui.Message(leave, ModalResult::Yes);
    EXPECT_TRUE(desk.Form().Close(desk.ui, ModalResult::Cancel));
}

TEST(Review, ItsStateIsKept) {
    Desk desk;
    EXPECT_TRUE(desk.Form().GridCols().empty() && desk.Form().pnNotice.Visible());
    desk.Form().GridCols.Enter({50, 100, 200, 300});
    desk.Form().PreviewHeight.Enter(77);
    desk.ui.Input("Type string which is included in rows which should be deleted:", "x y");
    desk.Form().acDeleteRowsContains.Execute();
    desk.Form().acHideNotice.Execute();
    std::string stored;
    for (const char* name : {"GridCols", "NoticeVisible", "PreviewHeight", "ExcludeRowsTypedStr"})
        stored += desk.registry.ReadString(StateKey, name).value_or("-") + "|";
    EXPECT_EQ(stored, "50,100,200,300|0|77|x y|");
    desk.form.reset();
    EXPECT_EQ(desk.Form().GridCols(), (std::vector<int>{50, 100, 200, 300}));
    EXPECT_EQ(desk.Form().PreviewHeight(), 77);
    EXPECT_FALSE(desk.Form().pnNotice.Visible());
    desk.form.reset();
    desk.registry.WriteString(StateKey, "GridCols", "50,x");
    EXPECT_TRUE(desk.Form().GridCols().empty());
}

TEST(Review, SkippedStringsTellTheirReasons) {
    Desk desk;
    for (const TStringSkipReason reason :
         {ssrNone, ssrBadChars, ssrByLine, ssrByPhrase, ssrByPhrasesRE, ssByIgnoreTag, ssrComments}) {
        TgxSkippedString skipped;
        skipped.Text = SkipReasonName(reason);
        skipped.Reason = reason;
        skipped.Line = int(reason);
        desk.skipped.push_back(skipped);
    }
    std::string shown;
    bool closed = false;
    desk.ui.Window<TfrmSkippedStrings>([&](TfrmSkippedStrings& form) {
        form.OnClose = [&] { closed = true; };
        for (std::size_t row = 0; row < form.lbStrings.RowCount(); ++row) {
            form.lbStrings.Click(row);
            shown += form.lbStrings.CellText(row, 0) + ": " + form.edReason() + "\n";
        }
        form.lbStrings.Click(2);
        shown += form.caption + ", " + form.StatusText() + ", line " + std::to_string(form.PreviewLine) +
                 " of\n" + form.edPreview();
    });
    desk.Form().acViewSkipped.Execute();
    EXPECT_EQ(shown, "ssrNone: None\n"
                     "ssrBadChars: Found string consists of the only characters specified for exclusion. "
                     "Please see \"Exclude "
                     "strings containing only characters like:\" option settings.\n"
                     "ssrByLine: Found string contains phrase specified for skip. Please see \"Skip lines "
                     "containing:\" option "
                     "settings.\n"
                     "ssrByPhrase: Found string is equal to phrase specified for skip. Please see \"Skip "
                     "words and phrases:\" "
                     "option settings.\n"
                     "ssrByPhrasesRE: Found string matches to Regular Expression specified for skip. Please "
                     "see \"Skip words and "
                     "phrases:\" option settings.\n"
                     "ssByIgnoreTag: Source line with found string contains TGL:IGNORE tag, that forces "
                     "Expert to skip this "
                     "line.\n"
                     "ssrComments: The string is found in source comments.\n"
                     "Strings Skipped by Expert, Strings Skipped: 7, line 1 of\n"
                     "  A := 'One';\r\n  B := 'Two' + X;\r\n  C := 'One';");
    desk.Form().acViewSkipped.Execute(); // there already
    EXPECT_EQ(desk.ui.Transcript(),
              "Show Strings Skipped by Expert\nBringToFront Strings Skipped by Expert\n");
    desk.form.reset();
    EXPECT_TRUE(closed); // its window goes with the review
}

TEST(Review, TwentyThousandRowsAreSortedAndRenumberedWithoutAWait) {
    std::string unit;
    for (int i = 0; i < 20000; ++i)
        unit += "  F('Text " + std::to_string(20000 - i) + "');\r\n";
    Desk desk(unit);
    const auto start = std::chrono::steady_clock::now();
    TfrmFound& form = desk.Form();
    form.sgStrings.SetRow(10000);
    form.sgStrings.Sort(FoundGrid::StringConstant, true);
    EXPECT_EQ(form.sgStrings.CellText(0, 2), "'Text 9999'");
    EXPECT_EQ(form.sgStrings.Current()->Line, 10000); // the current row is the same string
    form.acInvertSelection.Execute();
    desk.ui.Input("Input start ID (IDS_):", "5");
    form.acStartID.Execute();
    EXPECT_EQ(form.sgStrings.CellText(19999, 1), "IDS_20004");
    EXPECT_TRUE(form.sgStrings.Enter(3, FoundGrid::StringID, "x"));
    desk.ui.Message("Delete selected rows?", ModalResult::Yes);
    form.acDeleteRow.Execute();
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(form.sgDeleted.RowCount(), 20000u);
    EXPECT_LT(seconds.count(), 5.0); // far above what it takes; a quadratic cost is far above this
    RecordProperty("seconds", std::to_string(seconds.count()));
}

} // namespace
} // namespace glotta
