#include "workbench/CellDelegate.h"

#include "workbench/GridView.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QStyle>

namespace glotta {

namespace {

constexpr int MaxShown = 1000; // characters of a cell; more does not fit on any screen

QColor Blend(const QColor& base, const QColor& tint, qreal part) {
    return QColor::fromRgbF(float(base.redF() * (1 - part) + tint.redF() * part),
                            float(base.greenF() * (1 - part) + tint.greenF() * part),
                            float(base.blueF() * (1 - part) + tint.blueF() * part));
}

} // namespace

QColor NotedColor(const QPalette& palette) {
    return Blend(palette.color(QPalette::Base), QColor(255, 160, 0), 0.28);
}

CellDelegate::CellDelegate(GridView& view) : QStyledItemDelegate(&view), view_(view) {}

QString CellDelegate::displayText(const QVariant& value, const QLocale&) const {
    QString text = value.toString();
    if (text.size() > MaxShown) text.truncate(MaxShown);
    text.replace("\r\n", "\n");
    for (QChar& c : text)
        if (c == '\n' || c == '\r') c = QChar(0x21B5);
    return text;
}

// A noted row is tinted and has a warning sign at its start; a marked one is struck out.
void CellDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const TGrid* grid = view_.Grid();
    if (!grid) return;
    option->state.setFlag(QStyle::State_MouseOver, false);
    const auto row = std::size_t(index.row());
    const bool selected = grid->IsSelected(row);
    const bool current = index.row() == grid->Row();
    const QPalette& palette = option->palette;
    const auto column = std::size_t(index.column());
    const RowLook look = grid->CellLook(row, column);
    const auto showIcon = [&](const QIcon& icon) {
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->icon = icon;
        option->decorationSize = QSize(option->fontMetrics.height(), option->fontMetrics.height());
    };
    if (column == 0 && view_.RowIcon) showIcon(view_.RowIcon(index.row()));
    if (look == RowLook::Noted) {
        option->backgroundBrush = NotedColor(palette);
        if (column == 0) showIcon(QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning));
    } else if (look == RowLook::Marked) {
        option->font.setStrikeOut(true);
        option->palette.setColor(QPalette::Text, palette.color(QPalette::Disabled, QPalette::Text));
    }
    if (selected)
        option->state |= QStyle::State_Selected;
    else if (current)
        option->backgroundBrush =
            Blend(look == RowLook::Noted ? option->backgroundBrush.color() : palette.color(QPalette::Base),
                  palette.color(QPalette::Highlight), 0.22);
}

// The current cell has a frame, for commands may work on its column.
void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QStyleOptionViewItem plain = option;
    plain.state.setFlag(QStyle::State_HasFocus, false);
    QStyledItemDelegate::paint(painter, plain, index);
    if (index != view_.currentIndex() || !(index.flags() & Qt::ItemIsEditable)) return;
    const bool selected = view_.Grid() && view_.Grid()->IsSelected(std::size_t(index.row()));
    painter->save();
    painter->setPen(
        QPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Highlight), 1));
    painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
    painter->restore();
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
    if (!index.data(Qt::EditRole).toString().contains('\n')) {
        QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (auto* line = qobject_cast<QLineEdit*>(editor)) line->setFrame(false);
        return editor;
    }
    auto* memo = new QPlainTextEdit(parent);
    memo->setTabChangesFocus(true);
    memo->setLineWrapMode(QPlainTextEdit::NoWrap);
    return memo;
}

void CellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const {
    QStyledItemDelegate::updateEditorGeometry(editor, option, index);
    if (qobject_cast<QPlainTextEdit*>(editor)) editor->resize(option.rect.width(), option.rect.height() * 4);
}

} // namespace glotta
