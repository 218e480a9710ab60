#include "host/ComponentPlacing.h"

#include "platform/Error.h"
#include "vcl/ComponentKinds.h"

#include <algorithm>
#include <unordered_map>

namespace glotta {
namespace {

constexpr std::int64_t Grid = 8;

struct Point {
    std::int64_t left, top;
};
struct Size {
    std::int64_t width, height;
};

// --- containers ---

constexpr std::string_view Containers[] = {
    "TScrollingWinControl", "TCustomPanel", "TCustomGroupBox", "TTabSheet",
    "TToolWindow",          "TPage",        "TTabControl",     "TPageScroller"};

using ByNode = std::unordered_map<const FormNode*, TComponent*>;

ByNode ComponentsOf(TComponent& root) {
    ByNode components{{&root.Node(), &root}};
    for (TComponent* component : root.Components())
        components.emplace(&component->Node(), component);
    return components;
}

// A class that the catalogue does not know holds controls when it does so already.
bool HoldsControls(const TComponent& component, const ByNode& components) {
    if (component.InheritsFrom("TCustomRadioGroup")) return false; // its buttons are its own
    for (const std::string_view container : Containers)
        if (component.InheritsFrom(container)) return true;
    if (component.Tree().Catalogue().Find(component.ClassName())) return false;
    return std::any_of(component.Node().children.begin(), component.Node().children.end(),
                       [&](const auto& child) {
                           const auto found = components.find(child.get());
                           return found != components.end() && IsControl(*found->second);
                       });
}

// The nodes from `from` down to `node`, the latter first.
bool PathTo(const FormNode& from, const FormNode& node, std::vector<const FormNode*>& path) {
    const bool found =
        &from == &node || std::any_of(from.children.begin(), from.children.end(),
                                      [&](const auto& child) { return PathTo(*child, node, path); });
    if (found) path.push_back(&from);
    return found;
}

// What stands within a frame is the frame's own.
TComponent& ContainerOf(TComponent& root, const TComponent* selected, const ByNode& components) {
    std::vector<const FormNode*> path;
    if (selected) PathTo(root.Node(), selected->Node(), path);
    TComponent* container = &root;
    for (auto node = path.rbegin(); node != path.rend() && (*node)->kind != FormNodeKind::Inline; ++node)
        if (const auto known = components.find(*node); known != components.end())
            if (HoldsControls(*known->second, components)) container = known->second;
    return *container;
}

// Controls without a window come first, then those with one, then all that does not show.
int Rank(ComponentKind kind) {
    return kind == ComponentKind::Control ? 0 : kind == ComponentKind::NonVisual ? 2 : 1;
}

void MoveInto(TComponent& component, TComponent& container, const ByNode& components) {
    auto& from = component.Tree().Root().Node().children;
    std::unique_ptr<FormNode> node = std::move(from.back());
    from.pop_back();
    auto& to = container.Node().children;
    const int rank = Rank(KindOf(component));
    const auto last = std::find_if(to.rbegin(), to.rend(), [&](const auto& child) {
        const auto known = components.find(child.get());
        return known != components.end() && Rank(KindOf(*known->second)) <= rank;
    });
    to.insert(last.base(), std::move(node));
}

// --- controls ---

struct Look {
    std::string_view ancestor;
    Size size; // as wide as its caption when it has no width
};
constexpr Look Looks[] = {{"TCustomLabel", {0, 13}}, {"TCustomCombo", {145, 21}}, {"TControl", {97, 25}}};

Size StartSize(const TComponent& component) {
    constexpr std::int64_t LetterWidth = 5;
    for (const Look& look : Looks) {
        if (!component.InheritsFrom(look.ancestor)) continue;
        const auto caption = std::int64_t(component.Name().size()) * LetterWidth + 1;
        return {look.size.width ? look.size.width : caption, look.size.height};
    }
    return {};
}

Size InnerSize(const TComponent& container) {
    const auto length = [&](std::string_view inner, std::string_view outer, std::int64_t usual) {
        return container.GetOrdProp(inner, container.GetOrdProp(outer, usual));
    };
    return {length("ClientWidth", "Width", 320), length("ClientHeight", "Height", 240)};
}

// In the middle, and a step aside of what lies there already.
Point MiddlePlace(const TComponent& container, const Size& size, const ByNode& components) {
    const Size room = InnerSize(container);
    const auto middle = [](std::int64_t whole, std::int64_t part) {
        return std::max<std::int64_t>(0, (whole - part) / 2 / Grid * Grid);
    };
    std::unordered_multimap<std::int64_t, std::int64_t> taken; // top by left
    for (const auto& child : container.Node().children)
        if (const auto known = components.find(child.get()); known != components.end())
            taken.emplace(known->second->GetOrdProp("Left", -1), known->second->GetOrdProp("Top", -1));
    const auto isTaken = [&](const Point& place) {
        const auto [begin, end] = taken.equal_range(place.left);
        return std::any_of(begin, end, [&](const auto& other) { return other.second == place.top; });
    };
    Point place{middle(room.width, size.width), middle(room.height, size.height)};
    while (isTaken(place))
        place = {place.left + Grid, place.top + Grid};
    return place;
}

std::int64_t NextTabOrder(const TComponent& container, const ByNode& components) {
    std::int64_t next = 0;
    for (const auto& child : container.Node().children)
        if (const auto known = components.find(child.get()); known != components.end())
            next = std::max(next, known->second->GetOrdProp("TabOrder", -1) + 1);
    return next;
}

void PlaceControl(TComponent& component, const TComponent* selected) {
    TComponent& root = component.Tree().Root();
    const ByNode components = ComponentsOf(root);
    TComponent& container = ContainerOf(root, selected, components);
    const Size size = StartSize(component);
    const Point place = MiddlePlace(container, size, components);
    component.SetOrdProp("Left", place.left);
    component.SetOrdProp("Top", place.top);
    component.SetOrdProp("Width", size.width);
    component.SetOrdProp("Height", size.height);
    for (const char* text : {"Caption", "Text"})
        if (component.FindProperty(text)) component.SetStrProp(text, component.Name());
    if (component.InheritsFrom("TWinControl"))
        component.SetOrdProp("TabOrder", NextTabOrder(container, components));
    MoveInto(component, container, components);
}

// --- what does not show at run time ---

// Where the designer has room for one more icon.
Point FreePlace(const TComponent& root, const TComponent& component) {
    constexpr std::int64_t Step = 32, Columns = 12;
    std::vector<Point> taken;
    for (const TComponent* other : root.Components()) {
        const FormNode& node = other->Node();
        if (other != &component && node.Find("Left") && node.Find("Top") && !node.Find("Width"))
            taken.push_back({other->GetOrdProp("Left"), other->GetOrdProp("Top")});
    }
    const auto overlaps = [](std::int64_t a, std::int64_t b) { return a - b < Step && b - a < Step; };
    for (std::int64_t cell = 0;; ++cell) {
        const Point place{Grid + cell % Columns * Step, Grid + cell / Columns * Step};
        const bool free = std::none_of(taken.begin(), taken.end(), [&](const Point& other) {
            return overlaps(place.left, other.left) && overlaps(place.top, other.top);
        });
        if (free) return place;
    }
}

} // namespace

void CheckTakes(const TComponent& root, std::string_view className) {
    if (KindOf(root) == ComponentKind::DataModule &&
        root.Tree().Catalogue().InheritsFrom(className, "TControl"))
        throw Error(std::string(className) + " is a control, and the data module " + root.Name() +
                    " takes only components that do not show at run time");
}

void PlaceComponent(TComponent& component, const TComponent* selected) {
    if (IsControl(component)) return PlaceControl(component, selected);
    const Point place = FreePlace(component.Tree().Root(), component);
    component.SetOrdProp("Left", place.left);
    component.SetOrdProp("Top", place.top);
}

} // namespace glotta
