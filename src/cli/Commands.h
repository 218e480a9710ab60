// The commands of the command line. Each returns the exit code: 0 done, 1 there are findings, 2 a fault.
#pragma once
#include "cli/Session.h"

#include <string>
#include <vector>

namespace glotta {

struct FormsOptions {
    bool json = false;
    std::string project;
};
int RunForms(const GlobalOptions& global, const FormsOptions& options);

struct StringsOptions {
    std::vector<std::string> forms; // by name; empty: all
    std::string project;
};
int RunStrings(const GlobalOptions& global, const StringsOptions& options);

struct SettingsOptions {
    std::vector<std::string> words; // nothing, NAME, or NAME VALUE
};
int RunSettings(const GlobalOptions& global, const SettingsOptions& options);

struct VerifyCommandOptions {
    std::vector<std::string> paths;
};
int RunVerify(const GlobalOptions& global, const VerifyCommandOptions& options);

} // namespace glotta
