// Where a window stood when it was closed, kept under a registry key of its own.
#pragma once
#include <optional>
#include <string>

namespace glotta {

class RegistryStore;

struct FormPlacement {
    int left = 0, top = 0, width = 0, height = 0;
    bool maximized = false;
    bool operator==(const FormPlacement&) const = default;
};

class TgxFormStorage {
public:
    TgxFormStorage(RegistryStore& store, std::string subKey) : store_(store), subKey_(std::move(subKey)) {}
    // Nothing when no usable placement is stored.
    std::optional<FormPlacement> ReadPlacement() const;
    void WritePlacement(const FormPlacement& placement);

private:
    RegistryStore& store_;
    std::string subKey_;
};

} // namespace glotta
