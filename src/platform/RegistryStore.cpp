#include "platform/RegistryStore.h"

#include "platform/Files.h"
#include "platform/IntText.h"
#include "platform/RegFileStore.h"
#ifdef _WIN32
#include "platform/WindowsRegistryStore.h"
#endif

namespace glotta {

std::unique_ptr<RegistryStore> OpenRegistry(const std::optional<std::filesystem::path>& file) {
    if (file) return std::make_unique<RegFileStore>(*file);
    if (const auto named = PathFromEnvironment("GLOTTA_REGISTRY"))
        return std::make_unique<RegFileStore>(*named);
#ifdef _WIN32
    return std::make_unique<WindowsRegistryStore>();
#else
    return std::make_unique<RegFileStore>(UserConfigDir() / "settings.reg");
#endif
}

std::string TRegIniFile::KeyOf(std::string_view section) const {
    return section.empty() ? baseKey_ : baseKey_ + "\\" + std::string(section);
}

std::string TRegIniFile::ReadString(std::string_view section, std::string_view ident,
                                    std::string_view missing) const {
    return store_.ReadString(KeyOf(section), ident).value_or(std::string(missing));
}

int TRegIniFile::ReadInteger(std::string_view section, std::string_view ident, int missing) const {
    return StrToInt(ReadString(section, ident, "")).value_or(missing);
}

bool TRegIniFile::ReadBool(std::string_view section, std::string_view ident, bool missing) const {
    return ReadInteger(section, ident, missing) != 0;
}

void TRegIniFile::WriteString(std::string_view section, std::string_view ident, std::string_view value) {
    store_.WriteString(KeyOf(section), ident, value);
}

void TRegIniFile::WriteInteger(std::string_view section, std::string_view ident, int value) {
    WriteString(section, ident, std::to_string(value));
}

void TRegIniFile::WriteBool(std::string_view section, std::string_view ident, bool value) {
    WriteString(section, ident, value ? "1" : "0");
}

} // namespace glotta
