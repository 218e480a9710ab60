// Where the program's output goes.
#pragma once

namespace glotta {

bool StandardErrorIsTerminal();

// For its life, standard output and error take UTF-8 and keep line ends as they are written.
class Utf8Output {
public:
    Utf8Output();
    ~Utf8Output();
    Utf8Output(const Utf8Output&) = delete;
    Utf8Output& operator=(const Utf8Output&) = delete;

private:
    unsigned before_ = 0; // the console's code page
};

} // namespace glotta
