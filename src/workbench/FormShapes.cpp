#include "workbench/FormShapes.h"

#include "platform/Text.h"
#include "vcl/ComponentKinds.h"
#include "workbench/QtText.h"

#include <unordered_map>

namespace glotta {
namespace {

constexpr int IconSize = 28, TabStrip = 24, MaximumDepth = 200, MaximumSize = 8000;

// Sizes of controls whose form file leaves them to the class.
struct DefaultSize {
    const char* className;
    int width, height;
};
constexpr DefaultSize DefaultSizes[] = {{"TToolButton", 23, 22}, {"TSplitter", 3, 100}, {"TStatusBar", 0, 19},
                                        {"TToolBar", 0, 29},     {"TControl", 75, 25}};

int Number(const TComponent& component, std::string_view name, int missing) {
    const FormProperty* property = component.Node().Find(name);
    if (!property || property->value.kind != FormValueKind::Integer) return missing;
    return int(std::clamp<std::int64_t>(property->value.integer, -MaximumSize, MaximumSize));
}

bool IsPage(const TComponent& component) {
    return component.InheritsFrom("TTabSheet") || component.InheritsFrom("TPage") ||
           component.ClassName() == "TdxTabSheet" || component.ClassName() == "TPageSheet";
}

class Painter {
public:
    explicit Painter(ComponentTree& tree) : tree_(tree) { Index(tree.Root(), 0); }

    FormPicture Take() {
        TComponent& root = tree_.Root();
        picture_.caption = CaptionOf(root);
        picture_.hasFrame = root.InheritsFrom("TCustomForm") || tree_.RootBase().empty();
        if (root.InheritsFrom("TDataModule") || root.InheritsFrom("TCustomFrame")) picture_.hasFrame = false;
        AddMenu(root);
        const int edges = picture_.hasFrame ? 8 : 0;
        const int heads = (picture_.hasFrame ? 27 : 0) + (picture_.menus.isEmpty() ? 0 : 19);
        picture_.client = QSize(std::max(80, Number(root, "ClientWidth", Number(root, "Width", 320) - edges)),
                                std::max(60, Number(root, "ClientHeight", Number(root, "Height", 240) - heads)));
        const QRect all(QPoint(0, 0), picture_.client);
        AddChildren(root.Node(), all.topLeft(), all, 0);
        for (DrawnControl& icon : icons_)
            picture_.shapes.push_back(icon);
        return std::move(picture_);
    }

private:
    void Index(TComponent& owner, int depth) {
        if (depth > MaximumDepth) return;
        for (TComponent* component : owner.Components()) {
            byNode_[&component->Node()] = component;
            Index(*component, depth + 1);
        }
    }

    void AddChildren(const FormNode& parent, QPoint origin, const QRect& clip, int depth) {
        if (depth > MaximumDepth) return;
        // Graphic controls lie behind windowed ones.
        for (const bool windowed : {false, true})
            for (const auto& child : parent.children)
                if (const auto found = byNode_.find(child.get()); found != byNode_.end())
                    if (found->second->InheritsFrom("TGraphicControl") != windowed)
                        Add(*found->second, parent, origin, clip, depth);
    }

    void Add(TComponent& component, const FormNode& parent, QPoint origin, const QRect& clip, int depth) {
        if (!IsControl(component)) {
            if (component.InheritsFrom("TMenuItem") || !component.Node().Find("Left")) return;
            const QRect rect(Number(component, "Left", 0), Number(component, "Top", 0), IconSize, IconSize);
            icons_.push_back({&component, rect, QRect(QPoint(0, 0), picture_.client), depth, false});
            return;
        }
        const bool page = IsPage(component);
        if (page && !IsShownPage(component, parent)) return;
        QRect rect = page ? clip : Bounds(component).translated(origin);
        picture_.shapes.push_back({&component, rect, clip, depth, true});
        const QRect inside = Inside(component, rect);
        AddChildren(component.Node(), inside.topLeft(), inside.intersected(clip), depth + 1);
    }

    QRect Bounds(const TComponent& component) const {
        int width = 75, height = 25;
        for (const DefaultSize& each : DefaultSizes)
            if (component.InheritsFrom(each.className)) {
                width = each.width ? each.width : picture_.client.width();
                height = each.height;
                break;
            }
        return QRect(Number(component, "Left", 0), Number(component, "Top", 0),
                     Number(component, "Width", width), Number(component, "Height", height));
    }

    static QRect Inside(const TComponent& component, const QRect& rect) {
        if (component.InheritsFrom("TPageControl") || component.InheritsFrom("TTabControl"))
            return rect.adjusted(4, TabStrip, -4, -4);
        return rect;
    }

    // The page that the form file calls active, else the first one.
    static bool IsShownPage(const TComponent& page, const FormNode& parent) {
        const FormProperty* active = parent.Find("ActivePage");
        if (active && !active->value.text.empty()) return SameText(active->value.text, page.Name());
        return !parent.children.empty() && parent.children.front().get() == &page.Node();
    }

    void AddMenu(const TComponent& root) {
        const FormProperty* named = root.Node().Find("Menu");
        for (const TComponent* component : root.Components()) {
            if (!component->InheritsFrom("TMainMenu")) continue;
            if (named && !SameText(named->value.text, component->Name())) continue;
            for (const auto& item : component->Node().children)
                if (const auto found = byNode_.find(item.get()); found != byNode_.end())
                    picture_.menus << CaptionOf(*found->second);
            return;
        }
    }

    ComponentTree& tree_;
    std::unordered_map<const FormNode*, TComponent*> byNode_;
    FormPicture picture_;
    std::vector<DrawnControl> icons_;
};

} // namespace

QString CaptionOf(const TComponent& component, bool keepAccelerator) {
    const FormProperty* property = component.Node().Find("Caption");
    QString text = property && property->value.kind == FormValueKind::String ? Q(property->value.text) : QString();
    if (keepAccelerator) return text;
    text.replace("&&", QString(QChar(1)));
    text.remove('&');
    return text.replace(QChar(1), '&');
}

FormPicture PictureOf(ComponentTree& tree) {
    return Painter(tree).Take();
}

} // namespace glotta
