#include "workbench/GridModel.h"

#include "platform/Text.h"

namespace glotta {

void GridModel::SetGrid(TGrid* grid) {
    grid_ = grid;
    RowsChanged();
}

void GridModel::RowsChanged() {
    beginResetModel();
    rows_ = grid_ ? int(grid_->RowCount()) : 0;
    columns_ = grid_ ? int(grid_->ColumnCount()) : 0;
    endResetModel();
}

// Headers may count what the cells hold.
void GridModel::CellsChanged() {
    if (columns_ > 0) Q_EMIT headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
    if (rows_ > 0 && columns_ > 0) Q_EMIT dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!grid_ || !index.isValid()) return {};
    const auto row = std::size_t(index.row()), column = std::size_t(index.column());
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return QString::fromStdString(grid_->CellText(row, column));
    if (role == Qt::ToolTipRole) return QString::fromStdString(grid_->Hint(row));
    return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (!grid_ || orientation != Qt::Horizontal || section >= columns_) return {};
    if (role == Qt::DisplayRole) return QString::fromStdString(grid_->Header(std::size_t(section)));
    if (role == Qt::TextAlignmentRole) return int(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (grid_ && index.isValid() && grid_->CanEdit(std::size_t(index.row()), std::size_t(index.column())))
        flags |= Qt::ItemIsEditable;
    return flags;
}

// A text that comes back as it was shown is not entered: it may have bytes that the screen could not show.
bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!grid_ || !index.isValid() || role != Qt::EditRole) return false;
    const auto row = std::size_t(index.row()), column = std::size_t(index.column());
    const std::string before = grid_->CellText(row, column);
    QString shown = QString::fromStdString(before);
    shown.replace("\r\n", "\n");
    QString typed = value.toString();
    typed.replace("\r\n", "\n");
    if (typed == shown) return true;
    std::string text = typed.toStdString();
    if (before.find('\n') == std::string::npos || before.find("\r\n") != std::string::npos)
        text = ReplaceStr(text, "\n", "\r\n");
    bool entered = false;
    Run([&] { entered = grid_->Enter(row, column, text); });
    return entered;
}

} // namespace glotta
