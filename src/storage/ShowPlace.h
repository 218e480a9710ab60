// From a row of a result window to the place it tells of.
#pragma once
#include "ide/Services.h"

#include <string>
#include <string_view>

namespace glotta {

// Shows the unit at the 1-based line, with `text` selected when the line holds it. False when the file cannot
// be opened.
bool ShowSourceLine(IdeServices& ide, const std::string& fileName, int line, std::string_view text = {});

// Shows the form of the unit with the component selected. "Nil designer" when it has none.
void ShowComponent(IdeServices& ide, const std::string& fileName, const std::string& formName,
                   const std::string& componentName);

} // namespace glotta
