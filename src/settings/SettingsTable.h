// Every setting, declared once, in the order in which they are read.
#pragma once
#include "settings/SettingsValues.h"

#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace glotta {

using SettingMember =
    std::variant<int SettingsValues::*, bool SettingsValues::*, std::string SettingsValues::*,
                 TStringList SettingsValues::*, std::uint16_t SettingsValues::*>;
using SettingValue = std::variant<int, bool, std::string, TStringList, std::uint16_t>;

enum class SettingRead {
    Plain,   // a text that does not convert gives the default
    Strict,  // a text that does not convert ends the reading
    Trimmed, // without blanks around it
    BaseKey, // from the base key itself, after all others
    Never
};
enum class SettingWrite { OnChange, Always };

struct SettingRow {
    std::string_view name;  // the property's
    std::string_view value; // the registry value's
    SettingMember member;
    std::optional<std::string_view> missing; // read default as text; nothing: the current value
    SettingWrite write;
    SettingRead read = SettingRead::Plain;
    int min = std::numeric_limits<int>::min(); // what a person may enter
    int max = std::numeric_limits<int>::max();
};

std::span<const SettingRow> SettingRows();
const SettingRow& RowOf(SettingMember member);

SettingValue ValueOf(const SettingsValues& values, const SettingRow& row);
void SetValue(SettingsValues& values, const SettingRow& row, SettingValue value);

// The text as the registry holds it, and back; nothing for a number that is none.
std::string SettingText(const SettingValue& value);
std::optional<SettingValue> SettingFromText(const SettingRow& row, std::string_view text);

} // namespace glotta
