// The translation wizard's window, page by page.
#include "editors/Translationwizard.h"
#include "workbench/ExpertDesk.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>

namespace glotta {
namespace {

template <class Widget> Widget& In(QWidget& window, const char* name) {
    auto* found = window.findChild<Widget*>(name);
    EXPECT_NE(found, nullptr) << name;
    return *found;
}

TEST(Views, TranslationWizard) {
    ExpertDesk desk;
    QWidget& main = desk.OpenMainWindow();
    desk.Trigger(*main.findChild<QMenuBar*>("MainMenu"), "Select &All");
    desk.uses.push_back([&](TForm& form, QWidget& window) {
        auto& wizard = dynamic_cast<TfrmTranslationWizard&>(form);
        EXPECT_FALSE(In<QPushButton>(window, "btnBack").isVisible());
        desk.Picture(window, "wizard-1");
        desk.Click(window, "btnNext");
        GridView& list = desk.Grid(window, "lvSelectedForms");
        auto& insert = In<QComboBox>(window, "cbGlottaToInsert");
        EXPECT_FALSE(insert.isEnabled());
        desk.ClickCell(list, 1, 0);
        desk.ClickCell(list, 3, 0, Qt::ShiftModifier);
        desk.Idle();
        insert.setCurrentText("TGlottaLinked");
        desk.Idle();
        EXPECT_EQ(wizard.lvSelectedForms.CellText(2, 2), "TGlottaLinked");
        desk.Picture(window, "wizard-2");
        emit In<QLabel>(window, "lbStructure").linkActivated("#");
        desk.Picture(window, "wizard-2-structure");
        auto& image = In<QWidget>(window, "imgStructure");
        EXPECT_TRUE(image.isVisible());
        QTest::mouseClick(&image, Qt::LeftButton);
        desk.Idle();
        EXPECT_FALSE(image.isVisible());

        desk.Click(window, "btnNext");
        desk.Idle();
        EXPECT_EQ(In<QLabel>(window, "lbTitle").text(), "Fine Tunings");
        EXPECT_FALSE(In<QPushButton>(window, "btnNext").isEnabled());
        In<QComboBox>(window, "cbDispatcherForm").setCurrentText("Data");
        desk.Idle();
        desk.Click(window, "btnCreateDispatcher");
        desk.Idle();
        EXPECT_EQ(In<QComboBox>(window, "cbDispatcher").currentText(), "GlottaDispatcher1");
        In<QComboBox>(window, "cbCommonForm").setCurrentText("AboutBox");
        desk.Idle();
        EXPECT_EQ(In<QComboBox>(window, "cbCommonContainer").currentText(), "Newly inserted (TGlotta)");
        EXPECT_FALSE(In<QLineEdit>(window, "edLanguagesToUse").isEnabled());
        desk.Picture(window, "wizard-3");
        desk.Click(window, "btnNext");
        auto& utf8 = In<QCheckBox>(window, "ckbStoreAsUTF8");
        EXPECT_FALSE(utf8.isEnabled());
        In<QCheckBox>(window, "ckbChangeProperties").click();
        desk.Idle();
        EXPECT_TRUE(utf8.isEnabled());
        utf8.click();
        desk.Picture(window, "wizard-4");
        desk.Click(window, "btnNext");
        desk.Picture(window, "wizard-5");
        EXPECT_TRUE(In<QPlainTextEdit>(window, "memActions")
                        .toPlainText()
                        .contains("\tUse GlottaDispatcher1 from Data\n"));
        // It shows itself at work.
        bool shown = false;
        const auto before = wizard.pbProgress.OnView;
        wizard.pbProgress.OnView = [&, before] {
            before();
            if (wizard.Page() != tsPerform || wizard.pbProgress() != 4) return;
            shown =
                In<QWidget>(window, "lvProgress").isVisible() && !In<QWidget>(window, "btnNext").isEnabled();
            EXPECT_EQ(In<QProgressBar>(window, "pbProgress").value(), 4);
            desk.Picture(window, "wizard-6");
        };
        desk.Click(window, "btnNext");
        wizard.pbProgress.OnView = before;
        EXPECT_TRUE(shown);
        desk.Idle();
        EXPECT_EQ(wizard.Page(), tsFinal);
        desk.Picture(window, "wizard-7");
        desk.Click(window, "btnClose");
    });
    desk.Trigger(*main.findChild<QMenuBar*>("MainMenu"), "&Wizard");
    EXPECT_EQ(desk.messages,
              "This will insert new TGlottaDispatcher component on selected form! Continue?\n");
    GridView& forms = desk.Grid(main, "lvFormNames");
    std::string components;
    for (int row = 0; row < forms.model()->rowCount(); ++row)
        components += forms.model()->index(row, 4).data().toString().toStdString() + " ";
    EXPECT_EQ(components, "TGlotta TGlottaLinked TGlottaLinked TGlottaLinked TGlotta "); // listed anew
}

} // namespace
} // namespace glotta
