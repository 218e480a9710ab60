#include "host/FormEditor.h"

#include "platform/Error.h"
#include "platform/Text.h"

#include <unordered_set>

namespace glotta {
namespace {

struct Place {
    std::int64_t left, top;
};

// Where the IDE's grid has room for one more component that does not show at run time.
Place FreePlace(const TComponent& root) {
    constexpr std::int64_t Margin = 8, Step = 32, Columns = 12;
    std::vector<Place> taken;
    for (const TComponent* component : root.Components()) {
        const FormNode& node = component->Node();
        if (node.Find("Left") && node.Find("Top") && !node.Find("Width"))
            taken.push_back({component->GetOrdProp("Left"), component->GetOrdProp("Top")});
    }
    const auto overlaps = [](std::int64_t a, std::int64_t b) { return a - b < Step && b - a < Step; };
    for (std::int64_t cell = 0;; ++cell) {
        const Place place{Margin + cell % Columns * Step, Margin + cell / Columns * Step};
        const bool free = std::none_of(taken.begin(), taken.end(), [&](const Place& other) {
            return overlaps(place.left, other.left) && overlaps(place.top, other.top);
        });
        if (free) return place;
    }
}

} // namespace

IOTAComponent* PlainComponent::GetComponent(int index) {
    if (index < 0 || index >= GetComponentCount()) return nullptr;
    TComponent* child = component_.Components()[static_cast<std::size_t>(index)];
    auto& handle = children_[child];
    if (!handle) handle = std::make_unique<PlainComponent>(*child);
    return handle.get();
}

PlainFormEditor::PlainFormEditor(IOTAModule& module, std::string fileName, std::string_view bytes,
                                 unsigned codePage, FormUnit unit, FindAncestorForm findAncestor,
                                 std::function<void()> onShow)
    : module_(module), fileName_(std::move(fileName)), file_(FormFile::Parse(bytes, fileName_, codePage)),
      unit_(unit), heritage_(unit_, file_.Root(), std::move(findAncestor)),
      tree_(file_, heritage_.RootBase(), ClassCatalogue::OfForm(fileName_)), rootHandle_(tree_.Root()),
      history_(tree_, [this] { return Texts ? Texts() : std::vector<PlainSourceEditor*>(); }),
      designer_(tree_, unit_, heritage_, [this] { MarkModified(); }), onShow_(std::move(onShow)) {
    designer_.isInherited = [this](const std::string& name) { return IsInherited(name); };
}

bool PlainFormEditor::IsInherited(const std::string& name) const {
    const std::vector<std::string> names = InheritedNames ? InheritedNames() : std::vector<std::string>();
    return std::any_of(names.begin(), names.end(), [&](const std::string& other) { return SameText(other, name); });
}

void PlainFormEditor::Step(const std::function<void()>& change) {
    history_.Step(change);
    if (OnView) OnView();
}

void PlainFormEditor::EditStep(const std::function<void()>& edit) {
    history_.Step(edit, true);
    if (OnView) OnView();
}

void PlainFormEditor::Follow(const FormHistory::Renames& renames) {
    for (const FormSnapshot::Rename& rename : renames)
        designer_.FollowRename(*rename.component, {rename.from, rename.fromClass}, {rename.to, rename.toClass});
    if (OnView) OnView();
}

std::string PlainFormEditor::FreeName(const std::string& className) {
    std::string name = tree_.UniqueName(className);
    const std::size_t digits = name.find_last_not_of("0123456789") + 1;
    const std::string base = name.substr(0, digits);
    std::unordered_set<std::string, TextHash, TextEqual> taken;
    if (InheritedNames)
        for (std::string& inherited : InheritedNames())
            taken.insert(std::move(inherited));
    for (int number = std::stoi(name.substr(digits));
         taken.contains(name) || tree_.Root().FindComponent(name);)
        name = base + std::to_string(++number);
    return name;
}

TComponent& PlainFormEditor::CreateComponent(const std::string& className) {
    const ClassInfo* info = tree_.Catalogue().Find(className);
    if (!info || info->unit.empty()) throw Error("Class " + className + " not found");
    const std::string name = FreeName(info->name);
    const Place place = FreePlace(tree_.Root());
    unit_.AddComponent(tree_.Root().ClassName(), name, info->name, info->unit);
    TComponent& component = tree_.Create(info->name, name);
    component.SetOrdProp("Left", place.left);
    component.SetOrdProp("Top", place.top);
    MarkModified();
    return component;
}

void PlainFormEditor::DeleteComponent(TComponent& component) {
    unit_.RemoveField(tree_.Root().ClassName(), component.Name());
    if (designer_.SelectedComponent() == &component) designer_.SelectComponent(nullptr);
    rootHandle_.Forget();
    tree_.Remove(component);
    MarkModified();
}

std::string PlainFormEditor::Bytes() {
    tree_.BeforeWrite();
    return file_.Write();
}

} // namespace glotta
