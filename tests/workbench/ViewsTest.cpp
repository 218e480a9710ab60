// Every window over a form opens and answers; with GLOTTA_PICTURES set to a folder it leaves its picture
// there.
#include "scanner/_scan.h"
#include "settings/_expopt.h"
#include "translation/ConfigureLanguages.h"
#include "translation/TranslUnits.h"
#include "workbench/ExpertDesk.h"

#include <QtCore/QDir>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabWidget>

namespace glotta {
namespace {

void Picture(QWidget& window, const char* name) {
    ExpertDesk::Idle();
    const QString folder = qEnvironmentVariable("GLOTTA_PICTURES");
    if (folder.isEmpty()) return;
    QDir().mkpath(folder);
    window.grab().save(folder + "/" + qEnvironmentVariable("GLOTTA_THEME", "Light").toLower() + "-" + name +
                       ".png");
}

template <class Widget> Widget& In(QWidget& window, const char* name) {
    auto* found = window.findChild<Widget*>(name);
    EXPECT_NE(found, nullptr) << name;
    return *found;
}

std::string StatusOf(QWidget& window) {
    std::string text;
    for (QLabel* label : In<QStatusBar>(window, "StatusBar").findChildren<QLabel*>())
        text += label->text().toStdString() + "|";
    return text;
}

void Type(QWidget& window, const char* edit, const char* text) {
    auto& line = In<QLineEdit>(window, edit);
    line.setFocus();
    line.selectAll();
    QTest::keyClicks(&line, text);
    ExpertDesk::Idle();
}

TEST(Views, MainWindow) {
    ExpertDesk desk;
    QWidget& window = desk.OpenMainWindow();
    EXPECT_EQ(window.windowTitle(), "TGlotta Expert (VCL Edition)");
    GridView& list = desk.Grid(window, "lvFormNames");
    ASSERT_GT(list.model()->rowCount(), 3);
    EXPECT_EQ(StatusOf(window), "Forms count: 5|Units count: 7|Forms translated: 0 of 5|");

    // A click picks its row alone, with Ctrl one more, with Shift a range; the keys move and extend.
    desk.ClickCell(list, 1, 0);
    desk.ClickCell(list, 3, 0, Qt::ControlModifier);
    EXPECT_EQ(list.Grid()->SelectedRows(), (std::vector<std::size_t>{1, 3}));
    desk.ClickCell(list, 0, 0);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Down, Qt::ShiftModifier);
    desk.Idle();
    EXPECT_EQ(list.Grid()->SelectedRows(), (std::vector<std::size_t>{1, 2}));
    Picture(window, "main");

    const auto canTranslate = [&] {
        desk.Idle();
        return desk.Find(In<QMenuBar>(window, "MainMenu").actions(), "&Translate")->isEnabled();
    };
    EXPECT_TRUE(canTranslate());
    list.Grid()->ClearSelection();
    EXPECT_FALSE(canTranslate());

    const auto firstName = [&] { return list.model()->index(0, 0).data().toString().toStdString(); };
    const std::string before = firstName();
    QTest::mouseClick(list.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 5));
    EXPECT_NE(firstName(), before);
    window.close();
    desk.Idle();
    EXPECT_EQ(desk.expert->MainWindow(), nullptr);
}

TEST(Views, Options) {
    ExpertDesk desk;
    QWidget& main = desk.OpenMainWindow();
    desk.uses.push_back([&](TForm& form, QWidget& window) {
        auto& options = dynamic_cast<TfrmOptions&>(form);
        auto& pages = In<QTabWidget>(window, "pcOptions");
        Picture(window, "options-general");
        EXPECT_EQ(In<QComboBox>(window, "cbMenuItems").currentText().toStdString(), options.cbMenuItems());
        In<QComboBox>(window, "cbMenuItems").setCurrentText("HelpMenu");
        desk.Click(window, "sbNLangUp");
        EXPECT_EQ(In<QLineEdit>(window, "edNLang").text().toStdString(), options.edNLang());
        desk.inputs = {"Esperanto"};
        desk.Click(window, "btnAdd");
        EXPECT_EQ(options.lbLangNames.Items().back(), "Esperanto");

        desk.Click(window, "sbSourceStrings");
        EXPECT_EQ(pages.currentIndex(), 1);
        Picture(window, "options-source");
        Type(window, "edIgnorableLength", "1x2");
        EXPECT_EQ(options.edIgnorableLength(), "12");
        desk.Click(window, "rbUppercase");
        EXPECT_EQ(options.rgCnstPfx(), 1);

        QTest::keyClick(&window, Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(pages.currentIndex(), 2);
        In<QPlainTextEdit>(window, "memSkipWords").setPlainText("one\ntwo");
        desk.Idle();
        EXPECT_EQ(options.memSkipWords(), "one\r\ntwo");
        EXPECT_TRUE(In<QCheckBox>(window, "ckbUseREtoSkip").isEnabled());
        Picture(window, "options-skip");
        In<QPlainTextEdit>(window, "memSkipWords").clear();
        EXPECT_FALSE(In<QCheckBox>(window, "ckbUseREtoSkip").isEnabled());
        desk.Click(window, "btOK");
    });
    desk.Trigger(*main.findChild<QMenuBar*>("MainMenu"), "O&ptions...");
    EXPECT_EQ(desk.expert->Settings().Values().MenuSection, "HelpMenu");
    EXPECT_EQ(desk.expert->Settings().Values().IgnorableLength, 12);
    EXPECT_EQ(desk.expert->Settings().Values().CnstPermanent, 1);
    EXPECT_NE(desk.expert->Settings().Values().DefaultLangNames.find("Esperanto"), std::string::npos);
}

TEST(Views, LanguagesUnitsAndTranslations) {
    ExpertDesk desk;
    desk.expert->Settings().SetNumLang(3);
    desk.expert->Settings().SetDefaultLangNames("English\r\nGerman\r\nFrench\r\n");
    QWidget& main = desk.OpenMainWindow();
    auto& menu = In<QMenuBar>(main, "MainMenu");
    GridView& list = desk.Grid(main, "lvFormNames");
    desk.ClickCell(list, desk.RowWith(list, 0, "MainForm"), 0);
    desk.uses.push_back([&](TForm& form, QWidget& window) {
        auto& editor = dynamic_cast<TfrmTransEditor&>(form);
        GridView& texts = desk.Grid(window, "sgTexts");
        desk.TypeCell(texts, 0, 2, "Erster");
        EXPECT_EQ(editor.sgTexts.CellText(0, 2), "Erster");
        QTest::keyClick(&texts, Qt::Key_F8);
        desk.Idle();
        In<QPlainTextEdit>(window, "memText").setPlainText("Zweiter");
        EXPECT_EQ(editor.sgTexts.CellText(1, 2), "Zweiter");
        Picture(window, "translations");
        Type(window, "edFilter", "erst");
        EXPECT_EQ(texts.model()->rowCount(), 1);
        desk.Click(window, "btOK");
    });
    desk.Trigger(menu, "&Translate");

    desk.uses.push_back([&](TForm& form, QWidget& window) {
        auto& languages = dynamic_cast<TfrmConfigureLanguages&>(form);
        Type(window, "edLangCount", "a4");
        EXPECT_EQ(languages.lbLangNames.RowCount(), 4u);
        desk.ClickCell(desk.Grid(window, "lbLangNames"), 2, 0);
        desk.Click(window, "btnMoveUp");
        EXPECT_EQ(languages.lbLangNames.Items()[1], "French");
        Picture(window, "languages");
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    desk.Trigger(menu, "&Languages...");

    desk.uses.push_back([&](TForm& form, QWidget& window) {
        auto& units = dynamic_cast<TfrmTranslUnits&>(form);
        EXPECT_EQ(In<QComboBox>(window, "cbFormNames").currentText(), "MainForm");
        Type(window, "edUnitName", "tot");
        EXPECT_EQ(units.UnitName(), "Totals");
        QTest::keyClick(&In<QLineEdit>(window, "edUnitName"), Qt::Key_Down);
        EXPECT_EQ(units.UnitName(), "Trace");
        EXPECT_TRUE(In<QAbstractButton>(window, "btOK").isEnabled());
        Picture(window, "units");
    });
    desk.Trigger(menu, "With&out form...");
    EXPECT_EQ(desk.messages, "");
}

QWidget* SkippedWindow() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowTitle() == "Strings Skipped by Expert")
            return window;
    return nullptr;
}

TEST(Views, ReviewAndSkippedStrings) {
    ExpertDesk desk;
    desk.expert->Settings().SetSkipWords(TStringList({"Order Desk"}));
    QWidget& main = desk.OpenMainWindow();
    GridView& list = desk.Grid(main, "lvFormNames");
    desk.ClickCell(list, desk.RowWith(list, 0, "MainForm"), 0);
    desk.uses.push_back([&](TForm& form, QWidget& window) {
        auto& found = dynamic_cast<TfrmFound&>(form);
        GridView& grid = desk.Grid(window, "sgStrings");
        const int rows = grid.model()->rowCount();
        desk.ClickCell(grid, 2, 2);
        EXPECT_EQ(In<QPlainTextEdit>(window, "edPreview").textCursor().selectedText().toStdString(),
                  grid.model()->index(2, 2).data().toString().toStdString());
        desk.ClickCell(grid, 4, 2, Qt::ControlModifier);
        desk.ClickCell(grid, 6, 2, Qt::ShiftModifier);
        desk.Idle();
        EXPECT_EQ(found.sgStrings.SelectedCount(), 3u);
        QTest::keyClick(&grid, Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
        desk.Idle();
        EXPECT_EQ(found.sgStrings.Look(5), RowLook::Marked);
        found.sgStrings.ClearSelection();
        desk.ClickCell(grid, 3, 2);
        Picture(window, "review");
        QTest::keyClick(&grid, Qt::Key_Delete, Qt::ControlModifier);
        desk.Idle();
        EXPECT_EQ(grid.model()->rowCount(), rows - 1);
        EXPECT_EQ(StatusOf(window),
                  "Found strings: " + std::to_string(rows - 1) + "|Deleted strings: 1|Selected rows: 0|");
        desk.Trigger(window, "Deleted");
        EXPECT_TRUE(desk.Grid(window, "sgDeleted").isVisible());
        Picture(window, "review-deleted");
        desk.ClickCell(desk.Grid(window, "sgDeleted"), 0, 0);
        desk.Trigger(window, "Restore");
        EXPECT_EQ(grid.model()->rowCount(), rows);
        // The other window takes clicks although the review is modal.
        desk.Trigger(window, "Excluded");
        QWidget* const skipped = SkippedWindow();
        ASSERT_NE(skipped, nullptr);
        GridView& strings = desk.Grid(*skipped, "lbStrings");
        strings.Grid()->SelectOnly(-1);
        QTest::mouseClick(skipped->windowHandle(), Qt::LeftButton, {},
                          strings.viewport()->mapTo(skipped, strings.visualRect(strings.Model().index(0, 0)).center()));
        desk.Idle();
        EXPECT_EQ(strings.Grid()->Row(), 0);
        desk.Click(window, "lbHideNotice");
        EXPECT_FALSE(In<QWidget>(window, "pnNotice").isVisible());
        EXPECT_EQ(desk.messages, "Delete selected row (IDS_3)?\n");
        desk.messages.clear();
    });
    desk.Trigger(In<QMenuBar>(main, "MainMenu"), "&With form...");
    EXPECT_EQ(desk.messages, "This will close the Found Strings form! Continue?\n");
    EXPECT_EQ(SkippedWindow(), nullptr);

    desk.Trigger(In<QMenuBar>(main, "MainMenu"), "S&kipped Strings...");
    QWidget* const skipped = SkippedWindow();
    ASSERT_NE(skipped, nullptr);
    GridView& strings = desk.Grid(*skipped, "lbStrings");
    ASSERT_GT(strings.model()->rowCount(), 0);
    desk.ClickCell(strings, 0, 0);
    EXPECT_NE(In<QPlainTextEdit>(*skipped, "edReason").toPlainText(), "");
    Picture(*skipped, "skipped");
}

} // namespace
} // namespace glotta
