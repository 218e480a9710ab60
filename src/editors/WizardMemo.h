// What the translation wizard is about to do, in words.
#pragma once
#include "editors/WizardChoices.h"

#include <string>

namespace glotta {

// Lines joined by CR LF.
std::string FillRequestedActions(const WizardChoices& choices);

} // namespace glotta
