#include "vcl/Menu.h"

#include <algorithm>

namespace glotta {

void TMenuItem::Click() {
    const auto handler = OnClick;
    if (enabled_ && handler) handler();
}

TMenuItem& TMenuItem::Add(std::string caption, std::string name, std::function<void()> onClick) {
    auto item = std::make_unique<TMenuItem>(std::move(caption), std::move(name));
    item->OnClick = std::move(onClick);
    return Insert(children_.size(), std::move(item));
}

TMenuItem& TMenuItem::Insert(std::size_t index, std::unique_ptr<TMenuItem> item) {
    item->parent_ = this;
    const auto place = children_.begin() + std::ptrdiff_t(std::min(index, children_.size()));
    TMenuItem& result = **children_.insert(place, std::move(item));
    Changed();
    return result;
}

void TMenuItem::Delete(std::size_t index) {
    const auto gone = std::move(children_[index]); // lives until the views were told
    children_.erase(children_.begin() + std::ptrdiff_t(index));
    Changed();
}

void TMenuItem::Clear() {
    const auto gone = std::exchange(children_, {});
    if (!gone.empty()) Changed();
}

TMenuItem* TMenuItem::FindCaption(std::string_view caption) const {
    for (const auto& child : children_)
        if (child->caption_ == caption) return child.get();
    return nullptr;
}

TMenuItem* TMenuItem::FindName(std::string_view name) const {
    for (const auto& child : children_)
        if (child->name_ == name) return child.get();
    return nullptr;
}

TMenuItem* TMenuItem::FindDeep(std::string_view name) const {
    if (TMenuItem* here = FindName(name)) return here;
    for (const auto& child : children_)
        if (TMenuItem* below = child->FindDeep(name)) return below;
    return nullptr;
}

void TMenuItem::ForEach(const std::function<void(TMenuItem&)>& act) const {
    for (const auto& child : children_) {
        act(*child);
        child->ForEach(act);
    }
}

void TMenuItem::Free() {
    if (!parent_) return;
    const auto& siblings = parent_->children_;
    const auto self =
        std::find_if(siblings.begin(), siblings.end(), [&](const auto& item) { return item.get() == this; });
    parent_->Delete(std::size_t(self - siblings.begin()));
}

void TMenuItem::Changed() {
    const TMenuItem* top = this;
    while (top->parent_)
        top = top->parent_;
    if (top->menu_ && top->menu_->OnView) top->menu_->OnView();
}

} // namespace glotta
