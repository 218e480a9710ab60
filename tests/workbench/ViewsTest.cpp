// Every window over a form opens and answers; with GLOTTA_PICTURES set to a folder it leaves its picture
// there.
#include "editors/_gxcomboproped.h"
#include "ide/EditorEdits.h"
#include "editors/Dntcedit.h"
#include "editors/Excludededitor.h"
#include "scanner/_scan.h"
#include "settings/_expopt.h"
#include "storage/ReplConfirm.h"
#include "storage/_findphrase.h"
#include "storage/_stridrepl.h"
#include "storage/ProjectSettingsForm.h"
#include "translation/ConfigureLanguages.h"
#include "translation/TranslUnits.h"
#include "workbench/ExpertDesk.h"
#include "workbench/TreeView.h"

#include <QtCore/QDir>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabWidget>

namespace glotta {
namespace {

void Picture(QWidget& window, const char* name) {
    ExpertDesk::Picture(window, name);
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

TEST(Views, ProjectSettings) {
    ExpertDesk desk;
    const std::string dictionary =
        desk.folder.Put("words.dix", "<HEAD>\r\n<LANGUAGE>English\r\n<LANGUAGE>Deutsch</LANGUAGE>\r\n</HEAD>\r\n").string();
    QWidget& main = desk.OpenMainWindow();
    desk.uses.push_back([&](TForm& form, QWidget& window) {
        auto& settings = dynamic_cast<TfrmProjectTranslationSettings&>(form);
        auto& pages = In<QStackedWidget>(window, "pcPages");
        Type(window, "edDictionary", dictionary.c_str());
        auto& language = In<QComboBox>(window, "cbBaseLanguage");
        EXPECT_EQ(language.count(), 2);
        EXPECT_FALSE(In<QWidget>(window, "imWarning").isVisible());
        language.setEditText("Latin");
        desk.Idle();
        EXPECT_EQ(settings.cbBaseLanguage(), "Latin");
        EXPECT_TRUE(In<QWidget>(window, "imWarning").isVisible());
        Picture(window, "project-settings-dictionary");
        language.setCurrentIndex(1);
        desk.Idle();
        EXPECT_EQ(settings.cbBaseLanguage(), "Deutsch</LANGUAGE>");
        QTest::keyClick(&window, Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(pages.currentIndex(), 1);
        EXPECT_EQ(In<QComboBox>(window, "cbFormForUnits").count(), 6);
        In<QComboBox>(window, "cbFormForUnits").setCurrentText("MainForm");
        Picture(window, "project-settings-project");
        desk.Click(window, "sbDictionary");
        EXPECT_EQ(pages.currentIndex(), 0);
        desk.Click(window, "btOK");
    });
    desk.Trigger(In<QMenuBar>(main, "MainMenu"), "Project Settings...");
    const auto formForUnits = [&] { return desk.expert->ProjectSettings()->GetOptionValue("DefaultFormForUnits"); };
    EXPECT_EQ(formForUnits(), "MainForm");
    desk.uses.push_back([&](TForm&, QWidget& window) {
        EXPECT_EQ(In<QComboBox>(window, "cbFormForUnits").currentText(), "MainForm");
        In<QComboBox>(window, "cbFormForUnits").setCurrentIndex(0); // none
        desk.Click(window, "btOK");
    });
    desk.Trigger(In<QMenuBar>(main, "MainMenu"), "Project Settings...");
    EXPECT_EQ(formForUnits(), "");
    EXPECT_EQ(desk.messages, "");
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
        Type(window, "edFind", "e");
        const int found = editor.sgTexts.Row();
        QTest::keyClick(&In<QLineEdit>(window, "edFind"), Qt::Key_Return);
        EXPECT_NE(editor.sgTexts.Row(), found);
        EXPECT_TRUE(window.isVisible());
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

QWidget* WindowCalled(const char* title) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowTitle() == title) return window;
    return nullptr;
}

TEST(Views, ExcludeProperties) {
    ExpertDesk desk;
    QWidget& main = desk.OpenMainWindow();
    GridView& list = desk.Grid(main, "lvFormNames");
    desk.ClickCell(list, desk.RowWith(list, 0, "MainForm"), 0);
    desk.uses.push_back([&](TForm&, QWidget&) {}); // the translation editor, over a component that is new
    desk.Trigger(In<QMenuBar>(main, "MainMenu"), "&Translate");
    desk.uses.push_back([&](TForm& form, QWidget& window) {
        auto& editor = dynamic_cast<TfrmExcludeFromTranslation&>(form);
        auto& components = In<TreeView>(window, "tvComponents");
        auto& properties = In<TreeView>(window, "tvProperties");
        const auto doubleClick = [&](TreeView& tree, const QModelIndex& at) {
            const std::string text = at.data().toString().toStdString();
            const QPoint point = tree.visualRect(at).center();
            QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, point);
            QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, point);
            desk.Idle();
            return text;
        };
        const QModelIndex root = components.model()->index(0, 0);
        const std::string first = doubleClick(components, components.model()->index(0, 0, root));
        EXPECT_EQ(editor.Model.lbExclComponents.Items(), std::vector<std::string>{first});
        EXPECT_EQ(In<QComboBox>(window, "cbComponents").currentText().toStdString(), first);
        components.collapse(root);
        EXPECT_TRUE(components.isExpanded(root));
        In<QComboBox>(window, "cbComponents").setCurrentText("MainForm");
        const std::string property = doubleClick(properties, properties.model()->index(0, 0));
        EXPECT_EQ(editor.Model.lbExclProperties.Items(), std::vector<std::string>{property});
        desk.inputs = {"hint"};
        desk.Trigger(window, "Add by Name...");
        Picture(window, "exclude");
        In<QTabWidget>(window, "pcExcluded").setCurrentIndex(2);
        EXPECT_EQ(In<QLabel>(window, "pnExcluded").text(), " Component's Properties to Exclude:");
        In<QSplitter>(window, "VerticalSplitter").setSizes({300, 400});
        desk.Click(window, "btOK");
        EXPECT_EQ(form.modalResult, ModalResult::OK);
    });
    desk.Trigger(In<QMenuBar>(main, "MainMenu"), "Exclude properties");

    TfrmNotTranslate choice(desk.ui, desk.registry);
    choice.lbComps.SetItems({"Edit1", "Label1", "Panel1"});
    desk.uses.push_back([&](TForm&, QWidget& window) {
        desk.ClickCell(desk.Grid(window, "lbComps"), 1, 0);
        desk.Idle();
        desk.Click(window, "btMove");
        EXPECT_EQ(choice.lbSelected.Items(), std::vector<std::string>{"Label1"});
        window.resize(100, 100);
        EXPECT_EQ(window.width(), TfrmNotTranslate::MinimumWidth);
        Picture(window, "two-lists");
        desk.Click(window, "btOK");
    });
    desk.ui.ShowModal(choice);
}

QWidget* SkippedWindow() {
    return WindowCalled("Strings Skipped by Expert");
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

TEST(Views, IdentifiersAreCheckedAndRenamed) {
    ExpertDesk desk;
    QWidget& main = desk.OpenMainWindow();
    auto& menu = In<QMenuBar>(main, "MainMenu");
    GridView& list = desk.Grid(main, "lvFormNames");
    desk.ClickCell(list, desk.RowWith(list, 0, "MainForm"), 0);
    desk.uses.push_back([](TForm& form, QWidget&) { dynamic_cast<TfrmFound&>(form).acModifySource.Execute(); });
    desk.Trigger(menu, "&With form...");
    const std::string unit = (desk.folder / "Main.pas").string();
    IdeServices& services = desk.expert->Services();
    const std::string source = services.GetUnitSource(unit);
    const std::size_t call = source.find("('IDS_");
    ASSERT_NE(call, std::string::npos);
    const std::size_t begin = call + 2, end = source.find('\'', begin);
    const std::string id = source.substr(begin, end - begin);
    WriteEdits(*services.GetSourceEditorFromFileName(unit), source, {{begin, end, "MISSING"}});
    desk.messages.clear();

    desk.Trigger(menu, "&Check Bad String IDs");
    QWidget* const bad = WindowCalled("Bad string IDs");
    ASSERT_NE(bad, nullptr);
    GridView& ids = desk.Grid(*bad, "IDsList");
    EXPECT_EQ(StatusOf(*bad), "Total:|2|");
    desk.ClickCell(ids, desk.RowWith(ids, 0, "MISSING"), 0);
    Picture(*bad, "bad-ids");
    QTest::keyClick(&ids, Qt::Key_Return);
    const IOTAEditView& view = services.GetCurrentSourceEditor()->View();
    EXPECT_EQ(view.BlockAfter().column - view.BlockStart().column, 9); // with its quotes
    bad->activateWindow();
    desk.Idle();
    desk.ClickCell(ids, desk.RowWith(ids, 0, id.c_str()), 0);
    QTest::keyClick(&ids, Qt::Key_Delete, Qt::ControlModifier);
    desk.Idle();
    EXPECT_EQ(desk.messages, "This will delete " + id + " from MainForm.Glotta1! Continue?\n");
    EXPECT_EQ(StatusOf(*bad), "Total:|1|");
    ids.setColumnWidth(0, 77);
    desk.Trigger(menu, "&Check Bad String IDs");
    QWidget* const again = WindowCalled("Bad string IDs");
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(desk.Grid(*again, "IDsList").columnWidth(0), 77);

    desk.inputs = {"IDS_NEW"};
    desk.uses.push_back([&](TForm& form, QWidget& window) {
        auto& editor = dynamic_cast<TfrmTransEditor&>(form);
        editor.ShowPlace({stStrings, 1});
        editor.acRenameID.Execute();
        desk.Click(window, "btOK");
    });
    desk.uses.push_back([&](TForm&, QWidget& window) {
        GridView& units = desk.Grid(window, "lbProjectUnits");
        desk.ClickCell(units, 1, 0);
        desk.ClickCell(units, 3, 0, Qt::ControlModifier);
        Picture(window, "rename-units");
        desk.Click(window, "btOK");
    });
    desk.uses.push_back([&](TForm& form, QWidget& window) {
        GridView& lines = desk.Grid(window, "lvSourceLines");
        desk.TypeCell(lines, 0, 2, "  // mine");
        Picture(window, "rename-lines");
        EXPECT_EQ(dynamic_cast<TfrmStrReplace&>(form).lvSourceLines.Lines()[0].result, "  // mine");
        desk.Click(window, "btOK");
    });
    desk.Trigger(menu, "&Translate");
    EXPECT_NE(services.GetUnitSource(unit).find("  // mine\r\n"), std::string::npos);
}

QWidget* WindowTitled(const char* title) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowTitle() == title) return window;
    return nullptr;
}

TEST(Views, PhrasesAreFoundAndReplaced) {
    ExpertDesk desk;
    QWidget& main = desk.OpenMainWindow();
    auto& menu = In<QMenuBar>(main, "MainMenu");
    GridView& forms = desk.Grid(main, "lvFormNames");
    desk.ClickCell(forms, desk.RowWith(forms, 0, "MainForm"), 0);
    desk.uses.push_back([&](TForm&, QWidget& window) { desk.Click(window, "btOK"); });
    desk.Trigger(menu, "&Translate");

    desk.uses.push_back([&](TForm& form, QWidget& window) {
        EXPECT_FALSE(In<QWidget>(window, "lblReplace").isVisible());
        EXPECT_FALSE(In<QWidget>(window, "edReplace").isVisible());
        Type(window, "edFindText", "order");
        Picture(window, "find-phrase");
        In<QCheckBox>(window, "ckbIdent").click();
        EXPECT_TRUE(dynamic_cast<TfrmFind&>(form).Options().identifiers);
        desk.Click(window, "btOK");
    });
    desk.Trigger(menu, "&Find Phrase...");
    QWidget* const found = WindowTitled("TGlotta Find Phrase");
    ASSERT_NE(found, nullptr);
    GridView& rows = desk.Grid(*found, "LVIDs");
    ASSERT_GT(rows.model()->rowCount(), 1);
    EXPECT_EQ(found->size(), QSize(550, 200));
    Picture(*found, "found-phrases");
    rows.Grid()->SelectOnly(1);
    QTest::keyClick(&rows, Qt::Key_Return);
    IOTAModule* const module = desk.ide.FindFormModule("MainForm");
    EXPECT_EQ(IdeServices::GetFormEditorFromModule(module)->Designer().SelectedComponent()->ClassName(), "TGlotta");

    desk.uses.push_back([&](TForm&, QWidget& window) {
        EXPECT_EQ(In<QLineEdit>(window, "edFindText").text(), "order");
        In<QCheckBox>(window, "ckbIdent").click();
        Type(window, "edReplace", "parcel");
        Picture(window, "replace-phrase");
        desk.Click(window, "btOK");
    });
    desk.uses.push_back([&](TForm& form, QWidget& window) {
        auto& confirm = dynamic_cast<TfrmReplConfirm&>(form);
        EXPECT_EQ(In<QPlainTextEdit>(window, "memResult").toPlainText().toStdString(), confirm.memResult());
        EXPECT_EQ(In<QLabel>(window, "lblLocation").text().toStdString(), confirm.lblLocation());
        Picture(window, "replace-confirm");
        desk.Click(window, "btYesToAll");
    });
    desk.Trigger(menu, "&Replace Phrase...");
    desk.uses.push_back([&](TForm&, QWidget& window) { desk.Click(window, "btOK"); });
    desk.Trigger(menu, "&Find Phrase...");
    EXPECT_EQ(rows.model()->rowCount(), 0); // the window is the same
    EXPECT_EQ(desk.messages, "");
}

TEST(Views, LanguagesOfADropDown) {
    ExpertDesk desk;
    QImage seen(40, 20, QImage::Format_ARGB32);
    seen.fill(QColor(10, 200, 30));
    const std::string picture = (desk.folder / "seen.png").string();
    ASSERT_TRUE(seen.save(QString::fromStdString(picture)));
    const std::string text = desk.folder.Put("text.png", "no picture").string();
    TfrmGlottaComboEditor form(desk.ui, {"English", "Deutsch"}, {{"English", "", 1, ""}, {"Deutsch", "", 204, ""}});
    desk.uses.push_back([&](TForm&, QWidget& window) {
        EXPECT_EQ(In<QLabel>(window, "pnImage").text(), "(No image)");
        auto& flags = In<QComboBox>(window, "cbFlags");
        Picture(window, "language-combo");
        const auto choose = [&](int item) {
            flags.setCurrentIndex(item);
            emit flags.activated(item);
            desk.Idle();
            EXPECT_EQ(flags.currentIndex(), -1);
        };
        choose(3);
        EXPECT_EQ(In<QLabel>(window, "pnImage").pixmap().size(), QSize(24, 16));
        desk.ClickCell(desk.Grid(window, "lbLanguages"), 1, 0);
        EXPECT_EQ(In<QComboBox>(window, "cbLangCharset").currentText(), "RUSSIAN_CHARSET");
        desk.ui.AnswerFiles = [&](FileDialog& dialog) {
            dialog.files = {picture};
            return true;
        };
        choose(0);
        EXPECT_EQ(In<QLabel>(window, "pnImage").pixmap().toImage().pixelColor(5, 5), QColor(10, 200, 30));
        Picture(window, "language-combo-image");
        desk.ui.AnswerFiles = [&](FileDialog& dialog) {
            dialog.files = {text};
            return true;
        };
        choose(0);
        EXPECT_TRUE(desk.messages.starts_with(text + ": ")) << desk.messages;
        flags.showPopup();
        desk.Idle();
        Picture(*flags.view()->window(), "language-combo-flags");
        flags.hidePopup();
        desk.Click(window, "btOK");
    });
    EXPECT_EQ(desk.ui.ShowModal(form), ModalResult::OK);
    EXPECT_TRUE(form.Infos()[1].image.starts_with("BM"));
}

} // namespace
} // namespace glotta
