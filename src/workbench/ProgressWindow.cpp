#include "workbench/ProgressWindow.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace glotta {

ProgressWindow::ProgressWindow() : QFrame(nullptr, Qt::SplashScreen), label_(new QLabel(this)) {
    setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 20, 28, 20);
    layout->addWidget(label_);
    label_->setMinimumWidth(280);
    label_->setAlignment(Qt::AlignCenter);
    label_->setTextFormat(Qt::PlainText);
}

// Drawn at once, for the work that it announces leaves no time for events. What the person does meanwhile
// waits.
void ProgressWindow::SetText(const QString& text, QWidget* over) {
    label_->setText(text);
    if (text.isEmpty()) return hide();
    adjustSize();
    if (over) move(over->window()->frameGeometry().center() - rect().center());
    show();
    raise();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
    repaint();
}

ProgressWindow::Hidden::Hidden(ProgressWindow* window)
    : window_(window && window->isVisible() ? window : nullptr) {
    if (window_) window_->hide();
}

ProgressWindow::Hidden::~Hidden() {
    if (window_ && !window_->label_->text().isEmpty()) window_->show();
}

} // namespace glotta
