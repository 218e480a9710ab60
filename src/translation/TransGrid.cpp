#include "translation/TransGrid.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace glotta {

namespace {

constexpr std::array<const char*, StringsTypeCount> KindNames = {
    "Captions", "Hints",          "Display labels",  "Strings",
    "Fonts",    "Multiple lines", "Dialog captions", "Other strings",
    "Locales",  "Character sets", "Collections",     "List and tree items"};

} // namespace

// --- texts ---

void TransGrid::List(TStringsType kind, std::string_view filter, int untranslatedIn) {
    const std::string upper = UpperCase(filter);
    std::vector<std::uint32_t> rows;
    for (std::size_t record = 0; record < texts_.Count(kind); ++record)
        if ((upper.empty() || texts_.Contains(kind, record, upper)) &&
            (untranslatedIn <= 1 || texts_.IsUntranslated(kind, record, untranslatedIn)))
            rows.push_back(std::uint32_t(record));
    kind_ = kind;
    rows_ = Sorted(std::move(rows));
    RowsReplaced();
}

int TransGrid::RowOf(std::size_t record) const {
    const auto found = std::find(rows_.begin(), rows_.end(), record);
    return found == rows_.end() ? -1 : int(found - rows_.begin());
}

std::string TransGrid::Header(std::size_t column) const {
    if (column == 0) return "Identifier";
    const std::size_t missing = texts_.Untranslated(kind_, int(column));
    const std::string& name = texts_.LanguageName(int(column));
    return missing == 0 ? name : name + " (" + std::to_string(missing) + " missing)";
}

std::string TransGrid::CellText(std::size_t row, std::size_t column) const {
    return texts_.Field(kind_, rows_[row], int(column));
}

bool TransGrid::CanEdit(std::size_t, std::size_t column) const {
    return column > 0 || kind_ == stStrings;
}

bool TransGrid::Enter(std::size_t row, std::size_t column, const std::string& text) {
    return row < rows_.size() && CanEdit(row, column) && OnEnter && OnEnter(rows_[row], int(column), text);
}

RowLook TransGrid::CellLook(std::size_t row, std::size_t column) const {
    return texts_.IsUntranslated(kind_, rows_[row], int(column)) ? RowLook::Noted : RowLook::Plain;
}

std::vector<std::uint32_t> TransGrid::Sorted(std::vector<std::uint32_t> rows) const {
    if (sorting_.column < 0) return rows;
    std::vector<std::string> keys; // made once, not at each comparison
    keys.reserve(rows.size());
    for (const std::uint32_t record : rows)
        keys.push_back(UpperCase(texts_.Field(kind_, record, sorting_.column)));
    std::vector<std::uint32_t> order(rows.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
        return sorting_.descending ? keys[b] < keys[a] : keys[a] < keys[b];
    });
    for (std::uint32_t& place : order)
        place = rows[place];
    return order;
}

void TransGrid::Sort(std::size_t column, bool descending) {
    sorting_ = {int(column), descending};
    std::vector<std::uint32_t> sorted = Sorted(rows_);
    std::vector<int> rowOf(texts_.Count(kind_), -1), newIndex(rows_.size());
    for (std::size_t row = 0; row < sorted.size(); ++row)
        rowOf[sorted[row]] = int(row);
    for (std::size_t row = 0; row < rows_.size(); ++row)
        newIndex[row] = rowOf[rows_[row]];
    rows_ = std::move(sorted);
    RowsChanged(newIndex);
}

// --- kinds ---

KindsList::KindsList(const TransTexts& texts) : TGrid(Picking::Single), texts_(texts) {
    for (int kind = 0; kind < StringsTypeCount; ++kind)
        if (texts.Count(TStringsType(kind)) > 0) kinds_.push_back(TStringsType(kind));
}

int KindsList::Listed(TStringsType kind) {
    auto place = std::lower_bound(kinds_.begin(), kinds_.end(), kind);
    if (place == kinds_.end() || *place != kind) {
        place = kinds_.insert(place, kind);
        RowsReplaced();
    }
    return int(place - kinds_.begin());
}

std::string KindsList::Header(std::size_t column) const {
    static constexpr std::array<const char*, 3> captions = {"Kind", "Texts", "Missing"};
    return captions[column];
}

std::size_t KindsList::MissingTexts(TStringsType kind) const {
    std::size_t missing = 0;
    for (int language = 2; language <= texts_.Languages(); ++language)
        missing += texts_.Untranslated(kind, language);
    return missing;
}

std::string KindsList::CellText(std::size_t row, std::size_t column) const {
    const TStringsType kind = kinds_[row];
    if (column == Name) return KindNames[kind];
    return std::to_string(column == Texts ? texts_.Count(kind) : MissingTexts(kind));
}

} // namespace glotta
