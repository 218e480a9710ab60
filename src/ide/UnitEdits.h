// Changes of a unit's structure, computed from its text: pure functions on the buffer's text (UTF-8, CR LF). What is
// there already gives no edit, so every operation can be repeated. Each result compiles when the unit did.
// A place that cannot be found (no such class, no implementation) is an Error that says which.
#pragma once
#include "ide/SourceTokens.h"
#include "ide/ToolsApi.h"
#include "platform/TextEdit.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

// --- Object Pascal -------------------------------------------------------------------------------------------------
namespace pascal {

// The class the form's root has in this unit: "TForm" for "TForm1 = class(TForm)". Empty when it is not declared here.
std::string ClassParent(std::string_view text, std::string_view className);
std::string UnitName(std::string_view text); // of the unit, program, library or package header
// Names in both uses clauses (or the project's), as written, dotted names whole.
std::vector<std::string> UsedUnits(std::string_view text, bool interfaceOnly = false);

TextEdits AddInterfaceUses(std::string_view text, std::string_view unit);
// Nothing when the interface uses it already, or when it is the unit itself.
TextEdits AddImplementationUses(std::string_view text, std::string_view unit);
// A field of the published part, behind the present fields and before the methods.
TextEdits AddField(std::string_view text, std::string_view className, std::string_view name, std::string_view type);
TextEdits RemoveOrRenameField(std::string_view text, std::string_view className, std::string_view name,
                              std::string_view newName); // empty: removed
// The declaration in the published part (behind the present methods) and an empty body before the unit's end
// (before initialization, finalization or the final begin).
TextEdits AddMethod(std::string_view text, std::string_view className, std::string_view name,
                    std::string_view parameters);
// The method as the class declares it, compared without regard to letter case; empty when it does not.
std::string FindMethod(std::string_view text, std::string_view className, std::string_view name);

} // namespace pascal

// --- C++Builder ----------------------------------------------------------------------------------------------------
namespace cpp {

std::string ClassParent(std::string_view header, std::string_view className);
// #include "Unit.h" (or <unit.hpp>) behind the last include of the text; nothing when it is included already.
TextEdits AddInclude(std::string_view text, std::string_view headerName, bool angleBrackets);
TextEdits AddMember(std::string_view header, std::string_view className, std::string_view name, std::string_view type);
// Nothing when the class does not declare it; a declaration of several names stays.
TextEdits RemoveMember(std::string_view header, std::string_view className, std::string_view name);
// Nothing when the class does not declare it.
TextEdits RenameMember(std::string_view header, std::string_view className, std::string_view name,
                       std::string_view newName);
// Declaration for the header's __published part, body for the end of the .cpp.
TextEdits AddMethodDeclaration(std::string_view header, std::string_view className, std::string_view name,
                               std::string_view parameters);
TextEdits AddMethodBody(std::string_view source, std::string_view className, std::string_view name,
                        std::string_view parameters);
std::string FindMethod(std::string_view header, std::string_view className, std::string_view name); // exact case

} // namespace cpp

// --- names, in either language -------------------------------------------------------------------------------------

struct FormNames {
    std::string name, className; // "Form1", "TForm1"
};
// The form's class and its global variable, wherever the code of its unit or of a project source names them.
TextEdits RenameForm(std::string_view text, bool isCpp, const FormNames& from, const FormNames& to);
// Whether the code uses the name for anything but a member of something.
bool Mentions(std::string_view text, bool isCpp, std::string_view name);
bool DeclaresMember(std::string_view text, bool isCpp, std::string_view className, std::string_view name);

// --- method bodies, in either language -----------------------------------------------------------------------------

// The body of a method in a unit: `open` is just behind its begin (or "{"), `close` at its end (or "}").
struct MethodBody {
    std::size_t open, close;
    std::vector<std::string> parameters; // names, as the body's heading has them
};
// Where the instance methods of a class lie, in ascending order: from the heading (C++: the class name before "::") to
// the body's end. Routines nested in a method belong to it.
std::vector<ByteRange> InstanceMethods(std::string_view text, bool isCpp, std::string_view className);

std::optional<MethodBody> FindMethodBody(std::string_view text, bool isCpp, std::string_view className,
                                         std::string_view name);

} // namespace glotta
