#include "translation/ExtendedTranslations.h"

#include "support/FakeIde.h"
#include "translation/TransEditor.h"

namespace glotta {
namespace {

const std::string Form = "object Form1: TForm1\r\n"
                         "  object Edit1: TEdit\r\n"
                         "    HelpKeyword = 'first steps'\r\n"
                         "  end\r\n"
                         "  object Glotta1: TGlotta\r\n"
                         "    ExtendedTranslations = <\r\n"
                         "      item\r\n"
                         "        Component = Gone\r\n"
                         "        PropertyName = 'Hint'\r\n"
                         "        Kept = 1\r\n"
                         "      end>\r\n"
                         "  end\r\n"
                         "end\r\n";

struct Desk {
    FakeIde ide;
    ScriptedUi& ui = ide.ui;
    TransEditorDialog dialog{ui};
    FakeForm* form = nullptr;
    TgxCustomLang* glotta = nullptr;
    Desk() {
        RegisterGlottaClasses();
        form = ide.OpenForm("/p/Unit1.pas", "Form1", Form).form.get();
        glotta = dynamic_cast<TgxCustomLang*>(form->Root().FindComponent("Glotta1"));
    }
    bool Edit(const std::function<ModalResult(TfrmExtendedTranslations&)>& use) {
        ui.Modal<TfrmExtendedTranslations>(use);
        return dialog.TransEditorDlg(*glotta, ExtendedTranslationsPlace);
    }
    std::string Items() {
        std::string text;
        for (const ExtendedTranslation& item : ReadExtendedTranslations(*glotta))
            text += item.ID() + " ";
        return text;
    }
};

TEST(ExtendedTranslations, AreTextsOfTheFormFromTheNextUpdateOn) {
    Desk desk;
    constexpr const char* Prompt = "Component and property, parted by a dot:";
    desk.glotta->UpdateTranslations();
    EXPECT_EQ(desk.glotta->Strings(stOtherStrings).Count(), 0u);
    EXPECT_TRUE(desk.Edit([&](TfrmExtendedTranslations& form) {
        desk.ui.Input(Prompt, "Nobody.Hint").Message("The form has no component \"Nobody\"!");
        desk.ui.Input(Prompt, "Edit1.Tag").Message("\"Edit1\" has no text property \"Tag\"!");
        desk.ui.Input(Prompt, "Edit1").Message("\"Edit1\" has no text property \"\"!");
        desk.ui.Input(Prompt, "Edit1.HelpKeyword").Input(Prompt, "edit1.helpkeyword");
        desk.ui.Message("\"edit1.helpkeyword\" is in the list already!").Input(Prompt, {});
        for (int i = 0; i < 6; ++i)
            form.btAdd.Execute();
        EXPECT_EQ(form.sgItems.CellText(1, 2), "first steps");
        return ModalResult::OK;
    }));
    EXPECT_EQ(desk.Items(), "Gone.Hint Edit1.HelpKeyword ");
    desk.glotta->UpdateTranslations();
    EXPECT_EQ(RecordField(desk.glotta->Strings(stOtherStrings)[0], 1), "Edit1.HelpKeyword");
    desk.Edit([](TfrmExtendedTranslations& form) {
        EXPECT_EQ(form.sgItems.CellText(1, 3) + form.sgItems.CellText(0, 3), "first steps");
        return ModalResult::Cancel;
    });
}

TEST(ExtendedTranslations, CancelTakesEverythingBack) {
    Desk desk;
    const FormValue before = desk.glotta->Node().Find("ExtendedTranslations")->value;
    const auto deleteFirst = [](ModalResult way) {
        return [way](TfrmExtendedTranslations& form) {
            form.btDelete.Execute();
            EXPECT_FALSE(form.btDelete.Enabled());
            return way;
        };
    };
    EXPECT_FALSE(desk.Edit(deleteFirst(ModalResult::Cancel)));
    EXPECT_EQ(desk.glotta->Node().Find("ExtendedTranslations")->value, before);
    EXPECT_TRUE(desk.Edit(deleteFirst(ModalResult::OK)));
    EXPECT_EQ(desk.glotta->Node().Find("ExtendedTranslations"), nullptr);
}

} // namespace
} // namespace glotta
