#include "runtime/Exclusions.h"

namespace glotta {

Exclusions::Exclusions(const TComponent& localization)
    : components_(Read(localization, "DoNotTranslate")),
      properties_(Read(localization, "ExcludedProperties")),
      componentProperties_(Read(localization, "SmartExcludeProps")) {}

Exclusions::Names Exclusions::Read(const TComponent& component, std::string_view property) {
    std::vector<std::string> lines = component.GetStrings(property);
    return {std::make_move_iterator(lines.begin()), std::make_move_iterator(lines.end())};
}

bool Exclusions::ComponentExcluded(std::string_view name, std::string_view className) const {
    return components_.contains(name) || components_.contains("!" + std::string(className));
}

bool Exclusions::PropertyExcluded(std::string_view component, std::string_view className,
                                  std::string_view path) const {
    while (!path.empty()) {
        const std::string_view part = path.substr(0, path.find('.'));
        path.remove_prefix(std::min(part.size() + 1, path.size()));
        if (properties_.contains(part)) return true;
        if (componentProperties_.empty()) continue;
        const std::string suffix = "." + std::string(part);
        if (componentProperties_.contains(std::string(component) + suffix) ||
            componentProperties_.contains("!" + std::string(className) + suffix))
            return true;
    }
    return false;
}

} // namespace glotta
