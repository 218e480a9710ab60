#include "settings/ExpertSettings.h"

#include "platform/Error.h"
#include "platform/RegistryStore.h"
#include "platform/Text.h"

namespace glotta {
namespace {

constexpr std::string_view Section = "ExpSettings";

const SettingRow& RowByName(std::string_view name) {
    for (const SettingRow& row : SettingRows())
        if (SameText(row.name, name)) return row;
    throw Error("Unknown setting \"" + std::string(name) + "\"");
}

std::optional<bool> SwitchFromText(std::string_view text) {
    for (const std::string_view on : {"1", "true", "yes", "on"})
        if (SameText(text, on)) return true;
    for (const std::string_view off : {"0", "false", "no", "off"})
        if (SameText(text, off)) return false;
    return {};
}

std::string_view SectionOf(const SettingRow& row) {
    return row.read == SettingRead::BaseKey ? std::string_view() : Section;
}

} // namespace

ExpertSettings::ExpertSettings(RegistryStore& store, std::vector<std::string> componentNames)
    : store_(store), componentNames_(std::move(componentNames)) {
    values_.ShortCut = TextToShortCut("CTRL+L");
    ReadSettings();
}

void ExpertSettings::ReadSettings() {
    ReadUntilFailure();
    if (!store_.KeyExists(BaseRegistryKey)) {
        try {
            store_.CreateKey(BaseRegistryKey);
        } catch (const Error&) {
            // A profile that cannot be written is no reason not to start.
        }
    }
    for (const SettingRow& row : SettingRows())
        if (row.read == SettingRead::BaseKey)
            SetValue(values_, row,
                     store_.ReadString(BaseRegistryKey, row.value).value_or(std::string(*row.missing)));
}

void ExpertSettings::ReadUntilFailure() {
    const TRegIniFile registry(store_, std::string(BaseRegistryKey));
    for (const SettingRow& row : SettingRows()) {
        if (row.read == SettingRead::BaseKey || row.read == SettingRead::Never) continue;
        const std::string missing =
            row.missing ? std::string(*row.missing) : SettingText(ValueOf(values_, row));
        std::string text = registry.ReadString(Section, row.value, missing);
        if (row.read == SettingRead::Trimmed) text = Trim(text);
        std::optional<SettingValue> value = SettingFromText(row, text);
        if (!value && row.read == SettingRead::Strict) return;
        SetValue(values_, row, value ? std::move(*value) : *SettingFromText(row, missing));
        if (row.member == SettingMember(&SettingsValues::DefaultComp)) CheckDefaultComponent();
    }
}

void ExpertSettings::CheckDefaultComponent() {
    if (std::find(componentNames_.begin(), componentNames_.end(), values_.DefaultComp) ==
            componentNames_.end() &&
        !componentNames_.empty())
        values_.DefaultComp = componentNames_.front();
}

void ExpertSettings::Store(const SettingRow& row, SettingValue value) {
    if (row.write == SettingWrite::OnChange && ValueOf(values_, row) == value) return;
    SetValue(values_, row, std::move(value));
    Write(row);
    if (row.member == SettingMember(&SettingsValues::UseCustom)) Write(RowOf(&SettingsValues::UserFile));
}

void ExpertSettings::Write(const SettingRow& row) {
    TRegIniFile(store_, std::string(BaseRegistryKey))
        .WriteString(SectionOf(row), row.value, SettingText(ValueOf(values_, row)));
}

std::vector<std::string> ExpertSettings::Names() {
    std::vector<std::string> names;
    for (const SettingRow& row : SettingRows())
        names.emplace_back(row.name);
    return names;
}

std::string ExpertSettings::GetByName(std::string_view name) const {
    const SettingValue value = ValueOf(values_, RowByName(name));
    if (const TStringList* list = std::get_if<TStringList>(&value)) return JoinLines(list->Items(), "\n");
    return SettingText(value);
}

SettingValue ExpertSettings::Checked(const SettingRow& row, std::string_view text) const {
    const auto fail = [&](const std::string& wanted) {
        throw Error("Setting " + std::string(row.name) + ": " + wanted + " expected, not \"" +
                    std::string(text) + "\"");
    };
    if (std::holds_alternative<bool SettingsValues::*>(row.member)) {
        const std::optional<bool> on = SwitchFromText(text);
        if (!on) fail("1 or 0");
        return on.value();
    }
    const std::optional<SettingValue> value = SettingFromText(row, text);
    if (std::holds_alternative<int SettingsValues::*>(row.member) &&
        (!value || std::get<int>(*value) < row.min || std::get<int>(*value) > row.max))
        fail("a whole number from " + std::to_string(row.min) + " to " + std::to_string(row.max));
    if (std::holds_alternative<std::uint16_t SettingsValues::*>(row.member) && !text.empty() &&
        std::get<std::uint16_t>(*value) == 0)
        fail("a shortcut such as \"Ctrl+L\"");
    if (row.member == SettingMember(&SettingsValues::ReplaceMethod) && !text.ends_with('('))
        fail("the name of a look-up method and an opening parenthesis");
    if (row.member == SettingMember(&SettingsValues::DefaultComp) &&
        std::find(componentNames_.begin(), componentNames_.end(), text) == componentNames_.end())
        fail(JoinLines(componentNames_, " or "));
    if (row.member == SettingMember(&SettingsValues::DefaultLangNames)) return JoinLines(SplitLines(text));
    return *value;
}

void ExpertSettings::SetByName(std::string_view name, std::string_view text) {
    const SettingRow& row = RowByName(name);
    Store(row, Checked(row, text));
}

void ExpertSettings::OverrideByName(std::string_view name, std::string_view text) {
    const SettingRow& row = RowByName(name);
    SetValue(values_, row, Checked(row, text));
}

} // namespace glotta
