// The user's hierarchical store of settings: the registry on Windows, a file in its export format elsewhere.
#pragma once
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

// Keys are paths under HKEY_CURRENT_USER ("\Software\Quorlane\TGlotta"); a backslash in front may be missing.
// Keys and value names match without regard to letter case. Writing creates the key. A failure is an Error.
class RegistryStore {
public:
    virtual ~RegistryStore() = default;
    // Nothing when the value is missing or is no text.
    virtual std::optional<std::string> ReadString(std::string_view key, std::string_view name) = 0;
    virtual void WriteString(std::string_view key, std::string_view name, std::string_view value) = 0;
    virtual void DeleteValue(std::string_view key, std::string_view name) = 0;
    virtual bool KeyExists(std::string_view key) = 0;
    virtual void CreateKey(std::string_view key) = 0;
    virtual std::vector<std::string> ValueNames(std::string_view key) = 0;
};

// The store in `file`, else in the file that GLOTTA_REGISTRY names, else the user's own: the registry on
// Windows, settings.reg in UserConfigDir() elsewhere.
std::unique_ptr<RegistryStore> OpenRegistry(const std::optional<std::filesystem::path>& file = {});

// Every value is text under a base key; a section is a subkey, the empty section the base key itself.
class TRegIniFile {
public:
    TRegIniFile(RegistryStore& store, std::string baseKey) : store_(store), baseKey_(std::move(baseKey)) {}

    std::string ReadString(std::string_view section, std::string_view ident, std::string_view missing) const;
    // `missing` also for a text that is no number.
    int ReadInteger(std::string_view section, std::string_view ident, int missing) const;
    bool ReadBool(std::string_view section, std::string_view ident, bool missing) const;
    void WriteString(std::string_view section, std::string_view ident, std::string_view value);
    void WriteInteger(std::string_view section, std::string_view ident, int value);
    void WriteBool(std::string_view section, std::string_view ident, bool value); // "1" or "0"

private:
    std::string KeyOf(std::string_view section) const;
    RegistryStore& store_;
    std::string baseKey_;
};

} // namespace glotta
