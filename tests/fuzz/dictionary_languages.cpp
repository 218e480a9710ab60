// Dictionary files of any bytes: names or an Error, and never more text than the file holds.
#include "platform/Error.h"
#include "storage/DictionaryLanguages.h"

#include <cstdlib>

namespace {

using namespace glotta;

template <class Read> void Check(Read read, std::size_t limit) {
    try {
        std::size_t length = 0;
        for (const std::string& name : read())
            length += name.size();
        if (length > limit) std::abort();
    } catch (const Error&) {
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    // A UTF-16 unit becomes three bytes at most, an ANSI byte of a line too.
    Check([&] { return ParseDicLanguages("fuzz.dic", bytes); }, 2 * size);
    Check([&] { return ParseDixLanguages(bytes); }, 3 * size);
    return 0;
}
