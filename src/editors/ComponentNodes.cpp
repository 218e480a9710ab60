#include "editors/ComponentNodes.h"

#include "vcl/ComponentKinds.h"

namespace glotta {

namespace {
constexpr int Root = 0;
}

void ComponentNodes::Build(TComponent& form, const TComponent& without) {
    Clear();
    components_.clear();
    byText_.clear();
    ByNode all;
    Collect(form, all);
    AddComponent(None, form);
    AddChildren(form.Node(), Root, all, without);
    SortChildren(Root);
    for (const int node : InOrder())
        byText_.emplace((*this)[node].text, node);
    Filled();
}

void ComponentNodes::Collect(TComponent& owner, ByNode& found) {
    for (TComponent* component : owner.Components()) {
        found.emplace(&component->Node(), component);
        Collect(*component, found);
    }
}

int ComponentNodes::AddComponent(int parent, TComponent& component) {
    components_.push_back(&component);
    return Add(parent, component.Name(), int(KindOf(component)));
}

void ComponentNodes::AddChildren(const FormNode& parent, int parentNode, const ByNode& all,
                                 const TComponent& without) {
    for (const auto& child : parent.children) {
        const auto found = all.find(child.get());
        if (found == all.end() || found->second == &without) continue;
        TComponent& component = *found->second;
        const bool control = IsControl(component);
        // What a frame owns and does not show is the frame's own matter.
        const bool listed = !component.Name().empty() && (control || component.Owner() == &At(Root));
        const int node = listed ? AddComponent(control ? parentNode : Root, component) : parentNode;
        AddChildren(*child, node, all, without);
    }
}

int ComponentNodes::Find(std::string_view text) const {
    const auto found = byText_.find(text);
    return found == byText_.end() ? None : found->second;
}

void ComponentNodes::Mark(int node, bool excluded) {
    if (IsMarked(node) != excluded)
        SetImage(node, (*this)[node].image + (excluded ? Excluded : -Excluded));
}

} // namespace glotta
