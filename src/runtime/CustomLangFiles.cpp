// Localization components and translation files.
#include "runtime/CustomLang.h"

namespace glotta {
namespace {

// The key of a component's translations in a file.
const std::string& FormName(TgxCustomLang& component) {
    return component.Tree().Root().Name();
}

} // namespace

FormTranslations TgxCustomLang::Translations() const {
    FormTranslations all;
    all.languages = languages_;
    for (std::size_t kind = 0; kind < lists_.size(); ++kind)
        all.records[kind] = lists_[kind].Items();
    return all;
}

void TgxCustomLang::SetTranslations(const FormTranslations& translations) {
    if (languages_ != translations.languages) {
        languages_ = translations.languages;
        languages_.Write(*this);
    }
    for (std::size_t kind = 0; kind < lists_.size(); ++kind)
        if (lists_[kind].Items() != translations.records[kind])
            SetStrings(static_cast<TStringsType>(kind), translations.records[kind]);
}

void TgxCustomLang::SaveAllToFile(TranslationFiles& files, const std::string& fileName,
                                  const std::string& delimiter) {
    files.PutText(fileName, delimiter, FormName(*this), Translations());
}

void TgxCustomLang::SaveAllToBinaryFile(TranslationFiles& files, const std::string& fileName) {
    files.PutBinary(fileName, FormName(*this), Translations());
}

bool TgxCustomLang::LoadAllFromFile(TranslationFiles& files, const std::string& fileName, bool languages) {
    const FormTranslations* found = files.FindText(fileName, FormName(*this));
    if (found) SetTranslations(languages ? *found : InLanguages(*found, languages_));
    return found != nullptr;
}

bool TgxCustomLang::LoadAllFromBinaryFile(TranslationFiles& files, const std::string& fileName) {
    const FormTranslations* found = files.FindBinary(fileName, FormName(*this));
    if (found) SetTranslations(*found);
    return found != nullptr;
}

bool TgxCustomLang::MergeAllFromFile(TranslationFiles& files, const std::string& fileName) {
    const std::string& form = FormName(*this);
    const FormTranslations* found =
        IsBinaryTranslationFile(fileName) ? files.FindBinary(fileName, form) : files.FindText(fileName, form);
    if (found) SetTranslations(Merged(Translations(), *found));
    return found != nullptr;
}

} // namespace glotta
