#include "runtime/StringsType.h"

#include <array>

namespace glotta {

std::string_view StringsTypeName(TStringsType kind) {
    static constexpr std::array<std::string_view, StringsTypeCount> names = {
        "stCaptions", "stHints",      "stDisplayLabels", "stStrings",
        "stFonts",    "stMultiLines", "stDlgsCaptions",  "stOtherStrings",
        "stLocales",  "stCharSets",   "stCollections",   "stListView_TreeView_Items"};
    return names[static_cast<std::size_t>(kind)];
}

std::string_view StringsPropertyName(TStringsType kind) {
    return StringsTypeName(kind).substr(2);
}

} // namespace glotta
