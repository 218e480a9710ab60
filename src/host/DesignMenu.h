// The context menu of what is selected in a form designer: the verbs of the component's editor, then those of the
// selection editors.
#pragma once
#include "host/DesignRegistry.h"

#include <functional>

namespace glotta {

using RunVerb = std::function<void(const std::function<void()>&)>;

// Fills the menu anew. The items keep their editors; `run` runs what is chosen.
void FillDesignMenu(TMenuItem& menu, DesignRegistry& registry, IDesigner& designer,
                    const IDesignerSelections& selection, const RunVerb& run);

} // namespace glotta
