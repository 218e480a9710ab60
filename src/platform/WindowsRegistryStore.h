// The registry itself, HKEY_CURRENT_USER; on Windows only.
#pragma once
#include "platform/RegistryStore.h"

namespace glotta {

class WindowsRegistryStore : public RegistryStore {
public:
    std::optional<std::string> ReadString(std::string_view key, std::string_view name) override;
    void WriteString(std::string_view key, std::string_view name, std::string_view value) override;
    void DeleteValue(std::string_view key, std::string_view name) override;
    bool KeyExists(std::string_view key) override;
    void CreateKey(std::string_view key) override;
    std::vector<std::string> ValueNames(std::string_view key) override;
};

} // namespace glotta
