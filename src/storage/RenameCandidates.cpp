#include "storage/RenameCandidates.h"

#include "platform/LineSpans.h"
#include "platform/Text.h"

#include <array>

namespace glotta {

namespace {

// The place of the first of these names, in this order, that the line holds.
std::size_t CallPlace(std::string_view line) {
    static constexpr std::array<std::string_view, 4> Names = {"GetText(", "GetTextOrDefault(", "GetTextC(",
                                                              "GetTextOrDefaultC("};
    for (const std::string_view name : Names)
        if (const std::size_t place = line.find(name); place != std::string_view::npos) return place;
    return std::string_view::npos;
}

} // namespace

std::vector<RenameLine> RenameCandidates(std::string_view source, const SourceFlavour& flavour,
                                         std::string_view oldID, std::string_view newID) {
    const auto quoted = [&](std::string_view id) {
        return std::string(flavour.STRDELIM).append(id).append(flavour.STRDELIM);
    };
    const std::string before = quoted(oldID), after = quoted(newID);
    std::vector<RenameLine> lines;
    int index = 0;
    for (std::size_t begin = 0; begin < source.size(); ++index) {
        const auto [end, next] = LineAt(source, begin);
        const std::string_view line = source.substr(begin, end - begin);
        const std::size_t place = line.find(before);
        if (place != std::string_view::npos && CallPlace(line) < place)
            lines.push_back({index, begin, std::string(line), ReplaceStr(line, before, after)});
        begin = next;
    }
    return lines;
}

TextEdits RenameEdits(const std::vector<RenameLine>& lines) {
    TextEdits edits;
    for (const RenameLine& line : lines)
        if (line.result != line.line)
            edits.push_back({line.begin, line.begin + line.line.size(), line.result});
    return edits;
}

} // namespace glotta
