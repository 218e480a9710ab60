// Records of the localization components' lists: identifier and the text in each language, parted by
// ItemDelimiter.
//
// A text may hold anything. Line breaks stay as they are: a record is one item of its list, whatever it
// holds. The delimiter, should a text hold it, is written as ItemEscape and 'D', and ItemEscape itself as
// ItemEscape and 'E'.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

inline constexpr char ItemDelimiter = '\x01';
inline constexpr char ItemEscape = '\x02';

// The index-th word (from 1) of `text`, words being parted by every single delimiter (empty words count).
// Empty when there are fewer.
std::string_view ExtractWord(int index, std::string_view text, char delimiter);

// Field 1 is the identifier, field k + 1 the text in language k, each without its escapes.
std::string RecordField(std::string_view record, int field);
std::vector<std::string> RecordFields(std::string_view record);
// The fields one by one, without a copy of those that have no escapes.
class RecordReader {
public:
    explicit RecordReader(std::string_view record) : rest_(record) {}
    bool AtEnd() const { return atEnd_; }
    std::string_view Next(); // until AtEnd; valid until the next call

private:
    std::string_view rest_;
    std::string unescaped_;
    bool atEnd_ = false;
};
// The record with one more field; an empty record has one field, an empty identifier.
void AppendField(std::string& record, std::string_view text);
std::string JoinFields(const std::vector<std::string>& fields); // one at least
std::string MakeRecord(std::string_view id, std::string_view text, int languages);
// The record with one field replaced; missing fields before it become empty.
std::string WithField(std::string_view record, int field, std::string_view text);
// The record with exactly so many languages.
std::string WithLanguages(std::string_view record, int languages);

} // namespace glotta
