#include "host/DesignRegistry.h"

#include <algorithm>
#include <optional>

namespace glotta {
namespace {

// How many steps up the class line the ancestor stands; nothing for what is none. An empty name is above all.
std::optional<int> Steps(const TComponent& component, std::string_view ancestor) {
    constexpr int Above = 1000;
    if (ancestor.empty()) return Above;
    if (!component.InheritsFrom(ancestor)) return {};
    const ClassCatalogue& catalogue = component.Tree().Catalogue();
    std::string_view name = component.ClassName();
    for (int steps = 0; steps < Above; ++steps) {
        if (SameText(name, ancestor)) return steps;
        const ClassInfo* info = catalogue.Find(name);
        if (!info || info->parent.empty()) break;
        name = info->parent;
    }
    return Above; // by the root's heritage
}

bool TypeMatches(const ClassCatalogue& catalogue, const PropertyInfo& property, std::string_view type) {
    return type.empty() || catalogue.InheritsFrom(property.typeName, type);
}

} // namespace

// --- registration ---

void DesignRegistry::Add(std::vector<Classes>& to, std::string_view page,
                         const std::vector<std::string_view>& classes) {
    to.push_back({group_, std::string(page), {classes.begin(), classes.end()}});
    Changed();
}

void DesignRegistry::RegisterComponents(std::string_view page, const std::vector<std::string_view>& classes) {
    Add(components_, page, classes);
}

void DesignRegistry::RegisterActions(std::string_view category, const std::vector<std::string_view>& classes,
                                     std::string_view) {
    Add(actions_, category, classes);
}

void DesignRegistry::RegisterComponentEditor(std::string_view componentClass, TComponentEditorClass editor) {
    componentEditors_.push_back({group_, std::string(componentClass), std::move(editor)});
    Changed();
}

void DesignRegistry::RegisterPropertyEditor(std::string_view type, std::string_view componentClass,
                                            std::string_view propertyName, TPropertyEditorClass editor) {
    propertyEditors_[std::string(propertyName)].push_back(
        {group_, std::string(componentClass), std::move(editor), std::string(type)});
    Changed();
}

void DesignRegistry::RegisterSelectionEditor(std::string_view componentClass, TSelectionEditorClass editor) {
    selectionEditors_.push_back({group_, std::string(componentClass), std::move(editor)});
    Changed();
}

void DesignRegistry::FreeEditorGroup(int group) {
    const auto free = [group](auto& registered) {
        std::erase_if(registered, [group](const auto& each) { return each.group == group; });
    };
    free(components_);
    free(actions_);
    free(componentEditors_);
    free(selectionEditors_);
    for (auto& [name, editors] : propertyEditors_)
        free(editors);
    std::erase_if(propertyEditors_, [](const auto& named) { return named.second.empty(); });
    Changed();
}

// --- what applies ---

std::vector<ClassesOnPage> DesignRegistry::Joined(const std::vector<Classes>& registered) {
    std::vector<ClassesOnPage> pages;
    for (const Classes& each : registered) {
        auto page = std::find_if(pages.begin(), pages.end(),
                                 [&](const ClassesOnPage& known) { return SameText(known.name, each.page); });
        if (page == pages.end()) page = pages.insert(pages.end(), {each.page, {}});
        page->classes.insert(page->classes.end(), each.classes.begin(), each.classes.end());
    }
    return pages;
}

template <class Editors, class Applies>
const typename Editors::value_type* DesignRegistry::Nearest(const Editors& editors, const TComponent& component,
                                                            Applies applies) {
    const typename Editors::value_type* nearest = nullptr;
    int fewest = 0;
    for (const auto& registered : editors) {
        if (!applies(registered)) continue;
        const std::optional<int> steps = Steps(component, registered.componentClass);
        if (!steps || (nearest && *steps > fewest)) continue;
        nearest = &registered;
        fewest = *steps;
    }
    return nearest;
}

std::unique_ptr<IComponentEditor> DesignRegistry::ComponentEditorOf(TComponent& component, IDesigner& designer) {
    const auto* found = Nearest(componentEditors_, component, [](const auto&) { return true; });
    return found ? found->editor.Create({designer, *this}, component) : nullptr;
}

const DesignRegistry::Registered<TPropertyEditorClass>*
DesignRegistry::FindProperty(const TComponent& component, const PropertyInfo& property,
                             std::string_view registeredName) const {
    const auto named = propertyEditors_.find(registeredName);
    if (named == propertyEditors_.end()) return nullptr;
    const ClassCatalogue& catalogue = component.Tree().Catalogue();
    return Nearest(named->second, component, [&](const auto& registered) {
        return TypeMatches(catalogue, property, registered.type);
    });
}

// What is registered for the property's name goes before what is registered for its type alone.
std::unique_ptr<IProperty> DesignRegistry::PropertyEditorOf(TComponent& component, const PropertyInfo& property,
                                                            IDesigner& designer) {
    const auto* found = FindProperty(component, property, property.name);
    if (!found) found = FindProperty(component, property, {});
    return found ? found->editor.Create({designer, *this}, component, property) : nullptr;
}

std::vector<std::unique_ptr<IProperty>> DesignRegistry::GetComponentProperties(TComponent& component,
                                                                               IDesigner& designer) {
    std::vector<std::unique_ptr<IProperty>> editors;
    for (const PropertyInfo& property : component.PublishedProperties())
        if (auto editor = PropertyEditorOf(component, property, designer)) editors.push_back(std::move(editor));
    return editors;
}

std::vector<std::unique_ptr<ISelectionEditor>>
DesignRegistry::SelectionEditorsOf(const IDesignerSelections& selection, IDesigner& designer) {
    std::vector<std::unique_ptr<ISelectionEditor>> editors;
    for (const auto& registered : selectionEditors_) {
        const bool forAll = std::all_of(selection.begin(), selection.end(), [&](const TComponent* component) {
            return Steps(*component, registered.componentClass).has_value();
        });
        if (forAll) editors.push_back(registered.editor.Create({designer, *this}));
    }
    return editors;
}

std::vector<std::string> DesignRegistry::RequiredUnits(TComponent& component, IDesigner& designer) {
    std::vector<std::string> units;
    for (const auto& editor : SelectionEditorsOf({&component}, designer))
        editor->RequiresUnits(units);
    return units;
}

} // namespace glotta
