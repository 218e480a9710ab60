#include "vcl/FormSnapshot.h"

#include <unordered_map>

namespace glotta {
namespace {

bool SameBytes(const FormProperty& a, const FormProperty& b) {
    return a == b && a.raw == b.raw;
}

bool SameChildren(const FormNode& node, const std::vector<FormNode*>& children) {
    return std::equal(node.children.begin(), node.children.end(), children.begin(), children.end(),
                      [](const auto& child, const FormNode* other) { return child.get() == other; });
}

} // namespace

FormSnapshot::FormSnapshot(ComponentTree& tree) {
    tree.BeforeWrite();
    states_.reserve(tree.all_.size());
    for (const auto& component : tree.all_) {
        const FormNode& node = component->node_;
        State state{component.get(), node.name, node.className, node.rawHead, node.properties, {}, component->owned_};
        for (const auto& child : node.children)
            state.children.push_back(child.get());
        states_.push_back(std::move(state));
    }
}

bool FormSnapshot::State::IsAs(const State& other) const {
    return name == other.name && className == other.className && rawHead == other.rawHead &&
           children == other.children && owned == other.owned &&
           std::equal(properties.begin(), properties.end(), other.properties.begin(), other.properties.end(), SameBytes);
}

// Components are never forgotten, so both have the same ones at the same places; new ones are at the end.
bool FormSnapshot::Difference(FormSnapshot& before, FormSnapshot& after) {
    std::vector<State> old, now;
    for (std::size_t i = 0; i < after.states_.size(); ++i) {
        const bool isNew = i >= before.states_.size();
        if (!isNew && before.states_[i].IsAs(after.states_[i])) continue;
        if (!isNew) old.push_back(std::move(before.states_[i]));
        now.push_back(std::move(after.states_[i]));
    }
    before.states_ = std::move(old);
    after.states_ = std::move(now);
    return !after.states_.empty();
}

void FormSnapshot::Restore(ComponentTree& tree) const {
    std::unordered_map<const FormNode*, std::unique_ptr<FormNode>> loose;
    const auto loosen = [&](std::vector<std::unique_ptr<FormNode>>& nodes) {
        for (auto& node : nodes)
            loose[node.get()] = std::move(node);
        nodes.clear();
    };
    std::vector<const State*> moved;
    for (const State& state : states_)
        if (!SameChildren(state.component->node_, state.children)) moved.push_back(&state);
    if (!moved.empty()) loosen(tree.detached_);
    for (const State* state : moved)
        loosen(state->component->node_.children);
    for (const State* state : moved)
        for (const FormNode* child : state->children)
            state->component->node_.children.push_back(std::move(loose[child]));
    for (auto& [key, node] : loose)
        if (node) tree.detached_.push_back(std::move(node));
    for (const State& state : states_) {
        FormNode& node = state.component->node_;
        node.name = state.name;
        node.className = state.className;
        node.rawHead = state.rawHead;
        node.properties = state.properties;
        state.component->owned_ = state.owned;
        state.component->Loaded();
    }
}

std::vector<FormSnapshot::Rename> FormSnapshot::Renames(const FormSnapshot& from, const FormSnapshot& to) {
    std::vector<Rename> renames;
    for (std::size_t i = 0; i < from.states_.size() && i < to.states_.size(); ++i) {
        const State &old = from.states_[i], &now = to.states_[i];
        if (old.name != now.name) renames.push_back({now.component, old.name, old.className, now.name, now.className});
    }
    return renames;
}

} // namespace glotta
