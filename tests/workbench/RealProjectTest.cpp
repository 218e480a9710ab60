// Every form of a project of one's own through every window: GLOTTA_PROJECT names the project file. Nothing
// is saved.
#include "scanner/_scan.h"
#include "workbench/ExpertDesk.h"

#include <chrono>

namespace glotta {
namespace {

TEST(RealProject, EveryFormInEveryWindow) {
    const std::string project = qEnvironmentVariable("GLOTTA_PROJECT").toStdString();
    if (project.empty()) GTEST_SKIP() << "GLOTTA_PROJECT names no project";
    ExpertDesk desk("delphi/OrderDesk", project.c_str());
    const auto start = std::chrono::steady_clock::now();
    QWidget& main = desk.OpenMainWindow();
    const auto opened = std::chrono::steady_clock::now();
    GridView& list = desk.Grid(main, "lvFormNames");
    const int forms = list.model()->rowCount();
    printf("%d forms listed in %.3f s\n", forms, std::chrono::duration<double>(opened - start).count());
    std::size_t found = 0, texts = 0;
    desk.ui.UseModal = [&](TForm& form, QWidget& window) {
        window.grab();
        if (auto* review = dynamic_cast<TfrmFound*>(&form)) {
            found += review->sgStrings.RowCount();
            review->acViewSkipped.Execute();
            desk.Idle();
        } else if (auto* editor = dynamic_cast<TfrmTransEditor*>(&form)) {
            for (std::size_t row = 0; row < editor->lbKinds.RowCount(); ++row)
                texts += std::stoul(editor->lbKinds.CellText(row, KindsList::Texts));
        }
        form.Close(desk.ui, ModalResult::Cancel);
    };
    for (const char* command : {"&With form...", "&Translate"})
        for (int row = 0; row < forms; ++row) {
            desk.ClickCell(list, row, 0);
            desk.Trigger(*main.findChild<QMenuBar*>("MainMenu"), command);
        }
    printf("%zu strings found, %zu texts; %.1f s\n%s", found, texts,
           std::chrono::duration<double>(std::chrono::steady_clock::now() - opened).count(),
           desk.messages.c_str());
    EXPECT_GT(forms, 0);
}

} // namespace
} // namespace glotta
