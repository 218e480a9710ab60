// How the results of a scan are printed.
#pragma once
#include "scanner/FoundStrings.h"

#include <string>
#include <string_view>
#include <vector>

namespace glotta {

struct UnitReport {
    std::string_view file;
    bool isCpp = false;
    const TgxFoundSourceStrings& found;
    const std::vector<TgxSkippedString>& skipped;
};

// One JSON object on one line, with the line's end.
std::string JsonLine(const UnitReport& report);
// A table for people; empty when nothing was found or skipped.
std::string Table(const UnitReport& report);

// A text on one line for people: line breaks and control characters are shown as codes.
std::string OneLine(std::string_view text, std::size_t atMost = std::string_view::npos);

struct ScanTotals {
    std::size_t units = 0, found = 0, noted = 0, skipped = 0;
    void Add(const UnitReport& report);
    void Add(const ScanTotals& other);
    std::string Text() const;
};

} // namespace glotta
