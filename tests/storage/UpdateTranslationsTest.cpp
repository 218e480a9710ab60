#include "storage/UpdateTranslations.h"

#include "storage/TranslationDesk.h"

namespace glotta {
namespace {

// Two captions: one as it was translated, one changed since; "Gone" is no longer there.
std::string Components(const std::string& more = {}) {
    return "  object A: TButton|    Caption = 'same'|  end|  object B: TButton|    Caption = 'new'|  end|"
           "  object lang: TGlotta|    NumberOfLanguages = 2|    Captions.Strings = (|"
           "      'A.Caption'#1'same'#1'gleich'|      'B.Caption'#1'old'#1'alt'|      "
           "'Gone.Caption'#1'g'#1'weg')|" +
           more + "  end|";
}

struct UpdateDesk : TranslationDesk {
    UpdateDesk() {
        AddForm("Closed", Components());
        AddForm("Keeps", Components("    IgnoreRemovals = True|"));
        AddForm("Plain", "  object A: TButton|    Caption = 'same'|  end|");
        AddForm("Two", Components() +
                           "  object more: TGlotta|    NumberOfLanguages = 2|    Captions.Strings = (|"
                           "      'A.Caption'#1'x'#1'y')|  end|");
        Open();
        EXPECT_TRUE(OpenUnit("Two"));
        Select({"Closed", "Keeps", "Plain", "Two"});
    }
    UpdateTranslations commands{services};
};

constexpr const char* Question = "This will clear all translation information in selected form(s)! Continue?";

TEST(UpdateTranslations, EachComponentFollowsItsFormAndClosedUnitsAreClosedAgain) {
    UpdateDesk desk;
    desk.commands.Updatetranslation1Click();
    EXPECT_EQ(desk.Shown(),
              "Closed 2: lang A.Caption|same|gleich B.Caption|new|alt\n"
              "Keeps 2: lang A.Caption|same|gleich B.Caption|new|alt Gone.Caption|g|weg\n"
              "Plain 0:\n"
              "Two 2 modified: lang A.Caption|same|gleich B.Caption|new|alt more A.Caption|x|y\n");
    EXPECT_EQ(desk.ui.Transcript(),
              "Progress: Updating translations...\nProgress: Updating translations: Closed\n"
              "Progress: Updating translations: Keeps\nProgress: Updating translations: Plain\n"
              "Progress: Updating translations: Two\nProgress ends\n");
}

TEST(UpdateTranslations, ClearAsksAndEmptiesTheFirstComponentOfTheClass) {
    UpdateDesk desk;
    const std::string before = desk.folder.Shown(), shown = desk.Shown();
    desk.ui.Message(Question, ModalResult::No);
    desk.commands.ClearTranslations1Click();
    EXPECT_EQ(desk.Shown() + desk.folder.Shown(), shown + before);
    desk.ui.Message(Question, ModalResult::Yes);
    desk.commands.ClearTranslations1Click();
    EXPECT_EQ(desk.Shown(),
              "Closed 2: lang\nKeeps 2: lang\nPlain 0:\nTwo 2 modified: lang more A.Caption|x|y\n");
    EXPECT_TRUE(desk.ui.Transcript().starts_with(std::string("Warning: ") + Question + " -> No\nWarning: "));
    desk.Select({});
    desk.commands.ClearTranslations1Click();
    desk.commands.Updatetranslation1Click();
}

} // namespace
} // namespace glotta
