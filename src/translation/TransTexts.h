// The texts of a localization component while they are translated: records as the component holds them,
// decoded cell by cell when somebody looks. Records of what is excluded, which a component keeps that ignores
// removals, are not among them; they stay where they are.
#pragma once
#include "platform/Text.h"
#include "runtime/CustomLang.h"

#include <array>
#include <bitset>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace glotta {

// Whether a string can be called so: not empty, without quotes and control characters.
bool IsUsableID(std::string_view id);

class TransTexts {
public:
    explicit TransTexts(const TgxCustomLang& component);

    int Languages() const { return int(names_.size()); }
    const std::string& LanguageName(int language) const {
        return names_[std::size_t(language - 1)];
    } // from 1
    std::size_t Count(TStringsType kind) const { return lists_[kind].records.size(); }

    std::string ID(TStringsType kind, std::size_t row) const { return Field(kind, row, 0); }
    // Field 0 is the identifier, field k the text in language k.
    std::string Field(TStringsType kind, std::size_t row, int field) const;
    // False when that is the text already.
    bool SetText(TStringsType kind, std::size_t row, int language, std::string_view text);
    // Identifiers of "Strings" alone are names that somebody chose.
    void Rename(std::size_t row, std::string_view id);
    bool HasID(std::string_view id) const; // in "Strings"

    // The first language has a text, this one has none.
    bool IsUntranslated(TStringsType kind, std::size_t row, int language) const;
    std::size_t Untranslated(TStringsType kind, int language) const;
    // Whether identifier or a text holds this, without regard to letter case. `upper` is in upper case.
    bool Contains(TStringsType kind, std::size_t row, std::string_view upper) const;

    bool IsChanged() const { return changed_.any(); }
    void WriteTo(TgxCustomLang& component); // the changed lists

private:
    struct List {
        std::vector<std::string> records;
        std::vector<std::pair<std::size_t, std::string>> excluded; // with their places in the whole list
        std::vector<std::size_t> untranslated;  // by language, from 1
        mutable std::vector<std::string> upper; // for searching; built when somebody searches
    };
    using IDs = std::unordered_set<std::string, TextHash, TextEqual>;
    static void SetAside(List& list, const IDs& excluded);
    static std::vector<std::string> Whole(const List& list); // with the excluded ones
    void CountRecord(List& list, std::string_view record, int by) const;
    void Put(TStringsType kind, std::size_t row, int field, std::string_view text);
    std::vector<std::string> names_;
    std::array<List, StringsTypeCount> lists_;
    mutable std::optional<std::unordered_map<std::string, int, TextHash, TextEqual>>
        ids_; // with their number
    std::bitset<StringsTypeCount> changed_;
};

} // namespace glotta
