#include "workbench/ExpertDock.h"

#include <QtGui/QCloseEvent>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QStatusBar>

namespace glotta {

ExpertDock::ExpertDock(QMainWindow& host, QWidget& window)
    : QDockWidget(window.windowTitle(), &host), host_(host), before_(window.geometry()) {
    setObjectName("TGlottaExpertIDEDockableForm");
    const bool hadPlace = host_.restoreDockWidget(this);
    if (!hadPlace) host_.addDockWidget(Qt::RightDockWidgetArea, this);
    window.setWindowFlags(Qt::Widget);
    setWidget(&window);
    connect(&window, &QWidget::windowTitleChanged, this, &QWidget::setWindowTitle);
    if (!hadPlace) host_.resizeDocks({this}, {host_.width() / 2}, Qt::Horizontal);
    if (auto* bar = window.findChild<QStatusBar*>()) bar->setSizeGripEnabled(false); // the host has one
    show();
    window.show();
}

void ExpertDock::Release() {
    QWidget* const window = widget();
    window->setParent(&host_, Qt::Window);
    if (auto* bar = window->findChild<QStatusBar*>()) bar->setSizeGripEnabled(true);
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
