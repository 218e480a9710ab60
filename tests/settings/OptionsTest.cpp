#include "settings/_expopt.h"

#include "platform/Error.h"
#include "platform/RegFileStore.h"
#include "platform/Text.h"
#include "settings/FormStorage.h"
#include "support/ScriptedUi.h"
#include "support/TempFolder.h"

namespace glotta {
namespace {

const std::vector<std::string> Methods = {"GetText(", "GetTextC(", "GetTextOrDefault("};
const std::vector<std::string> Components = {"TGlotta", "TGlottaRTSE", "TGlottaRT"};

struct Desk {
    TempFolder folder;
    RegFileStore registry{folder / "settings.reg"};
    ExpertSettings settings{registry, Components};
    ScriptedUi ui;
    TfrmOptions form{ui, Methods, Components};

    Desk() { form.Fill(settings.Values()); }
    // The settings that `change` made different, as "Name=value" lines.
    std::string Applied(const std::function<void()>& change) {
        std::vector<std::string> before;
        for (const std::string& name : ExpertSettings::Names())
            before.push_back(settings.GetByName(name));
        change();
        const std::string failure = MessageOf([&] { form.Apply(settings); });
        std::string text = failure == "no error" ? "" : failure + "\n";
        const auto names = ExpertSettings::Names();
        for (std::size_t i = 0; i < names.size(); ++i)
            if (settings.GetByName(names[i]) != before[i])
                text += names[i] + "=" + ReplaceStr(settings.GetByName(names[i]), "\r\n", "|") + "\n";
        return text;
    }
};

TEST(Options, WhatIsShownAndNotChangedStays) {
    Desk desk;
    EXPECT_EQ(desk.Applied([] {}), "");
    EXPECT_EQ(desk.form.cbReplaceMethod(), "GetTextOrDefault(");
    SettingsValues values;
    values.DefaultComp.clear();
    values.ReplaceMethod = "Translate(";
    values.CnstPermanent = 7;
    desk.form.Fill(values);
    EXPECT_EQ(desk.form.cbDefTGlotta() + " " + desk.form.cbReplaceMethod() + " " +
                  std::to_string(desk.form.rgCnstPfx()),
              "TGlotta GetText( 1");
}

TEST(Options, EveryControlSetsItsSetting) {
    Desk desk;
    EXPECT_EQ(
        desk.Applied([&form = desk.form] {
            form.cbMenuItems.Enter("HelpMenu");
            form.hkInMenu.Enter(TextToShortCut("Shift+Ctrl+G"));
            form.cbDefTGlotta.Enter("TGlottaRT");
            form.cbOpenAll.Enter(true);
            form.lbLangNames.SetItems({"English", "German"});
            form.edNLang.Enter("3");
            form.edIgnorableLength.Enter("4");
            form.edCommentsLength.Enter("20");
            form.edPreviewLines.Enter("3"); // only the buttons keep the minimum
            form.edHCPfx.Enter("HC_");
            form.edConstPfx.Enter("cst");
            form.cbReplaceMethod.Enter("GetTextC(");
            form.ckbAddFormName.Enter(true);
            form.ckbNoCommentsAtAll.Enter(true);
            form.ckbEmptyConsts.Enter(false);
            form.rgCnstPfx.Enter(1);
            form.edExcludeChars.Enter("abc");
            form.memSkipLines.Enter("ShowMessage\r\nLog");
            form.memSkipWords.Enter("^x$");
            form.ckbUseREtoSkip.Enter(true);
        }),
        "MenuSection=HelpMenu\nShortCut=Shift+Ctrl+G\nNumLang=3\nOpenAllForms=1\nDefaultComp=TGlottaRT\n"
        "CnstPermanent=1\nCnstPrefix=cst\nHCPrefix=HC_\nAddFormName=1\nReplaceMethod=GetTextC("
        "\nIgnorableLength=4\n"
        "DefaultLangNames=English|German|\nCommentsLength=20\nEmptyConstsValues=0\nExcludeChars=abc\n"
        "SkipLines=ShowMessage\nLog\nSkipWords=^x$\nUseRegExpForSkip=1\nPreviewLines=3\nNoCommentsInSources="
        "1\n");
}

TEST(Options, ANumberThatIsNoneEndsTheApplying) {
    Desk desk;
    EXPECT_EQ(desk.Applied([&form = desk.form] {
        form.cbMenuItems.Enter("FileMenu");
        form.edIgnorableLength.Enter("x");
        form.edHCPfx.Enter("never");
    }),
              "'x' is not a valid integer value\nMenuSection=FileMenu\n");
    desk.form.edIgnorableLength.Enter("1");
    EXPECT_EQ(desk.Applied([&form = desk.form] {
        form.edHCPfx.Enter("HC");
        form.edPreviewLines.Enter("many");
        form.edCommentsLength.Enter("");
        form.ckbAddFormName.Enter(true);
    }),
              "'' is not a valid integer value\nHCPrefix=HC\nAddFormName=1\n");
    EXPECT_EQ(desk.Applied([&form = desk.form] { form.edCommentsLength.Enter("0"); }),
              ""); // "many" counts as 5
}

TEST(Options, StepButtonsStopAtTheirBounds) {
    Desk desk;
    TfrmOptions& form = desk.form;
    const auto stepped = [](TField<std::string>& edit, const TAction& button, const char* from) {
        edit.Enter(from);
        button.Execute();
        return edit();
    };
    const auto all = [&](TField<std::string>& edit, const TAction& up, const TAction& down) {
        std::string text;
        for (const char* from : {"0", "1", "5", "254", "255", "700", "x"})
            text += stepped(edit, up, from) + "/" + stepped(edit, down, from) + " ";
        return text;
    };
    const std::string from0 = "1/0 2/0 6/4 255/253 255/254 255/255 1/0 ";
    EXPECT_EQ(all(form.edIgnorableLength, form.sbIgnorableUp, form.sbIgnorableDown), from0);
    EXPECT_EQ(all(form.edCommentsLength, form.sbCommentsUp, form.sbCommentsDown), from0);
    EXPECT_EQ(all(form.edNLang, form.sbNLangUp, form.sbNLangDown),
              "1/1 2/1 6/4 255/253 255/254 255/255 1/1 ");
    EXPECT_EQ(all(form.edPreviewLines, form.sbPreviewUp, form.sbPreviewDown),
              "5/5 5/5 6/5 255/253 256/254 701/699 5/5 ");
    std::string passed;
    for (char32_t key = 1; key < 127; ++key)
        if (TfrmOptions::AcceptsKey(key) && key >= 32) passed += char(key);
    EXPECT_EQ(passed, "0123456789");
    EXPECT_TRUE(TfrmOptions::AcceptsKey(8));
}

TEST(Options, RegularExpressionsNeedPhrases) {
    Desk desk;
    TfrmOptions& form = desk.form;
    const auto state = [&] {
        return std::to_string(form.ckbUseREtoSkip.Enabled()) + std::to_string(form.ckbUseREtoSkip());
    };
    EXPECT_EQ(state(), "00");
    form.memSkipWords.Enter("x");
    form.ckbUseREtoSkip.Enter(true);
    EXPECT_EQ(state(), "11");
    form.memSkipWords.Enter(" \r\n ");
    EXPECT_EQ(state(), "00");
    form.memSkipWords.Enter("y");
    EXPECT_EQ(state(), "10");
}

TEST(Options, LanguagesAreNamedOrderedAndDeleted) {
    Desk desk;
    TfrmOptions& form = desk.form;
    desk.ui.Input("Enter new language name:", "English")
        .Input("Enter new language name:", "Dutch")
        .Input("Enter new language name:", std::nullopt)
        .Input("Enter new language name:", "German")
        .Message("Delete selected language name(s)?", ModalResult::No)
        .Message("Delete selected language name(s)?", ModalResult::Yes);
    form.btnRename.Execute(); // nothing is selected
    form.btnDelete.Execute();
    form.btnMoveUp.Execute();
    for (int i = 0; i < 3; ++i)
        form.btnAdd.Execute();
    form.lbLangNames.SelectOnly(1);
    form.btnMoveDown.Execute();
    form.btnMoveUp.Execute();
    form.btnMoveUp.Execute();
    form.btnRename.Execute();
    EXPECT_EQ(JoinLines(form.lbLangNames.Items(), ","), "German,English");
    form.btnDelete.Execute();
    EXPECT_EQ(form.lbLangNames.RowCount(), 2U);
    form.btnDelete.Execute();
    EXPECT_EQ(JoinLines(form.lbLangNames.Items(), ","), "English");
    const std::string title = "Input TGlotta Expert default languages|Enter new language name:|";
    EXPECT_EQ(desk.ui.Transcript(), title + " -> English\n" + title + " -> Dutch\n" + title + " -> Cancel\n" +
                                        title + "Dutch -> German\n" +
                                        "Confirmation: Delete selected language name(s)? -> No\n" +
                                        "Confirmation: Delete selected language name(s)? -> Yes\n");
}

TEST(Options, PagesFollowEachOther) {
    Desk desk;
    std::string pages;
    for (int i = 0; i < 4; ++i) {
        pages += std::to_string(desk.form.pcOptions());
        desk.form.SwitchPage();
    }
    EXPECT_EQ(pages, "0120");
    EXPECT_FALSE(desk.form.btHelp.Enabled());
}

TEST(FormStorage, APlacementComesBackUnlessItIsNone) {
    Desk desk;
    TgxFormStorage storage(desk.registry, "\\Software\\Quorlane\\TGlotta\\ExpertForm");
    EXPECT_FALSE(storage.ReadPlacement());
    storage.WritePlacement({-5, 6, 0, 8, true});
    EXPECT_FALSE(storage.ReadPlacement());
    const FormPlacement placement{-5, 6, 700, 400, true};
    storage.WritePlacement(placement);
    EXPECT_EQ(storage.ReadPlacement(), placement);
}

} // namespace
} // namespace glotta
