#include "platform/Grid.h"

#include "platform/Text.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace glotta {

void TGrid::Changed(Change change) {
    Tell(change);
    if (OnChange) OnChange();
}

void TGrid::Mark(std::size_t row, bool on) {
    if (selected_.size() < RowCount()) selected_.resize(RowCount());
    if (row >= selected_.size() || selected_[row] == on) return;
    selected_[row] = on;
    if (on)
        ++selectedCount_;
    else
        --selectedCount_;
}

void TGrid::SetRow(int row) {
    row_ = row >= 0 && std::size_t(row) < RowCount() ? row : -1;
    anchor_ = row_;
    Changed(Change::Current);
}

std::vector<std::size_t> TGrid::SelectedRows() const {
    std::vector<std::size_t> rows;
    rows.reserve(selectedCount_);
    for (std::size_t row = 0; row < selected_.size(); ++row)
        if (selected_[row]) rows.push_back(row);
    return rows;
}

std::vector<std::size_t> TGrid::TargetRows() const {
    std::vector<std::size_t> rows = SelectedRows();
    if (rows.empty() && row_ >= 0) rows.push_back(std::size_t(row_));
    return rows;
}

void TGrid::Select(std::size_t row, bool on) {
    Mark(row, on);
    Changed(Change::Selection);
}

void TGrid::SelectOnly(int row) {
    selected_.assign(RowCount(), false);
    selectedCount_ = 0;
    if (row >= 0) Mark(std::size_t(row), true);
    Tell(Change::Selection);
    SetRow(row);
}

void TGrid::InvertSelection() {
    selected_.resize(RowCount());
    selected_.flip();
    selectedCount_ = selected_.size() - selectedCount_;
    Changed(Change::Selection);
}

void TGrid::ClearSelection() {
    selected_.assign(RowCount(), false);
    selectedCount_ = 0;
    Changed(Change::Selection);
}

void TGrid::Click(std::size_t row, bool ctrl, bool shift) {
    if (row >= RowCount()) return;
    if (picking_ == Picking::Single || (picking_ == Picking::Extended && !ctrl && !shift))
        return SelectOnly(int(row));
    if (!ctrl && !shift) return SetRow(int(row));
    const int anchor = anchor_ < 0 ? int(row) : anchor_;
    if (shift) {
        if (picking_ == Picking::Extended && !ctrl) {
            selected_.assign(RowCount(), false);
            selectedCount_ = 0;
        }
        const std::size_t from = std::min(std::size_t(anchor), row), to = std::max(std::size_t(anchor), row);
        for (std::size_t i = from; i <= to; ++i)
            Mark(i, true);
    } else {
        Mark(row, !IsSelected(row));
    }
    Tell(Change::Selection);
    SetRow(int(row));
    if (shift) anchor_ = anchor; // the next Shift+Click starts at the same place
}

void TGrid::RowsChanged(const std::vector<int>& newIndex) {
    const std::vector<bool> before = std::exchange(selected_, std::vector<bool>(RowCount()));
    selectedCount_ = 0;
    for (std::size_t i = 0; i < before.size() && i < newIndex.size(); ++i)
        if (before[i] && newIndex[i] >= 0) Mark(std::size_t(newIndex[i]), true);
    if (row_ >= 0) {
        std::size_t from = std::size_t(row_);
        while (from < newIndex.size() && newIndex[from] < 0)
            ++from;
        row_ = from < newIndex.size() ? newIndex[from] : int(RowCount()) - 1;
    }
    anchor_ = row_;
    Changed(Change::Rows);
}

void TGrid::RowsReplaced() {
    selected_.assign(RowCount(), false);
    selectedCount_ = 0;
    row_ = anchor_ = -1;
    Changed(Change::Rows);
}

void TListBox::SetItems(std::vector<std::string> items) {
    items_ = std::move(items);
    RowsReplaced();
}

void TListBox::Add(std::string item) {
    std::vector<int> stay(items_.size());
    std::iota(stay.begin(), stay.end(), 0);
    items_.push_back(std::move(item));
    RowsChanged(stay);
}

void TListBox::Put(std::size_t row, std::string item) {
    items_[row] = std::move(item);
    CellsChanged();
}

void TListBox::DeleteSelected() {
    std::vector<std::string> kept;
    std::vector<int> newIndex(items_.size(), -1);
    for (std::size_t row = 0; row < items_.size(); ++row) {
        if (IsSelected(row)) continue;
        newIndex[row] = int(kept.size());
        kept.push_back(std::move(items_[row]));
    }
    items_ = std::move(kept);
    RowsChanged(newIndex);
}

void TListBox::Swap(std::size_t a, std::size_t b) {
    std::vector<int> newIndex(items_.size());
    std::iota(newIndex.begin(), newIndex.end(), 0);
    std::swap(items_[a], items_[b]);
    std::swap(newIndex[a], newIndex[b]);
    RowsChanged(newIndex);
}

bool TListBox::Contains(std::string_view item) const {
    return std::any_of(items_.begin(), items_.end(),
                       [&](const std::string& has) { return SameText(has, item); });
}

} // namespace glotta
