// glotta scan: a dry run that lists what a scan finds and skips.
#pragma once
#include "cli/Session.h"

#include <string>
#include <vector>

namespace glotta {

struct ScanCommandOptions {
    bool constMode = false;
    bool json = false;
    bool noHelper = false;
    std::string component;
    std::string form;
    std::vector<std::string> paths;
};

// The exit code.
int RunScan(const GlobalOptions& global, const ScanCommandOptions& options);

} // namespace glotta
