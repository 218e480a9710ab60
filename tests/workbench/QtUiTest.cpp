// Questions on the screen: their kinds, captions and buttons, and what each way out means.
#include "workbench/QtUi.h"
#include "workbench/FileFilters.h"

#include <QtCore/QTimer>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <gtest/gtest.h>

namespace glotta {
namespace {

// Shows a message, tells what is seen and presses the button, or Escape.
std::string Ask(MsgType type, const MsgButtons& buttons, const char* press, const std::string& caption = {}) {
    QtUi ui;
    std::string seen;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        seen = box->windowTitle().toStdString() + "|" + std::to_string(int(box->icon())) + "|" +
               box->text().toStdString() + "|";
        QAbstractButton* wanted = nullptr;
        for (QAbstractButton* button : box->buttons()) {
            seen += button->text().remove('&').toStdString() + " ";
            if (button->text().remove('&') == press) wanted = button;
        }
        if (wanted)
            wanted->click();
        else
            QTest::keyClick(box, Qt::Key_Escape);
    });
    return std::to_string(int(ui.MessageDlg("<b>Go on?", type, buttons, caption))) + " " + seen;
}

TEST(QtUi, Messages) {
    using enum ModalResult;
    EXPECT_EQ(Ask(MsgType::Information, {OK}, "OK"), "1 Information|1|<b>Go on?|OK ");
    EXPECT_EQ(Ask(MsgType::Error, {OK}, "Escape"), "1 Error|3|<b>Go on?|OK ");
    EXPECT_EQ(Ask(MsgType::Confirmation, {Yes, No}, "Yes"), "6 Confirm|4|<b>Go on?|Yes No ");
    EXPECT_EQ(Ask(MsgType::Warning, {Yes, No}, "Escape"), "7 Warning|2|<b>Go on?|Yes No ");
    EXPECT_EQ(Ask(MsgType::Warning, {Yes, No, Cancel}, "Escape").substr(0, 2), "2 ");
    EXPECT_EQ(Ask(MsgType::Confirmation, {Yes, YesToAll, No, Cancel}, "Yes to All").substr(0, 3), "14 ");
    EXPECT_EQ(Ask(MsgType::Plain, {OK}, "OK", "TGlotta Expert (VCL Edition)"),
              "1 TGlotta Expert (VCL Edition)|0|<b>Go on?|OK ");
}

// A list of phrases may be longer than any screen: it is scrolled, and the buttons stay in reach.
TEST(QtUi, LongMessagesLeaveTheButtonsOnTheScreen) {
    QtUi ui;
    std::string text;
    for (int i = 0; i < 500; ++i)
        text += "Phrase " + std::to_string(i) + "\r\n";
    QTimer::singleShot(0, [&] {
        QWidget* const box = QApplication::activeModalWidget();
        ASSERT_NE(box, nullptr);
        EXPECT_LT(box->height(), 500);
        const auto* shown = box->findChild<QPlainTextEdit*>();
        EXPECT_TRUE(shown && shown->toPlainText().contains("Phrase 499"));
        QTest::keyClick(box, Qt::Key_Escape);
    });
    EXPECT_EQ(ui.MessageDlg(text, MsgType::Confirmation, {ModalResult::Yes, ModalResult::No}, {}), ModalResult::No);
}

TEST(QtUi, InputBoxGivesNothingWhenCancelled) {
    QtUi ui;
    for (const bool ok : {true, false}) {
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->textValue(), "10");
            QTest::keyClicks(box->findChild<QLineEdit*>(), "Ä");
            QTest::keyClick(box, ok ? Qt::Key_Return : Qt::Key_Escape);
        });
        EXPECT_EQ(ui.InputBox("TGlotta Expert", "Start:", "10"),
                  ok ? std::optional<std::string>("Ä") : std::nullopt);
    }
}

TEST(QtUi, FileFilters) {
    EXPECT_EQ(
        NameFilters("Text (*.txt)|*.txt|Pictures|*.png;*.jpg|All (files) (*.*)|*.*").join("; ").toStdString(),
        "Text (*.txt); Pictures (*.png *.jpg); All (files) (*)");
    EXPECT_TRUE(NameFilters("").isEmpty());
}

TEST(QtUi, ProgressIsShownUntilItIsClosedAndMakesWayForQuestions) {
    QtUi ui;
    const auto visible = [] {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == "progress" && window->isVisible())
                return window->findChild<QLabel*>()->text().toStdString();
        return std::string();
    };
    {
        Progress progress(ui, "Scanning...");
        EXPECT_EQ(visible(), "Scanning...");
        progress.Text("Applying...");
        EXPECT_EQ(visible(), "Applying...");
        QTimer::singleShot(0, [&] {
            EXPECT_EQ(visible(), "");
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        });
        ui.MessageDlg("?", MsgType::Plain, {ModalResult::OK}, {});
        EXPECT_EQ(visible(), "Applying...");
    }
    EXPECT_EQ(visible(), "");
}

TEST(QtUi, ARunThatAsksCanBeStoppedAndNothingElseTakesInput) {
    QtUi ui;
    QPushButton other("Other");
    other.show();
    int pressed = 0;
    QObject::connect(&other, &QPushButton::clicked, [&] { ++pressed; });
    EXPECT_FALSE(ui.Cancelled()) << "no run at all";
    for (const bool byKey : {true, false}) {
        Progress progress(ui, "Scanning...");
        QWidget* window = QApplication::activeModalWidget();
        ASSERT_NE(window, nullptr);
        auto* cancel = window->findChild<QPushButton*>("cancel");
        EXPECT_FALSE(cancel->isVisible()) << "no dead control where nobody asks";
        EXPECT_FALSE(progress.Cancelled());
        EXPECT_TRUE(cancel->isVisible());
        if (const QString folder = qEnvironmentVariable("GLOTTA_PICTURES"); byKey && !folder.isEmpty())
            window->grab().save(folder + "/progress.png");
        QCoreApplication::postEvent(other.windowHandle(), new QMouseEvent(QEvent::MouseButtonPress, {3, 3}, {3, 3}, {3, 3},
                                                                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
        QTest::qSleep(50); // longer than it takes until events are looked at again
        EXPECT_FALSE(progress.Cancelled());
        if (byKey)
            QTest::keyClick(window, Qt::Key_Escape);
        else
            QTest::mouseClick(cancel, Qt::LeftButton);
        EXPECT_TRUE(progress.Cancelled());
    }
    EXPECT_EQ(pressed, 0);
    Progress next(ui, "Scanning...");
    EXPECT_FALSE(next.Cancelled());
}

} // namespace
} // namespace glotta
