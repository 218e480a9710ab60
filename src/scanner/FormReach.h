// From where in a unit the localization component of a form can be named.
#pragma once
#include "ide/SourceTokens.h"

#include <string>
#include <string_view>
#include <vector>

namespace glotta {

class FormReach {
public:
    // `formClass` is the class of the form whose unit this is.
    FormReach(std::string_view text, bool isCpp, std::string formClass);

    // Why the component cannot be named alone at a place: only the form's own methods can. Empty when it can.
    std::string WhyNotAlone(std::size_t place, std::string_view component) const;

    // Why the form cannot be named by its variable; empty when its unit declares the variable where other
    // units see it.
    static std::string WhyNoVariable(std::string_view formUnit, bool isCpp, std::string_view form,
                                     std::string_view formClass);

private:
    std::string formClass_;
    std::vector<ByteRange> methods_; // ascending
};

} // namespace glotta
