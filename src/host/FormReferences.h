// Where the properties of a form name one of its components: DataSource = Source1, Action = OpenAction.
#pragma once
#include "vcl/Component.h"

#include <string>

namespace glotta {

// Gives the component its name and lets everything on the form that names it follow. Event methods and values of
// enumerated types are no names of components.
void RenameOnForm(TComponent& component, const std::string& newName);

} // namespace glotta
