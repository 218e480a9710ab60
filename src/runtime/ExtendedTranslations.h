// The collection "ExtendedTranslations" of a localization component: properties that are translated although their
// names tell no text for users.
#pragma once
#include "vcl/Component.h"

#include <string>
#include <vector>

namespace glotta {

struct ExtendedTranslation {
    std::string component;
    std::string property; // as the form file writes it
    std::string ID() const { return component + '.' + property; }
};

// The items in their order; what an item lacks is empty.
std::vector<ExtendedTranslation> ReadExtendedTranslations(const TComponent& localization);
void AddExtendedTranslation(TComponent& localization, const ExtendedTranslation& item);
void DeleteExtendedTranslation(TComponent& localization, std::size_t index);

} // namespace glotta
