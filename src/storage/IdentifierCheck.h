// Compares a unit's look-up calls with the identifiers that the components hold, on plain text.
#pragma once
#include "platform/StringList.h"
#include "scanner/SourceFlavour.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

// The identifiers of a localization component's strings, in their order.
struct ComponentIDs {
    std::string name;
    TStringList ids;
};

// A form with its localization components.
struct FormIDs {
    std::string formName;
    std::vector<ComponentIDs> components;

    // The component of that name, else the first; nil when there is none at all.
    const ComponentIDs* Addressed(std::string_view name) const;
};

// The form of that name, nil for an unknown or empty one.
using FindFormIDs = std::function<const FormIDs*(const std::string& formName)>;

struct BadID {
    enum class Problem { NotUsed, NotFound, NotCheckable };
    std::string id;
    Problem problem;
    int place; // NotUsed: index in the component's strings from 0; of calls: line from 1
    // The component that holds the identifier or was addressed; empty when it is not known.
    std::string formName, componentName;

    std::string Type() const;
    std::string Info() const;
};

// The identifiers of the form that the unit does not use, component by component, then the calls that ask for
// none, in the order of the text. `formName` is empty for a unit without a form.
std::vector<BadID> CheckIDs(std::string_view source, const SourceFlavour& flavour,
                            const std::string& formName, const FindFormIDs& findForm);

} // namespace glotta
