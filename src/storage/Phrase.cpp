#include "storage/Phrase.h"

#include "platform/Text.h"

#include <algorithm>

namespace glotta {

namespace {

// Passes over one character of `text`, a malformed byte counting as one.
void PassChar(std::string_view text, std::size_t& pos) {
    pos += std::max<std::size_t>(CharLength(text, pos), 1);
}

} // namespace

Phrase::Phrase(PhraseOptions options) : options_(std::move(options)) {
    plain_ = !options_.text.empty() &&
             options_.text.find_first_of(std::string{ItemDelimiter, ItemEscape}) == std::string::npos;
    options_.text = Folded(options_.text);
}

std::string Phrase::Folded(std::string_view text) const {
    return options_.caseSensitive ? std::string(text) : UpperCase(text);
}

bool Phrase::Matches(std::string_view field) const {
    const std::string text = Folded(field);
    if (options_.wholePhrase) return text == options_.text;
    return !options_.text.empty() && text.find(options_.text) != std::string::npos;
}

// Upper-casing keeps the number of characters, but not that of bytes: the field is walked in both forms.
std::string Phrase::Replaced(std::string_view field, std::string_view replacement) const {
    if (options_.wholePhrase) return std::string(replacement);
    const std::string& phrase = options_.text;
    if (phrase.empty()) return std::string(field);
    const std::string folded = Folded(field);
    std::string result;
    std::size_t stored = 0, at = 0; // the same character in `field` and in `folded`
    const auto walkTo = [&](std::size_t end) {
        const std::size_t from = stored;
        while (at < end && stored < field.size()) {
            PassChar(field, stored);
            PassChar(folded, at);
        }
        return field.substr(from, stored - from);
    };
    for (std::size_t found; (found = folded.find(phrase, at)) != std::string::npos;) {
        result += walkTo(found);
        walkTo(found + phrase.size());
        result += replacement;
    }
    return result += field.substr(stored);
}

// Whether its fields are worth looking at.
bool Phrase::IsInRecord(std::string_view record) const {
    return !plain_ || Folded(record).find(options_.text) != std::string::npos;
}

// Fields that the record lacks are empty.
void Phrase::AddPlaces(TStringsType kind, int line, std::string_view record, int languages,
                       std::vector<PhrasePlace>& places) const {
    for (int language = 0; language <= languages; ++language) {
        const std::size_t end = std::min(record.find(ItemDelimiter), record.size());
        if ((language > 0 || options_.identifiers) && Matches(RecordField(record.substr(0, end), 1)))
            places.push_back({kind, line, language});
        record.remove_prefix(std::min(end + 1, record.size()));
    }
}

std::vector<PhrasePlace> Phrase::Places(const TgxCustomLang& component) const {
    std::vector<PhrasePlace> places;
    if (options_.text.empty() && !options_.wholePhrase) return places;
    for (int number = 0; number < StringsTypeCount; ++number) {
        const TStringList& records = component.Strings(TStringsType(number));
        for (std::size_t line = 0; line < records.Count(); ++line)
            if (IsInRecord(records[line]))
                AddPlaces(TStringsType(number), int(line), records[line], component.NumberOfLanguages(),
                          places);
    }
    return places;
}

std::string LocationOf(const TgxCustomLang& component, const PhrasePlace& place) {
    return place.language == 0 ? "Identifier" : component.LangNames()[std::size_t(place.language) - 1];
}

} // namespace glotta
