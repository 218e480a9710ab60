// Menus as data: trees of items that a host shows and that anybody who finds an item may extend.
#pragma once
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace glotta {

class TMenu;

// An item, or with children a submenu. The caption "-" is a separator.
class TMenuItem {
public:
    explicit TMenuItem(std::string caption = {}, std::string name = {})
        : caption_(std::move(caption)), name_(std::move(name)) {}
    TMenuItem(const TMenuItem&) = delete;
    TMenuItem& operator=(const TMenuItem&) = delete;

    const std::string& Caption() const { return caption_; }   // an ampersand marks the accelerator
    const std::string& Name() const { return name_; }         // the component name
    const std::string& ShortCut() const { return shortCut_; } // text form, "Ctrl+L"
    const std::string& Hint() const { return hint_; }         // "short|long"
    const std::string& Image() const { return image_; }       // an icon's name, empty for none
    int Tag() const { return tag_; }
    bool Enabled() const { return enabled_; }
    bool Visible() const { return visible_; }
    bool Checked() const { return checked_; }
    bool RadioItem() const { return radioItem_; }
    bool IsSeparator() const { return caption_ == "-"; }
    std::string_view ShortHint() const { return std::string_view(hint_).substr(0, hint_.find('|')); }

    void SetCaption(std::string value) { Set(caption_, std::move(value)); }
    void SetShortCut(std::string value) { Set(shortCut_, std::move(value)); }
    void SetHint(std::string value) { Set(hint_, std::move(value)); }
    void SetImage(std::string value) { Set(image_, std::move(value)); }
    void SetTag(int value) { Set(tag_, value); }
    void SetEnabled(bool value) { Set(enabled_, value); }
    void SetVisible(bool value) { Set(visible_, value); }
    void SetChecked(bool value) { Set(checked_, value); }
    void SetRadioItem(bool value) { Set(radioItem_, value); }

    // Of a submenu it runs before the children are shown.
    std::function<void()> OnClick;
    // The person chose the item or opened the submenu. Nothing happens while it is disabled. The item may be
    // freed by its own handler.
    void Click();

    std::size_t Count() const { return children_.size(); }
    TMenuItem& operator[](std::size_t index) const { return *children_[index]; }
    TMenuItem& Add(std::string caption, std::string name = {}, std::function<void()> onClick = {});
    // Behind the last one when the index is too large.
    TMenuItem& Insert(std::size_t index, std::unique_ptr<TMenuItem> item);
    void Delete(std::size_t index);
    void Clear();
    // Among the children: first one with exactly this caption; with this name.
    TMenuItem* FindCaption(std::string_view caption) const;
    TMenuItem* FindName(std::string_view name) const;
    // In the whole tree below, by name.
    TMenuItem* FindDeep(std::string_view name) const;
    // Each item below, parents before children.
    void ForEach(const std::function<void(TMenuItem&)>& act) const;

    TMenuItem* Parent() const { return parent_; }
    // Takes the item out of its parent and destroys it.
    void Free();

private:
    friend class TMenu;
    template <class T> void Set(T& field, T value) {
        if (field == value) return;
        field = std::move(value);
        Changed();
    }
    void Changed();
    std::string caption_, name_, shortCut_, hint_, image_;
    int tag_ = 0;
    bool enabled_ = true, visible_ = true, checked_ = false, radioItem_ = false;
    std::vector<std::unique_ptr<TMenuItem>> children_;
    TMenuItem* parent_ = nullptr;
    TMenu* menu_ = nullptr; // of the top of the tree only
};

// A tree of items under an invisible one. Views listen and draw anew what they show.
class TMenu {
public:
    explicit TMenu(std::string componentName = {}) : Name(std::move(componentName)) { Items.menu_ = this; }
    TMenu(const TMenu&) = delete;
    TMenu& operator=(const TMenu&) = delete;

    const std::string Name;
    TMenuItem Items;
    std::function<void()> OnView; // the view's: an item came, went or changed
};

// Its top items are the menus of the bar.
class TMainMenu : public TMenu {
public:
    using TMenu::TMenu;
};

class TPopupMenu : public TMenu {
public:
    using TMenu::TMenu;
    // Runs before the menu is shown.
    std::function<void()> OnPopup;
};

} // namespace glotta
