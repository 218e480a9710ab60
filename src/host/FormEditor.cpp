#include "host/FormEditor.h"

#include "host/ComponentPlacing.h"
#include "platform/Error.h"
#include "platform/Text.h"

#include <unordered_set>

namespace glotta {
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
    designer_.createAction = [this](const std::string& className, TComponent& list, const std::string& category) {
        designer_.SelectComponent(&CreateAction(className, list, category));
    };
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
    history_.Step(
        [&] {
            edit();
            TComponent* const edited = designer_.SelectedComponent();
            if (edited && history_.Touched()) AddRequiredUnits(*edited);
        },
        true);
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

const ClassInfo& PlainFormEditor::ClassToCreate(const std::string& className) const {
    const ClassInfo* info = tree_.Catalogue().Find(className);
    if (!info || info->unit.empty()) throw Error("Class " + className + " not found");
    CheckTakes(tree_.Root(), info->name);
    return *info;
}

TComponent& PlainFormEditor::CreateComponent(const std::string& className, const TComponent* selected) {
    const ClassInfo& info = ClassToCreate(className);
    const std::string name = FreeName(info.name);
    unit_.AddComponent(tree_.Root().ClassName(), name, info.name, info.unit);
    TComponent& component = tree_.Create(info.name, name);
    PlaceComponent(component, selected);
    AddRequiredUnits(component);
    MarkModified();
    return component;
}

TComponent& PlainFormEditor::CreateAction(const std::string& className, TComponent& list, const std::string& category) {
    TComponent& action = CreateComponent(className, nullptr);
    action.Node().Remove("Left");
    action.Node().Remove("Top");
    action.SetStrProp("Category", category);
    auto& onForm = tree_.Root().Node().children;
    list.Node().children.push_back(std::move(onForm.back()));
    onForm.pop_back();
    return action;
}

void PlainFormEditor::AddRequiredUnits(TComponent& component) {
    if (!RequiredUnits) return;
    for (const std::string& unit : RequiredUnits(component))
        unit_.AddUnit(unit);
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
