#include "runtime/TranslationFile.h"

namespace glotta {

const FormTranslations* TranslationFile::Find(std::string_view form) const {
    const auto found = places_.find(form);
    return found == places_.end() ? nullptr : &forms_[found->second].translations;
}

void TranslationFile::Put(std::string_view form, const FormTranslations& translations) {
    const FormTranslations* present = Find(form);
    if (present && *present == translations) return;
    Form& place = forms_[PlaceOf(form)];
    place.translations = translations;
    place.changed = changed_ = true;
}

std::size_t TranslationFile::PlaceOf(std::string_view name) {
    const auto [found, isNew] = places_.try_emplace(std::string(name), forms_.size());
    if (isNew) forms_.push_back({std::string(name), {}, false});
    return found->second;
}

} // namespace glotta
