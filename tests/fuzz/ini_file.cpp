// An INI file of any bytes comes back as it was; what is written into it is read again, and the rest stays.
#include "platform/Error.h"
#include "platform/IniFile.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace glotta;
    const std::filesystem::path file = "fuzz.ini"; // for messages
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    TgxMemIniFile ini(file, bytes);
    if (ini.ToBytes() != bytes) std::abort();
    const auto shown = [](const TgxMemIniFile& from) {
        std::string all;
        for (const std::string& section : from.Sections())
            for (const std::string& key : from.Keys(section))
                all += section + "|" + key + "=" + from.ReadString(section, key, "(none)") + "\n";
        return all;
    };
    try {
        ini.WriteString("Settings", "Fuzz", "Ж value");
        const TgxMemIniFile again(file, ini.ToBytes());
        if (again.ReadString("SETTINGS", "fuzz", "") != "Ж value" || shown(again) != shown(ini)) std::abort();
    } catch (const Error&) {
    }
    return 0;
}
