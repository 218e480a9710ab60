// One of the three lists of what is kept out of translation, as a list box. Look-ups are hashed and ignore
// letter case.
#pragma once
#include "platform/Grid.h"
#include "platform/Text.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace glotta {

class ExclusionList : public TGrid {
public:
    explicit ExclusionList(std::string header) : TGrid(Picking::Extended), header_(std::move(header)) {}

    std::size_t RowCount() const override { return items_.size(); }
    std::size_t ColumnCount() const override { return 1; }
    std::string Header(std::size_t) const override { return header_; }
    std::string CellText(std::size_t row, std::size_t) const override { return items_[row]; }

    const std::vector<std::string>& Items() const { return items_; }
    bool Contains(std::string_view item) const { return present_.find(item) != present_.end(); }
    void Assign(std::vector<std::string> items);
    void Add(std::string item); // where a sorted list has it, else at the end; also when it is there already
    bool AddNew(std::string item); // unless it is there already
    void SelectAll();
    std::vector<std::string> DeleteSelected(); // what is gone

    bool Sorted() const { return sorted_; }
    void SetSorted(bool sorted); // switching it off leaves the order

    // While one lives, added items wait for it before they are shown and sorted.
    class Batch {
    public:
        explicit Batch(ExclusionList& list) : list_(list) { ++list_.batches_; }
        ~Batch() {
            if (--list_.batches_ == 0) list_.Arrange();
        }
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

    private:
        ExclusionList& list_;
    };

private:
    void Arrange();
    std::string header_;
    std::vector<std::string> items_;
    std::unordered_multiset<std::string, TextHash, TextEqual> present_;
    bool sorted_ = false;
    int batches_ = 0;
};

} // namespace glotta
