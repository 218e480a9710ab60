// A text of [sections] with named entries, as INI and .reg files are: whatever nobody changes stays as it was
// found.
#pragma once
#include "platform/Text.h"

#include <list>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace glotta {

// Names match without regard to letter case. Sections of the same name count as one.
class SectionedText {
public:
    enum class Repeated { FirstCounts, LastCounts }; // when a name stands twice in a section

    explicit SectionedText(Repeated repeated) : repeated_(repeated), parts_(1) {}
    SectionedText(SectionedText&&) = default;
    SectionedText& operator=(SectionedText&&) = default;

    // Reading a text, piece by piece. `raw` is the whole piece with its line ends.
    void BeginSection(std::string_view name, std::string raw);
    void AddEntry(std::string_view name, std::string raw, std::optional<std::string> value);
    void AddOther(std::string raw); // comments, blank lines

    bool HasSection(std::string_view name) const { return sections_.find(name) != sections_.end(); }
    std::vector<std::string> SectionNames() const; // in the order of the text
    std::vector<std::string> EntryNames(std::string_view section) const;
    bool HasEntry(std::string_view section, std::string_view name) const { return Counting(section, name); }
    // Nothing also for an entry whose value is none that can be told as text.
    std::optional<std::string> Value(std::string_view section, std::string_view name) const;
    // The name as the text spells it; the given one when there is no such entry.
    std::string Spelling(std::string_view section, std::string_view name) const;
    // The whole entry as found; empty when there is none.
    std::string_view Raw(std::string_view section, std::string_view name) const;

    // Behind the last section, parted from it by a blank line.
    void AddSection(std::string_view name, std::string_view lineEnd);
    // Replaces the entry in its place, or adds it to the section, which exists.
    void Put(std::string_view section, std::string_view name, std::string raw, std::string value,
             std::string_view lineEnd);
    void Erase(std::string_view section, std::string_view name);
    void EraseSection(std::string_view name);

    std::string ToText() const;

private:
    struct Entry {
        std::string name, raw;
        std::optional<std::string> value;
        bool named = true; // false for comments and blank lines
    };
    struct Part {
        std::string name, header;
        std::list<Entry> entries;
    };
    struct Place {
        Part* part;
        std::list<Entry>::iterator entry;
    };
    struct Section {
        std::vector<Part*> parts;
        std::unordered_map<std::string, std::vector<Place>, TextHash, TextEqual> entries;
    };

    const Entry* Counting(std::string_view section, std::string_view name) const;
    void EndLastLine(std::string_view lineEnd);

    Repeated repeated_;
    std::list<Part> parts_; // the first one, without a header, holds what stands before all sections
    std::unordered_map<std::string, Section, TextHash, TextEqual> sections_;
};

} // namespace glotta
