// The components of an open form, by the form's name.
#pragma once
#include "ide/Services.h"
#include "runtime/CustomLang.h"

#include <string>
#include <vector>

namespace glotta {

// In the order in which the form owns them; none when the IDE has no such form or no editor for it.
std::vector<TComponent*> FormComponents(IdeServices& ide, const std::string& formName);
// The first localization component of them, nil without one.
TgxCustomLang* FindGlotta(IdeServices& ide, const std::string& formName);

} // namespace glotta
