// Every form of a project of one's own through every window: GLOTTA_PROJECT names the project file. Nothing
// is saved. GLOTTA_FORM names one form file for the exclusion editor, GLOTTA_WIZARD_PROJECT a copy of a project that
// the wizard may write.
#include "editors/Excludededitor.h"
#include "editors/Translationwizard.h"
#include "platform/Files.h"
#include "scanner/_scan.h"
#include "workbench/ExpertDesk.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>

#include <chrono>

namespace glotta {
namespace {

double Seconds(const std::function<void()>& act) {
    const auto start = std::chrono::steady_clock::now();
    act();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

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

TEST(RealProject, AFormInTheExclusionEditor) {
    const std::string fileName = qEnvironmentVariable("GLOTTA_FORM").toStdString();
    if (fileName.empty()) GTEST_SKIP() << "GLOTTA_FORM names no form file";
    RegisterGlottaClasses();
    FormFile file = FormFile::Parse(ReadFile(PathFromText(fileName)), fileName);
    ComponentTree tree(file, "TForm", ClassCatalogue::OfForm(fileName));
    auto& lang = dynamic_cast<TgxCustomLang&>(tree.Create("TGlotta", tree.UniqueName("TGlotta")));
    TempFolder folder;
    RegFileStore registry(folder / "settings.reg");
    QtUi ui;
    Hands hands;
    hands.Take(ui);
    std::string times;
    const auto timed = [&](const char* what, const std::function<void()>& act) {
        const double took = Seconds([&] {
            act();
            Hands::Idle();
        });
        times += std::string(what) + " " + std::to_string(int(took * 1000)) + " ms, ";
        EXPECT_LT(took, 2.0) << what;
    };
    const auto show = [&](const std::function<void(TfrmExcludeFromTranslation&, QWidget&)>& use) {
        const auto start = std::chrono::steady_clock::now();
        hands.uses.push_back([&, start](TForm& form, QWidget& window) {
            Hands::Idle();
            const auto took = std::chrono::steady_clock::now() - start;
            times += "opened " + std::to_string(std::chrono::duration_cast<std::chrono::milliseconds>(took).count()) + " ms, ";
            use(dynamic_cast<TfrmExcludeFromTranslation&>(form), window);
        });
        return DisplayExcludeDialog(ui, registry, lang, CompPropertiesPage, false);
    };
    EXPECT_TRUE(show([&](TfrmExcludeFromTranslation& form, QWidget& window) {
        ExclusionModel& model = form.Model;
        const std::vector<int> nodes = model.tvComponents.InOrder();
        printf("%zu components\n", nodes.size());
        timed("every node selected", [&] {
            for (const int node : nodes)
                model.tvComponents.Select(node);
        });
        // The first property that is left, of whatever component.
        const auto selectProperty = [&] {
            for (const int node : nodes) {
                model.tvComponents.Select(node);
                if (!model.tvProperties.Empty()) return model.tvProperties.Select(0);
            }
        };
        selectProperty();
        for (const ExclusionPage page : {CompPropertiesPage, PropertiesPage}) {
            form.pcExcluded.Enter(page);
            for (const char* text : {"string", "class"}) {
                hands.inputs = {text};
                timed("by type name", [&] { form.acAddPropertyByType.Execute(); });
            }
            hands.inputs = {"a"};
            timed("by name", [&] { form.acAddPropertyByName.Execute(); });
            timed("sorted", [&] { form.acSortList.Execute(); });
            timed("cleared", [&] { form.acClearList.Execute(); });
            selectProperty();
            timed("by type", [&] { form.acAddPropertyAsSelectedType.Execute(); });
            selectProperty();
            timed("one", [&] { form.acAddProperty.Execute(); });
            form.Drop(page, TfrmExcludeFromTranslation::DragSource::Properties);
        }
        form.pcExcluded.Enter(ComponentsPage);
        timed("class", [&] { form.acAddAllByComponent.Execute(); });
        model.tvComponents.Select(0);
        timed("childs", [&] { form.acAddCompChilds.Execute(); });
        form.Drop(ComponentsPage, TfrmExcludeFromTranslation::DragSource::Components);
        timed("clear all", [&] { form.acClearAll.Execute(); });
        model.AddPropertyName("Hint");
        Hands::Picture(window, "real-exclude");
        window.findChild<QAbstractButton*>("btOK")->click();
    }));
    EXPECT_FALSE(show([](auto&, QWidget& window) { window.findChild<QAbstractButton*>("btOK")->click(); }));
    for (const auto answer : {ModalResult::Cancel, ModalResult::No, ModalResult::Yes})
        EXPECT_EQ(show([&](TfrmExcludeFromTranslation& form, QWidget& window) {
                      form.Model.AddPropertyName("Name" + std::to_string(int(answer)));
                      ui.AnswerMessage = [&](const std::string&, const MsgButtons&) { return std::optional(answer); };
                      window.close();
                      const bool open = form.modalResult == ModalResult::None;
                      EXPECT_EQ(open, answer == ModalResult::Cancel);
                      if (open) form.Model.modified = false;
                  }),
                  answer == ModalResult::Yes);
    printf("%s\n", times.c_str());
    EXPECT_EQ(lang.GetStrings("ExcludedProperties").size(), 2u);
}

TEST(RealProject, TheWizardOverItsForms) {
    const std::string project = qEnvironmentVariable("GLOTTA_WIZARD_PROJECT").toStdString();
    if (project.empty()) GTEST_SKIP() << "GLOTTA_WIZARD_PROJECT names no copy of a project";
    ExpertDesk desk("delphi/OrderDesk", project.c_str());
    QWidget& main = desk.OpenMainWindow();
    desk.Trigger(*main.findChild<QMenuBar*>("MainMenu"), "Select &All");
    desk.uses.push_back([&](TForm& form, QWidget& window) {
        auto& wizard = dynamic_cast<TfrmTranslationWizard&>(form);
        const std::size_t forms = wizard.lvSelectedForms.RowCount();
        wizard.btnNext.Execute();
        for (std::size_t row = 1; row < forms; ++row)
            wizard.lvSelectedForms.SetInsert(row, "TGlottaLinked");
        wizard.btnNext.Execute();
        wizard.rbSetManually.Execute();
        wizard.edLanguagesToUse.Enter("English,\"Plain German\"");
        EXPECT_TRUE(wizard.cbCommonContainer().starts_with("Newly inserted (")) << wizard.cbCommonContainer();
        wizard.btnNext.Execute();
        wizard.ckbChangeProperties.Enter(true);
        wizard.btnNext.Execute();
        int closes = 0;
        const auto before = wizard.pbProgress.OnView;
        wizard.pbProgress.OnView = [&] {
            before();
            if (wizard.Page() == tsPerform && wizard.pbProgress() == 20) closes = window.close() ? 2 : 1;
        };
        const double took = Seconds([&] { desk.Click(window, "btnNext"); });
        wizard.pbProgress.OnView = before;
        EXPECT_EQ(closes, 1) << "closed at work";
        EXPECT_EQ(wizard.Page(), tsFinal);
        desk.Picture(window, "real-wizard");
        printf("%zu forms in %.1f s, %zu failed\n%s\n", forms, took, wizard.Failures().size(), wizard.lbFinal().c_str());
        desk.Click(window, "btnClose");
    });
    desk.Trigger(*main.findChild<QMenuBar*>("MainMenu"), "&Wizard");
    GridView& list = desk.Grid(main, "lvFormNames");
    std::map<std::string, int> components;
    for (int row = 0; row < list.model()->rowCount(); ++row)
        ++components[list.model()->index(row, 4).data().toString().toStdString()];
    for (const auto& [name, count] : components)
        printf("%d x \"%s\"\n", count, name.c_str());
    printf("%s", desk.messages.c_str());
}

} // namespace
} // namespace glotta
