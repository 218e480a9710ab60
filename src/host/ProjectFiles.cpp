#include "host/ProjectFiles.h"

#include "host/FormHead.h"
#include "host/ProjectEntries.h"
#include "platform/Encoding.h"
#include "platform/Error.h"
#include "platform/Text.h"

namespace glotta {
namespace {

namespace fs = std::filesystem;

enum class Format { None, DelphiSource, Xml, XmlOrMakefile, UseMacros, MakefileGroup, XmlGroup };

struct FormatOfExtension {
    std::string_view extension;
    Format format;
    bool isCpp;
};
constexpr FormatOfExtension formats[] = {
    {".dpr", Format::DelphiSource, false},  {".dpk", Format::DelphiSource, false},
    {".bdsproj", Format::Xml, false},       {".dproj", Format::Xml, false},
    {".cbproj", Format::Xml, true},         {".bpr", Format::XmlOrMakefile, true},
    {".bpk", Format::XmlOrMakefile, true},  {".cpp", Format::UseMacros, true},
    {".bpg", Format::MakefileGroup, false}, {".bdsgroup", Format::XmlGroup, false},
    {".groupproj", Format::XmlGroup, false}};

FormatOfExtension FormatOf(const fs::path& file) {
    const std::string extension = LowerExtension(PathText(file));
    for (const FormatOfExtension& entry : formats)
        if (entry.extension == extension) return entry;
    return {{}, Format::None, false};
}

bool IsSource(Format format) {
    return format == Format::DelphiSource || format == Format::UseMacros;
}

bool IsGroup(Format format) {
    return format == Format::MakefileGroup || format == Format::XmlGroup;
}

// File names in a project file are in the project's code page.
std::string ReadText(const fs::path& file, std::optional<unsigned> codePage = {}) {
    const std::string bytes = ReadFile(file);
    if (!codePage) codePage = FindCodePageLine(bytes);
    const auto hint = codePage ? EncodingByName(std::to_string(*codePage)) : std::nullopt;
    return Decode(bytes, DetectEncoding(bytes, {}, hint));
}

ProjectListing ReadListing(const fs::path& file, const FormatOfExtension& format,
                           std::optional<unsigned> codePage = {}) {
    const std::string text = ReadText(file, codePage);
    switch (format.format) {
    case Format::DelphiSource:
        return ListDelphiSource(text);
    case Format::UseMacros:
        return ListUseMacros(text);
    case Format::XmlOrMakefile:
        if (!IsXml(text)) return ListMakefileProject(text);
        [[fallthrough]];
    case Format::Xml:
        return ListXmlProject(text, PathText(file));
    default:
        throw Error(PathText(file) + ": not a Delphi or C++Builder project");
    }
}

fs::path Absolute(const fs::path& file) {
    return fs::absolute(file).lexically_normal();
}

// The file beside the project with another extension, whatever its letter case.
std::optional<fs::path> Beside(PathResolver& paths, const fs::path& file, const std::string& extension) {
    return paths.Resolve(file.parent_path(), PathText(file.stem()) + extension);
}

// The main source: where the project file says, else the file of the project's name.
void FindMainSource(ProjectDescription& project, const std::string& written, PathResolver& paths) {
    if (!written.empty()) {
        bool missing = false;
        const fs::path source = ResolveOrNative(paths, project.file.parent_path(), written, missing);
        if (!missing) {
            project.mainSource = source;
            return;
        }
        project.problems.push_back(PathText(project.file) + ": main source '" + written + "' is missing");
    }
    const std::vector<std::string> delphi = {".dpr", ".dpk"}, cpp = {".cpp"};
    for (const std::string& extension : project.IsCpp() ? cpp : delphi)
        if (const auto source = Beside(paths, project.file, extension)) {
            project.mainSource = source->lexically_normal();
            return;
        }
}

ProjectKind KindOf(const ProjectListing& listing, const fs::path& source) {
    return LowerExtension(PathText(source)) == ".dpk" ? ProjectKind::DelphiPackage : listing.kind;
}

// A .dpr or .dpk named itself: its options file knows the code page, and more of the forms.
ProjectListing ReadOptionsFile(ProjectDescription& project, PathResolver& paths) {
    for (const char* extension : {".dproj", ".bdsproj", ".dof"}) {
        const auto file = Beside(paths, project.file, extension);
        if (!file) continue;
        ProjectListing options;
        try {
            const std::string text = ReadText(*file);
            if (std::string_view(extension) == ".dof")
                options.codePage = FindCodePageLine(text);
            else
                options = ListXmlProject(text, PathText(*file));
        } catch (const Error& error) {
            project.problems.emplace_back(error.what());
        }
        return options;
    }
    return {};
}

// The units of a Delphi project file come from its main source; those of a C++Builder one from both.
void AddUnits(ProjectDescription& project, PathResolver& paths, ProjectListing listing) {
    ProjectEntries entries(project, paths);
    const fs::path folder = project.file.parent_path();
    if (project.mainSource.empty()) {
        if (listing.units.empty() && project.problems.empty())
            project.problems.push_back(PathText(project.file) + ": main source is missing");
        entries.Add(folder, std::move(listing.units));
        return;
    }
    const FormatOfExtension format = FormatOf(project.mainSource);
    const bool isSource = IsSource(format.format);
    ProjectListing source;
    if (isSource) source = ReadListing(project.mainSource, format, project.codePage);
    const fs::path sourceFolder = project.mainSource.parent_path();
    if (project.IsCpp() || !isSource) {
        entries.Add(folder, std::move(listing.units));
        entries.Add(sourceFolder, std::move(source.units));
        return;
    }
    project.kind = KindOf(source, project.mainSource);
    entries.Add(sourceFolder, std::move(source.units));
    entries.Supplement(folder, listing.units);
}

// The options file that a group names is often left out of version control; the project's source says as much.
void FindSourceBeside(ProjectGroupEntry& entry, PathResolver& paths) {
    const std::string extension = LowerExtension(PathText(entry.file));
    if (extension != ".dproj" && extension != ".bdsproj") return;
    for (const char* source : {".dpr", ".dpk"})
        if (const auto file = Beside(paths, entry.file, source)) {
            entry.file = *file;
            entry.missing = false;
            return;
        }
}

} // namespace

bool IsProjectGroupFile(const fs::path& file) {
    return IsGroup(FormatOf(file).format);
}

bool IsProjectFile(const fs::path& file) {
    const Format format = FormatOf(file).format;
    if (format == Format::UseMacros) return !ListUseMacros(ReadText(file)).units.empty();
    return format != Format::None && !IsGroup(format);
}

ProjectDescription ReadProject(const fs::path& file) {
    PathResolver paths;
    return ReadProject(file, paths);
}

ProjectDescription ReadProject(const fs::path& file, PathResolver& paths) {
    const FormatOfExtension format = FormatOf(file);
    ProjectDescription project;
    project.file = Absolute(file);
    ProjectListing listing;
    if (IsSource(format.format)) {
        project.mainSource = project.file;
        if (!format.isCpp) listing = ReadOptionsFile(project, paths);
    } else {
        listing = ReadListing(project.file, format);
    }
    project.codePage = listing.codePage;
    const bool isCpp = format.isCpp || LowerExtension(listing.mainSource) == ".cpp";
    project.kind = isCpp ? ProjectKind::CppBuilder : ProjectKind::DelphiProgram;
    if (project.mainSource.empty()) FindMainSource(project, listing.mainSource, paths);
    AddUnits(project, paths, std::move(listing));
    return project;
}

ProjectGroupDescription ReadProjectGroup(const fs::path& file) {
    ProjectGroupDescription group;
    group.file = Absolute(file);
    const Format format = FormatOf(file).format;
    if (!IsGroup(format)) throw Error(PathText(group.file) + ": not a project group");
    const std::string text = ReadText(group.file);
    const GroupListing listing =
        format == Format::MakefileGroup ? ListMakefileGroup(text) : ListXmlGroup(text, PathText(group.file));

    PathResolver paths;
    std::unordered_map<std::string, std::size_t> byFile;
    std::optional<std::size_t> active, present;
    for (const GroupListing::Project& project : listing.projects) {
        ProjectGroupEntry entry{project.path, {}, false};
        entry.file = ResolveOrNative(paths, group.file.parent_path(), project.path, entry.missing);
        if (entry.missing) FindSourceBeside(entry, paths);
        const auto [known, isNew] = byFile.try_emplace(PathText(entry.file), group.projects.size());
        const bool named =
            SameFileName(project.name, listing.active) || SameFileName(project.path, listing.active);
        if (!listing.active.empty() && named && !entry.missing) active = known->second;
        if (!isNew) continue;
        if (entry.missing)
            group.problems.push_back(PathText(group.file) + ": project '" + project.path + "' is missing");
        else if (!present)
            present = known->second;
        group.projects.push_back(std::move(entry));
    }
    group.activeIndex = static_cast<int>(active.value_or(present.value_or(0)));
    return group;
}

std::vector<IOTAModuleInfo> ModuleInfos(const ProjectDescription& project) {
    std::vector<IOTAModuleInfo> infos;
    infos.reserve(project.entries.size());
    for (const ProjectEntry& entry : project.entries) {
        IOTAModuleInfo info;
        info.unitName = entry.unitName;
        info.fileName = PathText(entry.file);
        info.annotatedFormName = entry.annotatedFormName;
        info.formFile = PathText(entry.formFile);
        info.missing = entry.missing;
        // A CoClass annotation names an interface's class, not a form.
        if (entry.designClass != "CoClass" || !info.formFile.empty()) info.formName = entry.annotatedFormName;
        if (const auto head = ReadFormHead(entry.formFile); head && !head->name.empty()) info.formName = head->name;
        infos.push_back(std::move(info));
    }
    return infos;
}

} // namespace glotta
