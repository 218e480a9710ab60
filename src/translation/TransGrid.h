// The lists of the translation editor: the kinds of texts, and the texts of one kind.
#pragma once
#include "platform/Grid.h"
#include "translation/TransTexts.h"

#include <cstdint>
#include <functional>

namespace glotta {

// Column 0 is the identifier, column k language k.
class TransGrid : public TGrid {
public:
    explicit TransGrid(const TransTexts& texts) : TGrid(Picking::Extended), texts_(texts) {}

    // Lists a kind's texts that hold `filter`; with a language those alone that lack it.
    void List(TStringsType kind, std::string_view filter, int untranslatedIn);
    TStringsType Kind() const { return kind_; }
    // The record that stands in this row.
    std::size_t Record(std::size_t row) const { return rows_[row]; }
    int RowOf(std::size_t record) const; // -1: not listed
    void Refresh() { CellsChanged(); }

    std::size_t RowCount() const override { return rows_.size(); }
    std::size_t ColumnCount() const override { return std::size_t(texts_.Languages()) + 1; }
    std::string Header(std::size_t column) const override; // with the number of texts that are missing
    std::string CellText(std::size_t row, std::size_t column) const override;
    bool CanEdit(std::size_t row, std::size_t column) const override;
    bool Enter(std::size_t row, std::size_t column, const std::string& text) override;
    bool CanSort() const override { return true; }
    void Sort(std::size_t column, bool descending) override;
    Sorting SortedBy() const override { return sorting_; }
    RowLook CellLook(std::size_t row, std::size_t column) const override;

    // What a typed text does; false refuses it.
    std::function<bool(std::size_t record, int column, const std::string& text)> OnEnter;

private:
    std::vector<std::uint32_t> Sorted(std::vector<std::uint32_t> rows) const;
    const TransTexts& texts_;
    TStringsType kind_ = stCaptions;
    std::vector<std::uint32_t> rows_;
    Sorting sorting_; // column -1: as the component has them
};

class KindsList : public TGrid {
public:
    enum Column : std::size_t { Name, Texts, Missing };
    // The kinds that have texts.
    explicit KindsList(const TransTexts& texts);
    TStringsType At(std::size_t row) const { return kinds_[row]; }
    int Listed(TStringsType kind); // its row; a kind without texts is listed from here on
    void Refresh() { CellsChanged(); }

    std::size_t RowCount() const override { return kinds_.size(); }
    std::size_t ColumnCount() const override { return 3; }
    std::string Header(std::size_t column) const override;
    std::string CellText(std::size_t row, std::size_t column) const override;

private:
    std::size_t MissingTexts(TStringsType kind) const; // in all languages
    const TransTexts& texts_;
    std::vector<TStringsType> kinds_;
};

} // namespace glotta
