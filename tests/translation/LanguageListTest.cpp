#include "platform/Text.h"
#include "support/ScriptedUi.h"
#include "translation/ConfigureLanguages.h"

namespace glotta {
namespace {

using Use = std::function<void(TfrmConfigureLanguages&)>;

struct Edited {
    std::string names; // afterwards, joined by commas
    std::string transcript;
};

// Opens the dialog on the names, works with it and leaves it by OK.
Edited Edit(ScriptedUi& ui, std::vector<std::string> names, const std::string& defaults, const Use& use) {
    ui.Modal<TfrmConfigureLanguages>([&](TfrmConfigureLanguages& form) {
        use(form);
        form.btOK.Execute();
        return ModalResult::Cancel; // counts only when OK is disabled
    });
    ConfigureLanguages(ui, names, defaults);
    return {JoinLines(names, ","), ui.Transcript()};
}

std::string Names(std::vector<std::string> names, const std::string& defaults, const Use& use) {
    ScriptedUi ui;
    return Edit(ui, std::move(names), defaults, use).names;
}

TEST(LanguageList, TheNumberGrowsTheListAndNeverCutsIt) {
    const std::string defaults = "English\r\nGerman\r\nFrench";
    const auto type = [](const char* text) {
        return [text](TfrmConfigureLanguages& form) { form.edLangCount.Enter(text); };
    };
    EXPECT_EQ(Names({"English", "German"}, defaults, type("4")), "English,German,French,Language N4");
    EXPECT_EQ(Names({"x", "french"}, defaults, type("3")), "x,french,Language N3");
    EXPECT_EQ(Names({"a", "b", "c", "d"}, defaults, type("2")), "a,b,c,d");
    EXPECT_EQ(Names({}, defaults, [](auto& form) { form.sbUp2.Execute(); }), "English");
    EXPECT_EQ(Names({"a"}, defaults,
                    [](auto& form) {
                        form.sbDown2.Execute(); // stays 1
                        form.sbUp2.Execute();
                        form.sbUp2.Execute();
                        form.sbDown2.Execute();
                        EXPECT_EQ(form.edLangCount(), "2");
                    }),
              "a,German,French");
    for (const char* noNumber : {"", "0", "-3", "2x", "99999999999999", "1001"})
        EXPECT_EQ(Names({"a"}, {},
                        [&](auto& form) {
                            form.edLangCount.Enter(noNumber);
                            EXPECT_FALSE(form.btOK.Enabled()) << noNumber;
                            form.edLangCount.Enter("1");
                        }),
                  "a");
}

TEST(LanguageList, EntriesMoveByOnePlaceAndStaySelected) {
    const std::vector<std::string> names = {"a", "b", "c"};
    const auto move = [&](std::vector<std::size_t> rows, bool up) {
        return Names(names, {}, [&](auto& form) {
            for (const std::size_t row : rows)
                form.lbLangNames.Click(row, true);
            for (int times = 0; times < 3; ++times)
                (up ? form.btnMoveUp : form.btnMoveDown).Execute();
        });
    };
    EXPECT_EQ(move({2}, true), "c,a,b");
    EXPECT_EQ(move({0}, false), "b,c,a");
    EXPECT_EQ(move({0, 2}, true), "a,b,c");
    EXPECT_EQ(move({0, 1}, false), "a,c,b"); // the last selected one moves
    EXPECT_EQ(move({}, true), "a,b,c");
}

TEST(LanguageList, NamesAreAddedRenamedAndDeletedByQuestions) {
    ScriptedUi ui;
    const std::string prompt = "Enter new language name:", question = "Delete selected language name(s)?";
    ui.Modal<TfrmConfigureLanguages>([](auto& form) {
        form.btnRename.Execute(); // nothing selected: nothing asked
        form.btnDelete.Execute();
        form.btnAdd.Execute();
        form.btnAdd.Execute();
        form.btnAdd.Execute();
        EXPECT_EQ(form.edLangCount(), "4");
        form.lbLangNames.Click(1);
        form.lbLangNames.Click(2, true);
        form.btnRename.Execute();
        form.btnRename.Execute();
        form.btnDelete.Execute();
        EXPECT_EQ(form.lbLangNames.RowCount(), 4u);
        form.btnDelete.Execute();
        form.btOK.Execute();
        return ModalResult::None;
    });
    ui.Input(prompt, "d").Input(prompt, "").Input(prompt, {}).Input(prompt, "B").Input(prompt, "");
    ui.Message(question, ModalResult::No).Message(question, ModalResult::Yes);
    std::vector<std::string> names = {"a", "b", "c"};
    EXPECT_EQ(ConfigureLanguages(ui, names, {}), ModalResult::OK);
    EXPECT_EQ(JoinLines(names, ","), "a,d");
    const std::string ask = "Input TGlotta Expert configure languages|" + prompt + "|";
    EXPECT_EQ(ui.Transcript(), ask + " -> d\n" + ask + " -> \n" + ask + " -> Cancel\n" + ask + "b -> B\n" +
                                   ask + "B -> \nConfirmation: " + question + " -> No\nConfirmation: " +
                                   question + " -> Yes\nModal Configure Languages -> None\n");

    ui.Modal<TfrmConfigureLanguages>([](auto& form) {
        form.edLangCount.Enter("5");
        form.btCancel.Execute();
        return ModalResult::None;
    });
    EXPECT_EQ(ConfigureLanguages(ui, names, {}), ModalResult::Cancel);
    EXPECT_EQ(JoinLines(names, ","), "a,d");
}

} // namespace
} // namespace glotta
