#include "workbench/ProgressWindow.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace glotta {
namespace {

constexpr int PollInterval = 40; // milliseconds

} // namespace

ProgressWindow::ProgressWindow()
    : QFrame(nullptr, Qt::Dialog | Qt::FramelessWindowHint), label_(new QLabel(this)),
      cancel_(new QPushButton("Cancel", this)) {
    setObjectName("progress");
    setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    setWindowModality(Qt::ApplicationModal); // the expert is at work: nothing else takes input
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 20, 28, 20);
    layout->setSpacing(14);
    layout->addWidget(label_);
    layout->addWidget(cancel_, 0, Qt::AlignHCenter);
    label_->setMinimumWidth(280);
    label_->setAlignment(Qt::AlignCenter);
    label_->setTextFormat(Qt::PlainText);
    cancel_->setObjectName("cancel");
    connect(cancel_, &QPushButton::clicked, this, [this] { cancelled_ = true; });
}

void ProgressWindow::SetText(const QString& text, QWidget* over) {
    label_->setText(text);
    if (text.isEmpty()) return hide();
    if (!isVisible()) {
        cancelled_ = false;
        cancel_->hide();
    }
    over_ = over ? over->window()->frameGeometry() : QRect();
    PlaceOver();
    show();
    raise();
    Draw();
}

// Drawn at once, for the work that it announces leaves no time for events. What the person does meanwhile waits.
void ProgressWindow::Draw() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
    repaint();
}

void ProgressWindow::PlaceOver() {
    adjustSize();
    if (!over_.isNull()) move(over_.center() - rect().center());
}

bool ProgressWindow::Cancelled() {
    if (!isVisible() || polling_) return cancelled_;
    if (cancel_->isHidden()) {
        cancel_->show();
        PlaceOver();
        activateWindow();
        cancel_->setFocus();
        Draw();
    }
    if (cancelled_ || (polled_.isValid() && polled_.elapsed() < PollInterval)) return cancelled_;
    polling_ = true;
    QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
    polling_ = false;
    polled_.start();
    return cancelled_;
}

void ProgressWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        cancelled_ = true;
    else
        QFrame::keyPressEvent(event);
}

void ProgressWindow::closeEvent(QCloseEvent* event) {
    cancelled_ = true;
    event->ignore();
}

ProgressWindow::Hidden::Hidden(ProgressWindow* window)
    : window_(window && window->isVisible() ? window : nullptr) {
    if (window_) window_->hide();
}

ProgressWindow::Hidden::~Hidden() {
    if (window_ && !window_->label_->text().isEmpty()) window_->show();
}

} // namespace glotta
