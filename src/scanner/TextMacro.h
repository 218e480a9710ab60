// Macros that make a C/C++ literal wide or narrow: _T("x").
#pragma once
#include <string_view>

namespace glotta {

inline bool IsTextMacro(std::string_view word) {
    return word == "_T" || word == "TEXT" || word == "_TEXT" || word == "__T" || word == "__TEXT";
}

} // namespace glotta
