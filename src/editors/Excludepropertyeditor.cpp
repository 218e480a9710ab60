#include "editors/Excludepropertyeditor.h"

#include "editors/Excludededitor.h"
#include "platform/Text.h"
#include "runtime/CustomLang.h"

#include <algorithm>

namespace glotta {

void TExcludePropertyEditor::Edit() {
    const auto found = std::find_if(ExclusionProperties.begin(), ExclusionProperties.end(),
                                    [&](std::string_view list) { return SameText(list, GetName()); });
    if (found == ExclusionProperties.end()) return;
    const int page = int(found - ExclusionProperties.begin());
    if (DisplayExcludeDialog(ui_, registry_, dynamic_cast<TgxCustomLang&>(Component()), page, false)) Modified();
}

} // namespace glotta
