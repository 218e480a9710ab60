// The lines of a unit that a rename of a string identifier changes, on plain text.
#pragma once
#include "platform/TextEdit.h"
#include "scanner/SourceFlavour.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

struct RenameLine {
    int index;         // of the line in the unit, from 0
    std::size_t begin; // byte of the unit's text
    std::string line, result;
};

// The lines that name a look-up method (letter case counts; not those for wide strings) and behind it hold
// the quoted identifier, each with all of its occurrences replaced.
std::vector<RenameLine> RenameCandidates(std::string_view source, const SourceFlavour& flavour,
                                         std::string_view oldID, std::string_view newID);

// What puts the results in the place of the lines; line ends stay as they are.
TextEdits RenameEdits(const std::vector<RenameLine>& lines);

} // namespace glotta
