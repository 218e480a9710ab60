// glotta replace: localizes units of a project without review, as a dry run unless told to write.
#pragma once
#include "cli/Session.h"

#include <string>
#include <vector>

namespace glotta {

struct ReplaceOptions {
    std::vector<std::string> forms, units; // by name
    bool all = false;                      // every form and every unit of the project
    std::string stringsForm;               // whose component takes the strings of units without a form
    bool constMode = false;
    bool apply = false;
    bool json = false;
    std::string project;
};

int RunReplace(const GlobalOptions& global, const ReplaceOptions& options);

} // namespace glotta
