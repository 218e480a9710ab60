#include "workbench/Placement.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace glotta {

FormPlacement PlacementOf(const QWidget& window) {
    const QRect place = window.isMaximized() ? window.normalGeometry() : window.geometry();
    return {place.left(), place.top(), place.width(), place.height(), window.isMaximized()};
}

void Place(QWidget& window, const FormPlacement& placement) {
    const QRect wanted(placement.left, placement.top, placement.width, placement.height);
    const QScreen* screen = QGuiApplication::screenAt(wanted.center());
    const QRect free = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const QSize size = wanted.size().boundedTo(free.size());
    window.setGeometry(std::clamp(wanted.left(), free.left(), free.right() - size.width() + 1),
                       std::clamp(wanted.top(), free.top(), free.bottom() - size.height() + 1), size.width(),
                       size.height());
    if (placement.maximized) window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

} // namespace glotta
