#include "editors/WizardPages.h"

namespace glotta {

namespace {

constexpr WizardHeading Headings[WizardPageCount] = {
    {"Translation Wizard", ""},
    {"Insert components", "Select forms to translate and components to insert and use for translation."},
    {"Fine Tunings", "Configure properties for language management."},
    {"Configure properties",
     "At this page you can adjust properties for all selected components with several mouse clicks."},
    {"Confirmation",
     "Please verify the actions you selected to perform and click Next. To change any action click Back."},
    {"Please wait...", "Wizard is performing requested actions. Please wait while all actions completed."},
    {"Wizard completed", "Wizard completed all requested actions."}};

} // namespace

WizardHeading HeadingOf(WizardPage page) {
    return Headings[page];
}

} // namespace glotta
