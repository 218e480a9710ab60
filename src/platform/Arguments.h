// The words of the command line.
#pragma once
#include <string>
#include <vector>

namespace glotta {

// Without the program's own name, as UTF-8 on every system; takes what main was given.
std::vector<std::string> ProgramArguments(int argc, char** argv);

} // namespace glotta
