#include "host/ProjectListing.h"
#include "platform/Text.h"

#include <array>

namespace glotta {
namespace {

constexpr std::array<std::string_view, 6> projectExtensions = {".dpr", ".dpk",     ".bpr",
                                                               ".bpk", ".bdsproj", ".dproj"};

// Lines with their continuations joined; remarks and directives ("!if") left out.
std::vector<std::string> MakefileLines(std::string_view text) {
    std::vector<std::string> lines;
    bool continued = false;
    for (const std::string& line : SplitLines(text)) {
        std::string_view piece = TrimRight(line);
        const bool goesOn = piece.ends_with('\\');
        if (goesOn) piece.remove_suffix(1);
        if (continued)
            lines.back().append(" ").append(TrimLeft(piece));
        else
            lines.emplace_back(piece);
        continued = goesOn;
    }
    std::erase_if(lines,
                  [](const std::string& line) { return line.starts_with('#') || line.starts_with('!'); });
    return lines;
}

// "NAME = value"; empty for another line.
std::string_view MacroValue(std::string_view line, std::string_view name) {
    if (!line.starts_with(name)) return {};
    line = TrimLeft(line.substr(name.size()));
    return line.starts_with('=') ? Trim(line.substr(1)) : std::string_view{};
}

std::string_view LastWord(std::string_view text) {
    const std::size_t blank = text.find_last_of(" \t");
    return blank == std::string_view::npos ? text : text.substr(blank + 1);
}

bool IsProjectName(std::string_view path) {
    const std::string extension = LowerExtension(path);
    return std::find(projectExtensions.begin(), projectExtensions.end(), extension) !=
           projectExtensions.end();
}

using WordOrder = std::unordered_map<std::string, std::size_t, TextHash, TextEqual>;

void AddWords(WordOrder& order, std::string_view text) {
    while (!(text = Trim(text)).empty()) {
        const std::size_t end = std::min(text.find_first_of(" \t"), text.size());
        order.emplace(text.substr(0, end), order.size());
        text.remove_prefix(end);
    }
}

} // namespace

ProjectListing ListMakefileProject(std::string_view text) {
    ProjectListing result{ProjectKind::CppBuilder, {}, FindCodePageLine(text), {}};
    for (const std::string& line : MakefileLines(text))
        if (const std::string_view value = MacroValue(line, "MAINSOURCE"); !value.empty())
            result.mainSource = value;
    return result;
}

// PROJECTS names the outputs in order; the rules say which file makes each. Outputs may hold blanks, so a
// rule is found by the last word of its target.
GroupListing ListMakefileGroup(std::string_view text) {
    WordOrder order;
    GroupListing result;
    for (const std::string& line : MakefileLines(text)) {
        AddWords(order, MacroValue(line, "PROJECTS"));
        const std::size_t colon = line.find(": ");
        if (colon == std::string::npos || line.starts_with(' ') || line.starts_with('\t')) continue;
        const std::string_view target = Trim(std::string_view(line).substr(0, colon));
        const std::string_view path = Trim(std::string_view(line).substr(colon + 1));
        if (IsProjectName(path)) result.projects.push_back({std::string(target), std::string(path)});
    }
    const auto place = [&](const GroupListing::Project& project) {
        const auto found = order.find(LastWord(project.name));
        return found == order.end() ? order.size() : found->second;
    };
    std::stable_sort(result.projects.begin(), result.projects.end(),
                     [&](const auto& a, const auto& b) { return place(a) < place(b); });
    return result;
}

} // namespace glotta
