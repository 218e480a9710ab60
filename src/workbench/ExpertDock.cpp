#include "workbench/ExpertDock.h"

#include <QtGui/QCloseEvent>
#include <QtWidgets/QMainWindow>

namespace glotta {

ExpertDock::ExpertDock(QMainWindow& host, QWidget& window)
    : QDockWidget(window.windowTitle(), &host), host_(host), before_(window.geometry()) {
    setObjectName("TGlottaExpertIDEDockableForm");
    if (!host_.restoreDockWidget(this)) host_.addDockWidget(Qt::RightDockWidgetArea, this);
    window.setWindowFlags(Qt::Widget);
    setWidget(&window);
    connect(&window, &QWidget::windowTitleChanged, this, &QWidget::setWindowTitle);
    show();
    window.show();
}

void ExpertDock::Release() {
    QWidget* const window = widget();
    window->setParent(&host_, Qt::Window);
    window->setGeometry(before_);
    window->show();
}

void ExpertDock::Leave() {
    const QByteArray places = host_.saveState();
    host_.removeDockWidget(this);
    setObjectName({});
    host_.restoreState(places);
    deleteLater();
}

void ExpertDock::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (widget()) widget()->close();
}

} // namespace glotta
