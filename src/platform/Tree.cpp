#include "platform/Tree.h"

#include "platform/Text.h"

#include <algorithm>

namespace glotta {

std::vector<int> TTree::InOrder() const {
    std::vector<int> order, waiting(top_.rbegin(), top_.rend());
    order.reserve(nodes_.size());
    while (!waiting.empty()) {
        order.push_back(waiting.back());
        waiting.pop_back();
        const std::vector<int>& children = (*this)[order.back()].children;
        waiting.insert(waiting.end(), children.rbegin(), children.rend());
    }
    return order;
}

void TTree::Clear() {
    nodes_.clear();
    top_.clear();
    current_ = None;
}

int TTree::Add(int parent, std::string text, int image) {
    const int node = int(nodes_.size());
    std::vector<int>& siblings = parent == None ? top_ : nodes_[std::size_t(parent)].children;
    const int row = int(siblings.size());
    siblings.push_back(node);
    nodes_.push_back({std::move(text), image, parent, row, {}});
    return node;
}

void TTree::SortChildren(int parent) {
    std::vector<int>& siblings = parent == None ? top_ : nodes_[std::size_t(parent)].children;
    std::vector<std::pair<std::string, int>> keys;
    keys.reserve(siblings.size());
    for (const int node : siblings)
        keys.emplace_back(UpperCase((*this)[node].text), node);
    std::stable_sort(keys.begin(), keys.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    for (std::size_t i = 0; i < keys.size(); ++i)
        siblings[i] = keys[i].second;
    Number(siblings);
}

void TTree::Number(std::vector<int>& siblings) {
    for (std::size_t row = 0; row < siblings.size(); ++row)
        nodes_[std::size_t(siblings[row])].row = int(row);
}

void TTree::Filled() {
    current_ = None;
    Tell(Change::Nodes);
}

void TTree::Remove(int node) {
    for (int above = current_; above != None; above = (*this)[above].parent)
        if (above == node) {
            current_ = None;
            break;
        }
    const Node& removed = (*this)[node];
    std::vector<int>& siblings =
        removed.parent == None ? top_ : nodes_[std::size_t(removed.parent)].children;
    siblings.erase(siblings.begin() + removed.row);
    Number(siblings);
    Tell(Change::Nodes);
    if (OnChange) OnChange();
}

void TTree::SetImage(int node, int image) {
    nodes_[std::size_t(node)].image = image;
    Tell(Change::Images);
}

void TTree::Select(int node) {
    current_ = node;
    Tell(Change::Current);
    if (OnChange) OnChange();
}

} // namespace glotta
