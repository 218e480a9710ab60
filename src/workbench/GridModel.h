// A grid of a form as Qt's item model: a cell is asked for when it is drawn, never before.
#pragma once
#include "platform/Grid.h"

#include <QtCore/QAbstractTableModel>
#include <functional>

namespace glotta {

class GridModel : public QAbstractTableModel {
public:
    explicit GridModel(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

    // Shows this grid, nil for none.
    void SetGrid(TGrid* grid);
    TGrid* Grid() const { return grid_; }
    void RowsChanged();  // other rows, columns or headers
    void CellsChanged(); // other texts

    // Runs what may fail; the message is its matter. Set before a person types.
    std::function<void(const std::function<void()>&)> Run = [](const std::function<void()>& act) { act(); };

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    TGrid* grid_ = nullptr;
    int rows_ = 0, columns_ = 0; // as they were when the view was told last
};

} // namespace glotta
