// The window over docs/help.md, opened at the section of the window that asks.
#pragma once
#include <functional>
#include <string_view>

class QWidget;

namespace glotta {

class TForm;

constexpr std::string_view MainWindowHelp = "Main window";

// Shows the section with this heading over a window, which takes the help along when it closes.
void ShowHelp(std::string_view section, QWidget& over);

// Gives the form's "Help" button, where it has one, the way to its section. Empty for a form that the help
// does not tell of here.
std::string_view OfferHelp(TForm& form, const std::function<void(std::string_view section)>& show);

} // namespace glotta
