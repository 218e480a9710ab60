#include "runtime/Languages.h"

#include "platform/Error.h"

namespace glotta {

Languages Languages::Read(const TComponent& component) {
    Languages languages;
    languages.names = component.GetStrings("LangNames");
    const auto named = std::max<std::int64_t>(1, static_cast<std::int64_t>(languages.names.size()));
    const std::int64_t count = component.GetOrdProp("NumberOfLanguages", named);
    languages.count = static_cast<int>(std::clamp<std::int64_t>(count, 1, Max));
    const std::int64_t active = component.GetOrdProp("ActiveLanguage", 1);
    languages.active = static_cast<int>(std::clamp<std::int64_t>(active, 1, languages.count));
    languages.FillNames();
    return languages;
}

void Languages::Write(TComponent& component) const {
    component.SetOrdProp("NumberOfLanguages", count);
    component.SetStrings("LangNames", names);
    component.SetStrProp("Language", ActiveName());
    component.SetOrdProp("ActiveLanguage", active);
}

void Languages::SetCount(int number) {
    count = std::clamp(number, 1, Max);
    if (names.size() > static_cast<std::size_t>(count)) names.resize(static_cast<std::size_t>(count));
    FillNames();
    if (active > count) active = 1;
}

void Languages::SetNames(std::vector<std::string> given) {
    names = std::move(given);
    FillNames();
}

void Languages::SetActive(std::string_view name) {
    for (int position = 1; position <= count; ++position)
        if (SameText(names[static_cast<std::size_t>(position - 1)], name)) {
            active = position;
            return;
        }
    throw Error("There is no language named \"" + std::string(name) + "\"");
}

void Languages::FillNames() {
    while (names.size() < static_cast<std::size_t>(count))
        names.push_back("Language N" + std::to_string(names.size() + 1));
}

} // namespace glotta
