#include "scanner/RowEdits.h"

#include "platform/Text.h"

#include <algorithm>
#include <map>

namespace glotta {

namespace {

std::string Quoted(std::string_view id, const SourceFlavour& flavour) {
    return std::string(flavour.STRDELIM).append(id).append(flavour.STRDELIM);
}

// The text between the first two delimiters; empty when there are none.
std::string_view FirstArgument(std::string_view replacement, const SourceFlavour& flavour) {
    const auto open = replacement.find(flavour.STRDELIM);
    if (open == std::string_view::npos) return {};
    const auto begin = open + flavour.STRDELIM.size();
    const auto close = replacement.find(flavour.STRDELIM, begin);
    return close == std::string_view::npos ? std::string_view() : replacement.substr(begin, close - begin);
}

} // namespace

void SetNewStrIDOnRow(TgxFoundSourceString& row, const std::string& id, const SourceFlavour& flavour) {
    const std::string oldID(FirstArgument(row.Replacement, flavour));
    if (!oldID.empty())
        row.Replacement = ReplaceStr(row.Replacement, Quoted(oldID, flavour), Quoted(id, flavour));
    row.ID = id;
}

bool IsUsableStringID(std::string_view id, const SourceFlavour& flavour) {
    const auto isBad = [&](char c) {
        return static_cast<unsigned char>(c) < 32 || (flavour.IsCPPSource && c == '\\');
    };
    return !id.empty() && id.find(flavour.STRDELIM) == std::string_view::npos &&
           std::none_of(id.begin(), id.end(), isBad);
}

void IDsInUse::Add(const FoundRows& rows) {
    for (const TgxFoundSourceString* row : rows)
        texts_.emplace(row->ID, &row->Value);
}

bool IDsInUse::Clashes(std::string_view id, const std::string& value) const {
    const auto [begin, end] = texts_.equal_range(std::string(id));
    if (std::any_of(begin, end, [&](const auto& entry) { return *entry.second != value; })) return true;
    const int index = component_ ? component_->GetIDIndex(id) : -1;
    return index >= 0 && component_->GetTextFromByIndex(index) != value;
}

void RenumberRows(const FoundRows& rows, const IDsInUse& others, std::string_view prefix, long long start,
                  const SourceFlavour& flavour) {
    std::map<std::pair<std::string, std::string>, std::string>
        given; // former identifier and text to the new one
    long long number = start;
    for (TgxFoundSourceString* row : rows) {
        auto [entry, isNew] = given.try_emplace({UpperCase(row->ID), row->Value});
        if (isNew) {
            do
                entry->second = std::string(prefix) + std::to_string(number++);
            while (others.Clashes(entry->second, row->Value));
        }
        SetNewStrIDOnRow(*row, entry->second, flavour);
    }
}

std::string TypecastToPChar(const std::string& replacement) {
    if (replacement.starts_with("PChar(")) return replacement;
    const std::string_view tail = replacement.ends_with(';')     ? ";"
                                  : replacement.ends_with(" + ") ? " + "
                                                                 : "";
    const std::string call = replacement.substr(0, replacement.size() - tail.size());
    return ("PChar(" + call + ")").append(tail);
}

} // namespace glotta
