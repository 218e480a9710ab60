// The tree of a form's components: controls under the controls that hold them, all others under the form.
#pragma once
#include "platform/Text.h"
#include "platform/Tree.h"
#include "vcl/Component.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace glotta {

class ComponentNodes : public TTree {
public:
    // The images 0 to 4 are the kinds of components; those of excluded ones follow 7 later.
    static constexpr int Excluded = 7;

    // All components of the form but one: the localization component itself, and what has no name.
    void Build(TComponent& form, const TComponent& without);

    TComponent& At(int node) const { return *components_[std::size_t(node)]; }
    // The first node with this text, letter case ignored; None when there is none.
    int Find(std::string_view text) const;
    // Marks the node as excluded or not.
    void Mark(int node, bool excluded);
    bool IsMarked(int node) const { return (*this)[node].image >= Excluded; }

private:
    using ByNode = std::unordered_map<const FormNode*, TComponent*>;
    static void Collect(TComponent& owner, ByNode& found);
    void AddChildren(const FormNode& parent, int parentNode, const ByNode& all, const TComponent& without);
    int AddComponent(int parent, TComponent& component);
    std::vector<TComponent*> components_; // by node
    std::unordered_map<std::string, int, TextHash, TextEqual> byText_;
};

} // namespace glotta
