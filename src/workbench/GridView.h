// A list or grid on the screen. Current row and picked rows are the form's grid's: clicks and keys are told
// to it, and what it holds is drawn.
#pragma once
#include "workbench/GridModel.h"

#include <QtGui/QIcon>
#include <QtWidgets/QTableView>
#include <functional>
#include <vector>

namespace glotta {

class GridView : public QTableView {
    Q_OBJECT
public:
    explicit GridView(QWidget* parent = nullptr);
    ~GridView() override;

    void SetGrid(TGrid& grid);
    void Forget(); // the grid is gone
    TGrid* Grid() const { return model_.Grid(); }
    GridModel& Model() { return model_; }

    // A plain list box: no headers, one column as wide as the view.
    void ShowAsList();
    std::vector<int> ColumnWidths() const;
    void SetColumnWidths(const std::vector<int>& widths);
    void SetColumn(int column); // makes it current
    // What stands at the start of a row.
    std::function<QIcon(int row)> RowIcon;
    // Makes the cell current and starts editing where that is allowed.
    void EditCell(int row, int column);

    std::function<void()> OnChanged;                   // current row or selection
    std::function<void(int row)> OnActivated;          // double click or Enter
    std::function<void(const QPoint& global)> OnPopup; // the context menu is wanted
    std::function<void(int column)> OnColumn;          // another column became current
    std::function<void()> OnWidths;                    // the person drew a column wider

    void selectAll() override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void Show(TGrid::Change change);
    void ShowCurrent();
    void ShowSorting();
    void SortBy(int column);
    void Click(int row, Qt::KeyboardModifiers modifiers);
    GridModel model_;
    int column_ = 0;       // the current one, also while no row is
    bool telling_ = false; // the grid tells the view, or is told by it: no echo
    bool byMouse_ = false; // a press of the mouse moves the current cell: told already
};

} // namespace glotta
