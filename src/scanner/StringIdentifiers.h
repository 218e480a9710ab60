// Identifiers for found literals: new ones that no string of the component has yet.
#pragma once
#include "platform/Text.h"
#include "settings/SettingsValues.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace glotta {

class StringIdentifiers {
public:
    StringIdentifiers(const SettingsValues& settings, const std::vector<std::string>& inUse);

    std::string ForCode();                          // "IDS_0", "IDS_1" ...
    std::string ForConstant(std::string_view name); // "strCaption"; "strCaption_1" when that is taken

private:
    const SettingsValues& settings_;
    const std::vector<std::string>& inUse_;
    std::vector<std::uint64_t> numbers_; // of the identifiers in use that begin with HCPrefix, ascending
    std::size_t nextNumber_ = 0;
    std::uint64_t counter_ = 0;
    // Identifiers in use, and the last suffix given to each; filled by the first constant.
    std::unordered_map<std::string, int, TextHash, TextEqual> names_;
};

} // namespace glotta
