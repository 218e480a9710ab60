// One translation file's content: forms by name, without regard to letter case, in the order of the file.
#pragma once
#include "platform/Text.h"
#include "runtime/FormTranslations.h"

#include <deque>

namespace glotta {

class TranslationFile {
public:
    virtual ~TranslationFile() = default;
    std::vector<std::string> FormNames() const;
    // Nothing when the file does not hold the form.
    const FormTranslations* Find(std::string_view form) const;
    // Adds or replaces one form.
    void Put(std::string_view form, FormTranslations translations);
    virtual std::string ToBytes() = 0;
    // Whether it is not what was read.
    bool Changed() const { return changed_; }
    void SetUnchanged() { changed_ = false; }

protected:
    struct Form {
        std::string name;
        FormTranslations translations;
        bool changed = false;
    };
    const std::deque<Form>& Forms() const { return forms_; }
    std::deque<Form>& Forms() { return forms_; }
    // The position of the form among Forms; a new one becomes the last.
    std::size_t PlaceOf(std::string_view name);
    bool Has(std::string_view name) const { return places_.find(name) != places_.end(); }
    void SetChanged() { changed_ = true; }

private:
    std::deque<Form> forms_;
    std::unordered_map<std::string, std::size_t, TextHash, TextEqual> places_;
    bool changed_ = false;
};

} // namespace glotta
