// The form view with the package loaded: palette, inspector, menus and double clicks, on a form of the sample.
#include "editors/_gxcomboproped.h"
#include "expert/Glottaexp.h"
#include "host/StringListEditor.h"
#include "platform/Files.h"
#include "scanner/_scan.h"
#include "translation/ExtendedTranslations.h"
#include "workbench/ComponentPalette.h"
#include "workbench/ExpertDesk.h"
#include "workbench/FormPage.h"
#include "workbench/HostWindow.h"
#include "workbench/QtText.h"
#include "workbench/UnitPage.h"

#include <QtCore/QDir>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>

namespace glotta {
namespace {

struct Desk : Hands {
    TempFolder folder;
    Workbench bench{folder / "settings.reg"};
    HostWindow window{bench};
    FormPage* page = nullptr;
    PlainFormEditor* form = nullptr;

    Desk() {
        CopySample(folder, "delphi/OrderDesk");
        Take(bench.UiPort());
        window.resize(1300, 800);
        window.show();
        bench.LoadExpert();
        window.OpenProject(PathText(folder / "OrderDesk.dpr"));
        window.OpenUnit(PathText(folder / "Main.pas"), true);
        Idle();
        page = window.Page()->Form();
        form = window.Page()->ShownForm();
    }
    ~Desk() {
        bench.UiPort().AnswerMessage = [](const std::string&, const MsgButtons&) { return std::optional(ModalResult::No); };
        window.CloseProject();
        bench.UnloadExpert();
    }
    std::string Source() { return dynamic_cast<PlainModule&>(window.Page()->Module()).Source().Buffer().Text(); }

    // By the palette, as a person does.
    TComponent& Place(const char* className) {
        const auto items = page->Palette().Tree().findItems(className, Qt::MatchExactly | Qt::MatchRecursive);
        EXPECT_EQ(items.size(), 1) << className;
        QTreeWidget& tree = page->Palette().Tree();
        tree.scrollToItem(items[0]);
        const QPoint at = tree.visualItemRect(items[0]).center();
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, at);
        Idle();
        return *form->Designer().SelectedComponent();
    }
    void Select(const char* name) {
        form->Designer().SelectComponent(form->Tree().Root().FindComponent(name));
        Idle();
    }
    std::string Palette() {
        std::string text;
        QTreeWidget& tree = page->Palette().Tree();
        for (int i = 0; i < tree.topLevelItemCount(); ++i) {
            text += S(tree.topLevelItem(i)->text(0)) + ":";
            for (int k = 0; k < tree.topLevelItem(i)->childCount(); ++k)
                text += " " + S(tree.topLevelItem(i)->child(k)->text(0));
            text += "\n";
        }
        return text;
    }
    // "[x] caption" of the items, with those of submenus behind.
    std::string Menu() {
        std::string text;
        page->DesignMenu().Items.ForEach([&](TMenuItem& item) {
            text += (item.Checked() ? "[x] " : "") + item.Caption() + (item.Enabled() ? "; " : " (off); ");
        });
        return text;
    }
    void Choose(const char* caption) {
        TMenuItem* chosen = nullptr;
        page->DesignMenu().Items.ForEach([&](TMenuItem& item) {
            if (item.Caption() == caption) chosen = &item;
        });
        ASSERT_NE(chosen, nullptr) << caption;
        chosen->Click();
        Idle();
    }
    int Row(const char* property) {
        QTableWidget& table = page->Inspector().Properties();
        for (int row = 0; row < table.rowCount(); ++row)
            if (table.item(row, 0)->text() == property) return row;
        ADD_FAILURE() << property;
        return 0;
    }
    std::string Value(const char* property) {
        return S(page->Inspector().Properties().item(Row(property), 1)->text());
    }
    std::string WithDialog() {
        std::string text;
        QTableWidget& table = page->Inspector().Properties();
        for (int row = 0; row < table.rowCount(); ++row)
            if (table.cellWidget(row, 1)) text += S(table.item(row, 0)->text()) + " ";
        return text;
    }
    void ClickDialog(const char* property) {
        QTableWidget& table = page->Inspector().Properties();
        table.scrollToItem(table.item(Row(property), 1));
        QTest::mouseClick(table.cellWidget(Row(property), 1)->findChild<QToolButton*>(), Qt::LeftButton);
        Idle();
    }
    // The drop-down's texts; picks one.
    std::string Drop(const char* property, const char* pick) {
        QTableWidget& table = page->Inspector().Properties();
        table.setCurrentCell(Row(property), 1);
        table.editItem(table.item(Row(property), 1));
        auto* combo = table.viewport()->findChild<QComboBox*>();
        if (!combo) return "no drop-down";
        std::string texts;
        for (int i = 0; i < combo->count(); ++i)
            texts += S(combo->itemText(i)) + " ";
        combo->setCurrentText(pick);
        Q_EMIT combo->activated(combo->currentIndex());
        Idle();
        return texts;
    }
    void Picture(QWidget& shown, const char* name) {
        Idle();
        const QString to = qEnvironmentVariable("GLOTTA_PICTURES");
        if (to.isEmpty()) return;
        QDir().mkpath(to);
        shown.grab().save(to + "/" + qEnvironmentVariable("GLOTTA_THEME", "Light").toLower() + "-" + name + ".png");
    }
};

constexpr const char* Pages =
    "Quorlane: TGlotta TGlottaRTSE TGlottaRT TGlottaLinked TGlottaTLV TGlottaDispatcher TgxLabel TgxFormStorage "
    "TGlottaCombo\n"
    "gxDialogs: TgxOpenDialog TgxSaveDialog TgxOpenPictureDialog TgxSavePictureDialog TgxFontDialog TgxColorDialog "
    "TgxPrintDialog TgxPrinterSetupDialog TgxFindDialog TgxReplaceDialog TgxBrowseForFolder\n";

TEST(Designer, PlacesEveryClassOfThePalette) {
    Desk desk;
    EXPECT_EQ(desk.Palette(), Pages);
    const std::string bytes = desk.form->Bytes(), source = desk.Source();
    EXPECT_EQ(desk.Place("TGlotta").Name(), "Glotta1");
    EXPECT_NE(desk.form->Bytes().find("  object Glotta1: TGlotta\r\n"), std::string::npos);
    EXPECT_NE(desk.Source().find("    Glotta1: TGlotta;\r\n"), std::string::npos);
    EXPECT_NE(desk.Source().find(", Glotta"), std::string::npos);
    EXPECT_TRUE(desk.form->Modified());
    desk.Picture(desk.window, "designer");
    desk.form->Undo();
    desk.Idle();
    EXPECT_EQ(desk.form->Bytes(), bytes);
    EXPECT_EQ(desk.Source(), source);
    std::string placed;
    for (const ClassesOnPage& palette : desk.bench.Ide().Design().PalettePages())
        for (const std::string& name : palette.classes)
            placed += desk.Place(name.c_str()).Name() + " ";
    EXPECT_EQ(placed, "Glotta1 GlottaRTSE1 GlottaRT1 GlottaLinked1 GlottaTLV1 GlottaDispatcher1 gxLabel1 gxFormStorage1 "
                      "GlottaCombo1 gxOpenDialog1 gxSaveDialog1 gxOpenPictureDialog1 gxSavePictureDialog1 gxFontDialog1 "
                      "gxColorDialog1 gxPrintDialog1 gxPrinterSetupDialog1 gxFindDialog1 gxReplaceDialog1 "
                      "gxBrowseForFolder1 ");
    EXPECT_EQ(desk.messages, "");
    desk.Picture(desk.window, "designer-all");
}

TEST(Designer, InspectorOffersDialogsAndDropDowns) {
    Desk desk;
    auto& lang = dynamic_cast<TgxCustomLang&>(desk.Place("TGlotta"));
    EXPECT_EQ(desk.WithDialog(),
              "Captions CharSets Collections DisplayLabels DlgsCaptions DoNotTranslate ExcludedProperties "
              "ExtendedTranslations Fonts Hints LangNames ListView_TreeView_Items Locales MultiLines OtherStrings "
              "SmartExcludeProps Strings ");
    desk.uses.push_back([&](TForm& dialog, QWidget& shown) {
        shown.findChild<QPlainTextEdit*>("Memo")->setPlainText("English\nGerman\nDutch");
        desk.Picture(shown, "string-list");
        desk.Click(shown, "OKButton");
        EXPECT_EQ(dynamic_cast<TStringsEditDlg&>(dialog).LineCount(), "3 lines");
    });
    desk.ClickDialog("LangNames");
    EXPECT_EQ(desk.Drop("Language", "German"), "English German Dutch ");
    EXPECT_EQ(desk.Value("Language") + std::to_string(lang.ActiveLanguage()), "German2");
    desk.form->Undo();
    desk.Idle();
    EXPECT_EQ(desk.Value("Language"), "English");

    desk.uses.push_back([&](TForm& dialog, QWidget& shown) {
        auto& editor = dynamic_cast<TfrmTransEditor&>(dialog);
        EXPECT_EQ(editor.sgTexts.Kind(), stHints);
        EXPECT_EQ(editor.lbKinds.CellText(std::size_t(editor.lbKinds.Row()), 0), "Hints");
        desk.Click(shown, "btOK");
    });
    desk.ClickDialog("Hints");
    EXPECT_GT(lang.Strings(stCaptions).Count(), 3u);
    desk.form->Undo();
    EXPECT_EQ(lang.Strings(stCaptions).Count(), 0u);

    desk.bench.UiPort().AnswerInput = [](const std::string&, const std::string&) { return std::optional<std::string>("MainForm.HelpFile"); };
    desk.uses.push_back([&](TForm& dialog, QWidget& shown) {
        desk.Click(shown, "btAdd");
        EXPECT_EQ(dynamic_cast<TfrmExtendedTranslations&>(dialog).sgItems.CellText(0, 1), "HelpFile");
        desk.Picture(shown, "extended-translations");
        desk.Click(shown, "btOK");
    });
    desk.ClickDialog("ExtendedTranslations");
    EXPECT_EQ(desk.Value("ExtendedTranslations"), "(TExtendedTranslations)");
    EXPECT_EQ(ReadExtendedTranslations(lang).size(), 1u);

    desk.Place("TGlottaLinked");
    desk.Place("TGlottaLinked");
    EXPECT_EQ(desk.Drop("CommonContainer", "Glotta1"), "Glotta1 ");
    EXPECT_EQ(desk.Value("CommonContainer"), "Glotta1");
    EXPECT_EQ(desk.messages, "");
}

TEST(Designer, SeveralComponentsAreEditedAtOnce) {
    Desk desk;
    const auto pick = [&](std::initializer_list<const char*> names) {
        QTreeWidget& tree = desk.page->Components();
        tree.clearSelection();
        for (const char* name : names)
            for (QTreeWidgetItem* item : tree.findItems(Q(std::string(name) + ":"), Qt::MatchStartsWith | Qt::MatchRecursive))
                item->setSelected(true);
        desk.Idle();
    };
    const auto shown = [&](std::initializer_list<const char*> properties) {
        std::string text;
        QTableWidget& table = desk.page->Inspector().Properties();
        for (const char* name : properties) {
            const auto items = table.findItems(name, Qt::MatchExactly);
            text += items.empty() ? "no " + std::string(name) + "; "
                                  : std::string(name) + "=" + S(table.item(items[0]->row(), 1)->text()) + "; ";
        }
        return text;
    };
    for (const char* placed : {"TgxLabel", "TgxLabel", "TGlottaCombo"})
        desk.Place(placed);
    pick({"gxLabel1", "gxLabel2", "GlottaCombo1"});
    EXPECT_EQ(shown({"Name", "Height", "Width", "Caption", "LanguageInfos"}),
              "no Name; Height=; Width=; no Caption; no LanguageInfos; ");
    pick({"gxLabel1", "gxLabel2"});
    EXPECT_EQ(shown({"Name", "Height", "Caption"}), "no Name; Height=13; Caption=; ");
    const std::string bytes = desk.form->Bytes();
    desk.page->Inspector().Properties().item(desk.Row("Caption"), 1)->setText("Both");
    desk.Idle();
    EXPECT_EQ(desk.page->Selection().size(), 2u);
    EXPECT_EQ(shown({"Caption"}), "Caption=Both; ");
    desk.Picture(desk.window, "designer-several");
    TComponent& root = desk.form->Tree().Root();
    EXPECT_EQ(root.FindComponent("gxLabel1")->GetStrProp("Caption") + root.FindComponent("gxLabel2")->GetStrProp("Caption"),
              "BothBoth");
    // What one of them does not take, none gets.
    for (const char* placed : {"TGlotta", "TGlotta"})
        desk.Place(placed);
    const auto languages = [&](const char* name, const std::vector<std::string>& names) {
        auto& lang = dynamic_cast<TgxCustomLang&>(*root.FindComponent(name));
        lang.SetNumberOfLanguages(int(names.size()));
        lang.SetLangNames(names);
    };
    languages("Glotta1", {"English", "German"});
    languages("Glotta2", {"German", "English", "Dutch"});
    pick({"Glotta1", "Glotta2"});
    EXPECT_EQ(desk.Drop("Language", "German"), "English German ");
    EXPECT_EQ(desk.Value("Language"), "German");
    desk.page->Inspector().Properties().item(desk.Row("Language"), 1)->setText("Dutch");
    desk.Idle();
    EXPECT_EQ(desk.Value("Language"), "German");
    EXPECT_EQ(std::count(desk.messages.begin(), desk.messages.end(), '\n'), 1);
    for (int steps = 0; steps < 4; ++steps)
        desk.form->Undo();
    EXPECT_EQ(desk.form->Bytes(), bytes);
}

TEST(Designer, MenusFollowTheSelection) {
    Desk desk;
    const std::string exclude = "Exclude from translation...; ", off = "Exclude from translation... (off); ";
    const std::string name = desk.form->Tree().Root().Components()[0]->Name();
    auto& lang = dynamic_cast<TgxCustomLang&>(desk.Place("TGlotta"));
    const std::string verbs = "Translation Editor...; Update Translations; Clear Translations; Ignore Removals; -; "
                              "Translate source; Source; CONST Declaration; -; ";
    EXPECT_EQ(desk.Menu(), verbs + off);
    desk.form->MarkSaved();
    desk.Choose("Ignore Removals");
    EXPECT_NE(desk.Menu().find("[x] Ignore Removals; "), std::string::npos);
    EXPECT_FALSE(desk.form->Modified());
    desk.Choose("Update Translations");
    EXPECT_GT(lang.Strings(stCaptions).Count(), 3u);
    desk.Choose("Clear Translations"); // the first button of the question is Yes
    EXPECT_EQ(lang.Strings(stCaptions).Count(), 0u);
    EXPECT_EQ(desk.messages, "This will delete all translation data stored in component! Continue?\n");

    desk.messages.clear();
    desk.Select(name.c_str());
    EXPECT_EQ(desk.Menu(), exclude);
    desk.Choose("Exclude from translation...");
    EXPECT_EQ(lang.GetStrings("DoNotTranslate"), std::vector{name});
    // A second one is picked in the tree.
    QTreeWidget& tree = desk.page->Components();
    tree.topLevelItem(0)->child(1)->setSelected(true);
    EXPECT_EQ(desk.page->Selection().size(), 2u);
    EXPECT_EQ(desk.Menu(), off);

    // The submenu works on the form's unit, from the expert's window.
    desk.Select("Glotta1");
    bool reviewed = false;
    desk.uses.push_back([&](TForm& review, QWidget&) { reviewed = dynamic_cast<TfrmFound*>(&review) != nullptr; });
    desk.Choose("Source");
    EXPECT_TRUE(reviewed);
}

TEST(Designer, DoubleClicksRunTheEditors) {
    Desk desk;
    const auto doubleClick = [&](const char* name) {
        desk.Select(name);
        QTreeWidget& tree = desk.page->Components();
        tree.scrollToItem(tree.currentItem());
        const QPoint at = tree.visualItemRect(tree.currentItem()).center();
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, at);
        desk.Idle();
    };
    std::string opened;
    const auto next = [&] {
        desk.uses.push_back([&](TForm& form, QWidget&) { opened += form.caption + "; "; });
    };
    for (const char* placed : {"TGlotta", "TGlottaDispatcher", "TGlottaCombo"})
        desk.Place(placed);
    next();
    doubleClick("Glotta1");
    next();
    doubleClick("GlottaDispatcher1");
    doubleClick("GlottaCombo1");
    EXPECT_EQ(desk.messages, "Please assign either Glotta or GlottaDispatcher property first!\n");
    EXPECT_EQ(desk.Drop("Glotta", "Glotta1"), "Glotta1 ");
    next();
    doubleClick("GlottaCombo1");
    EXPECT_EQ(opened, "Translation Editor - Glotta1; String List Editor; Edit Language Settings; ");
}

TEST(Designer, AnUnloadedPackageLeavesNothingBehind) {
    Desk desk;
    desk.Place("TGlotta");
    for (int round = 0; round < 2; ++round) {
        desk.bench.UnloadExpert();
        desk.Idle();
        EXPECT_EQ(desk.Palette() + desk.Menu(), "");
        EXPECT_FALSE(desk.page->Palette().isVisible());
        EXPECT_EQ(desk.Value("Hints"), "(TStrings)"); // the host's own editor of string lists
        EXPECT_EQ(desk.Drop("Language", "German"), "no drop-down");
        desk.bench.LoadExpert();
        desk.Idle();
        EXPECT_EQ(desk.Palette(), Pages);
        EXPECT_TRUE(desk.page->Palette().isVisible());
        EXPECT_EQ(desk.Menu().substr(0, 23), "Translation Editor...; ");
    }
}

} // namespace
} // namespace glotta
