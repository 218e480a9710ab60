#include "workbench/QtUi.h"

#include "platform/Error.h"
#include "workbench/FileFilters.h"
#include "workbench/HelpWindow.h"
#include "workbench/ProgressWindow.h"
#include "workbench/Views.h"

#include <QtCore/QEventLoop>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPlainTextEdit>

#include <algorithm>
#include <typeinfo>

namespace glotta {

namespace {

struct Kind {
    QMessageBox::Icon icon;
    const char* caption;
};

Kind KindOf(MsgType type) {
    switch (type) {
    case MsgType::Information:
        return {QMessageBox::Information, "Information"};
    case MsgType::Warning:
        return {QMessageBox::Warning, "Warning"};
    case MsgType::Error:
        return {QMessageBox::Critical, "Error"};
    case MsgType::Confirmation:
        return {QMessageBox::Question, "Confirm"};
    case MsgType::Plain:
        break;
    }
    return {QMessageBox::NoIcon, ""};
}

constexpr struct {
    ModalResult result;
    QMessageBox::StandardButton button;
} Buttons[] = {{ModalResult::OK, QMessageBox::Ok},
               {ModalResult::Cancel, QMessageBox::Cancel},
               {ModalResult::Yes, QMessageBox::Yes},
               {ModalResult::No, QMessageBox::No},
               {ModalResult::YesToAll, QMessageBox::YesToAll}};

// What closing the box with its own button or Escape means.
ModalResult Unanswered(const MsgButtons& buttons) {
    for (const ModalResult way : {ModalResult::Cancel, ModalResult::No, ModalResult::OK})
        if (std::find(buttons.begin(), buttons.end(), way) != buttons.end()) return way;
    return ModalResult::Cancel;
}

constexpr int LongText = 2000, ManyLines = 25;

// A text that would push the buttons off the screen, such as a list of phrases, is scrolled.
void ScrollLongText(QMessageBox& box) {
    const QString text = box.text();
    auto* const label = box.findChild<QLabel*>("qt_msgbox_label");
    auto* const layout = qobject_cast<QGridLayout*>(box.layout());
    if (!label || !layout || (text.size() <= LongText && text.count('\n') <= ManyLines)) return;
    auto* const memo = new QPlainTextEdit(text, &box);
    memo->setObjectName("text");
    memo->setReadOnly(true);
    memo->setTabChangesFocus(true);
    memo->setMinimumSize(480, 320);
    int row = 0, column = 0, rows = 1, columns = 1;
    layout->getItemPosition(layout->indexOf(label), &row, &column, &rows, &columns);
    label->hide();
    layout->addWidget(memo, row, column, rows, columns);
}

} // namespace

QtUi::QtUi() = default;

QtUi::~QtUi() {
    for (const auto& [form, view] : views_)
        delete view;
}

QWidget* QtUi::ActiveModal() const {
    QWidget* const modal = QApplication::activeModalWidget();
    return modal == progress_.get() ? nullptr : modal;
}

QWidget* QtUi::Parent() const {
    if (QWidget* modal = ActiveModal()) return modal;
    QWidget* active = QApplication::activeWindow();
    return active && active != progress_.get() ? active : mainWindow;
}

ModalResult QtUi::MessageDlg(const std::string& text, MsgType type, const MsgButtons& buttons,
                             const std::string& caption) {
    if (AnswerMessage)
        if (const auto answer = AnswerMessage(text, buttons)) return *answer;
    const ProgressWindow::Hidden hidden(progress_.get());
    const Kind kind = KindOf(type);
    QMessageBox box(kind.icon, Q(caption.empty() ? kind.caption : caption), Q(text), QMessageBox::NoButton,
                    Parent());
    if (box.windowTitle().isEmpty()) box.setWindowTitle(QApplication::applicationDisplayName());
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    const ModalResult unanswered = Unanswered(buttons);
    for (const auto& known : Buttons)
        if (std::find(buttons.begin(), buttons.end(), known.result) != buttons.end()) {
            QAbstractButton* const button = box.addButton(known.button);
            if (known.result == unanswered) box.setEscapeButton(button);
        }
    ScrollLongText(box);
    box.exec();
    for (const auto& known : Buttons)
        if (box.clickedButton() && box.standardButton(box.clickedButton()) == known.button)
            return known.result;
    return unanswered;
}

std::optional<std::string> QtUi::InputBox(const std::string& caption, const std::string& prompt,
                                          const std::string& initial) {
    if (AnswerInput) return AnswerInput(prompt, initial);
    const ProgressWindow::Hidden hidden(progress_.get());
    QInputDialog box(Parent());
    box.setWindowTitle(Q(caption));
    box.setLabelText(Q(prompt));
    box.setTextValue(Q(initial));
    box.resize(420, box.sizeHint().height());
    if (box.exec() != QDialog::Accepted) return {};
    return box.textValue() == Q(initial) ? initial : box.textValue().toStdString();
}

bool QtUi::Execute(FileDialog& dialog) {
    if (AnswerFiles) return AnswerFiles(dialog);
    const ProgressWindow::Hidden hidden(progress_.get());
    const QFileInfo initial(Q(dialog.fileName));
    QFileDialog box(Parent(), Q(dialog.title), initial.path());
    box.setAcceptMode(dialog.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    box.setFileMode(dialog.save || !dialog.mustExist ? QFileDialog::AnyFile
                    : dialog.allowMultiSelect        ? QFileDialog::ExistingFiles
                                                     : QFileDialog::ExistingFile);
    const QStringList filters = NameFilters(dialog.filter);
    if (!filters.isEmpty()) {
        box.setNameFilters(filters);
        box.selectNameFilter(filters.value(dialog.filterIndex - 1, filters.front()));
    }
    box.setDefaultSuffix(Q(dialog.defaultExtension));
    box.selectFile(initial.fileName());
    if (box.exec() != QDialog::Accepted) return false;
    dialog.files.clear();
    for (const QString& file : box.selectedFiles())
        dialog.files.push_back(QDir::toNativeSeparators(file).toStdString());
    dialog.fileName = dialog.files.front();
    dialog.filterIndex = int(filters.indexOf(box.selectedNameFilter())) + 1;
    return true;
}

// --- windows ---

View& QtUi::Open(TForm& form, bool modal) {
    // Over a modal window a window is its child, for all others wait until that is closed.
    QWidget* const parent = modal || ActiveModal() ? Parent() : mainWindow;
    const auto showHelp = [this, &form](std::string_view at) { ShowHelp(at, *WindowOf(form)); };
    const std::string_view help = OfferHelp(form, showHelp); // the view asks whether there is help
    View* const view = MakeView(form, *this, parent);
    if (!view) throw Error(std::string("No window for ") + typeid(form).name());
    views_[&form] = view;
    if (!help.empty()) {
        auto* key = new QAction(&view->Window());
        key->setShortcut(QKeySequence::HelpContents);
        QObject::connect(key, &QAction::triggered, key, [showHelp, help] { showHelp(help); });
        view->Window().addAction(key);
    }
    form.OnGone = [this, &form] { Closed(form, true); };
    return *view;
}

void QtUi::Closed(const TForm& form, bool formIsGone) {
    const auto found = views_.find(&form);
    if (found == views_.end()) return;
    View* const view = found->second;
    views_.erase(found);
    if (formIsGone) {
        view->bind.Forget();
    } else {
        view->bind.Release();
    }
    for (const auto& [other, itsView] : views_)
        if (QWidget& child = itsView->Window(); child.parentWidget() == &view->Window()) {
            child.setParent(mainWindow, child.windowFlags());
            child.show();
        }
    view->Window().hide();
    view->Window().deleteLater(); // it may be a slot of this window that runs
}

ModalResult QtUi::ShowModal(TForm& form) {
    const ProgressWindow::Hidden hidden(progress_.get());
    const QPointer<QWidget> before(QApplication::focusWidget());
    View& view = Open(form, true);
    QEventLoop loop;
    form.modalResult = ModalResult::None;
    form.OnClose = [&loop] { loop.quit(); };
    QWidget& window = view.Window();
    window.setWindowModality(Qt::ApplicationModal);
    window.show();
    window.raise();
    window.activateWindow();
    if (UseModal) QTimer::singleShot(0, &window, [&] { UseModal(form, window); });
    loop.exec();
    form.OnClose = {};
    form.OnGone = {};
    Closed(form, false);
    if (before) before->setFocus();
    return form.modalResult;
}

void QtUi::Show(TForm& form) {
    if (views_.contains(&form)) return BringToFront(form);
    View& view = Open(form, false);
    form.OnClose = [this, &form] {
        form.OnGone = {};
        Closed(form, false);
    };
    view.Window().show();
    BringToFront(form);
}

void QtUi::BringToFront(TForm& form) {
    QWidget* const window = WindowOf(form);
    if (!window) return Show(form);
    if (window->isMinimized()) window->showNormal();
    if (auto* dock = qobject_cast<QDockWidget*>(window->parentWidget())) {
        dock->show();
        dock->raise();
    }
    window->window()->raise();
    window->window()->activateWindow();
}

QWidget* QtUi::WindowOf(const TForm& form) const {
    const auto found = views_.find(&form);
    return found == views_.end() ? nullptr : &found->second->Window();
}

void QtUi::SetProgress(const std::string& text) {
    if (!progress_) progress_ = std::make_unique<ProgressWindow>();
    progress_->SetText(Q(text), Parent());
}

bool QtUi::Cancelled() {
    return progress_ && progress_->Cancelled();
}

} // namespace glotta
