// An ordered list of strings with the text conventions of a VCL string list.
#pragma once
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace glotta {

// IndexOf ignores letter case and is hashed: the index is built at the first look-up and kept up to date by Add.
class TStringList {
public:
    TStringList() = default;
    explicit TStringList(std::vector<std::string> items) : items_(std::move(items)) {}

    std::size_t Count() const { return items_.size(); }
    bool Empty() const { return items_.empty(); }
    const std::string& operator[](std::size_t index) const { return items_[index]; }
    const std::vector<std::string>& Items() const { return items_; }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

    int Add(std::string item); // the new item's index
    void Insert(std::size_t index, std::string item);
    void Put(std::size_t index, std::string item);
    void Delete(std::size_t index);
    void Clear();
    void Assign(std::vector<std::string> items);
    int IndexOf(std::string_view item) const; // first match, -1 when there is none

    std::string Text() const; // each line followed by CR LF
    void SetText(std::string_view text);
    std::string CommaText() const; // items with blanks, commas or quotes are put in double quotes
    void SetCommaText(std::string_view text);

    bool operator==(const TStringList& other) const { return items_ == other.items_; }

private:
    std::vector<std::string> items_;
    mutable std::unordered_map<std::string, int> index_; // upper-cased item to first index
    mutable bool indexed_ = false;
};

} // namespace glotta
