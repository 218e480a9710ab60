#include "editors/ExclusionList.h"

#include <algorithm>
#include <numeric>

namespace glotta {

void ExclusionList::Assign(std::vector<std::string> items) {
    items_ = std::move(items);
    present_ = {items_.begin(), items_.end()};
    RowsReplaced();
    if (sorted_) Arrange();
}

void ExclusionList::Add(std::string item) {
    present_.insert(item);
    items_.push_back(std::move(item));
    if (batches_ == 0) Arrange();
}

bool ExclusionList::AddNew(std::string item) {
    if (Contains(item)) return false;
    Add(std::move(item));
    return true;
}

void ExclusionList::SelectAll() {
    ClearSelection();
    InvertSelection();
}

std::vector<std::string> ExclusionList::DeleteSelected() {
    std::vector<std::string> kept, gone;
    std::vector<int> newIndex(items_.size(), -1);
    for (std::size_t row = 0; row < items_.size(); ++row) {
        if (!IsSelected(row)) newIndex[row] = int(kept.size());
        (IsSelected(row) ? gone : kept).push_back(std::move(items_[row]));
    }
    items_ = std::move(kept);
    for (const std::string& item : gone)
        present_.erase(present_.find(item));
    RowsChanged(newIndex);
    return gone;
}

void ExclusionList::SetSorted(bool sorted) {
    sorted_ = sorted;
    if (sorted) Arrange();
}

void ExclusionList::Arrange() {
    std::vector<int> newIndex(items_.size());
    std::iota(newIndex.begin(), newIndex.end(), 0);
    if (sorted_) {
        std::vector<std::pair<std::string, int>> keys;
        keys.reserve(items_.size());
        for (std::size_t row = 0; row < items_.size(); ++row)
            keys.emplace_back(UpperCase(items_[row]), int(row));
        std::sort(keys.begin(), keys.end());
        std::vector<std::string> items;
        items.reserve(items_.size());
        for (const auto& [key, row] : keys) {
            newIndex[std::size_t(row)] = int(items.size());
            items.push_back(std::move(items_[std::size_t(row)]));
        }
        items_ = std::move(items);
    }
    RowsChanged(newIndex);
}

} // namespace glotta
