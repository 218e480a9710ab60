// Every command of the host's main menu, declared once.
#pragma once
#include <span>
#include <string_view>

namespace glotta {

class HostWindow;

struct HostCommand {
    std::string_view section; // of MenuSections
    std::string_view name;    // component name of the item
    std::string_view caption; // "-" is a separator
    std::string_view shortcut = {};
    std::string_view hint = {};
    void (HostWindow::*run)() = nullptr;
    bool (HostWindow::*enabled)() const = nullptr; // nil: always
};

std::span<const HostCommand> HostCommands();

} // namespace glotta
