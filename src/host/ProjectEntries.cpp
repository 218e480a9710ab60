#include "host/ProjectEntries.h"
#include "ide/SourceTokens.h"
#include "platform/Encoding.h"
#include "platform/Error.h"
#include "platform/Text.h"

namespace glotta {
namespace {

namespace fs = std::filesystem;

// The extension in {$R *.xfm} or #pragma resource "*.xfm", lower case; empty in another directive.
std::string FormExtensionOf(std::string_view directive) {
    const std::string text = LowerCase(directive);
    const bool isResource = text.starts_with("{$r ") || text.starts_with("(*$r ") ||
                            text.starts_with("{$resource ") || text.find("resource") != std::string::npos;
    const std::size_t dot = isResource ? text.rfind('.') : std::string::npos;
    if (dot == std::string::npos) return {};
    const std::string extension = text.substr(dot, 4);
    return extension == ".dfm" || extension == ".xfm" ? extension : std::string{};
}

// What the unit itself says of its form file; ".dfm" when it says nothing or both.
std::string FormExtensionOfUnit(const fs::path& unit) {
    const std::string bytes = ReadFile(unit);
    const std::string text = Decode(bytes, DetectEncoding(bytes));
    bool xfm = false;
    for (const Token& token : Tokenize(text, LowerExtension(PathText(unit)) != ".pas")) {
        if (token.kind != TokenKind::Directive) continue;
        const std::string extension =
            FormExtensionOf(std::string_view(text).substr(token.begin, token.end - token.begin));
        if (extension == ".dfm") return extension;
        xfm = xfm || extension == ".xfm";
    }
    return xfm ? ".xfm" : ".dfm";
}

void FillGaps(ProjectEntry& entry, const ListedUnit& unit) {
    if (entry.annotatedFormName.empty()) entry.annotatedFormName = unit.formName;
    if (entry.designClass.empty()) entry.designClass = unit.designClass;
}

} // namespace

fs::path ResolveOrNative(PathResolver& paths, const fs::path& folder, std::string_view written,
                         bool& missing) {
    const std::optional<fs::path> found = paths.Resolve(folder, written);
    missing = !found;
    return (found ? *found : PathResolver::Native(folder, written)).lexically_normal();
}

ProjectEntries::Place ProjectEntries::Find(const fs::path& folder, const ListedUnit& unit) {
    Place place;
    place.file = ResolveOrNative(paths_, folder, unit.path, place.missing);
    return place;
}

void ProjectEntries::Add(const fs::path& folder, std::vector<ListedUnit> units) {
    for (ListedUnit& unit : units) {
        if (LowerExtension(unit.path).empty()) unit.path += ".pas";
        const Place place = Find(folder, unit);
        if (place.file == project_.mainSource) continue;
        const auto [known, isNew] = byFile_.try_emplace(PathText(place.file), project_.entries.size());
        if (!isNew) {
            FillGaps(project_.entries[known->second], unit);
            continue;
        }
        ProjectEntry entry{unit.unitName, unit.path,        place.file, place.missing,
                           unit.formName, unit.designClass, {}};
        if (place.missing)
            project_.problems.push_back(PathText(project_.file) + ": unit '" + unit.path + "' is missing");
        else
            FindForm(entry);
        project_.entries.push_back(std::move(entry));
    }
}

void ProjectEntries::Supplement(const fs::path& folder, const std::vector<ListedUnit>& units) {
    for (const ListedUnit& unit : units) {
        const auto known = byFile_.find(PathText(Find(folder, unit).file));
        if (known != byFile_.end()) FillGaps(project_.entries[known->second], unit);
    }
}

void ProjectEntries::FindForm(ProjectEntry& entry) {
    const fs::path folder = entry.file.parent_path();
    const std::string stem = PathText(entry.file.stem());
    const auto dfm = paths_.Resolve(folder, stem + ".dfm");
    const auto xfm = paths_.Resolve(folder, stem + ".xfm");
    try {
        if (dfm && xfm)
            entry.formFile = FormExtensionOfUnit(entry.file) == ".xfm" ? *xfm : *dfm;
        else if (dfm || xfm)
            entry.formFile = dfm ? *dfm : *xfm;
    } catch (const Error& error) {
        project_.problems.emplace_back(error.what());
        entry.formFile = *dfm;
    }
    entry.formFile = entry.formFile.lexically_normal();
}

} // namespace glotta
