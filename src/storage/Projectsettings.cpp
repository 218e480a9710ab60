#include "storage/Projectsettings.h"

#include "platform/Error.h"
#include "platform/Text.h"

#include <algorithm>

namespace glotta {

namespace {

constexpr std::string_view Section = "Settings";

constexpr ProjectOption Options[] = {{"DefaultDictionary", false},
                                     {"DictionaryBaseLanguage", false},
                                     {"DontAskForDictionary", true},
                                     {"DictionaryIgnoreCase", true},
                                     {"DictionarySkipAmpersands", true},
                                     {"DictionaryParseMultilines", true},
                                     {"DictionaryOverwriteExisting", true},
                                     {"DictionaryForceEmpties", true},
                                     {"DefaultTranslationFileName", false},
                                     {"DefaultFormForUnits", false},
                                     {"DispatcherForm", false},
                                     {"CommonContainerForm", false}};

const ProjectOption* FindOption(std::string_view name) {
    const auto found = std::find_if(std::begin(Options), std::end(Options),
                                    [&](const ProjectOption& option) { return SameText(option.name, name); });
    return found == std::end(Options) ? nullptr : found;
}

} // namespace

std::span<const ProjectOption> ProjectOptions() {
    return Options;
}

void TGlottaProjectSettings::SetFileName(const std::filesystem::path& name) {
    fileName_ = std::filesystem::absolute(name);
    LoadFile();
}

void TGlottaProjectSettings::LoadFile() {
    storage_.emplace(fileName_);
}

void TGlottaProjectSettings::SaveFile() {
    if (!storage_) throw Error("Storage file not initialized!");
    storage_->UpdateFile();
    changed_ = false;
}

std::string TGlottaProjectSettings::GetOptionValue(std::string_view name) const {
    const ProjectOption* option = FindOption(name);
    if (!option || !storage_) return {};
    if (option->isBoolean) return storage_->ReadBool(Section, name, false) ? "1" : "0";
    return storage_->ReadString(Section, name, {});
}

void TGlottaProjectSettings::SetOptionValue(std::string_view name, std::string_view value) {
    changed_ = true;
    const ProjectOption* option = FindOption(name);
    if (!option || !storage_) return;
    if (option->isBoolean)
        storage_->WriteBool(Section, name, value == "1" || SameText(value, "true"));
    else
        storage_->WriteString(Section, name, value);
}

} // namespace glotta
