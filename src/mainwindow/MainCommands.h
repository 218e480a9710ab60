// Every command of the main window, declared once.
#pragma once
#include <span>
#include <string_view>

namespace glotta {

class TfrmGlotta;

// What a tag on an item or button says; see TfrmGlotta::CheckEnableActions.
enum CommandMode : int {
    WholeProject = -1,
    Always = 0,
    SelectedForms = 1,
    SelectedFormFiles = 111,
    LocalizedForm = 112,
    MergeProject = 113
};

struct MainCommand {
    std::string_view id;      // component name of the item
    std::string_view menu;    // captions of the menus that lead to it, joined by '>'; empty: in no menu
    std::string_view popup;   // the same in the popup menu: "." is its top level
    std::string_view caption; // "-" is a separator
    std::string_view hint;    // "short|long"
    int tag = Always;
    std::string_view shortcut = {};
    void (TfrmGlotta::*execute)() = nullptr;     // nil: not there yet, and disabled
    bool button = false;                         // stands in the tool bar
    bool (TfrmGlotta::*ready)() const = nullptr; // what else it needs
    bool (TfrmGlotta::*checked)() const = nullptr;
    std::string_view popupCaption = {}; // where it differs
};

std::span<const MainCommand> MainCommands();

} // namespace glotta
