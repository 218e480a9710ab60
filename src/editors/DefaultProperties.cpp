#include "editors/DefaultProperties.h"

#include "platform/StringList.h"
#include "platform/Text.h"

#include <algorithm>

namespace glotta {

namespace {

constexpr std::string_view ListValue = "DefaultExclProps", AutoSaveValue = "AutoSaveDefaults";

bool Before(std::string_view a, std::string_view b) {
    return CompareText(a, b) < 0;
}

} // namespace

void DefaultProperties::Load() {
    const auto legacy = registry_.ReadString(LegacyKey, ListValue);
    const auto own = registry_.ReadString(Key, ListValue);
    if (legacy) {
        Assign(*legacy);
        if (!own) SaveDefaults(); // before the only copy goes
        registry_.DeleteValue(LegacyKey, ListValue);
    }
    if (own) Assign(*own);
    autoSave_ = TRegIniFile(registry_, std::string(Key)).ReadBool({}, AutoSaveValue, false);
}

void DefaultProperties::Assign(std::string_view commaText) {
    TStringList list;
    list.SetCommaText(commaText);
    items_ = list.Items();
    std::stable_sort(items_.begin(), items_.end(), Before);
    items_.erase(std::unique(items_.begin(), items_.end(), SameText), items_.end());
}

void DefaultProperties::Add(const std::string& name) {
    const auto place = std::lower_bound(items_.begin(), items_.end(), name, Before);
    if (place == items_.end() || !SameText(*place, name)) items_.insert(place, name);
}

void DefaultProperties::Delete(std::string_view name) {
    std::erase_if(items_, [&](const std::string& item) { return SameText(item, name); });
}

void DefaultProperties::SaveDefaults() {
    registry_.CreateKey(Key);
    registry_.WriteString(Key, ListValue, TStringList(items_).CommaText());
}

void DefaultProperties::SetAutoSave(bool on) {
    autoSave_ = on;
    TRegIniFile(registry_, std::string(Key)).WriteBool({}, AutoSaveValue, on);
}

} // namespace glotta
