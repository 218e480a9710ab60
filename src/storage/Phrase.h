// Where a phrase stands in the records of a localization component, and what a field becomes without it.
#pragma once
#include "runtime/CustomLang.h"

#include <string>
#include <string_view>
#include <vector>

namespace glotta {

struct PhraseOptions {
    std::string text;
    bool caseSensitive = false;
    bool wholePhrase = false;
    bool identifiers = false; // searches them, too
};

// A field of a record.
struct PhrasePlace {
    TStringsType kind;
    int line;     // from 0
    int language; // from 1; 0 is the identifier
    bool operator==(const PhrasePlace&) const = default;
};

class Phrase {
public:
    explicit Phrase(PhraseOptions options);

    // Equals the text, or holds it. No text is held nowhere, yet equals an empty field.
    bool Matches(std::string_view field) const;
    // Every occurrence replaced; what stands around them stays as it is written.
    std::string Replaced(std::string_view field, std::string_view replacement) const;
    // In the order of kinds, lines and fields.
    std::vector<PhrasePlace> Places(const TgxCustomLang& component) const;

private:
    bool IsInRecord(std::string_view record) const;
    void AddPlaces(TStringsType kind, int line, std::string_view record, int languages,
                   std::vector<PhrasePlace>& places) const;
    std::string Folded(std::string_view text) const;
    PhraseOptions options_;
    bool plain_; // a record that holds it shows it without escapes
};

// The language's name, or "Identifier".
std::string LocationOf(const TgxCustomLang& component, const PhrasePlace& place);

} // namespace glotta
