// The IDE's own property editors, which those of packages go before.
#pragma once
#include "ide/DesignIntf.h"
#include "platform/Ui.h"

namespace glotta {

// String lists get their dialog, references to components their drop-down list. `ui` outlives the IDE's services.
void RegisterIdeEditors(IDesignServices& ide, Ui& ui);

} // namespace glotta
