// The command "Exclude properties": the editor over the first selected form's component; the other selected
// forms take over its excluded properties.
#pragma once
#include "ide/Services.h"
#include "translation/FormTranslation.h"

namespace glotta {

class RegistryStore;

// Forms that were not open before are saved and closed again.
void ExcludeProperties(IdeServices& ide, FormTranslation& translation, RegistryStore& registry);

} // namespace glotta
