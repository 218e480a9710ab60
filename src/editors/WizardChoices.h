// What the pages of the translation wizard collect.
#pragma once
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

class TgxCustomLang;

inline constexpr std::string_view NoComponent = "(none)";

// The localization classes of the palette, which the wizard can insert.
inline constexpr std::array<std::string_view, 5> WizardClasses = {"TGlotta", "TGlottaRTSE", "TGlottaRT",
                                                                  "TGlottaLinked", "TGlottaTLV"};
// A container that others are chained to is not itself chained.
inline bool CanBeContainer(std::string_view componentClass) {
    return !componentClass.empty() && componentClass != NoComponent && componentClass != "TGlottaLinked";
}
// How a component shows that is there only after the wizard has inserted it.
inline std::string NewlyInserted(std::string_view componentClass) {
    return "Newly inserted (" + std::string(componentClass) + ")";
}

// The Boolean properties that are set on all components in one pass, in the order of their check boxes.
struct WizardProperty {
    std::string_view name;
    void (*set)(TgxCustomLang& component, bool value);
};
inline constexpr std::size_t WizardPropertyCount = 8;
extern const std::array<WizardProperty, WizardPropertyCount> WizardProperties;

struct WizardForm {
    std::string form;
    std::string used;                // the class on the form, empty without one
    std::string insert{NoComponent}; // the class to insert

    bool Inserts() const { return insert != NoComponent; }
};

struct WizardChoices {
    std::vector<WizardForm> forms;
    bool setDispatcher = true; // else the languages
    std::string dispatcherForm, dispatcher;
    std::string languages; // as comma text
    bool setCommonContainer = true;
    std::string commonForm, commonContainer; // the component as it shows
    bool changeProperties = false;
    std::array<bool, WizardPropertyCount> properties{};

    const WizardForm* Row(std::string_view form) const;
    // The class of a common container that is yet to be inserted; empty for one that is there.
    std::string NewContainerClass() const;
};

} // namespace glotta
