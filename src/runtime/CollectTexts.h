// Which texts of a form are the user's, and which kind each is.
#pragma once
#include "runtime/StringsType.h"
#include "vcl/Component.h"

#include <unordered_set>

namespace glotta {

// `id` is the component's name and the property as the form file writes it: "Button1.Caption", "Memo1.Lines",
// "ListView1.Columns[0].Caption", "Frame1.Button1.Caption".
struct FormText {
    TStringsType kind;
    std::string id;
    std::string text;
};

// All texts of the form around a localization component, in the order of the form file, without what its
// exclusion lists keep out.
std::vector<FormText> CollectTexts(const TComponent& localization);
// The identifiers of those that the exclusion lists keep out.
std::unordered_set<std::string, TextHash, TextEqual> ExcludedTexts(const TComponent& localization);

} // namespace glotta
