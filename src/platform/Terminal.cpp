#include "platform/Terminal.h"

#include <cstdio>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <iostream>
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace glotta {

#ifdef _WIN32

bool StandardErrorIsTerminal() {
    return _isatty(_fileno(stderr)) != 0;
}

Utf8Output::Utf8Output() : before_(GetConsoleOutputCP()) {
    if (before_) SetConsoleOutputCP(CP_UTF8);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}

Utf8Output::~Utf8Output() {
    std::cout.flush();
    std::cerr.flush();
    std::fflush(nullptr);
    if (before_) SetConsoleOutputCP(before_); // it is the console's, not this program's
}

#else

bool StandardErrorIsTerminal() {
    return isatty(STDERR_FILENO) != 0;
}

Utf8Output::Utf8Output() = default;
Utf8Output::~Utf8Output() = default;

#endif

} // namespace glotta
