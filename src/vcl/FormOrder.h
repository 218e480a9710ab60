// Where the IDE writes a property: published ones in the order of the class's run-time type information
// (ancestors first), then those a class stores by other means.
#pragma once
#include "vcl/FormFile.h"

namespace glotta {

// The index at which a property that the node does not have yet is to be inserted.
std::size_t NewPropertyIndex(const FormNode& node, std::string_view property);

} // namespace glotta
