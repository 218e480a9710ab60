// Which properties of a component can be excluded from translation, as a tree.
#pragma once
#include "vcl/Component.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

enum class TPropertyDescription { pdOrdinal, pdTStrings, pdCollection, pdCollectionItem, pdPersistent };

struct TPropertyData {
    TTypeKind TypeKind = TTypeKind::tkUnknown;
    std::string PropType; // "LString", "TStrings", or the class of an object or item
    TPropertyDescription Description = TPropertyDescription::pdOrdinal;
};

struct CandidateProperty {
    static constexpr int PropertyImage = 1, ObjectImage = 6;
    std::string text; // the property's name, of an item its index and class: "0 - TListColumn"
    int parent = -1;  // index in the list
    TPropertyData data;
    int Image() const {
        return data.Description == TPropertyDescription::pdOrdinal ? PropertyImage : ObjectImage;
    }
};

// Each node before those below it. `canAdd` is asked for the short name of every property at any depth.
std::vector<CandidateProperty> CandidateProperties(const TComponent& component,
                                                   const std::function<bool(std::string_view)>& canAdd);

} // namespace glotta
