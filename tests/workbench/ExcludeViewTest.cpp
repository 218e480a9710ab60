// The exclusion editor's window under the hands of a person: dragging, splitters, placement, long runs.
#include "editors/Excludededitor.h"

#include "editors/Dntcedit.h"
#include "workbench/ExpertDesk.h"
#include "workbench/TreeView.h"

#include <QtCore/QProcess>
#include <QtCore/QTimer>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTabWidget>

namespace glotta {
namespace {

template <class Widget> Widget& In(QWidget& window, const char* name) {
    auto* found = window.findChild<Widget*>(name);
    EXPECT_NE(found, nullptr) << name;
    return *found;
}

const char* const Sample = "object Form1: TForm1\n  object Panel1: TPanel\n    object Button1: TButton\n"
                           "      Caption = 'Go'\n    end\n  end\n  object Timer1: TTimer\n  end\n"
                           "  object Glotta1: TGlotta\n  end\nend\n";

struct ExcludeDesk : Hands {
    TempFolder folder;
    RegFileStore registry{folder / "settings.reg"};
    QtUi ui;
    FormFile file{(RegisterGlottaClasses(), FormFile::Parse(Sample, "Form1.dfm"))};
    ComponentTree tree{file, "TForm"};
    TgxCustomLang& lang = dynamic_cast<TgxCustomLang&>(*tree.Root().FindComponent("Glotta1"));

    ExcludeDesk() { Take(ui); }
    using Use = std::function<void(TfrmExcludeFromTranslation&, QWidget&)>;
    bool Show(int page, bool onlyThisPage, const Use& use) {
        uses.push_back([&](TForm& form, QWidget& window) {
            use(dynamic_cast<TfrmExcludeFromTranslation&>(form), window);
        });
        return DisplayExcludeDialog(ui, registry, lang, page, onlyThisPage);
    }
    static QModelIndex At(TreeView& view, const char* text) {
        const auto found = view.model()->match(view.model()->index(0, 0), Qt::DisplayRole, text, 1,
                                               Qt::MatchExactly | Qt::MatchRecursive);
        EXPECT_FALSE(found.isEmpty()) << text;
        return found.isEmpty() ? QModelIndex() : found.front();
    }
    // Takes a node by the mouse and lets it go over the list.
    static void Drag(TreeView& from, const char* text, GridView& list) {
        from.scrollTo(At(from, text));
        const QPoint start = from.visualRect(At(from, text)).center();
        const QPoint target = list.viewport()->mapTo(list.window(), QPoint(20, 20));
        QWindow* const window = list.window()->windowHandle();
        QTest::mousePress(from.viewport(), Qt::LeftButton, {}, start);
        QTimer::singleShot(0, window, [window, target] {
            QTest::mouseMove(window, target);
            QTest::mouseMove(window, target + QPoint(2, 2));
            QTest::mouseRelease(window, Qt::LeftButton, {}, target + QPoint(2, 2));
        });
        // The second move starts the drag, which ends before it returns.
        for (const int distance : {QApplication::startDragDistance() + 2, QApplication::startDragDistance() + 6}) {
            QMouseEvent move(QEvent::MouseMove, start + QPoint(distance, 0),
                             from.viewport()->mapToGlobal(start + QPoint(distance, 0)), Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(from.viewport(), &move);
        }
        Idle();
    }
};

std::string Lists(const TfrmExcludeFromTranslation& form) {
    return JoinLines(form.Model.lbExclComponents.Items(), ",") + " / " +
           JoinLines(form.Model.lbExclProperties.Items(), ",") + " / " +
           JoinLines(form.Model.lbExclCompProps.Items(), ",") + (form.Model.modified ? " *" : "");
}

// The offscreen platform cannot drag: then this test runs as a program of its own on the one that can.
TEST(Views, ExclusionsByDragAndDrop) {
    if (QGuiApplication::platformName() != "minimal") {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "minimal");
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=Views.ExclusionsByDragAndDrop"});
        ASSERT_TRUE(program.waitForFinished(60000));
        const std::string output = program.readAll().toStdString();
        EXPECT_EQ(program.exitCode(), 0) << output;
        EXPECT_NE(output.find("[  PASSED  ] 1 test."), std::string::npos) << output;
        return;
    }
    ExcludeDesk desk;
    desk.Show(PropertiesPage, false, [&](TfrmExcludeFromTranslation& form, QWidget& window) {
        auto& components = In<TreeView>(window, "tvComponents");
        auto& properties = In<TreeView>(window, "tvProperties");
        const std::array lists = {&desk.Grid(window, "lbExclComponents"), &desk.Grid(window, "lbExclProperties"),
                                  &desk.Grid(window, "lbExclCompProps")};
        const auto drag = [&](TreeView& from, const char* text, ExclusionPage page) {
            In<QTabWidget>(window, "pcExcluded").setCurrentIndex(page);
            desk.Idle();
            desk.Drag(from, text, *lists[page]);
            return Lists(form);
        };
        components.expandAll();
        EXPECT_EQ(drag(components, "Button1", PropertiesPage), " /  / ");
        EXPECT_EQ(drag(components, "Button1", CompPropertiesPage), " /  / ");
        EXPECT_EQ(drag(properties, "Caption", ComponentsPage), " /  / ");
        EXPECT_EQ(drag(properties, "Caption", CompPropertiesPage), " /  / ");
        EXPECT_EQ(drag(properties, "Caption", PropertiesPage), " / Caption / ");
        EXPECT_TRUE(properties.model()->match(properties.model()->index(0, 0), Qt::DisplayRole, "Caption").isEmpty());
        EXPECT_EQ(desk.messages, "");
        EXPECT_EQ(drag(components, "Button1", ComponentsPage), "Button1 / Caption /  *");
        EXPECT_EQ(drag(components, "Button1", ComponentsPage), "Button1 / Caption /  *");
    });
    EXPECT_EQ(desk.messages, "Properties data was changed! Save changes?\n");
}

TEST(Views, ClearingAllWhereOnePageShows) {
    ExcludeDesk desk;
    desk.lang.SetDoNotList({"Timer1"});
    desk.lang.SetExProps({"Hint"});
    desk.Show(PropertiesPage, true, [&](TfrmExcludeFromTranslation& form, QWidget& window) {
        auto& pages = In<QTabWidget>(window, "pcExcluded");
        const auto shown = [&] {
            std::string text = std::to_string(pages.currentIndex());
            for (int page = 0; page < pages.count(); ++page)
                text += pages.isTabVisible(page) ? "+" : "-";
            return text;
        };
        EXPECT_EQ(shown(), "1-+-");
        desk.Trigger(window, "Clear All");
        EXPECT_EQ(Lists(form), " /  /  *");
        EXPECT_EQ(shown(), "1-+-");
        EXPECT_TRUE(desk.Grid(window, "lbExclProperties").isVisible());
        desk.Click(window, "btOK");
    });
    EXPECT_EQ(desk.messages, "This will empty all the exclusion lists! Continue?\n");
}

// The window is not painted meanwhile; a window of its own tells how far the run is.
TEST(Views, ALongRunOfAddingExclusions) {
    ExcludeDesk desk;
    desk.Show(PropertiesPage, false, [&](TfrmExcludeFromTranslation& form, QWidget& window) {
        form.Model.progressAfter = {};
        desk.inputs = {"caption"};
        std::string seen;
        form.Frozen.OnView = [&, before = form.Frozen.OnView] {
            before();
            seen += window.updatesEnabled() ? "painted " : "frozen ";
        };
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            for (QWidget* top : QApplication::topLevelWidgets())
                if (top->objectName() == "progress" && top->isVisible() && top->updatesEnabled() &&
                    !window.updatesEnabled() && !seen.ends_with("progress "))
                    seen += "progress ";
        });
        timer.start(0);
        desk.Trigger(window, "Add by Name...");
        EXPECT_EQ(seen, "frozen progress painted ");
        EXPECT_EQ(Lists(form), " / Caption /  *");
        desk.Click(window, "btOK");
    });
}

TEST(Views, SplittersAndPlacementOfTheExclusions) {
    ExcludeDesk desk;
    const auto state = [](QWidget& window) {
        return std::array{window.x(), window.y(), window.width(), window.height(),
                          In<QSplitter>(window, "VerticalSplitter").sizes().front(),
                          In<QSplitter>(window, "HorizontalSplitter").sizes().back()};
    };
    std::array<int, 6> left{};
    desk.Show(PropertiesPage, false, [&](TfrmExcludeFromTranslation&, QWidget& window) {
        EXPECT_EQ(state(window)[4], 238);
        EXPECT_EQ(state(window)[5], 183);
        window.setGeometry(60, 50, 700, 480);
        desk.Idle();
        for (const auto& [name, by] : {std::pair{"VerticalSplitter", QPoint(50, 0)}, std::pair{"HorizontalSplitter", QPoint(0, -40)}}) {
            QWidget* const handle = In<QSplitter>(window, name).handle(1);
            const QPoint at = handle->rect().center();
            QTest::mousePress(handle, Qt::LeftButton, {}, at);
            QTest::mouseMove(handle, at + by);
            QTest::mouseRelease(handle, Qt::LeftButton, {}, at + by);
        }
        desk.Idle();
        left = state(window);
    });
    EXPECT_EQ(desk.registry.ReadString(TfrmExcludeFromTranslation::Key, "LeftPanelWidth"), std::to_string(left[4]));
    EXPECT_EQ(desk.registry.ReadString(TfrmExcludeFromTranslation::Key, "PropertiesPanelHeight"),
              std::to_string(left[5]));
    desk.Show(PropertiesPage, false, [&](TfrmExcludeFromTranslation&, QWidget& window) { EXPECT_EQ(state(window), left); });
}

TEST(Views, TheTwoListsSayWhatTheirCallerWants) {
    ExcludeDesk desk;
    TfrmNotTranslate form(desk.ui, desk.registry);
    form.caption = "Selecting Properties";
    form.lblPrompt = "Please select properties that will be saved to file.";
    form.lblComps = "&Available properties:";
    form.lblSelected = "&Selected properties:";
    desk.uses.push_back([&](TForm&, QWidget& window) {
        std::string texts = window.windowTitle().toStdString();
        for (const char* label : {"lblPrompt", "lblComps", "lblSelected"})
            texts += "|" + In<QLabel>(window, label).text().toStdString();
        EXPECT_EQ(texts, "Selecting Properties|Please select properties that will be saved to file.|"
                         "&Available properties:|&Selected properties:");
    });
    desk.ui.ShowModal(form);
}

TEST(Views, TheTwoListsKeepTheirPlacement) {
    ExcludeDesk desk;
    const auto show = [&](const std::function<void(QWidget&)>& use) {
        TfrmNotTranslate form(desk.ui, desk.registry);
        desk.uses.push_back([&](TForm&, QWidget& window) { use(window); });
        desk.ui.ShowModal(form);
    };
    const auto stored = [&] {
        std::string text;
        for (const char* value : {"Width", "Height", "Top", "Left", "LeftWidth"})
            text += desk.registry.ReadString(TfrmNotTranslate::PlacementKey, value).value_or("-") + " ";
        return text;
    };
    const auto middle = [](QWidget& window) {
        auto& button = In<QWidget>(window, "btMove");
        return button.mapTo(&window, button.rect().center()).x() - window.width() / 2;
    };
    const auto leftWidth = [](QWidget& window) { return In<QWidget>(window, "pnLeft").width(); };
    show([&](QWidget& window) { EXPECT_LE(std::abs(middle(window)), 1); });
    EXPECT_EQ(stored().find('-'), std::string::npos) << stored(); // as it stood, though nobody moved it
    desk.registry.WriteString(TfrmNotTranslate::PlacementKey, "LeftWidth", "120");
    show([&](QWidget& window) {
        EXPECT_EQ(leftWidth(window), 120);
        window.setGeometry(30, 40, 560, 400);
        desk.Idle();
        EXPECT_LE(std::abs(middle(window)), 1);
    });
    EXPECT_TRUE(stored().starts_with("560 400 40 30 ")) << stored();
    show([&](QWidget& window) {
        EXPECT_EQ(window.geometry(), QRect(30, 40, 560, 400));
        EXPECT_LE(std::abs(middle(window)), 1);
    });
}

} // namespace
} // namespace glotta
