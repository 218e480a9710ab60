#include "platform/Arguments.h"

#ifdef _WIN32
#include "platform/WindowsText.h"

#include <windows.h>

#include <shellapi.h>
#endif

namespace glotta {

#ifdef _WIN32
std::vector<std::string> ProgramArguments(int, char**) { // main's own are in the system's code page
    int count = 0;
    const std::unique_ptr<wchar_t*, decltype(&LocalFree)> words(CommandLineToArgvW(GetCommandLineW(), &count),
                                                                &LocalFree);
    std::vector<std::string> arguments;
    for (int i = 1; words && i < count; ++i)
        arguments.push_back(FromWideText(words.get()[i]));
    return arguments;
}
#else
std::vector<std::string> ProgramArguments(int argc, char** argv) {
    return {argv + std::min(argc, 1), argv + argc};
}
#endif

} // namespace glotta
