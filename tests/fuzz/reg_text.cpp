// A .reg text of any bytes: an Error, or it comes back as it was, and a value put into it is read again.
#include "platform/Encoding.h"
#include "platform/Error.h"
#include "platform/RegText.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace glotta;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const Encoding encoding = DetectEncoding(bytes, Encoding{EncodingKind::Utf8});
    const std::string text = Decode(bytes, encoding);
    if (Encode(text, encoding).bytes != bytes) std::abort();
    try {
        SectionedText reg = ParseRegText(text, "fuzz");
        if (reg.ToText() != text) std::abort();
        const std::string value(CharPrefix(text, 300)), key = "HKEY_CURRENT_USER\\K";
        if (!reg.HasSection(key)) reg.AddSection(key, "\r\n");
        reg.Put(key, "name", RegEntry("name", value, "\r\n"), value, "\r\n");
        const SectionedText again = ParseRegText(reg.ToText(), "fuzz");
        for (const std::string& section : reg.SectionNames())
            for (const std::string& name : reg.EntryNames(section))
                if (again.Value(section, name) != reg.Value(section, name)) std::abort();
    } catch (const Error&) {
    }
    return 0;
}
