#include "runtime/TranslationFile.h"

#include "platform/Encoding.h"

namespace glotta {
namespace {

// Files hold well-formed text only.
FormTranslations WellFormed(FormTranslations translations) {
    const auto mend = [](std::vector<std::string>& texts) {
        for (std::string& text : texts)
            if (FindMalformed(text) < text.size()) text = glotta::WellFormed(std::move(text));
    };
    mend(translations.languages.names);
    for (std::vector<std::string>& records : translations.records)
        mend(records);
    return translations;
}

} // namespace

std::vector<std::string> TranslationFile::FormNames() const {
    std::vector<std::string> names;
    for (const Form& form : forms_)
        names.push_back(form.name);
    return names;
}

const FormTranslations* TranslationFile::Find(std::string_view form) const {
    const auto found = places_.find(form);
    return found == places_.end() ? nullptr : &forms_[found->second].translations;
}

void TranslationFile::Put(std::string_view form, FormTranslations translations) {
    translations = WellFormed(std::move(translations));
    const FormTranslations* present = Find(form);
    if (present && *present == translations) return;
    Form& place = forms_[PlaceOf(glotta::WellFormed(std::string(form)))];
    place.translations = std::move(translations);
    place.changed = changed_ = true;
}

std::size_t TranslationFile::PlaceOf(std::string_view name) {
    const auto [found, isNew] = places_.try_emplace(std::string(name), forms_.size());
    if (isNew) forms_.push_back({std::string(name), {}, false});
    return found->second;
}

} // namespace glotta
