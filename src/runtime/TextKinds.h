// The kinds of published properties whose values are texts. Characters are none: masks and separators.
#pragma once
#include "vcl/ClassCatalogue.h"

#include <algorithm>
#include <array>

namespace glotta {

inline constexpr std::array tkStrings = {TTypeKind::tkString, TTypeKind::tkLString, TTypeKind::tkWString,
                                         TTypeKind::tkUString};

constexpr bool IsTextKind(TTypeKind kind) {
    return std::find(tkStrings.begin(), tkStrings.end(), kind) != tkStrings.end();
}

} // namespace glotta
