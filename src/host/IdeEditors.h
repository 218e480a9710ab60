// The IDE's own editors, which those of packages go before.
#pragma once
#include "host/DesignRegistry.h"
#include "platform/Ui.h"

namespace glotta {

// String lists get their dialog, references to components their drop-down list, action lists a menu of the actions that
// packages registered. `ui` outlives the IDE's services.
void RegisterIdeEditors(DesignRegistry& ide, Ui& ui);

} // namespace glotta
