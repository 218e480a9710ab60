// A text translation file is refused or understood; what it holds survives another delimiter, and the other
// format.
#include "TranslationsSurvive.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace glotta;
    std::optional<GltFile> file;
    std::string untouched, changed;
    try {
        file.emplace("fuzz.glt", std::string_view(reinterpret_cast<const char*>(data), size));
        untouched = file->ToBytes();
        file->SetDelimiter("a|");
        changed = file->ToBytes();
    } catch (const Error&) {
        return 0;
    }
    Require(SameForms(*file, GltFile("fuzz.glt", untouched)));
    GltFile again("fuzz.glt", changed);
    Require(SameForms(*file, again));
    Require(again.ToBytes() == changed);
    CheckSurvival(*file);
    return 0;
}
