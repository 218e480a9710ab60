// UpdateStrings is called when the form is created and when the language changes, and gives each constant its
// text. Pure functions on the text of the form's unit.
#pragma once
#include "platform/TextEdit.h"

#include <string>
#include <string_view>
#include <vector>

namespace glotta {

struct StringAssignment {
    std::string target; // "Foo"; of another unit or hidden by a member of the form: "Unit2.Foo"
    std::string id;
};

struct WiringInput {
    std::string_view text; // of the form's unit; of the .cpp for C++Builder
    bool isCpp = false;
    bool dataModule = false;
    std::string formName;
    std::string className;       // of the form; mostly T + formName
    std::string component;       // the localization component's name
    std::string creationHandler; // what is bound to the form's OnCreate, may be empty
    std::string languageHandler; // what is bound to the component's OnChangeLanguage, may be empty
    std::string reference;       // the component as a call names it: "glotta1"
    std::string replaceMethod;   // "GetTextOrDefault("
    std::vector<StringAssignment> assignments;
};

struct Wiring {
    TextEdits edits;
    // What was there to be wired; a form may lack any of them.
    bool creation = false, language = false, updateStrings = false;
};

// Repeating it changes nothing. An assignment that is there is brought up to date.
Wiring WireUpdateStrings(const WiringInput& input);

// The name under which the method UpdateStrings of the class reaches a constant of the unit: qualified by
// `unitName` when the form has a member of that name.
std::string AssignmentTarget(std::string_view formUnit, std::string_view className, std::string_view constant,
                             std::string_view unitName);

} // namespace glotta
