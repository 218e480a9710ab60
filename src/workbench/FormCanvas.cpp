#include "workbench/FormCanvas.h"

#include "workbench/ControlLooks.h"
#include "workbench/QtText.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QToolTip>

namespace glotta {
namespace {

constexpr int Edge = 16, Title = 28, MenuRow = 22, Handle = 5;

} // namespace

void FormCanvas::SetPicture(FormPicture picture) {
    picture_ = std::move(picture);
    selected_ = nullptr;
    setMinimumSize(sizeHint());
    updateGeometry();
    update();
}

void FormCanvas::Select(TComponent* component) {
    selected_ = component;
    update();
}

QPoint FormCanvas::Origin() const {
    return QPoint(Edge, Edge + (picture_.hasFrame ? Title : 0) + (picture_.menus.isEmpty() ? 0 : MenuRow));
}

QSize FormCanvas::sizeHint() const {
    QSize size = picture_.client;
    for (const DrawnControl& shape : picture_.shapes)
        if (!shape.visual) size = size.expandedTo(QSize(shape.rect.right() + 1, shape.rect.bottom() + 1));
    return size + QSize(Origin().x() + Edge, Origin().y() + Edge);
}

void FormCanvas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QFont font("Tahoma");
    font.setPixelSize(11);
    painter.setFont(font);
    const QRect client(Origin(), picture_.client);
    const QRect frame = client.adjusted(-1, Edge - client.top(), 1, 1);
    painter.fillRect(frame, QColor(FormFace));
    if (picture_.hasFrame) {
        const QRect title(frame.left(), frame.top(), frame.width(), Title);
        painter.fillRect(title, QColor("#dfe6ee"));
        painter.setPen(QColor("#202020"));
        painter.drawText(title.adjusted(10, 0, -10, 0), Qt::AlignVCenter,
                         painter.fontMetrics().elidedText(picture_.caption, Qt::ElideRight, title.width() - 20));
    }
    if (!picture_.menus.isEmpty()) {
        const QRect bar(frame.left(), client.top() - MenuRow, frame.width(), MenuRow);
        painter.fillRect(bar, QColor("#fafafa"));
        painter.setPen(QColor("#202020"));
        painter.drawText(bar.adjusted(8, 0, -8, 0), Qt::AlignVCenter, picture_.menus.join("     "));
    }
    painter.setPen(QColor("#9aa1a9"));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(frame.adjusted(0, 0, -1, -1));

    painter.translate(Origin());
    for (const DrawnControl& shape : picture_.shapes)
        DrawShape(painter, shape);
    for (const DrawnControl& shape : picture_.shapes) {
        if (shape.component != selected_) continue;
        painter.setPen(QPen(QColor("#2f6fb2"), 1));
        painter.drawRect(shape.rect.adjusted(0, 0, -1, -1));
        for (const QPoint corner : {shape.rect.topLeft(), shape.rect.topRight(), shape.rect.bottomLeft(), shape.rect.bottomRight()})
            painter.fillRect(QRect(corner - QPoint(Handle / 2, Handle / 2), QSize(Handle, Handle)), QColor("#2f6fb2"));
    }
}

const DrawnControl* FormCanvas::At(QPoint point) const {
    point -= Origin();
    for (auto shape = picture_.shapes.rbegin(); shape != picture_.shapes.rend(); ++shape)
        if (shape->rect.contains(point) && shape->clip.contains(point)) return &*shape;
    return nullptr;
}

void FormCanvas::mousePressEvent(QMouseEvent* event) {
    const DrawnControl* shape = At(event->pos());
    if (OnSelect) OnSelect(shape ? shape->component : nullptr);
}

void FormCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    const DrawnControl* shape = At(event->pos());
    if (OnActivate) OnActivate(shape ? shape->component : nullptr);
}

bool FormCanvas::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    if (const DrawnControl* shape = At(help->pos()))
        QToolTip::showText(help->globalPos(), Q(shape->component->Name() + ": " + shape->component->ClassName()), this);
    else
        QToolTip::hideText();
    return true;
}

} // namespace glotta
