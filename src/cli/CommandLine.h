// What a command declares itself with: each command's file adds its subcommand, options and how it runs.
#pragma once
#include "cli/Session.h"

#include <functional>

namespace CLI {
class App;
}

namespace glotta {

struct CommandLine {
    CLI::App& app;
    const GlobalOptions& global;
    std::function<int()>& run; // set by the subcommand that was given; the result is the exit code
};

void AddCheckCommand(const CommandLine& line);
void AddExcludeCommand(const CommandLine& line);
void AddFindCommand(const CommandLine& line);
void AddOptionsCommand(const CommandLine& line);
void AddRenameCommand(const CommandLine& line);
void AddReplacePhraseCommand(const CommandLine& line);
void AddTranslationsCommands(const CommandLine& line); // save, load, merge, update, clear
void AddWizardCommand(const CommandLine& line);

} // namespace glotta
