#include "translation/TransTexts.h"

#include "runtime/CollectTexts.h"
#include "runtime/Record.h"

#include <algorithm>

namespace glotta {

bool IsUsableID(std::string_view id) {
    return !Trim(id).empty() && std::none_of(id.begin(), id.end(), [](unsigned char c) {
        return c < ' ' || c == '\'' || c == '"';
    });
}

TransTexts::TransTexts(const TgxCustomLang& component) {
    names_ = component.LangNames();
    names_.resize(std::size_t(component.NumberOfLanguages()));
    const IDs excluded = component.IgnoreRemovals() ? ExcludedTexts(component) : IDs();
    for (int kind = 0; kind < StringsTypeCount; ++kind) {
        List& list = lists_[std::size_t(kind)];
        list.records = component.Strings(TStringsType(kind)).Items();
        if (kind != stStrings && !excluded.empty()) SetAside(list, excluded);
        list.untranslated.resize(names_.size() + 1);
        for (const std::string& record : list.records)
            CountRecord(list, record, 1);
    }
}

void TransTexts::SetAside(List& list, const IDs& excluded) {
    std::vector<std::string> shown;
    for (std::size_t place = 0; place < list.records.size(); ++place) {
        std::string& record = list.records[place];
        if (excluded.contains(RecordField(record, 1)))
            list.excluded.emplace_back(place, std::move(record));
        else
            shown.push_back(std::move(record));
    }
    list.records = std::move(shown);
}

std::vector<std::string> TransTexts::Whole(const List& list) {
    std::vector<std::string> records;
    records.reserve(list.records.size() + list.excluded.size());
    auto excluded = list.excluded.begin();
    for (const std::string& record : list.records) {
        for (; excluded != list.excluded.end() && excluded->first == records.size(); ++excluded)
            records.push_back(excluded->second);
        records.push_back(record);
    }
    for (; excluded != list.excluded.end(); ++excluded)
        records.push_back(excluded->second);
    return records;
}

// One pass over the record; a list that ends early has empty texts behind.
void TransTexts::CountRecord(List& list, std::string_view record, int by) const {
    std::size_t start = record.find(ItemDelimiter);
    for (int language = 1; language <= Languages(); ++language) {
        bool empty = true;
        if (start != std::string_view::npos) {
            const std::size_t end = record.find(ItemDelimiter, start + 1);
            empty = start + 1 == (end == std::string_view::npos ? record.size() : end);
            start = end;
        }
        if (language == 1 && empty) return;
        if (empty) list.untranslated[std::size_t(language)] += std::size_t(by);
    }
}

std::string TransTexts::Field(TStringsType kind, std::size_t row, int field) const {
    return RecordField(lists_[kind].records[row], field + 1);
}

void TransTexts::Put(TStringsType kind, std::size_t row, int field, std::string_view text) {
    List& list = lists_[kind];
    std::string& record = list.records[row];
    CountRecord(list, record, -1);
    record = WithField(record, field + 1, text);
    CountRecord(list, record, 1);
    if (!list.upper.empty()) list.upper[row] = UpperCase(record);
    changed_.set(std::size_t(kind));
}

bool TransTexts::SetText(TStringsType kind, std::size_t row, int language, std::string_view text) {
    if (Field(kind, row, language) == text) return false;
    Put(kind, row, language, text);
    return true;
}

void TransTexts::Rename(std::size_t row, std::string_view id) {
    if (ids_) {
        const auto old = ids_->find(ID(stStrings, row));
        if (old != ids_->end() && --old->second == 0) ids_->erase(old);
        ++(*ids_)[std::string(id)];
    }
    Put(stStrings, row, 0, id);
}

bool TransTexts::HasID(std::string_view id) const {
    if (!ids_) {
        ids_.emplace();
        for (std::size_t row = 0; row < Count(stStrings); ++row)
            ++(*ids_)[ID(stStrings, row)];
    }
    return ids_->find(id) != ids_->end();
}

bool TransTexts::IsUntranslated(TStringsType kind, std::size_t row, int language) const {
    const std::string_view record = lists_[kind].records[row];
    return language > 1 && language <= Languages() &&
           ExtractWord(language + 1, record, ItemDelimiter).empty() &&
           !ExtractWord(2, record, ItemDelimiter).empty();
}

std::size_t TransTexts::Untranslated(TStringsType kind, int language) const {
    return lists_[kind].untranslated[std::size_t(language)];
}

bool TransTexts::Contains(TStringsType kind, std::size_t row, std::string_view upper) const {
    const List& list = lists_[kind];
    if (list.upper.size() != list.records.size()) {
        list.upper.clear();
        list.upper.reserve(list.records.size());
        for (const std::string& record : list.records)
            list.upper.push_back(UpperCase(record));
    }
    return list.upper[row].find(upper) != std::string::npos;
}

void TransTexts::WriteTo(TgxCustomLang& component) {
    for (int kind = 0; kind < StringsTypeCount; ++kind)
        if (changed_.test(std::size_t(kind)))
            component.SetStrings(TStringsType(kind), Whole(lists_[std::size_t(kind)]));
    changed_.reset();
}

} // namespace glotta
