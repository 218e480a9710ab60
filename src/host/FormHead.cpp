#include "host/FormHead.h"

#include "platform/Error.h"
#include "platform/Files.h"

#include <array>
#include <fstream>

namespace glotta {

std::optional<FormHead> ReadFormHead(const std::filesystem::path& formFile) {
    std::array<char, 4096> block;
    std::ifstream stream(formFile, std::ios::binary);
    stream.read(block.data(), block.size());
    try {
        return FormFile::PeekHead({block.data(), static_cast<std::size_t>(stream.gcount())},
                                  PathText(formFile));
    } catch (const Error&) {
        return std::nullopt;
    }
}

} // namespace glotta
