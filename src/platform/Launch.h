// Programs and documents that are started beside this one.
#pragma once
#include <memory>
#include <string>

namespace glotta {

class Launcher {
public:
    virtual ~Launcher() = default;
    // The verb "open" in a normal window. `parameters` is one command line: blanks separate, double quotes
    // hold together. Without parameters a document opens in its own program. Throws Error when nothing can be
    // started.
    virtual void Open(const std::string& file, const std::string& parameters) = 0;
};

std::unique_ptr<Launcher> SystemLauncher();

} // namespace glotta
