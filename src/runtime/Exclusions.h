// What the developer keeps out of translation: the three lists of a localization component.
#pragma once
#include "vcl/Component.h"

#include <unordered_set>

namespace glotta {

class Exclusions {
public:
    Exclusions() = default; // of nothing
    explicit Exclusions(const TComponent& localization);

    // By its name, or by "!" and its class.
    bool ComponentExcluded(std::string_view name, std::string_view className) const;
    // `path` is a property as the form file writes it ('Font.Charset'); each of its parts counts by its own
    // name.
    bool PropertyExcluded(std::string_view component, std::string_view className,
                          std::string_view path) const;

private:
    using Names = std::unordered_set<std::string, TextHash, TextEqual>;
    static Names Read(const TComponent& component, std::string_view property);
    Names components_, properties_, componentProperties_;
};

} // namespace glotta
