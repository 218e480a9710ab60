// The localization components: texts by identifier and language, held in the form file as string-list
// properties.
#pragma once
#include "platform/StringList.h"
#include "runtime/FormTranslations.h"
#include "runtime/Record.h"
#include "runtime/TranslationFiles.h"

#include <array>
#include <bitset>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

// Class names of localization components that can be inserted, in this order.
inline constexpr std::array<std::string_view, 3> NamesArray = {"TGlotta", "TGlottaRTSE", "TGlottaRT"};
// The look-up methods as they are written into the source, each with its opening parenthesis.
inline constexpr std::array<std::string_view, 6> TextGetterNames = {
    "GetText(", "GetTextC(", "GetTextOrDefault(", "GetTextOrDefaultC(", "GetTextOrDefaultW(", "GetTextW("};

// Ancestor of all localization components.
class TgxCustomLang : public TComponent {
public:
    using TComponent::TComponent;

    int NumberOfLanguages() const { return languages_.count; }
    void SetNumberOfLanguages(int count); // records grow by empty texts and are cut on the right
    const std::vector<std::string>& LangNames() const {
        return languages_.names;
    } // one at least for each language
    void SetLangNames(std::vector<std::string> names);
    int ActiveLanguage() const { return languages_.active; } // 1-based position
    const std::string& Language() const { return languages_.ActiveName(); }
    void SetLanguage(const std::string& name); // throws Error when no language has this name

    // The records of one kind. The list is what the form file carries after the next save.
    const TStringList& Strings(TStringsType kind) const { return lists_[kind]; }
    void SetStrings(TStringsType kind, std::vector<std::string> records);

    // Adds a record to "Strings": `text` is the text of the first language (of the others: empty). An
    // identifier that is there already gets the text instead. Identifiers compare without regard to letter
    // case.
    void AddString(std::string_view id, std::string_view text);
    bool DeleteString(std::string_view id);
    // Index in "Strings", -1 when there is none.
    int GetIDIndex(std::string_view id) const;
    // The identifier of the record with this text in the first language, empty when there is none.
    std::string GetStringID(std::string_view text) const;
    // Identifier and first-language text of a record of "Strings".
    std::string GetIDByIndex(int index) const;
    std::string GetTextFromByIndex(int index, int language = 1) const;
    // What the look-up methods give at run time: the text in the active language; for the OrDefault methods
    // the first language's text where that is empty.
    std::string GetText(std::string_view id) const;
    std::string GetTextOrDefault(std::string_view id) const;

    // The three lists of what is kept out of translation.
    void SetDoNotList(const std::vector<std::string>& items) {
        TComponent::SetStrings("DoNotTranslate", items);
    }
    void SetExProps(const std::vector<std::string>& items) {
        TComponent::SetStrings("ExcludedProperties", items);
    }
    void SetSmartProps(const std::vector<std::string>& items) {
        TComponent::SetStrings("SmartExcludeProps", items);
    }
    // Whether records of properties that are no longer there are kept by UpdateTranslations.
    bool IgnoreRemovals() const { return GetOrdProp("IgnoreRemovals") != 0; }
    void SetIgnoreRemovals(bool ignore) { SetBoolProp("IgnoreRemovals", ignore); }
    void SetAutoSkipEmpties(bool skip) { SetBoolProp("AutoSkipEmpties", skip); }
    void SetChangeLocales(bool change) { SetBoolProp("ChangeLocales", change); }
    void SetStoreAsUTF8(bool store) { SetBoolProp("StoreAsUTF8", store); }
    void SetUseDefaultLanguage(bool use) { SetBoolProp("UseDefaultLanguage", use); }

    // Collects the form's texts by kind (all but "Strings"). A text that changed replaces the first
    // language's; its translations, and all others, stay.
    void UpdateTranslations();
    // Removes all records of all kinds.
    void ClearTranslations();

    // Everything that translation files hold of this component; setting it changes what differs only.
    FormTranslations Translations() const;
    void SetTranslations(const FormTranslations& translations);

    // Brings the lists up to date with the form before they are saved. Unlike UpdateTranslations it never drops a
    // record.
    virtual void RefreshLists();
    // This form's part of a translation file, under the form's name. Each throws Error and then changes neither
    // component nor file; files are written by TranslationFiles::Flush.
    virtual void SaveAllToFile(TranslationFiles& files, const std::string& fileName,
                               const std::string& delimiter);
    virtual void SaveAllToBinaryFile(TranslationFiles& files, const std::string& fileName);
    // Replaces the component's translations. A form that the file does not hold keeps what it has; the answer is
    // then false. Without `languages` the component keeps its languages and takes the texts of those.
    virtual bool LoadAllFromFile(TranslationFiles& files, const std::string& fileName, bool languages);
    virtual bool LoadAllFromBinaryFile(TranslationFiles& files, const std::string& fileName);
    // Adds what the component lacks, of either kind of file; see Merged.
    virtual bool MergeAllFromFile(TranslationFiles& files, const std::string& fileName);

    void Loaded() override;
    void BeforeWrite() override;

private:
    void CollectLists(bool keepVanished);
    struct Index { // of "Strings", built at the first look-up
        std::unordered_map<std::string, int, TextHash, TextEqual> ids;
        std::unordered_multimap<std::string, int> texts;
    };
    Index& StringsIndex() const;
    void AddToIndex(int record) const;
    void ForgetText(int record) const;
    std::string TextIn(std::string_view id, int language) const;
    void Changed(TStringsType kind) { changed_.set(static_cast<std::size_t>(kind)); }

    std::array<TStringList, StringsTypeCount> lists_;
    Languages languages_;
    std::bitset<StringsTypeCount> changed_;
    mutable std::optional<Index> index_;
};

class TGlotta : public TgxCustomLang {
public:
    using TgxCustomLang::TgxCustomLang;
};
class TGlottaRT : public TgxCustomLang {
public:
    using TgxCustomLang::TgxCustomLang;
};
class TGlottaRTSE : public TgxCustomLang {
public:
    using TgxCustomLang::TgxCustomLang;
};
class TGlottaLinked : public TgxCustomLang {
public:
    using TgxCustomLang::TgxCustomLang;
};
class TGlottaTLV : public TgxCustomLang {
public:
    using TgxCustomLang::TgxCustomLang;
};

// Serves several localization components with one set of languages.
class TGlottaDispatcher : public TComponent {
public:
    using TComponent::TComponent;
    int NumberOfLanguages() const { return Languages::Read(*this).count; }
    void SetNumberOfLanguages(int count);
    std::vector<std::string> LangNames() const { return Languages::Read(*this).names; }
    void SetLangNames(const std::vector<std::string>& names);
    int ActiveLanguage() const { return Languages::Read(*this).active; }
    std::string Language() const { return Languages::Read(*this).ActiveName(); }
    void SetLanguage(const std::string& name); // throws Error when no language has this name
};

// Makes the classes above known to form loading; call once at program start (repeating it is harmless).
void RegisterGlottaClasses();

} // namespace glotta
