#include "mainwindow/FormsGrid.h"

#include "platform/Error.h"
#include "platform/IntText.h"
#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace glotta {

namespace {

struct ColumnRule {
    const char* header;
    std::string FormsListItem::*text;
};
constexpr std::array<ColumnRule, FormsGrid::Columns> Rules = {{{"Form Name", &FormsListItem::formName},
                                                               {"Unit Name", &FormsListItem::unitName},
                                                               {"File Name", &FormsListItem::fileName},
                                                               {"Languages", &FormsListItem::languages},
                                                               {"TGlotta", &FormsListItem::glotta}}};

int LanguageCount(const FormsListItem& item) {
    if (const auto count = StrToInt(item.languages)) return *count;
    throw Error("'" + item.languages + "' is not a valid integer value");
}

} // namespace

int CompareFormItems(const FormsListItem& a, const FormsListItem& b, int column) {
    if (column == FormsGrid::Languages) return LanguageCount(a) > LanguageCount(b) ? 1 : -1;
    const auto text = Rules[std::size_t(column)].text;
    return CompareText(a.*text, b.*text);
}

std::string FormsGrid::Header(std::size_t column) const {
    return Rules[column].header;
}

std::string FormsGrid::CellText(std::size_t row, std::size_t column) const {
    return list_.items[row].*Rules[column].text;
}

void FormsGrid::Sort(std::size_t column, bool) {
    if (OnColumnClick) OnColumnClick(column);
}

// The comparison by "Languages" never calls two entries equal, which no sorting algorithm can take: of
// entries that differ in neither direction the one that stood first counts as the lesser, which is what the
// comparison answers.
void FormsGrid::SortBy(int column, int order) {
    if (column < 0 || column >= int(Columns) || order == 0) return;
    auto& items = list_.items;
    const bool neverEqual = column == Languages;
    for (const FormsListItem& item : items)
        if (neverEqual) LanguageCount(item);
    sorting_ = {column, order < 0};
    std::vector<std::size_t> rows(items.size());
    std::iota(rows.begin(), rows.end(), 0);
    std::sort(rows.begin(), rows.end(), [&](std::size_t a, std::size_t b) {
        const int forth = CompareFormItems(items[a], items[b], column);
        const int back = CompareFormItems(items[b], items[a], column);
        if (forth != back && forth != 0) return forth * order < 0;
        return neverEqual && order < 0 ? b < a : a < b;
    });
    std::vector<FormsListItem> sorted;
    std::vector<int> newIndex(items.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        newIndex[rows[i]] = int(i);
        sorted.push_back(std::move(items[rows[i]]));
    }
    items = std::move(sorted);
    RowsChanged(newIndex);
}

RowLook FormsGrid::Look(std::size_t row) const {
    return notes_.contains(list_.items[row].fileName) ? RowLook::Noted : RowLook::Plain;
}

std::string FormsGrid::Hint(std::size_t row) const {
    const auto note = notes_.find(list_.items[row].fileName);
    return note == notes_.end() ? std::string() : note->second;
}

void FormsGrid::Add(FormsListItem item) {
    std::vector<int> stay(list_.items.size());
    std::iota(stay.begin(), stay.end(), 0);
    list_.items.push_back(std::move(item));
    RowsChanged(stay);
}

void FormsGrid::Replaced() {
    notes_.clear();
    RowsReplaced();
}

void FormsGrid::SelectionToList() {
    if (loading_) return;
    for (std::size_t row = 0; row < list_.items.size(); ++row) {
        list_.items[row].selected = IsSelected(row);
        list_.items[row].focused = int(row) == Row();
    }
}

void FormsGrid::SelectionFromList() {
    loading_ = true;
    for (std::size_t row = 0; row < list_.items.size(); ++row)
        if (IsSelected(row) != list_.items[row].selected) Select(row, list_.items[row].selected);
    loading_ = false;
    CellsChanged();
}

} // namespace glotta
