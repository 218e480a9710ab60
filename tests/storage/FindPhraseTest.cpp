#include "storage/FindPhrase.h"

#include "platform/RegFileStore.h"
#include "storage/TranslationDesk.h"
#include "storage/_findphrase.h"

namespace glotta {
namespace {

std::string Rows(const std::vector<FoundPhrase>& rows) {
    FoundPhrasesList list;
    list.SetRows(rows);
    std::string text;
    for (std::size_t row = 0; row < list.RowCount(); ++row) {
        text += PathText(PathFromText(list.CellText(row, 0)).stem());
        for (std::size_t column = 1; column < list.ColumnCount(); ++column)
            text += " " + list.CellText(row, column);
        text += "; ";
    }
    return text;
}

// Form1 and Form2 with two languages, Form3 without a component.
struct Desk : TranslationDesk {
    Desk() {
        RegisterGlottaClasses();
        const std::string head = "  object Glotta1: TGlotta|    LangNames.Strings = (|      'English'|      "
                                 "'Deutsch')|    NumberOfLanguages = 2|";
        AddForm("Form1",
                head + "    Captions.Strings = (|      'Button1.Caption'#1'Hello World'#1'Hallo'|"
                       "      'Hello.Caption'#1'Bye'#1'hello hello')|"
                       "    Strings.Strings = (|      'Hello'#1'x'|      'IDS_2'#1'H'#252'LLE'#1)|  end|");
        AddForm("Form2", head + "    Strings.Strings = (|      'IDS_1'#1'hello'#1'hello')|  end|");
        AddForm("Form3", "");
        Open();
        Select({"Form1", "Form2", "Form3"});
    }
    RegFileStore registry{folder / "settings.reg"};
    SettingsValues settings;
    FormTranslation translation{services, settings};
    FindPhrase find{services, translation};
    std::unique_ptr<TfrmFoundPhrases> window;

    // The dialog "Find Phrase", filled and left.
    void Dialog(PhraseOptions options, ModalResult way = ModalResult::OK, std::string replacement = {},
                bool prompt = false) {
        ui.Modal<TfrmFind>([=, this](TfrmFind& form) {
            form.edFindText.Enter(options.text);
            form.ckbSensit.Enter(options.caseSensitive);
            form.ckbWhole.Enter(options.wholePhrase);
            form.ckbIdent.Enter(options.identifiers);
            form.edReplace.Enter(replacement);
            form.ckbDoPrompt.Enter(prompt);
            (way == ModalResult::OK ? form.btOK : form.btCancel).Execute();
            return way;
        });
    }
    void Confirm(ModalResult answer) {
        ui.Modal<TfrmReplConfirm>([=, this](TfrmReplConfirm& form) {
            asked += PathText(PathFromText(form.lblFileName()).stem()) + " " + form.lblProperty() + " " +
                     form.lblLocation() + " " + form.memCurrent() + " -> " + form.memResult() + "\n";
            return answer;
        });
    }
    std::string asked;
};

TEST(Phrase, ReplacesEveryOccurrenceWithoutTouchingTheRest) {
    const struct {
        const char *text, *field, *expected;
        bool caseSensitive, whole;
    } cases[] = {
        {"hello", "Hello, HELLO!", "X, X!", false, false},
        {"hello", "Hello, hello", "Hello, X", true, false},
        {"hello", "HELLO", "X", false, true},
        {"aa", "aaaAa", "XXa", false, false},
        {"ü", "Über ÜÜ", "Xber XX", false, false},
        // Upper case with fewer and with more bytes than the stored text.
        {"end", "ıı end \xE2\xB1\xA5\xC9\xAB END", "ıı X \xE2\xB1\xA5\xC9\xAB X", false, false},
        {"b",
         "\xC3"
         "b\xFF\xC3\xA9"
         "B",
         "\xC3"
         "X\xFF\xC3\xA9"
         "X",
         false, false},
        {"", "abc", "abc", false, false},
    };
    for (const auto& c : cases) {
        const Phrase phrase({c.text, c.caseSensitive, c.whole, false});
        EXPECT_EQ(phrase.Replaced(c.field, "X"), c.expected) << c.field;
        EXPECT_EQ(phrase.Matches(c.field), std::string(c.field) != c.expected) << c.field;
    }
}

TEST(FindPhrase, ListsPlacesByFormKindLineAndField) {
    Desk desk;
    const auto found = [&](PhraseOptions options) { return Rows(desk.find.Find(options)); };
    EXPECT_EQ(found({"hello"}), "Form1 Captions 0 English; Form1 Captions 1 Deutsch; "
                                "Form2 Strings 0 English; Form2 Strings 0 Deutsch; ");
    EXPECT_EQ(found({"Hello", true, false, true}),
              "Form1 Captions 0 English; Form1 Captions 1 Identifier; Form1 Strings 0 Identifier; ");
    EXPECT_EQ(found({"HELLO", false, true, true}),
              "Form1 Strings 0 Identifier; Form2 Strings 0 English; Form2 Strings 0 Deutsch; ");
    EXPECT_EQ(found({"hülle", false, true}), "Form1 Strings 1 English; ");
    EXPECT_EQ(found({"", false, true}), "Form1 Strings 0 Deutsch; Form1 Strings 1 Deutsch; ");
    EXPECT_EQ(found({""}), "");
    EXPECT_EQ(desk.ide.ModuleCount(), 1); // what was closed is closed again
    desk.Select({"Form2"});
    ASSERT_TRUE(desk.OpenUnit("Form2"));
    EXPECT_EQ(found({"hello", true, true}), "Form2 Strings 0 English; Form2 Strings 0 Deutsch; ");
    EXPECT_EQ(desk.ide.ModuleCount(), 2);
}

TEST(FindPhrase, OneWindowShowsTheLastSearch) {
    Desk desk;
    const auto command = [&](PhraseOptions options, bool shows, ModalResult way = ModalResult::OK) {
        desk.Dialog(options, way);
        if (shows) desk.ui.Window<TfrmFoundPhrases>();
        desk.find.Findword1Click(desk.registry, desk.window);
        return desk.window ? Rows(desk.window->LVIDs.RowCount() ? std::vector{desk.window->LVIDs.At(0)}
                                                                : std::vector<FoundPhrase>{})
                           : "no window";
    };
    EXPECT_EQ(command({"hello"}, false, ModalResult::Cancel), "no window");
    EXPECT_EQ(command({"nowhere"}, false), "no window");
    EXPECT_EQ(command({"hello"}, true), "Form1 Captions 0 English; ");
    TfrmFoundPhrases* const window = desk.window.get();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(command({"LLE"}, true), "Form1 Strings 1 English; ");
    EXPECT_EQ(command({"nowhere"}, false), "");
    EXPECT_EQ(desk.window.get(), window);

    window->Placement.Enter({1, 2, 300, 400, false});
    window->Close(desk.ui, ModalResult::Cancel);
    EXPECT_EQ(command({"hello"}, true), "Form1 Captions 0 English; ");
    EXPECT_EQ(desk.window->Placement(), (FormPlacement{1, 2, 300, 400, false}));
    desk.window->LVIDsDblClick(0);
    EXPECT_EQ(desk.services.GetDesignerByFormName("Form1")->SelectedComponent()->Name(), "Glotta1");

    desk.Select({});
    desk.find.Findword1Click(desk.registry, desk.window); // asks nothing
    desk.find.Replacephrase1Click(desk.registry);
}

TEST(FindPhrase, TheDialogKeepsWhatWasAskedFor) {
    Desk desk;
    const auto shown = [&](TfrmFind::Command command) {
        TfrmFind form(desk.ui, desk.registry, command);
        std::string text =
            form.edFindText() + "|" + form.edReplace() + (form.edReplace.Visible() ? "|" : "-|");
        for (const auto* box : {&form.ckbSensit, &form.ckbWhole, &form.ckbIdent, &form.ckbDoPrompt})
            text += (*box)() ? "1" : "0";
        return text + (form.ckbDoPrompt.Visible() ? "" : "-");
    };
    EXPECT_EQ(shown(TfrmFind::Command::Find), "|-|0001-");
    desk.Dialog({"other", true, true, true}, ModalResult::Cancel, "thing", true);
    desk.find.Replacephrase1Click(desk.registry);
    EXPECT_EQ(shown(TfrmFind::Command::Replace), "||0001");
    desk.Dialog({"none", true, false, true}, ModalResult::OK, "ignored", false);
    desk.find.Findword1Click(desk.registry, desk.window);
    EXPECT_EQ(shown(TfrmFind::Command::Replace), "none||1011");
    desk.Dialog({"none", false, true, false}, ModalResult::OK, "more", false);
    desk.find.Replacephrase1Click(desk.registry);
    EXPECT_EQ(shown(TfrmFind::Command::Find), "none|more-|0100-");
}

TEST(ReplacePhrase, AsksForEachOccurrence) {
    Desk desk;
    ASSERT_TRUE(desk.OpenUnit("Form2"));
    const std::string before = desk.Shown();
    desk.Dialog({"hello"}, ModalResult::OK, "Hi", true);
    desk.Confirm(ModalResult::No);
    desk.Confirm(ModalResult::Cancel);
    desk.find.Replacephrase1Click(desk.registry);
    EXPECT_EQ(desk.asked, "Form1 Captions English Hello World -> Hi World\n"
                          "Form1 Captions Deutsch hello hello -> Hi Hi\n");
    EXPECT_EQ(desk.Shown(), before);

    desk.Dialog({"hello"}, ModalResult::OK, "Hi", true);
    desk.Confirm(ModalResult::Yes);
    desk.Confirm(ModalResult::No);
    desk.Confirm(ModalResult::YesToAll);
    desk.find.Replacephrase1Click(desk.registry);
    EXPECT_EQ(
        desk.Shown(),
        "Form1 2: Glotta1 Button1.Caption|Hi World|Hallo Hello.Caption|Bye|hello hello Hello|x IDS_2|HüLLE|\n"
        "Form2 2 modified: Glotta1 IDS_1|Hi|Hi\nForm3 0:\n");

    desk.Dialog({"hi"}, ModalResult::OK, "Hey", true); // what was agreed to stays when the rest is given up
    desk.Confirm(ModalResult::Yes);
    desk.Confirm(ModalResult::Cancel);
    desk.find.Replacephrase1Click(desk.registry);
    EXPECT_EQ(desk.Shown().substr(0, 48), "Form1 2: Glotta1 Button1.Caption|Hey World|Hallo");
}

TEST(ReplacePhrase, IdentifiersStayUniqueAndAreReported) {
    Desk desk;
    desk.Select({"Form1"});
    const auto replace = [&](const char* text, const char* replacement, const char* message) {
        desk.Dialog({text, false, true, true}, ModalResult::OK, replacement, false);
        if (message) desk.ui.Message(message);
        desk.find.Replacephrase1Click(desk.registry);
    };
    replace("Hello", "",
            "These identifiers were not replaced:\r\nForm1: \"Hello\" -> \"\" (an identifier shall not be "
            "empty and shall not contain quotes or control characters)");
    replace("Hello", "ids_2",
            "These identifiers were not replaced:\r\nForm1: \"Hello\" -> \"ids_2\" (that identifier is "
            "already used)");
    replace("hello", "HELLO",
            "Source code that uses these identifiers is not changed:\r\nForm1: \"Hello\" -> \"HELLO\"");
    std::string told;
    desk.find.OnChangeStrID = [&](const std::string& form, const std::string& before, std::string& id) {
        told += form + " " + before + " " + id + ";";
        if (id == "Unwanted") id = before;
    };
    replace("hello", "IDS_9", nullptr);
    replace("IDS_9", "Unwanted", nullptr); // comes back
    EXPECT_EQ(told, "Form1 HELLO IDS_9;Form1 IDS_9 Unwanted;");
    EXPECT_TRUE(desk.Shown().starts_with("Form1 2: Glotta1 Button1.Caption|Hello World|Hallo "
                                         "Hello.Caption|Bye|hello hello IDS_9|x IDS_2|HüLLE|\nForm2"))
        << desk.Shown();
}

} // namespace
} // namespace glotta
