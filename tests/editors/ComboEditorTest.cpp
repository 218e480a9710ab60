#include "editors/_gxcomboproped.h"

#include "editors/FlagPictures.h"
#include "platform/Error.h"
#include "platform/Text.h"
#include "runtime/CustomLang.h"
#include "support/ScriptedUi.h"
#include "support/TempFolder.h"

namespace glotta {
namespace {

// A form with a drop-down, whose properties are given.
struct Desk {
    explicit Desk(const std::string& combo, const std::string& text = {})
        : file((RegisterGlottaClasses(),
                FormFile::Parse(text.empty()
                                    ? "object Form1: TForm1\r\n  object Glotta1: TGlotta\r\n    "
                                      "LangNames.Strings = (\r\n      'English'\r\n      'Deutsch')\r\n"
                                      "    NumberOfLanguages = 2\r\n  end\r\n  object Combo: "
                                      "TGlottaCombo\r\n" +
                                          combo + "  end\r\nend\r\n"
                                    : text,
                                "Form1.dfm"))) {}
    FormFile file;
    ComponentTree tree{file, "TForm"};
    ScriptedUi ui;
    TGlottaCombo& Combo() { return dynamic_cast<TGlottaCombo&>(*tree.Root().FindComponent("Combo")); }
    ModalResult Edit(std::function<ModalResult(TfrmGlottaComboEditor&)> use, const VisitForm& otherForm = {}) {
        ui.Modal<TfrmGlottaComboEditor>(std::move(use));
        return EditComboSettings(ui, Combo(), otherForm);
    }
};

// What the controls show, the image by its size.
std::string Shown(const TfrmGlottaComboEditor& form) {
    return std::to_string(form.lbLanguages.Row()) + " " + form.edLangName() + "|" + form.cbLangFont() + "|" +
           form.cbLangCharset() + "|" + std::to_string(form.Image().size());
}

const std::string Items =
    "    Glotta = Glotta1\r\n    LanguageInfos = <\r\n      item\r\n        FontCharset = "
    "RUSSIAN_CHARSET\r\n        FontName = 'Arial'\r\n        Tag = 7\r\n        "
    "LanguageName = 'One'\r\n      end\r\n      item\r\n        FontCharset = 99\r\n      end\r\n"
    "      item\r\n        LanguageName = 'Beyond'\r\n      end>\r\n";

TEST(ComboEditor, NeedsASource) {
    Desk desk("    LanguageInfos = <>\r\n");
    try {
        EditComboSettings(desk.ui, desk.Combo());
        FAIL();
    } catch (const Error& error) {
        EXPECT_STREQ(error.what(), "Please assign either Glotta or GlottaDispatcher property first!");
    }
}

TEST(ComboEditor, KeepsEachLanguageAndWritesOnlyWhatChanged) {
    Desk desk(Items);
    const std::string before = desk.file.Write();
    EXPECT_EQ(desk.Edit([](TfrmGlottaComboEditor& form) {
        EXPECT_EQ(JoinLines(form.lbLanguages.Items(), ","), "English,Deutsch,Beyond");
        EXPECT_EQ(Shown(form), "0 One|Arial|RUSSIAN_CHARSET|0");
        form.edLangName.Enter("other");
        form.btCancel.Execute();
        return ModalResult::Cancel;
    }),
              ModalResult::Cancel);
    EXPECT_EQ(desk.file.Write(), before);

    EXPECT_EQ(desk.Edit([](TfrmGlottaComboEditor& form) {
        form.cbLangCharset.Enter("NO_CHARSET"); // stored as 1
        form.lbLanguages.Click(1);
        EXPECT_EQ(Shown(form), "1 ||DEFAULT_CHARSET|0");
        form.cbLangCharset.Enter("greek_charset");
        form.edLangName.Enter("Zwei");
        form.lbLanguages.Click(0);
        EXPECT_EQ(Shown(form), "0 One|Arial|DEFAULT_CHARSET|0");
        form.lbLanguages.Click(2);
        form.cbLangFont.Enter("Tahoma");
        form.btOK.Execute();
        return ModalResult::OK;
    }),
              ModalResult::OK);
    const std::string after = desk.file.Write();
    EXPECT_EQ(
        after.substr(after.find("    LanguageInfos")),
        "    LanguageInfos = <\r\n      item\r\n        FontName = 'Arial'\r\n        Tag = 7\r\n        "
        "LanguageName = 'One'\r\n      end\r\n      item\r\n        FontCharset = GREEK_CHARSET\r\n        "
        "LanguageName = 'Zwei'\r\n      end\r\n      item\r\n        LanguageName = 'Beyond'\r\n        "
        "FontName = 'Tahoma'\r\n      end>\r\n  end\r\nend\r\n");
}

TEST(ComboEditor, LanguagesWithoutItemsGetThem) {
    Desk desk("    GlottaDispatcher = Glotta1\r\n");
    desk.Edit([](TfrmGlottaComboEditor& form) {
        EXPECT_EQ(Shown(form), "0 English||DEFAULT_CHARSET|0");
        return ModalResult::OK;
    });
    ASSERT_EQ(desk.Combo().LanguageInfos().size(), 2U);
    EXPECT_EQ(desk.Combo().LanguageInfos()[1], (TLanguageInfo{"Deutsch", "", 1, ""}));
}

TEST(ComboEditor, TheSourceMayStandOnAnotherForm) {
    Desk data({}), desk("    Glotta = Data.Glotta1\r\n    LanguageInfos = <\r\n      item\r\n"
                        "        LanguageName = 'Own'\r\n      end>\r\n");
    const auto lines = [&](const VisitForm& otherForm) {
        std::string text;
        desk.Edit(
            [&](TfrmGlottaComboEditor& form) {
                text = JoinLines(form.lbLanguages.Items(), ",");
                return ModalResult::Cancel;
            },
            otherForm);
        return text;
    };
    EXPECT_EQ(lines({}), "Own");
    EXPECT_EQ(lines([&](const std::string& form, const auto& visit) {
                  if (form == "Data") visit(data.tree.Root());
              }),
              "English,Deutsch");
    EXPECT_EQ(lines([](const std::string&, const auto&) {}), "Own");
    Desk none("    GlottaDispatcher = Data.Dispatcher1\r\n");
    const std::string before = none.file.Write();
    none.Edit([](TfrmGlottaComboEditor&) { return ModalResult::OK; });
    EXPECT_EQ(none.file.Write(), before);
}

TEST(ComboEditor, WhatDidNotChangeStaysByteForByte) {
    Desk desk("    glotta = Glotta1\r\n    languageinfos = <\r\n      item\r\n        LanguageName = 'a'#98'c'\r\n"
              "        Image.Data = {\r\n          020000\r\n          00ab12}\r\n        FontCharset = 204\r\n"
              "      end\r\n      item\r\n        fontname = \r\n          'Long ' +\r\n          'name'\r\n"
              "      end>\r\n");
    const std::string before = desk.file.Write();
    desk.Edit([](TfrmGlottaComboEditor& form) {
        form.lbLanguages.Click(1);
        form.lbLanguages.Click(0);
        form.btOK.Execute();
        return ModalResult::OK;
    });
    EXPECT_EQ(desk.file.Write(), before);
}

TEST(ComboEditor, PicturesComeFromFlagsAndFilesAndAreKept) {
    TempFolder folder;
    const std::string flag = FlagBitmap(3);
    const std::string picture = folder.Put("flag.bmp", flag).string();
    const std::string text =
        folder.Put("text.bmp", "BM is not enough to be a picture, however long the text may be").string();
    Desk desk(Items);
    desk.Edit([&](TfrmGlottaComboEditor& form) {
        form.cbFlagsChange(TfrmGlottaComboEditor::FirstFlag + 5);
        EXPECT_EQ(form.Image(), FlagBitmap(5));
        form.lbLanguages.Click(1);
        EXPECT_EQ(form.Image(), "");
        desk.ui.File("", {picture}).File("", {}).File("", {text});
        form.cbFlagsChange(0);
        form.cbFlagsChange(0); // given up
        try {
            form.cbFlagsChange(0);
            ADD_FAILURE();
        } catch (const Error& error) {
            EXPECT_EQ(error.what(), text + ": no picture that can be read");
        }
        EXPECT_EQ(form.Image(), flag);
        form.btOK.Execute();
        return ModalResult::OK;
    });
    const std::string written = desk.file.Write();
    EXPECT_NE(
        written.find(
            "        Image.Data = {\r\n          B6040000424DB60400000000000036000000280000001800000010"),
        std::string::npos)
        << written.substr(0, 900);
    Desk again({}, written);
    EXPECT_EQ(again.Combo().LanguageInfos(), desk.Combo().LanguageInfos());
    again.Edit([](TfrmGlottaComboEditor& form) {
        EXPECT_EQ(form.Image(), FlagBitmap(5));
        form.cbFlagsChange(1);
        return ModalResult::OK;
    });
    EXPECT_EQ(again.Combo().LanguageInfos()[0].image, "");
    EXPECT_EQ(again.Combo().LanguageInfos()[1].image, flag);
}

TEST(Bitmaps, FlagsAreWholeAndDifferAndDamageShows) {
    std::set<std::string> seen;
    for (std::size_t flag = 0; flag < FlagCount(); ++flag) {
        EXPECT_TRUE(IsBitmap(FlagBitmap(flag))) << flag;
        EXPECT_TRUE(seen.insert(FlagBitmap(flag)).second) << flag;
    }
    const std::string whole = FlagBitmap(0);
    for (std::size_t size = 0; size < whole.size(); size += 13)
        EXPECT_FALSE(IsBitmap(whole.substr(0, size))) << size;
    for (const std::size_t at : {0, 14, 18, 21, 22, 28, 10}) {
        std::string damaged = whole;
        damaged[at] = char(damaged[at] == 0 ? 0x7F : 0x77);
        EXPECT_FALSE(IsBitmap(damaged)) << at;
    }
}

} // namespace
} // namespace glotta
