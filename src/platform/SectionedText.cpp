#include "platform/SectionedText.h"

namespace glotta {
namespace {

bool EndsLine(std::string_view raw) {
    return raw.ends_with('\n') || raw.ends_with('\r');
}

} // namespace

void SectionedText::BeginSection(std::string_view name, std::string raw) {
    Part& part = parts_.emplace_back();
    part.name = name;
    part.header = std::move(raw);
    sections_[part.name].parts.push_back(&part);
}

void SectionedText::AddEntry(std::string_view name, std::string raw, std::optional<std::string> value) {
    Part& part = parts_.back();
    if (&part == &parts_.front()) return AddOther(std::move(raw));
    const auto entry =
        part.entries.insert(part.entries.end(), {std::string(name), std::move(raw), std::move(value)});
    sections_[part.name].entries[entry->name].push_back({&part, entry});
}

void SectionedText::AddOther(std::string raw) {
    parts_.back().entries.push_back({{}, std::move(raw), {}, false});
}

std::vector<std::string> SectionedText::SectionNames() const {
    std::vector<std::string> names;
    for (auto part = std::next(parts_.begin()); part != parts_.end(); ++part)
        if (sections_.find(part->name)->second.parts.front() == &*part) names.push_back(part->name);
    return names;
}

std::vector<std::string> SectionedText::EntryNames(std::string_view section) const {
    std::vector<std::string> names;
    const auto found = sections_.find(section);
    if (found == sections_.end()) return names;
    for (const Part* part : found->second.parts)
        for (const Entry& entry : part->entries)
            if (entry.named && &entry == Counting(section, entry.name)) names.push_back(entry.name);
    return names;
}

const SectionedText::Entry* SectionedText::Counting(std::string_view section, std::string_view name) const {
    const auto found = sections_.find(section);
    if (found == sections_.end()) return nullptr;
    const auto places = found->second.entries.find(name);
    if (places == found->second.entries.end()) return nullptr;
    const Place& place = repeated_ == Repeated::FirstCounts ? places->second.front() : places->second.back();
    return &*place.entry;
}

std::optional<std::string> SectionedText::Value(std::string_view section, std::string_view name) const {
    const Entry* entry = Counting(section, name);
    return entry ? entry->value : std::nullopt;
}

std::string SectionedText::Spelling(std::string_view section, std::string_view name) const {
    const Entry* entry = Counting(section, name);
    return entry ? entry->name : std::string(name);
}

std::string_view SectionedText::Raw(std::string_view section, std::string_view name) const {
    const Entry* entry = Counting(section, name);
    return entry ? std::string_view(entry->raw) : std::string_view();
}

void SectionedText::EndLastLine(std::string_view lineEnd) {
    Part& part = parts_.back();
    std::string& last = part.entries.empty() ? part.header : part.entries.back().raw;
    if (!last.empty() && !EndsLine(last)) last += lineEnd;
}

void SectionedText::AddSection(std::string_view name, std::string_view lineEnd) {
    EndLastLine(lineEnd);
    const Part& last = parts_.back();
    const bool isEmpty = last.entries.empty() && last.header.empty();
    const bool isBlank = !last.entries.empty() && Trim(last.entries.back().raw).empty();
    if (!isEmpty && !isBlank) AddOther(std::string(lineEnd));
    BeginSection(name, "[" + std::string(name) + "]" + std::string(lineEnd));
}

void SectionedText::Put(std::string_view section, std::string_view name, std::string raw, std::string value,
                        std::string_view lineEnd) {
    Section& found = sections_.find(section)->second;
    if (const auto places = found.entries.find(name); places != found.entries.end()) {
        const Place& place =
            repeated_ == Repeated::FirstCounts ? places->second.front() : places->second.back();
        place.entry->raw = std::move(raw);
        place.entry->value = std::move(value);
        return;
    }
    Part& part = *found.parts.front();
    // Blank lines and comments before the next section belong to that one.
    auto behind = part.entries.end();
    while (behind != part.entries.begin() && !std::prev(behind)->named)
        --behind;
    if (&part == &parts_.back() && behind == part.entries.end()) EndLastLine(lineEnd);
    const auto entry = part.entries.insert(behind, {std::string(name), std::move(raw), std::move(value)});
    found.entries[entry->name].push_back({&part, entry});
}

void SectionedText::Erase(std::string_view section, std::string_view name) {
    const auto found = sections_.find(section);
    if (found == sections_.end()) return;
    const auto places = found->second.entries.find(name);
    if (places == found->second.entries.end()) return;
    for (const Place& place : places->second)
        place.part->entries.erase(place.entry);
    found->second.entries.erase(places);
}

void SectionedText::EraseSection(std::string_view name) {
    const auto found = sections_.find(name);
    if (found == sections_.end()) return;
    const std::vector<Part*> gone = found->second.parts;
    sections_.erase(found);
    parts_.remove_if(
        [&](const Part& part) { return std::find(gone.begin(), gone.end(), &part) != gone.end(); });
}

std::string SectionedText::ToText() const {
    std::string text;
    for (const Part& part : parts_) {
        text += part.header;
        for (const Entry& entry : part.entries)
            text += entry.raw;
    }
    return text;
}

} // namespace glotta
