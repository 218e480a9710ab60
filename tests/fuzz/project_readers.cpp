// Every project reader on any bytes: a listing or an Error, nothing else.
#include "host/ProjectListing.h"
#include "platform/Encoding.h"
#include "platform/Error.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace glotta;
    if (size == 0) return 0;
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    const std::string text = Decode(bytes, DetectEncoding(bytes));
    try {
        switch (data[0] % 6) {
        case 0:
            ListDelphiSource(text);
            break;
        case 1:
            ListUseMacros(text);
            break;
        case 2:
            ListXmlProject(text, "fuzz");
            break;
        case 3:
            ListMakefileProject(text);
            break;
        case 4:
            ListMakefileGroup(text);
            break;
        case 5:
            ListXmlGroup(text, "fuzz");
            break;
        }
    } catch (const Error&) {
    }
    return 0;
}
