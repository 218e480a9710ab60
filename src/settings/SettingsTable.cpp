#include "settings/SettingsTable.h"

#include "platform/IntText.h"
#include "settings/ShortCutText.h"

namespace glotta {
namespace {

using V = SettingsValues;
constexpr auto OnChange = SettingWrite::OnChange, Always = SettingWrite::Always;
constexpr auto Plain = SettingRead::Plain;
constexpr std::optional<std::string_view> Current;

const SettingRow Rows[] = {
    {"MenuSection", "MenuSection", &V::MenuSection, Current, OnChange},
    {"ShortCut", "ShortCut", &V::ShortCut, Current, OnChange},
    {"NumLang", "DefNumLang", &V::NumLang, Current, OnChange, SettingRead::Strict, 1},
    {"OpenAllForms", "OpenAllForms", &V::OpenAllForms, Current, OnChange},
    {"DefaultComp", "DefaultComponent", &V::DefaultComp, Current, OnChange},
    {"CnstPermanent", "CnstPermanent", &V::CnstPermanent, Current, OnChange, SettingRead::Strict, 0, 1},
    {"CnstPrefix", "CnstPrefix", &V::CnstPrefix, Current, OnChange},
    {"HCPrefix", "HCPrefix", &V::HCPrefix, Current, OnChange},
    {"AddFormName", "AddFormName", &V::AddFormName, Current, Always},
    {"ReplaceMethod", "ReplaceMethod", &V::ReplaceMethod, Current, Always},
    {"IgnorableLength", "IgnorableLength", &V::IgnorableLength, "1", OnChange, Plain, 0},
    {"SortOrder", "SortOrder", &V::SortOrder, "-1", Always},
    {"SortedColumn", "SortedColumn", &V::SortedColumn, "0", Always, Plain, 0},
    {"DefaultLangNames", "DefaultLangNames", &V::DefaultLangNames, Current, Always},
    {"CommentsLength", "CommentsLength", &V::CommentsLength, Current, Always, Plain, 0},
    {"EmptyConstsValues", "EmptyConstsValues", &V::EmptyConstsValues, "1", Always},
    {"ExcludeChars", "ExcludeChars", &V::ExcludeChars, Current, Always},
    {"SkipLines", "SkipLines", &V::SkipLines, "", Always},
    {"SkipWords", "SkipWords", &V::SkipWords, "", Always},
    {"ColumnWidths", "ColumnWidths", &V::ColumnWidths, "", Always, SettingRead::Trimmed},
    {"LastFilterIndex", "LastFilterIndex", &V::LastFilterIndex, "1", Always, Plain, 1},
    {"UseRegExpForSkip", "UseRegExpForSkip", &V::UseRegExpForSkip, "0", Always},
    {"PreviewLines", "PreviewLines", &V::PreviewLines, "5", Always, Plain, 0},
    {"NoCommentsInSources", "NoCommentsInSources", &V::NoCommentsInSources, "0", Always},
    {"MultiProjFolder", "MultiProjFolder", &V::MultiProjFolder, "", OnChange},
    {"MultiProjFileName", "MultiProjFileName", &V::MultiProjFileName, "", OnChange},
    {"MultiProjTemplate", "MultiProjTemplate", &V::MultiProjTemplate, "", OnChange},
    {"MultiProjUseTemplate", "MultiProjUseTemplate", &V::MultiProjUseTemplate, "0", OnChange},
    {"Delimiter", "Delimiter", &V::Delimiter, "~!@#$", OnChange, SettingRead::BaseKey},
    // Written together, never read back.
    {"UseCustom", "UseCustom", &V::UseCustom, Current, OnChange, SettingRead::Never},
    {"UserFile", "UserFile", &V::UserFile, Current, OnChange, SettingRead::Never},
};

struct TextOf {
    std::string operator()(int number) const { return std::to_string(number); }
    std::string operator()(bool on) const { return on ? "1" : "0"; }
    std::string operator()(const std::string& text) const { return text; }
    std::string operator()(const TStringList& list) const { return list.Text(); }
    std::string operator()(std::uint16_t shortCut) const { return ShortCutToText(shortCut); }
};

// One for each type of member; the member itself is not used.
struct FromText {
    std::string_view text;
    std::optional<SettingValue> operator()(int V::*) const {
        const auto number = StrToInt(text);
        return number ? std::optional<SettingValue>(int(*number)) : std::nullopt;
    }
    std::optional<SettingValue> operator()(bool V::*) const {
        const auto number = StrToInt(text);
        return number ? std::optional<SettingValue>(*number != 0) : std::nullopt;
    }
    std::optional<SettingValue> operator()(std::string V::*) const { return std::string(text); }
    std::optional<SettingValue> operator()(TStringList V::*) const {
        TStringList list;
        list.SetText(text);
        return list;
    }
    std::optional<SettingValue> operator()(std::uint16_t V::*) const { return TextToShortCut(text); }
};

} // namespace

std::span<const SettingRow> SettingRows() {
    return Rows;
}

const SettingRow& RowOf(SettingMember member) {
    return *std::find_if(std::begin(Rows), std::end(Rows),
                         [&](const auto& row) { return row.member == member; });
}

SettingValue ValueOf(const SettingsValues& values, const SettingRow& row) {
    return std::visit([&](auto member) { return SettingValue(values.*member); }, row.member);
}

void SetValue(SettingsValues& values, const SettingRow& row, SettingValue value) {
    std::visit(
        [&](auto member) {
            auto& place = values.*member;
            place = std::get<std::decay_t<decltype(place)>>(std::move(value));
        },
        row.member);
}

std::string SettingText(const SettingValue& value) {
    return std::visit(TextOf{}, value);
}

std::optional<SettingValue> SettingFromText(const SettingRow& row, std::string_view text) {
    return std::visit(FromText{text}, row.member);
}

} // namespace glotta
