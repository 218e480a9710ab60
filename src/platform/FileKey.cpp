#include "platform/FileKey.h"

#include "platform/Files.h"
#include "platform/Text.h"

namespace glotta {

std::string FileKey(const std::filesystem::path& file) {
    std::error_code failed;
    const std::filesystem::path canonical = std::filesystem::weakly_canonical(file, failed);
    std::string key = PathText(failed ? file : canonical);
#ifdef _WIN32
    key = LowerCase(key);
#endif
    return key;
}

} // namespace glotta
