// The methods that the scanner needs in a form's unit: creation handler, language-change handler, UpdateStrings.
#pragma once
#include "ide/Services.h"

#include <string>

namespace glotta {

// Creates `methodName` with the signature of the event "On" + eventName of `instance` and binds it; without such an
// event a parameterless method, bound to nothing. Returns the method's name as declared.
std::string DoCreateMethod(IDesigner& designer, TComponent& instance, const std::string& eventName,
                           const std::string& methodName);

// An event that has another handler already is hooked to the new one, which then calls the former.

// OnCreate of the form (methodName) or of the data module ("DatamoduleCreate").
void InsertFormEvent(IdeServices& ide, const std::string& formName, const std::string& methodName, bool show);
// OnChangeLanguage of the form's first localization component: component name + suffix.
void InsertGlottaEvent(IdeServices& ide, const std::string& formName, const std::string& methodSuffix, bool show);
// The plain method, by name.
void InsertFormMethod(IdeServices& ide, const std::string& formName, const std::string& methodName, bool show);

} // namespace glotta
