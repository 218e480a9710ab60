// Lists of 20,000 rows open, sort, filter and are edited without a wait. The bounds are a person's patience,
// with room for slow machines.
#include "platform/RegFileStore.h"
#include "runtime/Record.h"
#include "scanner/SourceFlavour.h"
#include "scanner/_scan.h"
#include "settings/ExpertSettings.h"
#include "support/FakeIde.h"
#include "translation/TransEditor.h"
#include "workbench/ExpertDesk.h"

#include <QtWidgets/QHeaderView>
#include <chrono>

namespace glotta {
namespace {

constexpr int Rows = 20000;

double Seconds(const std::function<void()>& act) {
    const auto start = std::chrono::steady_clock::now();
    act();
    ExpertDesk::Idle();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void Expect(const char* what, double bound, const std::function<void()>& act) {
    const double taken = Seconds(act);
    ::testing::Test::RecordProperty(what, std::to_string(taken));
    EXPECT_LT(taken, bound) << what;
    if (!qEnvironmentVariableIsEmpty("GLOTTA_TIMES")) printf("%-28s %.3f s\n", what, taken);
}

TEST(LargeLists, Review) {
    TempFolder folder;
    RegFileStore registry(folder / "settings.reg");
    ExpertSettings settings(registry, {"TGlotta"});
    QtUi ui;
    FakeIde ide;
    IdeServices services{BorlandIDEServices{ide, ide}, ide.forms, ui};
    TgxFoundSourceStrings found;
    std::string source;
    for (int i = 0; i < Rows; ++i) {
        TgxFoundSourceString& row = found.AddItem();
        row.Line = i;
        row.Column = 2;
        row.ID = "IDS_" + std::to_string(i);
        row.Value = "Text " + std::to_string((i * 7919) % Rows);
        row.SourceText = "'" + row.Value + "'";
        row.Replacement = "Glotta1.GetText('" + row.ID + "')";
        row.Position = source.size() + 3;
        source += "  " + row.SourceText + "\r\n";
        if (i % 3 == 0) row.Note = "in a const section";
    }
    std::vector<TgxSkippedString> skipped;
    TfrmFound form(
        {services, settings, registry, found, skipped, source, PascalFlavour, "Unit1", "Glotta1", nullptr});

    Expect("review: open", 1.0, [&] {
        ui.Show(form);
        ui.WindowOf(form)->grab();
    });
    QWidget& window = *ui.WindowOf(form);
    GridView& grid = ExpertDesk::Grid(window, "sgStrings");
    ASSERT_EQ(grid.model()->rowCount(), Rows);
    Expect("review: sort by text", 1.0, [&] {
        QTest::mouseClick(grid.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(300, 5));
        window.grab();
    });
    EXPECT_EQ(grid.model()->index(0, 2).data().toString(), "'Text 0'");
    Expect("review: edit an identifier", 0.3, [&] { ExpertDesk::TypeCell(grid, 3, 1, "IDS_NEW"); });
    EXPECT_EQ(form.sgStrings.At(3).ID, "IDS_NEW");
    Expect("review: go to the end", 0.1, [&] {
        QTest::keyClick(&grid, Qt::Key_End, Qt::ControlModifier);
        window.grab();
    });
    Expect("review: invert the selection", 0.3, [&] {
        QTest::keyClick(&grid, Qt::Key_I, Qt::ControlModifier);
        window.grab();
    });
    EXPECT_EQ(form.sgStrings.SelectedCount(), std::size_t(Rows));
    ui.AnswerMessage = [](const std::string&, const MsgButtons&) { return ModalResult::Yes; };
    Expect("review: delete them all", 1.0, [&] { form.acDeleteRow.Execute(); });
    EXPECT_EQ(grid.model()->rowCount(), 0);
    form.Close(ui, ModalResult::Cancel);
}

TEST(LargeLists, Translations) {
    constexpr int Languages = 10;
    RegisterGlottaClasses();
    std::vector<std::string> records;
    for (int i = 0; i < Rows; ++i) {
        std::string record = MakeRecord("IDS_" + std::to_string(i),
                                        "Text no. " + std::to_string((i * 7919) % Rows), Languages);
        for (int language = 2; language <= Languages; ++language)
            if (i != 15000)
                record = WithField(record, language + 1,
                                   "Language " + std::to_string(language) + " of " + std::to_string(i));
        records.push_back(record);
    }
    FakeIde ide;
    FakeModule& module = ide.OpenForm(
        "/p/Unit1.pas", "Form1", "object Form1: TForm1\r\n  object Glotta1: TGlotta\r\n  end\r\nend\r\n");
    auto& glotta = dynamic_cast<TgxCustomLang&>(*module.form->Root().Components().front());
    glotta.SetNumberOfLanguages(Languages);
    glotta.SetStrings(stStrings, records);

    QtUi ui;
    const TransEditorDialog hooks(ui);
    std::unique_ptr<TfrmTransEditor> form;
    Expect("translations: open", 1.0, [&] {
        form = std::make_unique<TfrmTransEditor>(ui, glotta, hooks);
        form->ShowPlace({stStrings, 0});
        ui.Show(*form);
        ui.WindowOf(*form)->grab();
    });
    QWidget& window = *ui.WindowOf(*form);
    GridView& grid = ExpertDesk::Grid(window, "sgTexts");
    auto& filter = *window.findChild<QLineEdit*>("edFilter");
    Expect("translations: next missing", 0.3, [&] { QTest::keyClick(&grid, Qt::Key_F8); });
    EXPECT_EQ(form->sgTexts.Row(), 15000);
    Expect("translations: edit", 0.2, [&] { ExpertDesk::TypeCell(grid, 15000, 2, "Neu"); });
    Expect("translations: first filter", 1.0, [&] { QTest::keyClicks(&filter, "1"); });
    Expect("translations: more of it", 0.5, [&] { QTest::keyClicks(&filter, "99"); });
    EXPECT_GT(grid.model()->rowCount(), 10);
    filter.clear();
    form->edFilter.Enter("");
    Expect("translations: sort", 1.0, [&] {
        QTest::mouseClick(grid.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(200, 5));
        window.grab();
    });
    Expect("translations: OK", 1.0, [&] { ExpertDesk::Click(window, "btOK"); });
    EXPECT_TRUE(form->Changed());
    EXPECT_EQ(RecordField(glotta.Strings(stStrings)[15000], 3), "Neu");
}

} // namespace
} // namespace glotta
