// The pages of the translation wizard, in their order.
#pragma once
#include <string_view>

namespace glotta {

enum WizardPage {
    tsWelcome,
    tsForms,
    tsLanguageSettings,
    tsSetProperties,
    tsActionsMemo,
    tsPerform,
    tsFinal,
    WizardPageCount
};

struct WizardHeading {
    std::string_view title, subHeading;
};
WizardHeading HeadingOf(WizardPage page);

} // namespace glotta
