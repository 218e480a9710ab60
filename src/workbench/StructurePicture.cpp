#include "workbench/StructurePicture.h"

#include "workbench/Theme.h"

#include <QtCore/QLineF>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QVBoxLayout>

namespace glotta {

namespace {

// All places in a drawing of this size, which is then fitted into the window.
constexpr QSizeF Drawing(640, 300);
constexpr double BarHeight = 24;

struct Inks {
    QColor paper, frame, bar, text, dispatcher, container;
};
Inks InksOf(bool dark) {
    if (dark) return {"#22272d", "#545d68", "#3a424c", "#d8dee9", "#7fb4f0", "#8fce9b"};
    return {"#ffffff", "#9aa1a9", "#e3e7ec", "#1f2328", "#1f66ad", "#2c7a3f"};
}

class Picture {
public:
    Picture(QPainter& painter, const Inks& inks) : p_(painter), inks_(inks) {}

    void Draw() {
        const QRectF data(190, 6, 260, 100);
        Form(data, "DataModule1");
        const QRectF dispatcher =
            Component({204, 42, 232, 24}, "GlottaDispatcher1: TGlottaDispatcher", inks_.dispatcher);
        const QRectF container = Component({204, 74, 232, 24}, "Glotta1: TGlotta", inks_.container);
        for (const double left : {10.0, 225.0, 440.0}) {
            const QRectF form(left, 206, 190, 72);
            Form(form, "Form" + QString::number(1 + int(left / 200)));
            const QRectF linked =
                Component({left + 7, 242, 176, 24}, "GlottaLinked1: TGlottaLinked", inks_.text);
            Link(linked, container, inks_.container, +14);
            Link(linked, dispatcher, inks_.dispatcher, -14);
        }
        Legend(10, inks_.dispatcher, "LangDispatcher");
        Legend(34, inks_.container, "CommonContainer");
    }

private:
    void Form(const QRectF& place, const QString& name) {
        p_.setPen(QPen(inks_.frame, 1.2));
        p_.setBrush(inks_.paper);
        p_.drawRoundedRect(place, 5, 5);
        const QRectF bar(place.left() + 1, place.top() + 1, place.width() - 2, BarHeight);
        p_.fillRect(bar, inks_.bar);
        Text(bar.adjusted(8, 0, -8, 0), name, inks_.text);
    }

    QRectF Component(const QRectF& place, const QString& name, const QColor& ink) {
        p_.setPen(QPen(ink, 1.4));
        p_.setBrush(Qt::NoBrush);
        p_.drawRoundedRect(place, 3, 3);
        Text(place, name, inks_.text, Qt::AlignCenter);
        return place;
    }

    void Text(const QRectF& place, const QString& text, const QColor& ink, int align = Qt::AlignVCenter) {
        QFont font = p_.font();
        font.setPixelSize(11);
        p_.setFont(font);
        p_.setPen(ink);
        p_.drawText(place, align | Qt::TextDontClip, text);
    }

    // From the top of a linked component to the side or the bottom of what it is linked to.
    void Link(const QRectF& from, const QRectF& to, const QColor& ink, double shift) {
        const QPointF start(from.center().x() + shift, from.top());
        QPainterPath path(start);
        QPointF end, before;
        const double side = from.center().x() < 300 ? -1 : from.center().x() > 340 ? 1 : 0;
        if (side == 0) { // straight below: the dispatcher is reached around the container
            end = shift > 0 ? QPointF(start.x(), to.bottom()) : QPointF(to.left(), to.center().y());
            before = shift > 0 ? start : QPointF(to.left() - 24, end.y());
            if (shift < 0) {
                const double level = 190;
                path.lineTo(start.x(), level);
                path.lineTo(before.x(), level);
                path.lineTo(before);
            }
        } else {
            end = QPointF(side < 0 ? to.left() : to.right(), to.center().y());
            before = QPointF(start.x(), end.y());
            path.lineTo(before);
        }
        path.lineTo(end);
        p_.setPen(QPen(ink, 1.4));
        p_.setBrush(Qt::NoBrush);
        p_.drawPath(path);
        Arrow(before, end, ink);
    }

    void Arrow(const QPointF& before, const QPointF& end, const QColor& ink) {
        QLineF shaft(end, before);
        shaft.setLength(9);
        QLineF left = shaft, right = shaft;
        left.setAngle(shaft.angle() + 24);
        right.setAngle(shaft.angle() - 24);
        p_.setPen(Qt::NoPen);
        p_.setBrush(ink);
        const QPointF head[] = {end, left.p2(), right.p2()};
        p_.drawPolygon(head, 3);
    }

    void Legend(double top, const QColor& ink, const QString& name) {
        p_.setPen(QPen(ink, 1.4));
        p_.drawLine(QPointF(488, top + 8), QPointF(518, top + 8));
        Arrow({488, top + 8}, {518, top + 8}, ink);
        Text({526, top, 100, 16}, name, inks_.text);
    }

    QPainter& p_;
    const Inks& inks_;
};

} // namespace

StructurePicture::StructurePicture(QWidget* parent) : QWidget(parent) {
    setCursor(Qt::PointingHandCursor);
}

void StructurePicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = std::min(width() / Drawing.width(), height() / Drawing.height());
    painter.translate((width() - Drawing.width() * scale) / 2, (height() - Drawing.height() * scale) / 2);
    painter.scale(scale, scale);
    Picture(painter, InksOf(IsDark(palette()))).Draw();
}

void StructurePicture::mousePressEvent(QMouseEvent*) {
    if (OnClick) OnClick();
}

} // namespace glotta
