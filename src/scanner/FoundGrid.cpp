#include "scanner/FoundGrid.h"

#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace glotta {

std::string FoundGrid::Header(std::size_t column) const {
    static constexpr std::array<const char*, 4> captions = {
        "Line #", "String ID:", "String constant:", "Will be replaced by:"};
    return captions[column];
}

std::string FoundGrid::CellText(std::size_t row, std::size_t column) const {
    const TgxFoundSourceString& found = *rows_[row];
    switch (column) {
    case LineNo:
        return std::to_string(found.Line + 1);
    case StringID:
        return found.ID;
    case StringConstant:
        return found.SourceText;
    default:
        return found.Replacement;
    }
}

bool FoundGrid::CanEdit(std::size_t /*row*/, std::size_t column) const {
    return editable_ && (column == StringID || column == Replacement);
}

bool FoundGrid::Enter(std::size_t row, std::size_t column, const std::string& text) {
    if (row >= rows_.size() || !CanEdit(row, column) || !OnEnter || !OnEnter(row, Column(column), text))
        return false;
    CellsChanged();
    return true;
}

RowLook FoundGrid::Look(std::size_t row) const {
    if (rows_[row]->Ignored) return RowLook::Marked;
    return rows_[row]->Note.empty() ? RowLook::Plain : RowLook::Noted;
}

void FoundGrid::Sort(std::size_t column, bool descending) {
    sortedBy_ = column;
    descending_ = descending;
    // Keys are made once, not at each comparison.
    std::vector<std::string> keys;
    if (column != LineNo) {
        keys.reserve(rows_.size());
        for (std::size_t row = 0; row < rows_.size(); ++row)
            keys.push_back(UpperCase(CellText(row, column)));
    }
    std::vector<int> order(rows_.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(), [&](int first, int second) {
        const auto a = std::size_t(descending ? second : first), b = std::size_t(descending ? first : second);
        if (!keys.empty())
            if (const int byKey = keys[a].compare(keys[b]); byKey != 0) return byKey < 0;
        return rows_[a]->Position < rows_[b]->Position;
    });
    std::vector<TgxFoundSourceString*> sorted(rows_.size());
    std::vector<int> newIndex(rows_.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        sorted[i] = rows_[std::size_t(order[i])];
        newIndex[std::size_t(order[i])] = int(i);
    }
    rows_ = std::move(sorted);
    RowsChanged(newIndex);
}

void FoundGrid::Add(const std::vector<TgxFoundSourceString*>& rows) {
    rows_.insert(rows_.end(), rows.begin(), rows.end());
    Sort(sortedBy_, descending_);
}

std::vector<TgxFoundSourceString*> FoundGrid::Take(const std::function<bool(std::size_t row)>& gone) {
    std::vector<TgxFoundSourceString*> taken, kept;
    std::vector<int> newIndex(rows_.size(), -1);
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (gone(row)) {
            taken.push_back(rows_[row]);
        } else {
            newIndex[row] = int(kept.size());
            kept.push_back(rows_[row]);
        }
    }
    if (taken.empty()) return taken;
    rows_ = std::move(kept);
    RowsChanged(newIndex);
    return taken;
}

} // namespace glotta
