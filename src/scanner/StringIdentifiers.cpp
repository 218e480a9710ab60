#include "scanner/StringIdentifiers.h"

namespace glotta {

StringIdentifiers::StringIdentifiers(const SettingsValues& settings, const std::vector<std::string>& inUse)
    : settings_(settings), inUse_(inUse.begin(), inUse.end()) {}

std::string StringIdentifiers::ForCode() {
    std::string id;
    do
        id = settings_.HCPrefix + std::to_string(++counter_);
    while (!inUse_.insert(id).second);
    return id;
}

std::string StringIdentifiers::ForConstant(std::string_view name) {
    const std::string base =
        settings_.CnstPrefix + (settings_.CnstPermanent == 1 ? UpperCase(name) : std::string(name));
    if (inUse_.insert(base).second) return base;
    std::string id;
    do
        id = base + '_' + std::to_string(++suffixes_[base]);
    while (!inUse_.insert(id).second);
    return id;
}

} // namespace glotta
