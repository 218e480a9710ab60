// The twelve kinds of texts.
#pragma once
#include <string_view>

namespace glotta {

// In the order in which all walks visit them.
enum TStringsType {
    stCaptions,
    stHints,
    stDisplayLabels,
    stStrings,
    stFonts,
    stMultiLines,
    stDlgsCaptions,
    stOtherStrings,
    stLocales,
    stCharSets,
    stCollections,
    stListView_TreeView_Items
};
inline constexpr int StringsTypeCount = 12;
// The enumeration member's name, "stCaptions"; the published property has the name without "st".
std::string_view StringsTypeName(TStringsType kind);
std::string_view StringsPropertyName(TStringsType kind);

} // namespace glotta
