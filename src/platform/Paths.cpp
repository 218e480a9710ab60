// Paths as text, and the places that the system gives.
#include "platform/Files.h"

#include "platform/Text.h"

#include <cstdlib>

#ifdef _WIN32
#include "platform/WindowsText.h"
#else
#include <pwd.h>
#include <unistd.h>
#endif

namespace glotta {
namespace {

bool IsSeparator(char c) {
    return c == '/' || c == '\\';
}

std::string WithSlashes(std::string_view text) {
    std::string result(text);
    std::replace(result.begin(), result.end(), '\\', '/');
    return result;
}

} // namespace

#ifdef _WIN32
// The library's own conversions throw on names that are no valid text.
std::string PathText(const std::filesystem::path& path) {
    return FromWideText(path.native());
}

std::filesystem::path PathFromText(std::string_view text) {
    return std::filesystem::path(WideText(text));
}
#else
std::string PathText(const std::filesystem::path& path) {
    return path.native();
}

std::filesystem::path PathFromText(std::string_view text) {
    return std::filesystem::path(text);
}
#endif

bool SameFileName(std::string_view a, std::string_view b) {
    return SameText(WithSlashes(a), WithSlashes(b));
}

std::string LowerExtension(std::string_view fileName) {
    for (std::size_t at = fileName.size(); at-- > 0 && !IsSeparator(fileName[at]);)
        if (fileName[at] == '.') return LowerCase(fileName.substr(at));
    return {};
}

std::optional<std::filesystem::path> PathFromEnvironment(const char* name) {
#ifdef _WIN32
    const wchar_t* value = _wgetenv(WideText(name).c_str());
#else
    const char* value = std::getenv(name);
#endif
    if (!value || !*value) return {};
    return std::filesystem::path(value);
}

std::filesystem::path UserConfigDir() {
#ifdef _WIN32
    return PathFromEnvironment("APPDATA").value_or(".") / "glotta";
#else
    // A relative XDG_CONFIG_HOME is to be ignored.
    if (const auto xdg = PathFromEnvironment("XDG_CONFIG_HOME"); xdg && xdg->is_absolute())
        return *xdg / "glotta";
    if (const auto home = PathFromEnvironment("HOME")) return *home / ".config" / "glotta";
    const passwd* user = getpwuid(getuid());
    return std::filesystem::path(user && user->pw_dir ? user->pw_dir : "/") / ".config" / "glotta";
#endif
}

} // namespace glotta
