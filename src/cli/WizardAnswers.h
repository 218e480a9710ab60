// What the pages of the translation wizard ask, answered by an INI file.
#pragma once
#include "editors/WizardChoices.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace glotta {

struct WizardAnswers {
    std::string file;
    std::vector<std::pair<std::string, std::string>> forms; // form and class to insert, or NoComponent
    std::optional<std::string> otherForms;                  // the class for all other forms that have none
    std::string dispatcherForm, dispatcher;                 // without a name: a new one
    std::optional<std::string> languages;                   // as comma text
    std::string commonForm, commonContainer;                // without a name: the one that is inserted
    bool changeProperties = false;
    std::array<bool, WizardPropertyCount> properties{};

    // Throws Error "file: [Section] key: reason" for anything that is not an answer.
    static WizardAnswers Read(const std::string& fileName);
};

extern const char* const WizardAnswersHelp;

} // namespace glotta
