// The translations of one form as a value: what a localization component gives to translation files and takes
// from them.
#pragma once
#include "runtime/Languages.h"
#include "runtime/StringsType.h"

#include <array>

namespace glotta {

struct FormTranslations {
    Languages languages;
    // By kind, in the order of the component's lists, each as Record.h has it. A record may hold fewer texts
    // than there are languages: those are missing, not empty.
    std::array<std::vector<std::string>, StringsTypeCount> records;

    bool operator==(const FormTranslations&) const = default;
};

// `present` with what `added` has: its languages (matched by name) and records (by identifier) that are not
// there, and its texts that are not empty. Nothing is removed. Names compare without regard to letter case;
// of several equal ones the first matches the first, the second the second. Throws Error when there would be
// too many languages.
FormTranslations Merged(const FormTranslations& present, const FormTranslations& added);

// The records of `from` for other languages: each gets from `from` the texts of the languages of the same
// name.
FormTranslations InLanguages(const FormTranslations& from, const Languages& languages);

} // namespace glotta
