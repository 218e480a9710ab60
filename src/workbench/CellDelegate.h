// How the cells of a grid look and are edited.
#pragma once
#include <QtWidgets/QStyledItemDelegate>

namespace glotta {

class GridView;

QColor NotedColor(const QPalette& palette); // behind what is noted

class CellDelegate : public QStyledItemDelegate {
public:
    explicit CellDelegate(GridView& view);
    QString displayText(const QVariant& value, const QLocale& locale) const override;
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

private:
    GridView& view_;
};

} // namespace glotta
