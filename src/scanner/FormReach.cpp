#include "scanner/FormReach.h"

#include "ide/UnitEdits.h"
#include "ide/UnitEditsTokens.h"
#include "platform/Text.h"

#include <algorithm>

namespace glotta {

FormReach::FormReach(std::string_view text, bool isCpp, std::string formClass)
    : formClass_(std::move(formClass)), methods_(InstanceMethods(text, isCpp, formClass_)) {}

std::string FormReach::WhyNotAlone(std::size_t place, std::string_view component) const {
    auto behind = std::upper_bound(methods_.begin(), methods_.end(), place,
                                   [](std::size_t at, ByteRange method) { return at < method.begin; });
    if (behind != methods_.begin() && place < std::prev(behind)->end)
        return {};
    return "outside the methods of " + formClass_ + ", where " + std::string(component) +
           " cannot be named without its form (AddFormName)";
}

std::string FormReach::WhyNoVariable(std::string_view formUnit, bool isCpp, std::string_view form,
                                     std::string_view formClass) {
    UnitTokens tokens(formUnit, isCpp);
    for (std::size_t i = 0; i + 2 < tokens.Count(); ++i) {
        if (isCpp) {
            if (tokens[i] == formClass && tokens.IsSymbol(i + 1, "*") && tokens[i + 2] == form &&
                (tokens.IsSymbol(i + 3, ";") || tokens.IsSymbol(i + 3, "=")))
                return {};
            continue;
        }
        if (tokens.Is(i, "implementation"))
            break;
        if (SameText(tokens[i], form) && tokens.IsSymbol(i + 1, ":") && SameText(tokens[i + 2], formClass))
            return {};
    }
    return "the unit of " + std::string(form) + " declares no variable of that name";
}

} // namespace glotta
