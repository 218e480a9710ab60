// What a tree view is made of, without a toolkit: nodes with texts and image numbers, and the current one. A
// view asks for a node when it draws it.
#pragma once
#include <functional>
#include <string>
#include <vector>

namespace glotta {

class TTree {
public:
    static constexpr int None = -1; // no node; as a parent: the node stands at the top
    // What a view has to draw anew.
    enum class Change : unsigned char { Nodes, Images, Current };
    struct Node {
        std::string text;
        int image = 0;
        int parent = None;
        int row = 0; // among its parent's children
        std::vector<int> children;
    };

    TTree() = default;
    TTree(const TTree&) = delete;
    TTree& operator=(const TTree&) = delete;

    const Node& operator[](int node) const { return nodes_[std::size_t(node)]; }
    const std::vector<int>& Children(int parent) const {
        return parent == None ? top_ : nodes_[std::size_t(parent)].children;
    }
    bool Empty() const { return top_.empty(); }
    std::size_t Count() const { return nodes_.size(); } // removed ones still have their numbers
    std::vector<int> InOrder() const; // each node before its children

    // Filling: `Filled` tells the view, and nothing is current afterwards.
    void Clear();
    int Add(int parent, std::string text, int image); // as the last child; numbers count from 0 after Clear
    void SortChildren(int parent);                    // by text, ignoring letter case
    void Filled();

    void Remove(int node); // with all below it; the numbers of the others stay
    void SetImage(int node, int image);

    int Current() const { return current_; }
    void Select(int node); // tells OnChange, also when it was current before

    std::function<void()> OnChange;     // the form's rule: another node is current
    std::function<void(Change)> OnView; // the view's refresh

private:
    void Tell(Change change) {
        if (OnView) OnView(change);
    }
    void Number(std::vector<int>& siblings);
    std::vector<Node> nodes_;
    std::vector<int> top_;
    int current_ = None;
};

} // namespace glotta
