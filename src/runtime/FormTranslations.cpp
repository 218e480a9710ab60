#include "runtime/FormTranslations.h"

#include "platform/Error.h"
#include "runtime/Record.h"

namespace glotta {
namespace {

// Names and their positions; of equal names each is found once, in order.
class Positions {
public:
    void Add(std::string_view name, std::size_t position) {
        positions_[std::string(name)].all.push_back(position);
    }
    std::optional<std::size_t> Take(std::string_view name) {
        const auto found = positions_.find(name);
        if (found == positions_.end() || found->second.taken == found->second.all.size()) return {};
        return found->second.all[found->second.taken++];
    }

private:
    struct Found {
        std::vector<std::size_t> all;
        std::size_t taken = 0;
    };
    std::unordered_map<std::string, Found, TextHash, TextEqual> positions_;
};

std::size_t Count(const Languages& languages) {
    return static_cast<std::size_t>(languages.count);
}

// For each language of `from` the position of the same one in `to`.
using LanguageMap = std::vector<std::optional<std::size_t>>;
LanguageMap MapLanguages(const Languages& from, const Languages& to) {
    Positions positions;
    for (std::size_t i = 0; i < Count(to); ++i)
        positions.Add(to.names[i], i);
    LanguageMap map;
    for (std::size_t i = 0; i < Count(from); ++i)
        map.push_back(positions.Take(from.names[i]));
    return map;
}

// The fields of a record in `count` other languages.
std::vector<std::string> InLanguages(const std::vector<std::string>& fields, const LanguageMap& map,
                                     std::size_t count) {
    std::vector<std::string> result(1 + count);
    result[0] = fields[0];
    for (std::size_t i = 0; i < map.size() && i + 1 < fields.size(); ++i)
        if (map[i]) result[1 + *map[i]] = fields[i + 1];
    return result;
}

// Adds the languages that are not there behind the present ones; names beyond the count stay behind them.
void AddLanguages(Languages& languages, const Languages& added) {
    const LanguageMap map = MapLanguages(added, languages);
    for (std::size_t i = 0; i < map.size(); ++i)
        if (!map[i]) {
            if (languages.count == Languages::Max)
                throw Error("There cannot be more than " + std::to_string(Languages::Max) + " languages");
            languages.names.insert(languages.names.begin() + languages.count++, added.names[i]);
        }
}

// Puts the texts that are not empty into the record; the answer is whether one was another.
bool TakeTexts(std::vector<std::string>& fields, const std::vector<std::string>& added,
               const LanguageMap& map) {
    bool changed = false;
    for (std::size_t i = 0; i < map.size() && i + 1 < added.size(); ++i) {
        if (!map[i] || added[i + 1].empty()) continue;
        const std::size_t field = 1 + *map[i];
        if (fields.size() <= field) fields.resize(field + 1);
        if (fields[field] == added[i + 1]) continue;
        fields[field] = added[i + 1];
        changed = true;
    }
    return changed;
}

void MergeRecords(std::vector<std::string>& records, const std::vector<std::string>& added,
                  const LanguageMap& map, std::size_t languages) {
    Positions positions;
    for (std::size_t i = 0; i < records.size(); ++i)
        positions.Add(RecordField(records[i], 1), i);
    for (const std::string& record : added) {
        const std::vector<std::string> given = RecordFields(record);
        const auto present = positions.Take(given[0]);
        if (!present) {
            records.push_back(JoinFields(InLanguages(given, map, languages)));
            continue;
        }
        std::vector<std::string> fields = RecordFields(records[*present]);
        if (TakeTexts(fields, given, map)) records[*present] = JoinFields(fields);
    }
}

} // namespace

FormTranslations Merged(const FormTranslations& present, const FormTranslations& added) {
    FormTranslations merged = present;
    AddLanguages(merged.languages, added.languages);
    const LanguageMap map = MapLanguages(added.languages, merged.languages);
    for (std::size_t kind = 0; kind < merged.records.size(); ++kind) {
        if (merged.languages !=
            present.languages) // a text beyond the languages must not become one of a new language
            for (std::string& record : merged.records[kind])
                record =
                    WithLanguages(WithLanguages(record, present.languages.count), merged.languages.count);
        MergeRecords(merged.records[kind], added.records[kind], map, Count(merged.languages));
    }
    return merged;
}

FormTranslations InLanguages(const FormTranslations& from, const Languages& languages) {
    FormTranslations result;
    result.languages = languages;
    const LanguageMap map = MapLanguages(from.languages, languages);
    for (std::size_t kind = 0; kind < from.records.size(); ++kind)
        for (const std::string& record : from.records[kind])
            result.records[kind].push_back(
                JoinFields(InLanguages(RecordFields(record), map, Count(languages))));
    return result;
}

} // namespace glotta
