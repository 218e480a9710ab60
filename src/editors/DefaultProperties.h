// The property names that a person excludes again and again: a sorted list, kept for the user.
#pragma once
#include "platform/RegistryStore.h"

#include <string>
#include <string_view>
#include <vector>

namespace glotta {

class DefaultProperties {
public:
    static constexpr std::string_view Key = "\\Software\\Quorlane\\TGlotta\\ExcludeEditor",
                                      LegacyKey = "\\Software\\Borland\\TGlotta";

    explicit DefaultProperties(RegistryStore& registry) : registry_(registry) { Load(); }

    const std::vector<std::string>& Items() const { return items_; }
    void Add(const std::string& name); // a name that is there, letter case ignored, is there once
    void Delete(std::string_view name);
    void Clear() { items_.clear(); }

    void SaveDefaults();
    bool AutoSave() const { return autoSave_; }
    void SetAutoSave(bool on); // stored at once

private:
    void Load();
    void Assign(std::string_view commaText);
    RegistryStore& registry_;
    std::vector<std::string> items_;
    bool autoSave_ = false;
};

} // namespace glotta
