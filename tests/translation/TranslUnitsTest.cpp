#include "translation/TranslUnits.h"
#include "support/ScriptedUi.h"

namespace glotta {
namespace {

// "edit|unit|form|OK" after a step.
std::string Choice(const TfrmTranslUnits& form) {
    return form.edUnitName() + "|" + form.UnitName() + "|" + form.FormName() +
           (form.btOK.Enabled() ? "|OK" : "|");
}

TEST(TranslUnits, TheChoiceFollowsTypingClickingAndTheFormList) {
    ScriptedUi ui;
    TfrmTranslUnits form(ui);
    form.SetUnits({"Main2", "utils", "Main", "Data"});
    form.SetFormNames({"Form2", "Form1"});
    EXPECT_EQ(form.lbUnits.Items(), (std::vector<std::string>{"Data", "Main", "Main2", "utils"}));
    EXPECT_EQ(form.FormNames().front(), "Form1");

    std::string steps = Choice(form) + "\n";
    const auto typed = [&](const char* text) {
        form.edUnitName.Enter(text);
        steps += Choice(form) + "\n";
    };
    typed("m");
    typed("main");
    typed("main2");
    typed("UT");
    typed("main"); // the search goes round
    typed("mainx");
    form.lbUnits.Click(3);
    steps += Choice(form) + "\n";
    form.WalkList(-1);
    form.WalkList(-1);
    steps += Choice(form) + "\n";
    form.cbFormNames.Enter("Form2");
    steps += Choice(form) + "\n";
    form.cbFormNames.Enter("");
    form.ShowFormNames(false);
    steps += Choice(form) + "\n";
    EXPECT_EQ(steps, "|||\nm|Main||\nmain|Main||\nmain2|Main2||\nUT|utils||\nmain|Main||\nmainx|||\n"
                     "utils|utils||\nMain|Main||\nMain|Main|Form2|OK\nMain|Main||OK\n");
    EXPECT_EQ(form.ScrollExtent([](const std::string& name) { return int(name.size()) * 10; }), 70);
}

TEST(TranslUnits, OfSeveralUnitsTheFirstIsTheChosenOne) {
    ScriptedUi ui;
    TfrmTranslUnits form(ui, true);
    form.SetUnits({"a", "b", "c", "d"});
    form.lbUnits.Click(3);
    form.lbUnits.Click(1, false, true);
    EXPECT_EQ(Choice(form), "b|b||");
    EXPECT_EQ(form.lbUnits.SelectedRows(), (std::vector<std::size_t>{1, 2, 3}));
    form.lbUnits.Click(2, true);
    EXPECT_EQ(form.lbUnits.SelectedRows(), (std::vector<std::size_t>{1, 3}));
}

} // namespace
} // namespace glotta
