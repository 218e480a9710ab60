#include "workbench/GridView.h"

#include "workbench/CellDelegate.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

namespace glotta {

GridView::GridView(QWidget* parent) : QTableView(parent) {
    setModel(&model_);
    setItemDelegate(new CellDelegate(*this));
    setSelectionMode(NoSelection); // the grid's own selection is drawn
    setSelectionBehavior(SelectRows);
    setEditTriggers(EditKeyPressed | DoubleClicked | AnyKeyPressed);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 7);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int column) { SortBy(column); });
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] {
        if (!telling_ && OnWidths) OnWidths();
    });
}

GridView::~GridView() {
    disconnect(horizontalHeader(), nullptr, this, nullptr);
    setModel(nullptr);
}

void GridView::SetGrid(TGrid& grid) {
    telling_ = true;
    model_.SetGrid(&grid);
    telling_ = false;
    const bool sortable = grid.CanSort();
    horizontalHeader()->setSectionsClickable(sortable);
    grid.OnView = [this](TGrid::Change change) { Show(change); };
    ShowSorting();
    ShowCurrent();
}

void GridView::Forget() {
    telling_ = true;
    model_.SetGrid(nullptr);
    telling_ = false;
}

void GridView::ShowAsList() {
    horizontalHeader()->hide();
}

std::vector<int> GridView::ColumnWidths() const {
    std::vector<int> widths;
    for (int column = 0; column < model_.columnCount(); ++column)
        widths.push_back(columnWidth(column));
    return widths;
}

void GridView::SetColumnWidths(const std::vector<int>& widths) {
    telling_ = true;
    for (int column = 0; column < model_.columnCount() && column < int(widths.size()); ++column)
        setColumnWidth(column, widths[std::size_t(column)]);
    telling_ = false;
}

void GridView::SetColumn(int column) {
    if (column == currentIndex().column() || column < 0 || column >= model_.columnCount()) return;
    column_ = column;
    const bool before = std::exchange(telling_, true);
    if (currentIndex().isValid())
        selectionModel()->setCurrentIndex(model_.index(currentIndex().row(), column),
                                          QItemSelectionModel::NoUpdate);
    telling_ = before;
}

void GridView::EditCell(int row, int column) {
    const QModelIndex index = model_.index(row, column);
    setCurrentIndex(index);
    if (model_.flags(index) & Qt::ItemIsEditable) edit(index);
}

// --- the grid tells ---

void GridView::Show(TGrid::Change change) {
    const bool before = std::exchange(telling_, true);
    switch (change) {
    case TGrid::Change::Rows: {
        const int scrolled = verticalScrollBar()->value();
        const std::vector<int> widths = ColumnWidths();
        model_.RowsChanged();
        if (int(widths.size()) == model_.columnCount()) SetColumnWidths(widths);
        telling_ = true;
        selectionModel()->setCurrentIndex(model_.index(Grid()->Row(), column_),
                                          QItemSelectionModel::NoUpdate);
        verticalScrollBar()->setValue(scrolled);
        ShowSorting();
        ShowCurrent();
        break;
    }
    case TGrid::Change::Cells:
        model_.CellsChanged();
        break;
    case TGrid::Change::Current:
        ShowCurrent();
        break;
    case TGrid::Change::Selection:
        break;
    }
    telling_ = before;
    viewport()->update();
    if (OnChanged) OnChanged();
}

void GridView::ShowCurrent() {
    const bool before = std::exchange(telling_, true);
    const int row = Grid()->Row();
    if (row != currentIndex().row()) {
        const QModelIndex index = model_.index(row, column_);
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    }
    if (row >= 0) scrollTo(currentIndex());
    telling_ = before;
}

void GridView::ShowSorting() {
    const TGrid::Sorting sorting = Grid()->SortedBy();
    horizontalHeader()->setSortIndicatorShown(sorting.column >= 0);
    horizontalHeader()->setSortIndicator(sorting.column,
                                         sorting.descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

// --- the person acts ---

void GridView::SortBy(int column) {
    if (!Grid() || !Grid()->CanSort()) return;
    const TGrid::Sorting now = Grid()->SortedBy();
    model_.Run([&] { Grid()->Sort(std::size_t(column), now.column == column && !now.descending); });
}

void GridView::Click(int row, Qt::KeyboardModifiers modifiers) {
    if (!Grid() || row < 0) return;
    const bool before = std::exchange(telling_, true);
    model_.Run([&] {
        Grid()->Click(std::size_t(row), modifiers.testFlag(Qt::ControlModifier),
                      modifiers.testFlag(Qt::ShiftModifier));
    });
    telling_ = before;
}

void GridView::mousePressEvent(QMouseEvent* event) {
    const int row = rowAt(event->position().toPoint().y());
    // A right click keeps what is picked when it meets it.
    const bool keep =
        event->button() == Qt::RightButton && Grid() && row >= 0 && Grid()->IsSelected(std::size_t(row));
    byMouse_ = true;
    QTableView::mousePressEvent(event);
    byMouse_ = false;
    if (keep)
        Grid()->SetRow(row);
    else
        Click(row, event->button() == Qt::LeftButton ? event->modifiers() : Qt::NoModifier);
}

// Drawing over rows changes nothing: only clicks pick.
void GridView::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton) QTableView::mouseMoveEvent(event);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    byMouse_ = true;
    QTableView::mouseDoubleClickEvent(event);
    byMouse_ = false;
    const int row = rowAt(event->position().toPoint().y());
    if (event->button() == Qt::LeftButton && row >= 0 && OnActivated) OnActivated(row);
}

void GridView::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::ControlModifier &&
        currentIndex().isValid())
        return Click(currentIndex().row(), Qt::ControlModifier);
    if (enter && OnActivated && currentIndex().isValid() && state() != EditingState)
        return OnActivated(currentIndex().row());
    if (enter && state() != EditingState) return event->ignore(); // the dialog's default button
    QTableView::keyPressEvent(event);
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    if (!OnPopup) return QTableView::contextMenuEvent(event);
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    OnPopup(byKey ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()) : event->globalPos());
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (!telling_ && current.isValid() && current.column() != column_) {
        column_ = current.column();
        if (OnColumn) OnColumn(column_);
    }
    if (telling_ || byMouse_ || !current.isValid() || current.row() == previous.row()) return;
    Click(current.row(), QGuiApplication::keyboardModifiers() & Qt::ShiftModifier);
}

// Where clicks can pick several rows, the keys for all rows do.
void GridView::selectAll() {
    if (!Grid() || Grid()->RowCount() == 0) return;
    Click(0, Qt::NoModifier);
    Click(int(Grid()->RowCount()) - 1, Qt::ShiftModifier);
}

} // namespace glotta
