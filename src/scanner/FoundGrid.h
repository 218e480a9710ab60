// The grid of found strings: four columns over the scan's own objects.
#pragma once
#include "platform/Grid.h"
#include "scanner/FoundStrings.h"

#include <functional>
#include <string>
#include <vector>

namespace glotta {

class FoundGrid : public TGrid {
public:
    enum Column : std::size_t { LineNo, StringID, StringConstant, Replacement };

    // Only an editable grid lets identifier and replacement be typed.
    explicit FoundGrid(bool editable) : TGrid(Picking::Picks), editable_(editable) {}

    TgxFoundSourceString& At(std::size_t row) const { return *rows_[row]; }
    TgxFoundSourceString* Current() const { return Row() < 0 ? nullptr : rows_[std::size_t(Row())]; }
    const std::vector<TgxFoundSourceString*>& Rows() const { return rows_; }

    // Added rows take the places that the present sorting gives them.
    void Add(const std::vector<TgxFoundSourceString*>& rows);
    // Takes out the rows for which `gone` holds and returns them in order.
    std::vector<TgxFoundSourceString*> Take(const std::function<bool(std::size_t row)>& gone);
    void Refresh() { CellsChanged(); }

    std::size_t RowCount() const override { return rows_.size(); }
    std::size_t ColumnCount() const override { return 4; }
    std::string Header(std::size_t column) const override;
    std::string CellText(std::size_t row, std::size_t column) const override;
    bool CanEdit(std::size_t row, std::size_t column) const override;
    bool Enter(std::size_t row, std::size_t column, const std::string& text) override;
    bool CanSort() const override { return true; }
    void Sort(std::size_t column, bool descending) override;
    Sorting SortedBy() const override { return {int(sortedBy_), descending_}; }
    RowLook Look(std::size_t row) const override;
    std::string Hint(std::size_t row) const override { return rows_[row]->Note; }

    // What a typed text does; false refuses it.
    std::function<bool(std::size_t row, Column column, const std::string& text)> OnEnter;

private:
    std::vector<TgxFoundSourceString*> rows_;
    std::size_t sortedBy_ = LineNo;
    bool descending_ = false;
    bool editable_;
};

} // namespace glotta
