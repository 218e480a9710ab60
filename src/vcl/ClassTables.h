// The built-in classes as text, read once by ClassCatalogue.
//
//   @StdCtrls                                 the unit of the classes below
//   TButton TButtonControl: Action Caption    class, parent and published properties, in the order of
//   declaration TListColumns TCollection <TListColumn>:   a collection's item class
//   ... Kind=TBitBtnKind                      a type other than the one PropertyTypes gives this name
//
// A line that begins with a blank continues the one above.
#pragma once
#include <string_view>

namespace glotta {

extern const std::string_view BaseClasses;    // persistent objects, components, forms, menus, actions
extern const std::string_view ControlClasses; // standard, additional, common and sample controls
extern const std::string_view ServiceClasses; // dialogs, data access and data-aware controls, others
extern const std::string_view GlottaClasses;

// "TCaption s: Caption ..." a type, its kind's letter, and the property names that have it.
// i integer, h char, e enumeration, f float, s string, w wide string, t set, c class, m method, v variant,
// n interface, 6 64-bit integer.
extern const std::string_view PropertyTypes;

} // namespace glotta
