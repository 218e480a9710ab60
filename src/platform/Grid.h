// What a list or grid is made of, without a toolkit: rows, headers, cells, the current row and the picked
// rows. A cell's text is asked for only when it is drawn; nothing here is formatted ahead of that.
#pragma once
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

// How a row stands out from the others.
enum class RowLook : unsigned char { Plain, Noted, Marked };

class TGrid {
public:
    // What clicks do. Single: a click picks its row alone. Extended: so it is, and Ctrl and Shift pick more.
    // Picks: a plain click only makes its row current; Ctrl and Shift alone change what is picked.
    enum class Picking : unsigned char { Single, Extended, Picks };
    // What a view has to draw anew.
    enum class Change : unsigned char { Cells, Rows, Selection, Current };

    explicit TGrid(Picking picking) : picking_(picking) {}
    virtual ~TGrid() = default;
    TGrid(const TGrid&) = delete;
    TGrid& operator=(const TGrid&) = delete;

    virtual std::size_t RowCount() const = 0;
    virtual std::size_t ColumnCount() const = 0;
    virtual std::string Header(std::size_t column) const = 0;
    virtual std::string CellText(std::size_t row, std::size_t column) const = 0;
    virtual bool CanEdit(std::size_t /*row*/, std::size_t /*column*/) const { return false; }
    // The person typed a new text into a cell. False: refused, the cell keeps its text.
    virtual bool Enter(std::size_t /*row*/, std::size_t /*column*/, const std::string& /*text*/) {
        return false;
    }
    virtual bool CanSort() const { return false; }
    virtual void Sort(std::size_t /*column*/, bool /*descending*/) {}
    // The order in which the rows stand; column -1 for none that a header could show.
    struct Sorting {
        int column = -1;
        bool descending = false;
    };
    virtual Sorting SortedBy() const { return {}; }
    virtual RowLook Look(std::size_t /*row*/) const { return RowLook::Plain; }
    virtual RowLook CellLook(std::size_t row, std::size_t /*column*/) const { return Look(row); }
    virtual std::string Hint(std::size_t /*row*/) const { return {}; }

    // The current row, -1 for none.
    int Row() const { return row_; }
    void SetRow(int row);

    bool IsSelected(std::size_t row) const { return row < selected_.size() && selected_[row]; }
    std::size_t SelectedCount() const { return selectedCount_; }
    std::vector<std::size_t> SelectedRows() const; // ascending
    // The selected rows, else the current one, else none: what row commands work on.
    std::vector<std::size_t> TargetRows() const;
    void Select(std::size_t row, bool on);
    void SelectOnly(int row); // and makes it current; -1 empties both
    void InvertSelection();
    void ClearSelection();
    // A click of the mouse, by the rule of the grid's Picking.
    void Click(std::size_t row, bool ctrl = false, bool shift = false);

    std::function<void()> OnChange;     // the form's rule: current row or selection changed
    std::function<void(Change)> OnView; // the view's refresh

protected:
    void CellsChanged() { Tell(Change::Cells); }
    // Rows were removed, added or put in another order: newIndex[i] is where the former row i is now, -1 when
    // it is gone. Selection and current row follow; a current row that is gone gives way to the one behind
    // it.
    void RowsChanged(const std::vector<int>& newIndex);
    // Wholly new rows: nothing stays selected or current.
    void RowsReplaced();

private:
    void Tell(Change change) {
        if (OnView) OnView(change);
    }
    void Changed(Change change);
    void Mark(std::size_t row, bool on);
    Picking picking_;
    int row_ = -1;
    int anchor_ = -1; // where a Shift+Click starts
    std::vector<bool> selected_;
    std::size_t selectedCount_ = 0;
};

// A list box of plain strings.
class TListBox : public TGrid {
public:
    explicit TListBox(std::string header, Picking picking = Picking::Single)
        : TGrid(picking), header_(std::move(header)) {}

    std::size_t RowCount() const override { return items_.size(); }
    std::size_t ColumnCount() const override { return 1; }
    std::string Header(std::size_t) const override { return header_; }
    std::string CellText(std::size_t row, std::size_t) const override { return items_[row]; }

    const std::vector<std::string>& Items() const { return items_; }
    void SetItems(std::vector<std::string> items);
    void Add(std::string item);
    void Put(std::size_t row, std::string item);
    void DeleteSelected();
    void Swap(std::size_t a, std::size_t b);    // selection follows
    bool Contains(std::string_view item) const; // ignores letter case

private:
    std::string header_;
    std::vector<std::string> items_;
};

} // namespace glotta
