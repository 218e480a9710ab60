// Languages as TgxCustomLang and TGlottaDispatcher publish them: number, names and the active one.
#pragma once
#include "vcl/Component.h"

namespace glotta {

struct Languages {
    static constexpr int Max = 1000; // a damaged number must not claim memory without bounds

    int count = 1;
    int active = 1; // from 1
    std::vector<std::string>
        names; // at least `count`; those nobody gave read "Language N" and their position

    static Languages Read(const TComponent& component);
    void Write(TComponent& component) const;

    void SetCount(int number);
    void SetNames(std::vector<std::string> given);
    // Throws Error when there is no language of that name.
    void SetActive(std::string_view name);
    const std::string& ActiveName() const { return names[static_cast<std::size_t>(active - 1)]; }
    bool operator==(const Languages&) const = default;

private:
    void FillNames();
};

} // namespace glotta
