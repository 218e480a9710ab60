#include "host/FileKeys.h"

#include "platform/Files.h"

#include <algorithm>
#include <array>

namespace glotta {
namespace {

namespace fs = std::filesystem;

template <std::size_t N>
bool HasExtension(const fs::path& file, const std::array<std::string_view, N>& extensions) {
    return std::find(extensions.begin(), extensions.end(), LowerExtension(PathText(file))) !=
           extensions.end();
}

constexpr std::array<std::string_view, 2> Headers = {".h", ".hpp"};
constexpr std::array<std::string_view, 4> Sources = {".cpp", ".c", ".cc", ".cxx"};

} // namespace

fs::path OnDisk(std::string_view fileName) {
    std::error_code ignored;
    const fs::path path = fs::absolute(PathFromText(fileName), ignored).lexically_normal();
    if (fs::exists(path, ignored)) return path;
    const auto found = PathResolver().Resolve(path.root_path(), PathText(path.relative_path()));
    return found ? found->lexically_normal() : path;
}

fs::path Beside(const fs::path& file, std::string_view extension) {
    const auto found =
        PathResolver().Resolve(file.parent_path(), PathText(file.stem()) + std::string(extension));
    return found.value_or(fs::path());
}

bool IsCppSource(const fs::path& file) {
    return HasExtension(file, Sources) || IsHeader(file);
}
bool IsHeader(const fs::path& file) {
    return HasExtension(file, Headers);
}

} // namespace glotta
