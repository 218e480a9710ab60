#include "vcl/Component.h"

#include "platform/Error.h"
#include "vcl/PublishedObject.h"

#include <unordered_set>

namespace glotta {

namespace {

using Factories = std::unordered_map<std::string, ComponentFactory, TextHash, TextEqual>;
Factories& RegisteredFactories() {
    static Factories factories;
    return factories;
}

constexpr std::string_view StringsSuffix = ".Strings";

void CheckName(std::string_view name) {
    const bool valid = !name.empty() && !(name[0] >= '0' && name[0] <= '9') &&
                       name.find_first_of(" .:;,()[]'\"\t\r\n") == std::string_view::npos;
    if (!valid) throw Error("'" + std::string(name) + "' is not a valid component name");
}

} // namespace

void RegisterComponentClass(std::string_view className, ComponentFactory factory) {
    RegisteredFactories().insert_or_assign(std::string(className), factory);
}

// TComponent

std::string_view TComponent::CatalogueClass() const {
    const ClassCatalogue& catalogue = tree_.Catalogue();
    if (owner_ || catalogue.Find(ClassName())) return ClassName();
    // A root whose ancestor is another form publishes what forms do.
    return catalogue.Find(tree_.RootBase()) ? std::string_view(tree_.RootBase()) : "TForm";
}

bool TComponent::InheritsFrom(std::string_view className) const {
    if (tree_.Catalogue().InheritsFrom(ClassName(), className)) return true;
    return !owner_ && tree_.Catalogue().InheritsFrom(tree_.RootBase(), className);
}

TComponent* TComponent::FindComponent(std::string_view name) const {
    const auto found = std::find_if(owned_.begin(), owned_.end(),
                                    [&](const TComponent* owned) { return SameText(owned->Name(), name); });
    return found == owned_.end() ? nullptr : *found;
}

std::vector<PropertyInfo> TComponent::PublishedProperties() const {
    return PublishedObject(*this).Properties();
}

std::optional<PropertyInfo> TComponent::FindProperty(std::string_view name) const {
    return PublishedObject(*this).FindProperty(name);
}

std::string TComponent::GetStrProp(std::string_view name, std::string_view missing) const {
    const FormProperty* property = node_.Find(name);
    return property && property->value.kind == FormValueKind::String ? property->value.text
                                                                     : std::string(missing);
}

void TComponent::SetStrProp(std::string_view name, std::string value) {
    node_.Set(name, FormValue::String(std::move(value)));
}

std::int64_t TComponent::GetOrdProp(std::string_view name, std::int64_t missing) const {
    const FormProperty* property = node_.Find(name);
    if (!property) return missing;
    switch (property->value.kind) {
    case FormValueKind::True:
        return 1;
    case FormValueKind::False:
        return 0;
    case FormValueKind::Integer:
        return property->value.integer;
    default:
        return missing;
    }
}

void TComponent::SetOrdProp(std::string_view name, std::int64_t value) {
    node_.Set(name, FormValue::Integer(value));
}
void TComponent::SetBoolProp(std::string_view name, bool value) {
    node_.Set(name, FormValue::Bool(value));
}

std::vector<std::string> TComponent::GetStrings(std::string_view name) const {
    const FormProperty* property = node_.Find(std::string(name) + std::string(StringsSuffix));
    return property && property->value.IsStringList() ? property->value.Strings()
                                                      : std::vector<std::string>();
}

void TComponent::SetStrings(std::string_view name, const std::vector<std::string>& lines) {
    const std::string property = std::string(name) + std::string(StringsSuffix);
    if (lines.empty())
        node_.Remove(property);
    else
        node_.Set(property, FormValue::StringListOf(lines));
}

std::string TComponent::GetMethodProp(std::string_view event) const {
    const FormProperty* property = node_.Find(event);
    return property && property->value.kind == FormValueKind::Identifier ? property->value.text
                                                                         : std::string();
}

void TComponent::SetMethodProp(std::string_view event, const std::string& method) {
    if (method.empty())
        node_.Remove(event);
    else
        node_.Set(event, FormValue::Identifier(method));
}

// ComponentTree

ComponentTree::ComponentTree(FormFile& file, std::string rootBase, const ClassCatalogue& catalogue)
    : file_(file), catalogue_(catalogue), rootBase_(std::move(rootBase)) {
    root_ = &Adopt(file.Root(), nullptr);
    for (const auto& component : all_)
        component->Loaded();
}

TComponent& ComponentTree::Adopt(FormNode& node, TComponent* owner) {
    const Factories& factories = RegisteredFactories();
    const auto factory = factories.find(node.className);
    all_.push_back(factory == factories.end() ? std::make_unique<TComponent>(*this, node, owner)
                                              : factory->second(*this, node, owner));
    TComponent& component = *all_.back();
    if (owner) owner->owned_.push_back(&component);
    // The root owns everything but the parts of inline frames.
    TComponent* childOwner = !owner || node.kind == FormNodeKind::Inline ? &component : owner;
    for (const auto& child : node.children)
        Adopt(*child, childOwner);
    return component;
}

TComponent& ComponentTree::Create(std::string className, std::string name) {
    CheckName(name);
    if (root_->FindComponent(name) || SameText(root_->Name(), name))
        throw Error("A component named " + name + " already exists");
    FormNode& node = root_->Node().AddChild(std::move(name), std::move(className));
    TComponent& component = Adopt(node, root_);
    component.Loaded();
    return component;
}

namespace {

void CollectNodes(const FormNode& node, std::unordered_set<const FormNode*>& nodes) {
    nodes.insert(&node);
    for (const auto& child : node.children)
        CollectNodes(*child, nodes);
}

std::unique_ptr<FormNode> TakeNode(FormNode& parent, const FormNode& node) {
    for (auto child = parent.children.begin(); child != parent.children.end(); ++child) {
        std::unique_ptr<FormNode> taken = child->get() == &node ? std::move(*child) : nullptr;
        if (taken)
            parent.children.erase(child);
        else
            taken = TakeNode(**child, node);
        if (taken) return taken;
    }
    return nullptr;
}

} // namespace

void ComponentTree::Remove(TComponent& component) {
    if (&component == root_) throw Error("the form itself cannot be taken off the form");
    const FormNode& node = component.Node();
    std::unordered_set<const FormNode*> gone;
    CollectNodes(node, gone);
    const auto isGone = [&](const TComponent& each) { return gone.contains(&each.node_); };
    for (const auto& each : all_)
        std::erase_if(each->owned_, [&](const TComponent* owned) { return isGone(*owned); });
    if (auto taken = TakeNode(root_->Node(), node)) detached_.push_back(std::move(taken));
}

// A component that is not seen at run time lies on the form as an icon; it gets a place where none lies yet.
std::string ComponentTree::UniqueName(std::string_view className) const {
    std::unordered_set<std::string, TextHash, TextEqual> taken;
    taken.insert(root_->Name());
    for (const TComponent* component : root_->Components())
        taken.insert(component->Name());
    const bool typed = className.size() > 1 && (className[0] == 'T' || className[0] == 't');
    const std::string stem(className.substr(typed ? 1 : 0));
    for (int number = 1;; ++number)
        if (std::string name = stem + std::to_string(number); !taken.contains(name)) return name;
}

void ComponentTree::BeforeWrite() {
    for (const auto& component : all_)
        component->BeforeWrite();
}

} // namespace glotta
