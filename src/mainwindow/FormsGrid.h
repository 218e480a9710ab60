// The list of forms as a grid: rows over a forms list, its columns and its order.
#pragma once
#include "ide/FormsList.h"
#include "platform/Grid.h"

#include <functional>
#include <string>
#include <unordered_map>
#include <utility>

namespace glotta {

class FormsGrid : public TGrid {
public:
    enum Column : std::size_t { FormName, UnitName, FileName, Languages, Glotta, Columns };

    explicit FormsGrid(FormsList& list) : TGrid(Picking::Extended), list_(list) {}

    std::size_t RowCount() const override { return list_.items.size(); }
    std::size_t ColumnCount() const override { return Columns; }
    std::string Header(std::size_t column) const override;
    std::string CellText(std::size_t row, std::size_t column) const override;
    bool CanSort() const override { return true; }
    // A click on the header: the form decides the direction.
    void Sort(std::size_t column, bool descending) override;
    Sorting SortedBy() const override { return sorting_; }
    std::function<void(std::size_t column)> OnColumnClick;
    // A row that stands out, with the reason in its hint.
    void SetNote(const std::string& fileName, std::string note) { notes_[fileName] = std::move(note); }
    RowLook Look(std::size_t row) const override;
    std::string Hint(std::size_t row) const override;
    // 1 for a form with a localization component, else 0.
    int ImageIndex(std::size_t row) const { return list_.items[row].imageIndex; }

    FormsList& List() { return list_; }
    const FormsList& List() const { return list_; }
    void Add(FormsListItem item);
    // Sorts the entries; order 1 ascending, -1 descending. A number of languages that is none is an Error.
    void SortBy(int column, int order);
    // Wholly new entries.
    void Replaced();
    // Entries changed in place.
    void Refresh() { CellsChanged(); }
    // The entries' marks follow the grid's selection, and back.
    void SelectionToList();
    void SelectionFromList();

private:
    FormsList& list_;
    std::unordered_map<std::string, std::string> notes_; // by file name
    Sorting sorting_;
    bool loading_ = false; // from the list
};

// Below 0 when A stands before B in an ascending list. By "Languages" it is never 0.
int CompareFormItems(const FormsListItem& a, const FormsListItem& b, int column);

} // namespace glotta
