#include "workbench/ExclusionIcons.h"

#include "editors/CandidateProperties.h"
#include "editors/ComponentNodes.h"
#include "vcl/ComponentKinds.h"
#include "workbench/Theme.h"

#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtGui/QPixmap>

#include <functional>

namespace glotta {

namespace {

constexpr int Size = 16, Scale = 2;

struct Inks {
    QColor line, fill, accent;
};

Inks InksOf(const QPalette& palette) {
    const bool dark = IsDark(palette);
    return {palette.color(QPalette::Text), dark ? QColor(70, 84, 104) : QColor(214, 228, 245),
            dark ? QColor(110, 170, 240) : QColor(40, 100, 180)};
}

QIcon Drawn(const std::function<void(QPainter&)>& draw) {
    QPixmap pixmap(Size * Scale, Size * Scale);
    pixmap.setDevicePixelRatio(Scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
    return QIcon(pixmap);
}

void DrawWindow(QPainter& painter, const Inks& inks) {
    painter.drawRect(QRectF(1.5, 2.5, 13, 11));
    painter.fillRect(QRectF(1.5, 2.5, 13, 3.5), inks.accent);
}

void DrawModule(QPainter& painter, const Inks& inks) {
    painter.drawRect(QRectF(2.5, 1.5, 11, 13));
    painter.setBrush(inks.accent);
    painter.drawEllipse(QPointF(8, 8), 2.5, 2.5);
}

void DrawButton(QPainter& painter, const Inks& inks) {
    painter.drawRoundedRect(QRectF(1.5, 4.5, 13, 7), 2, 2);
    painter.fillRect(QRectF(5, 7.25, 6, 1.5), inks.accent);
}

void DrawLabel(QPainter& painter, const Inks& inks) {
    QFont font = painter.font();
    font.setPixelSize(13);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(inks.accent);
    painter.drawText(QRectF(0, 0, Size, Size), Qt::AlignCenter, "A");
}

void DrawGear(QPainter& painter, const Inks& inks) {
    painter.drawEllipse(QPointF(8, 8), 5.5, 5.5);
    painter.setBrush(inks.accent);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QPointF(8, 8), 2, 2);
}

void DrawKind(QPainter& painter, ComponentKind kind, const Inks& inks) {
    painter.setPen(QPen(inks.line, 1));
    painter.setBrush(inks.fill);
    switch (kind) {
    case ComponentKind::Form:
        return DrawWindow(painter, inks);
    case ComponentKind::DataModule:
        return DrawModule(painter, inks);
    case ComponentKind::WindowedControl:
        return DrawButton(painter, inks);
    case ComponentKind::Control:
        return DrawLabel(painter, inks);
    case ComponentKind::NonVisual:
        return DrawGear(painter, inks);
    }
}

void DrawBar(QPainter& painter) {
    painter.setOpacity(1);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(214, 50, 50), 1.8));
    painter.drawEllipse(QPointF(10.5, 10.5), 4.2, 4.2);
    painter.drawLine(QPointF(7.6, 13.4), QPointF(13.4, 7.6));
}

} // namespace

QIcon ComponentIcon(int image, const QPalette& palette) {
    const bool excluded = image >= ComponentNodes::Excluded;
    const auto kind = ComponentKind(excluded ? image - ComponentNodes::Excluded : image);
    return Drawn([&](QPainter& painter) {
        if (excluded) painter.setOpacity(0.45);
        DrawKind(painter, kind, InksOf(palette));
        if (excluded) DrawBar(painter);
    });
}

QIcon PropertyIcon(int image, const QPalette& palette) {
    return Drawn([&](QPainter& painter) {
        const Inks inks = InksOf(palette);
        painter.setPen(QPen(inks.line, 1));
        painter.setBrush(image == CandidateProperty::PropertyImage ? inks.fill : inks.accent);
        if (image == CandidateProperty::PropertyImage) {
            painter.drawRoundedRect(QRectF(3.5, 4.5, 9, 7), 1.5, 1.5);
        } else {
            painter.drawRect(QRectF(2.5, 5.5, 8, 8));
            painter.setBrush(inks.fill);
            painter.drawRect(QRectF(5.5, 2.5, 8, 8));
        }
    });
}

} // namespace glotta
