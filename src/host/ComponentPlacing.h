// Where a form designer puts a new component, and what it writes of it: a parent, a place, a size, the texts
// and the place in the tab order that the component starts with.
#pragma once
#include "vcl/Component.h"

#include <string_view>

namespace glotta {

// Throws Error when a designer over this root takes no component of the class: a data module holds no
// controls.
void CheckTakes(const TComponent& root, std::string_view className);

// Places a component that was just created on its form. `selected` is what is selected there, or nil: a
// control goes into the nearest container of that, what does not show at run time lies on the form itself.
void PlaceComponent(TComponent& component, const TComponent* selected);

} // namespace glotta
