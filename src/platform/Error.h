// The two ways in which an operation stops.
#pragma once
#include <stdexcept>
#include <string>

namespace glotta {

// What() is one clear line for the user; for a file it names the file and, where there is one, the place.
class Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Ends the running command without a further message; caught by the command runner alone.
class EGlottaSilent : public std::exception {
public:
    const char* what() const noexcept override { return "command ended"; }
};

} // namespace glotta
