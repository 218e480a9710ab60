// The localization components: texts by identifier and language, held in the form file as string-list properties.
#pragma once
#include "platform/StringList.h"
#include "vcl/Component.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

// The twelve string kinds, in the order in which all walks visit them.
enum TStringsType {
    stCaptions, stHints, stDisplayLabels, stStrings, stFonts, stMultiLines, stDlgsCaptions, stOtherStrings, stLocales,
    stCharSets, stCollections, stListView_TreeView_Items
};
inline constexpr int StringsTypeCount = 12;
// The enumeration member's name, "stCaptions"; the published property has the name without "st".
std::string_view StringsTypeName(TStringsType kind);

// Separates the fields of a record: identifier, then the text in each language.
inline constexpr char ItemDelimiter = '\x01';

// The index-th word (from 1) of `text`, words being parted by every single delimiter (empty words count).
// Empty when there are fewer.
std::string_view ExtractWord(int index, std::string_view text, char delimiter);

// Class names of localization components that can be inserted, in this order.
inline constexpr std::array<std::string_view, 3> NamesArray = {"TGlotta", "TGlottaRTSE", "TGlottaRT"};
// The look-up methods as they are written into the source, each with its opening parenthesis.
inline constexpr std::array<std::string_view, 6> TextGetterNames = {
    "GetText(", "GetTextC(", "GetTextOrDefault(", "GetTextOrDefaultC(", "GetTextOrDefaultW(", "GetTextW("};

// Ancestor of all localization components.
class TgxCustomLang : public TComponent {
public:
    using TComponent::TComponent;

    int NumberOfLanguages() const;
    void SetNumberOfLanguages(int count); // records grow by empty texts and are cut on the right
    const std::vector<std::string>& LangNames() const { return langNames_; }
    void SetLangNames(std::vector<std::string> names);
    int ActiveLanguage() const; // 1-based position
    std::string Language() const;
    void SetLanguage(std::string name);

    // The records of one kind. The list is what the form file carries after the next save.
    const TStringList& Strings(TStringsType kind) const { return lists_[kind]; }
    void SetStrings(TStringsType kind, std::vector<std::string> records);

    // Adds a record to "Strings": `text` is the text of the first language (of the others: empty). An identifier that
    // is there already gets the text instead. Identifiers compare without regard to letter case.
    void AddString(std::string_view id, std::string_view text);
    bool DeleteString(std::string_view id);
    // Index in "Strings", -1 when there is none.
    int GetIDIndex(std::string_view id) const;
    // The identifier of the record with this text in the first language, empty when there is none.
    std::string GetStringID(std::string_view text) const;
    // Identifier and first-language text of a record of "Strings".
    std::string GetIDByIndex(int index) const;
    std::string GetTextFromByIndex(int index, int language = 1) const;
    // What the look-up methods give at run time: the text in the active language; for the OrDefault methods the
    // first language's text where that is empty.
    std::string GetText(std::string_view id) const;
    std::string GetTextOrDefault(std::string_view id) const;

    // Collects the form's texts by kind, keeping every translation whose base text did not change.
    void UpdateTranslations();
    void ClearTranslations();

    void Loaded() override;
    void BeforeWrite() override;

protected:
    void Changed() { changed_ = true; }

private:
    void IndexIds() const;
    std::array<TStringList, StringsTypeCount> lists_;
    std::vector<std::string> langNames_;
    mutable std::unordered_map<std::string, int, TextHash, TextEqual> ids_; // of "Strings"
    mutable std::unordered_map<std::string, int> texts_;
    mutable bool indexed_ = false;
    bool changed_ = false;
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
    int NumberOfLanguages() const;
    void SetNumberOfLanguages(int count);
    std::vector<std::string> LangNames() const;
    void SetLangNames(const std::vector<std::string>& names);
    int ActiveLanguage() const;
    void SetLanguage(const std::string& name);
};

// Makes the classes above known to form loading; call once at program start (repeating it is harmless).
void RegisterGlottaClasses();

} // namespace glotta
