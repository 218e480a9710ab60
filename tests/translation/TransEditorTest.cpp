#include "translation/TransEditor.h"

#include "runtime/Record.h"
#include "support/FakeIde.h"

namespace glotta {
namespace {

const std::string Form = "object Form1: TForm1\r\n"
                         "  Caption = 'Orders'\r\n"
                         "  object Button1: TButton\r\n"
                         "    Caption = 'Save'\r\n"
                         "    Hint = 'Saves all'\r\n"
                         "  end\r\n"
                         "  object Glotta1: TGlotta\r\n"
                         "    NumberOfLanguages = 3\r\n"
                         "    LangNames.Strings = (\r\n"
                         "      'English'\r\n"
                         "      'German'\r\n"
                         "      'French')\r\n"
                         "  end\r\n"
                         "end\r\n";

// A component of three languages on a form of three texts, and two strings.
struct Desk {
    FakeIde ide;
    ScriptedUi ui;
    TransEditorDialog dialog{ui};
    TgxCustomLang* glotta = nullptr;

    Desk() {
        RegisterGlottaClasses();
        FakeModule& module = ide.OpenForm("/p/Unit1.pas", "Form1", Form);
        for (TComponent* component : module.form->Root().Components())
            if (auto* found = dynamic_cast<TgxCustomLang*>(component)) glotta = found;
        glotta->AddString("IDS_1", "One");
        glotta->AddString("IDS_2", "Two\nlines");
    }
    // Works with the editor and leaves it by OK, unless `use` left it; true when the component changed.
    bool Edit(const std::function<void(TfrmTransEditor&)>& use, bool ok = true) {
        ui.Modal<TfrmTransEditor>([=](TfrmTransEditor& form) {
            use(form);
            if (ok && form.modalResult == ModalResult::None) form.btOK.Execute();
            return ModalResult::Cancel;
        });
        return dialog.TransEditorDlg(*glotta, TransEditorPlace{stStrings, 0});
    }
    std::string Records(TStringsType kind) const {
        std::string text;
        for (const std::string& record : glotta->Strings(kind))
            text += ReplaceStr(record, "\1", "|") + ";";
        return text;
    }
};

// "Captions 3/6; ..." and the texts of the listed kind.
std::string Shown(TfrmTransEditor& form) {
    std::string text;
    for (std::size_t row = 0; row < form.lbKinds.RowCount(); ++row)
        text += form.lbKinds.CellText(row, 0) + " " + form.lbKinds.CellText(row, 1) + "/" +
                form.lbKinds.CellText(row, 2) + "; ";
    text += form.sgTexts.Header(2) + ": ";
    for (std::size_t row = 0; row < form.sgTexts.RowCount(); ++row)
        text += (int(row) == form.sgTexts.Row() ? "*" : "") + form.sgTexts.CellText(row, 0) + " ";
    return text;
}

std::string Place(TfrmTransEditor& form) {
    return form.sgTexts.CellText(std::size_t(form.sgTexts.Row()), 0) + "/" + std::to_string(form.Column());
}

TEST(TransEditor, CollectsTheFormsTextsAndGivesThemBackUnlessOk) {
    Desk desk;
    const auto look = [](TfrmTransEditor& form) {
        EXPECT_EQ(Shown(form), "Captions 2/4; Hints 1/2; Strings 2/4; German (2 missing): *IDS_1 IDS_2 ");
        EXPECT_EQ(form.StatusTexts(),
                  (std::array<std::string, 2>{"Texts: 2 of 2", "German: 5 untranslated"}));
    };
    EXPECT_FALSE(desk.Edit(look, false));
    EXPECT_EQ(desk.Records(stCaptions), "");
    EXPECT_TRUE(desk.Edit(look));
    EXPECT_EQ(desk.Records(stCaptions), "Form1.Caption|Orders||;Button1.Caption|Save||;");
    EXPECT_FALSE(desk.Edit([](TfrmTransEditor&) {}));
}

// A component that ignores removals keeps what is excluded, in its place; the editor does not show it.
TEST(TransEditor, WhatIsExcludedIsAbsent) {
    Desk desk;
    desk.glotta->UpdateTranslations();
    for (const bool kept : {true, false}) {
        desk.glotta->SetIgnoreRemovals(kept);
        desk.glotta->SetSmartProps({"form1.caption"});
        desk.glotta->SetExProps({"Hint"});
        EXPECT_TRUE(desk.Edit([](TfrmTransEditor& form) {
            form.lbKinds.SelectOnly(form.lbKinds.Listed(stCaptions));
            EXPECT_EQ(Shown(form).substr(Shown(form).rfind(": ")), ": *Button1.Caption ");
            form.Column.Enter(3);
            form.sgTexts.Enter(0, 3, form.sgTexts.CellText(0, 3) + "x");
        }));
        EXPECT_EQ(desk.Records(stCaptions) + desk.Records(stHints),
                  kept ? "Form1.Caption|Orders||;Button1.Caption|Save||x;Button1.Hint|Saves all||;"
                       : "Button1.Caption|Save||xx;");
    }
}

TEST(TransEditor, TypedTextsReachTheRecordWithTheLineEndsOfTheFirstLanguage) {
    Desk desk;
    EXPECT_TRUE(desk.Edit([](TfrmTransEditor& form) {
        EXPECT_TRUE(form.sgTexts.Enter(0, 2, "Eins"));
        EXPECT_EQ(form.memText(), "Eins");
        EXPECT_EQ(form.lbKinds.CellText(2, KindsList::Missing), "3");
        form.sgTexts.SelectOnly(1);
        EXPECT_EQ(form.memFirst(), "Two\nlines");
        form.memText.Enter("Zwei\r\nZeilen");
        form.Column.Enter(0);
        EXPECT_FALSE(form.memText.Enabled());
    }));
    EXPECT_EQ(desk.Records(stStrings), "IDS_1|One|Eins|;IDS_2|Two\nlines|Zwei\nZeilen|;");
}

TEST(TransEditor, FiltersFindsAndReachesWhatIsMissing) {
    Desk desk;
    desk.Edit([&](TfrmTransEditor& form) {
        desk.ui.Message("\"nowhere\" was not found.")
            .Message("The texts without translation are hidden by the filter.");
        form.edFilter.Enter("LINES");
        EXPECT_EQ(Shown(form).substr(Shown(form).find(": ") + 2), "*IDS_2 ");
        form.edFilter.Enter("");
        form.edFind.Enter("one");
        EXPECT_EQ(Place(form), "IDS_1/1");
        form.edFind.Enter("ids_");
        form.acFindNext.Execute();
        EXPECT_EQ(Place(form), "IDS_1/0"); // around the end
        form.acFindPrevious.Execute();
        EXPECT_EQ(Place(form), "IDS_2/0");
        form.edFind.Enter("nowhere");
        form.acFindNext.Execute();

        // Through the kind, the other kinds, then the next language.
        form.Column.Enter(2);
        form.sgTexts.SelectOnly(0);
        std::string way;
        for (int i = 0; i < 6; ++i) {
            form.acNextUntranslated.Execute();
            way += Place(form) + " ";
            form.sgTexts.Enter(std::size_t(form.sgTexts.Row()), std::size_t(form.Column()), "x");
        }
        EXPECT_EQ(way, "IDS_2/2 Form1.Caption/2 Button1.Caption/2 Button1.Hint/2 IDS_1/2 IDS_1/3 ");
        form.ckbUntranslated.Enter(true); // of French
        EXPECT_EQ(form.sgTexts.RowCount(), 1u);
        form.edFilter.Enter("nowhere");
        form.acPreviousUntranslated.Execute();
    });
}

TEST(TransEditor, CopiesTheFirstLanguageAndAsksBeforeItReplaces) {
    for (const auto& [answer, expected] :
         {std::pair(ModalResult::Yes, "IDS_1|One|One|;IDS_2|Two\nlines|Two\nlines|;"),
          std::pair(ModalResult::No, "IDS_1|One|Eins|;IDS_2|Two\nlines|Two\nlines|;"),
          std::pair(ModalResult::Cancel, "IDS_1|One|Eins|;IDS_2|Two\nlines||;")}) {
        Desk desk;
        desk.Edit([&, answer = answer](TfrmTransEditor& form) {
            form.sgTexts.Enter(0, 2, "Eins");
            form.sgTexts.Select(1, true);
            desk.ui.Message("1 of the texts are translated already. Replace them, too?", answer);
            form.acCopyFirst.Execute();
            form.Column.Enter(1);
            EXPECT_FALSE(form.acCopyFirst.Enabled());
        });
        EXPECT_EQ(desk.Records(stStrings), expected);
    }
}

TEST(TransEditor, RenamesIdentifiersAndShowsThemInTheSource) {
    Desk desk;
    const std::string unchanged = "Source code that uses \"IDS_1\" is not changed. Rename the identifier?";
    const std::string unusable =
        "An identifier shall not be empty and shall not contain quotes or control characters!";
    const auto rename = [&](const char* id) {
        return [&, id](TfrmTransEditor& form) {
            desk.ui.Input("New identifier:", id);
            form.acRenameID.Execute();
        };
    };
    desk.Edit([](TfrmTransEditor&) {});
    for (const char* id : {" ", "a'b", "a\x01"}) {
        desk.ui
            .Modal<TfrmTransEditor>([&](TfrmTransEditor& form) {
                form.acRenameID.Execute();
                return ModalResult::OK;
            })
            .Input("New identifier:", id)
            .Message(unusable);
        EXPECT_FALSE(desk.dialog.TransEditorDlg(*desk.glotta, TransEditorPlace{stStrings, 0}));
    }
    EXPECT_FALSE(desk.Edit([&](TfrmTransEditor& form) {
        desk.ui.Message("Identifier \"ids_2\" is already used for another string!");
        EXPECT_FALSE(form.sgTexts.Enter(0, 0, "ids_2"));
        desk.ui.Message(unchanged, ModalResult::No);
        EXPECT_FALSE(form.sgTexts.Enter(0, 0, "IDS_9"));
        EXPECT_FALSE(form.acNavigate.Enabled());
    }));
    EXPECT_TRUE(desk.Edit([&](TfrmTransEditor& form) {
        desk.ui.Message(unchanged, ModalResult::Yes);
        EXPECT_TRUE(form.sgTexts.Enter(0, 0, "IDS_9"));
    }));
    std::string log;
    desk.dialog.OnChangeStrID = [&](const std::string& form, const std::string& before, std::string& id) {
        log += form + "." + before + ">" + id + ";";
        if (id.starts_with("NO")) id = before; // the source stays as it is
    };
    desk.dialog.NavigateToSource = [&](const std::string& id, bool) {
        log += "show " + id + ";";
        return id == "IDS_2";
    };
    EXPECT_TRUE(desk.Edit([&](TfrmTransEditor& form) {
        rename("IDS_10")(form);
        EXPECT_TRUE(form.sgTexts.Enter(0, 0, "ids_10"));
        desk.ui.Message("\"ids_10\" was not found in the source.");
        form.acNavigate.Execute();
        form.sgTexts.SelectOnly(1);
        form.acNavigate.Execute();
    }));
    EXPECT_EQ(log, "show ids_10;show IDS_2;Form1.IDS_9>IDS_10;Form1.IDS_10>ids_10;");
    EXPECT_EQ(desk.Records(stStrings), "ids_10|One||;IDS_2|Two\nlines||;");

    // What the source goes on using stays, or comes back, unless another string has it now.
    log.clear();
    desk.Edit([&](TfrmTransEditor& form) {
        EXPECT_TRUE(form.sgTexts.Enter(0, 0, "NO_1"));
        EXPECT_TRUE(form.sgTexts.Enter(0, 0, "IDS_A"));
        EXPECT_TRUE(form.sgTexts.Enter(0, 0, "NO_2"));
    });
    EXPECT_EQ(desk.Records(stStrings), "IDS_A|One||;IDS_2|Two\nlines||;");
    EXPECT_FALSE(desk.Edit([&](TfrmTransEditor& form) { form.sgTexts.Enter(0, 0, "NO"); }));
    EXPECT_EQ(desk.Records(stStrings), "IDS_A|One||;IDS_2|Two\nlines||;");
    desk.Edit([&](TfrmTransEditor& form) {
        EXPECT_TRUE(form.sgTexts.Enter(0, 0, "NO"));
        EXPECT_TRUE(form.sgTexts.Enter(1, 0, "IDS_A"));
        desk.ui.Message("Identifier \"IDS_A\" is already used for another string!");
    });
    EXPECT_EQ(desk.Records(stStrings), "NO|One||;IDS_A|Two\nlines||;");
    EXPECT_EQ(log, "Form1.ids_10>NO_1;Form1.ids_10>IDS_A;Form1.IDS_A>NO_2;Form1.IDS_A>NO;Form1.IDS_A>NO;"
                   "Form1.IDS_2>IDS_A;");
}

TEST(TransEditor, AsksBeforeChangesAreLost) {
    const std::string question = "The translations were changed. Keep the changes?";
    Desk desk;
    desk.Edit([](TfrmTransEditor&) {});
    const auto type = [&](ModalResult answer) {
        return desk.Edit(
            [&](TfrmTransEditor& form) {
                form.sgTexts.Enter(0, 2, "Eins");
                desk.ui.Message(question, ModalResult::Cancel);
                form.btCancel.Execute();
                EXPECT_EQ(form.modalResult, ModalResult::None);
                desk.ui.Message(question, answer);
            },
            false);
    };
    EXPECT_FALSE(type(ModalResult::No));
    EXPECT_EQ(desk.Records(stStrings), "IDS_1|One||;IDS_2|Two\nlines||;");
    EXPECT_TRUE(type(ModalResult::Yes));
    EXPECT_EQ(desk.Records(stStrings), "IDS_1|One|Eins|;IDS_2|Two\nlines||;");
    EXPECT_NE(desk.ui.Transcript().find("Confirmation: " + question), std::string::npos);
}

} // namespace
} // namespace glotta
