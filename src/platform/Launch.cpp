#include "platform/Launch.h"

#include "platform/Error.h"
#include "platform/Files.h"

#include <cerrno>
#include <system_error>
#include <vector>

#ifdef _WIN32
#include "platform/WindowsText.h"

#include <windows.h>

#include <shellapi.h>
#else
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace glotta {
namespace {

#ifdef _WIN32

class ShellLauncher : public Launcher {
public:
    void Open(const std::string& file, const std::string& parameters) override {
        const std::wstring name = WideText(file), line = WideText(parameters);
        const auto result = reinterpret_cast<INT_PTR>(ShellExecuteW(
            nullptr, L"open", name.c_str(), line.empty() ? nullptr : line.c_str(), nullptr, SW_SHOWNORMAL));
        if (result <= 32) // error codes of old
            throw Error(file + ": " + WindowsMessage(GetLastError()));
    }
};

#else

std::vector<std::string> SplitParameters(const std::string& line) {
    std::vector<std::string> words;
    bool quoted = false, open = false;
    for (const char c : line) {
        if (c == '"') {
            quoted = !quoted;
            if (quoted && !open) words.emplace_back();
            open = true;
        } else if (c == ' ' && !quoted) {
            open = false;
        } else {
            if (!open) words.emplace_back();
            open = true;
            words.back() += c;
        }
    }
    return words;
}

// Starts the program in a session of its own, not as this program's child, so that nobody has to wait for it.
// 0, or the system's error.
int StartProgram(std::vector<std::string> words) {
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    int report[2];
    if (pipe(report) != 0) return errno;
    fcntl(report[1], F_SETFD, FD_CLOEXEC);
    const pid_t starter = fork();
    if (starter < 0) {
        const int failure = errno;
        close(report[0]);
        close(report[1]);
        return failure;
    }
    if (starter == 0) {
        setsid();
        if (fork() == 0) {
            execvp(arguments[0], arguments.data());
            const int failure = errno;
            const ssize_t told = write(report[1], &failure, sizeof failure);
            _exit(told > 0 ? 127 : 126);
        }
        _exit(0);
    }
    close(report[1]);
    int failure = 0;
    if (read(report[0], &failure, sizeof failure) != sizeof failure) failure = 0;
    close(report[0]);
    waitpid(starter, nullptr, 0);
    return failure;
}

class ProcessLauncher : public Launcher {
public:
    void Open(const std::string& file, const std::string& parameters) override {
        const bool program =
            access(file.c_str(), X_OK) == 0 && !std::filesystem::is_directory(PathFromText(file));
        std::vector<std::string> words = SplitParameters(parameters);
        words.insert(words.begin(), file);
        if (!program) words.insert(words.begin(), "xdg-open");
        if (const int failure = StartProgram(words))
            throw Error(words.front() + ": " + std::generic_category().message(failure));
    }
};

#endif

} // namespace

std::unique_ptr<Launcher> SystemLauncher() {
#ifdef _WIN32
    return std::make_unique<ShellLauncher>();
#else
    return std::make_unique<ProcessLauncher>();
#endif
}

} // namespace glotta
