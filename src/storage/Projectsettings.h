// A project's translation options, kept in a .gxproj file beside the project file.
#pragma once
#include "platform/IniFile.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace glotta {

struct ProjectOption {
    std::string_view name;
    bool isBoolean;
};
// In the order in which the options are written.
std::span<const ProjectOption> ProjectOptions();

class TGlottaProjectSettings {
public:
    const std::filesystem::path& GetFileName() const { return fileName_; }
    void SetFileName(const std::filesystem::path& name); // made absolute; then LoadFile
    void LoadFile();
    // "Storage file not initialized!" without a file name.
    void SaveFile();

    // Names match without regard to letter case; Boolean options as "1" or "0". Empty for an unknown name.
    std::string GetOptionValue(std::string_view name) const;
    bool GetOptionFlag(std::string_view name) const { return GetOptionValue(name) == "1"; }
    // Nothing is written for an unknown name, yet the settings count as changed.
    void SetOptionValue(std::string_view name, std::string_view value);

    bool GetIsChanged() const { return changed_; }

private:
    std::filesystem::path fileName_;
    std::optional<TgxMemIniFile> storage_;
    bool changed_ = false;
};

} // namespace glotta
