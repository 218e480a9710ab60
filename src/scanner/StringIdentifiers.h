// Identifiers for found literals: new ones that no string of the component has yet.
#pragma once
#include "platform/Text.h"
#include "settings/SettingsValues.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace glotta {

class StringIdentifiers {
public:
    StringIdentifiers(const SettingsValues& settings, const std::vector<std::string>& inUse);

    std::string ForCode(); // "IDS_0", "IDS_1" ...
    std::string ForConstant(std::string_view name); // "strCaption"; "strCaption_1" when that is taken

private:
    const SettingsValues& settings_;
    std::unordered_set<std::string, TextHash, TextEqual> inUse_;
    std::unordered_map<std::string, int, TextHash, TextEqual> suffixes_; // of constants, last one given
    int counter_ = -1;
};

} // namespace glotta
