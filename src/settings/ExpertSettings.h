// The expert's settings: read once, each change written at once.
#pragma once
#include "settings/SettingsTable.h"
#include "settings/SettingsValues.h"
#include "settings/ShortCutText.h"

#include <string>
#include <string_view>
#include <vector>

namespace glotta {

class RegistryStore;

// The key of everything that the expert stores.
inline constexpr std::string_view BaseRegistryKey = "\\Software\\Quorlane\\TGlotta";

class ExpertSettings {
public:
    // Reads the settings. `componentNames` are the classes that DefaultComp may name; the first one is the
    // substitute.
    ExpertSettings(RegistryStore& store, std::vector<std::string> componentNames);

    const SettingsValues& Values() const { return values_; }

    void ReadSettings();
    // An unknown DefaultComp becomes the first known one, in memory only.
    void CheckDefaultComponent();

    void SetCnstPermanent(int value) { Set(&SettingsValues::CnstPermanent, value); }
    void SetCnstPrefix(std::string value) { Set(&SettingsValues::CnstPrefix, std::move(value)); }
    void SetHCPrefix(std::string value) { Set(&SettingsValues::HCPrefix, std::move(value)); }
    void SetAddFormName(bool value) { Set(&SettingsValues::AddFormName, value); }
    void SetReplaceMethod(std::string value) { Set(&SettingsValues::ReplaceMethod, std::move(value)); }
    void SetIgnorableLength(int value) { Set(&SettingsValues::IgnorableLength, value); }
    void SetSortOrder(int value) { Set(&SettingsValues::SortOrder, value); }
    void SetSortedColumn(int value) { Set(&SettingsValues::SortedColumn, value); }
    void SetDefaultLangNames(std::string value) { Set(&SettingsValues::DefaultLangNames, std::move(value)); }
    void SetCommentsLength(int value) { Set(&SettingsValues::CommentsLength, value); }
    void SetEmptyConstsValues(bool value) { Set(&SettingsValues::EmptyConstsValues, value); }
    void SetExcludeChars(std::string value) { Set(&SettingsValues::ExcludeChars, std::move(value)); }
    void SetSkipLines(TStringList value) { Set(&SettingsValues::SkipLines, std::move(value)); }
    void SetSkipWords(TStringList value) { Set(&SettingsValues::SkipWords, std::move(value)); }
    void SetColumnWidths(std::string value) { Set(&SettingsValues::ColumnWidths, std::move(value)); }
    void SetLastFilterIndex(int value) { Set(&SettingsValues::LastFilterIndex, value); }
    void SetUseRegExpForSkip(bool value) { Set(&SettingsValues::UseRegExpForSkip, value); }
    void SetPreviewLines(int value) { Set(&SettingsValues::PreviewLines, value); }
    void SetNoCommentsInSources(bool value) { Set(&SettingsValues::NoCommentsInSources, value); }
    void SetMultiProjFolder(std::string value) { Set(&SettingsValues::MultiProjFolder, std::move(value)); }
    void SetMultiProjFileName(std::string value) {
        Set(&SettingsValues::MultiProjFileName, std::move(value));
    }
    void SetMultiProjTemplate(std::string value) {
        Set(&SettingsValues::MultiProjTemplate, std::move(value));
    }
    void SetMultiProjUseTemplate(bool value) { Set(&SettingsValues::MultiProjUseTemplate, value); }
    void SetNumLang(int value) { Set(&SettingsValues::NumLang, value); }
    void SetShortCut(TShortCut value) { Set(&SettingsValues::ShortCut, value); }
    void SetMenuSection(std::string value) { Set(&SettingsValues::MenuSection, std::move(value)); }
    void SetUseCustom(bool value) { Set(&SettingsValues::UseCustom, value); }
    void SetOpenAllForms(bool value) { Set(&SettingsValues::OpenAllForms, value); }
    void SetDefaultComp(std::string value) { Set(&SettingsValues::DefaultComp, std::move(value)); }

    // For people: settings by property name, without regard to letter case. An unknown name and a text that
    // the setting cannot take are an Error. Lists are given line by line.
    static std::vector<std::string> Names();
    std::string GetByName(std::string_view name) const;
    void SetByName(std::string_view name, std::string_view text);
    // For this run only: nothing is written.
    void OverrideByName(std::string_view name, std::string_view text);

private:
    template <class T> void Set(T SettingsValues::*member, T value) {
        Store(RowOf(member), std::move(value));
    }
    void ReadUntilFailure();
    void Store(const SettingRow& row, SettingValue value);
    void Write(const SettingRow& row);
    SettingValue Checked(const SettingRow& row, std::string_view text) const;

    RegistryStore& store_;
    std::vector<std::string> componentNames_;
    SettingsValues values_;
};

} // namespace glotta
