// A binary translation file is refused or understood, also with a right checksum over any data; what it holds
// survives.
#include "TranslationsSurvive.h"
#include "runtime/Crc32.h"

namespace {

void Check(std::string_view bytes) {
    using namespace glotta;
    std::optional<GlbFile> file;
    try {
        file.emplace("fuzz.glb", bytes);
    } catch (const Error&) {
        return;
    }
    CheckSurvival(*file);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    Check(bytes);
    // As the only form of a file: without its head, should it have one.
    const std::string_view form =
        bytes.substr(bytes.starts_with("\x89GLB") ? std::min<std::size_t>(24, size) : 0);
    std::string file("\x89GLB\r\n\x1A\n\1\0\0\0\1\0\0\0", 16);
    for (const std::uint32_t number : {static_cast<std::uint32_t>(form.size()), glotta::Crc32(form)})
        for (int shift = 0; shift < 32; shift += 8)
            file += static_cast<char>(number >> shift & 0xFF);
    Check(file.append(form));
    return 0;
}
