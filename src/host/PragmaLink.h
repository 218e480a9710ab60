// The line by which a C++ unit links a unit that is not its own: #pragma link "Glotta".
#pragma once
#include "platform/TextEdit.h"

#include <string_view>

namespace glotta {

// Behind the last such line; without one before #pragma resource, else behind the unit's other directives.
// Nothing when the unit is linked already.
TextEdits AddPragmaLink(std::string_view text, std::string_view unit);

} // namespace glotta
