#include "cli/UnitFiles.h"

#include "host/ProjectFiles.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "platform/Text.h"

#include <array>
#include <unordered_map>
#include <unordered_set>

namespace glotta {

namespace fs = std::filesystem;

namespace {

constexpr std::array UnitExtensions = {".pas", ".dpr", ".cpp", ".c", ".h"};

bool IsUnitExtension(const std::string& extension) {
    return std::find(UnitExtensions.begin(), UnitExtensions.end(), extension) != UnitExtensions.end();
}

class Collector {
public:
    explicit Collector(std::vector<std::string>& problems) : problems_(problems) {}

    void AddFolder(const fs::path& folder) {
        std::vector<fs::path> units;
        // Path without extension, lower case, to the form file there.
        std::unordered_map<std::string, fs::path> forms;
        std::error_code error;
        fs::recursive_directory_iterator walk(folder, fs::directory_options::skip_permission_denied, error);
        if (error)
            throw Error(PathText(folder) + ": " + error.message());
        for (; walk != fs::recursive_directory_iterator(); walk.increment(error)) {
            std::string extension = LowerExtension(PathText(walk->path()));
            if (IsUnitExtension(extension)) {
                if (walk->is_regular_file(error))
                    units.push_back(walk->path());
            } else if (extension == ".dfm" || extension == ".xfm") {
                forms.try_emplace(LowerCase(PathText(fs::path(walk->path()).replace_extension())), walk->path());
            }
        }
        std::sort(units.begin(), units.end());
        for (fs::path& unit : units) {
            fs::path form;
            if (!forms.empty())
                if (auto found = forms.find(LowerCase(PathText(fs::path(unit).replace_extension()))); found != forms.end())
                    form = found->second;
            std::string shown = PathText(unit);
            Add({std::move(unit), std::move(shown), std::move(form), {}});
        }
    }

    void AddProject(const fs::path& file) {
        ProjectDescription project = ReadProject(file);
        problems_.insert(problems_.end(), project.problems.begin(), project.problems.end());
        for (const ProjectEntry& entry : project.entries)
            if (!entry.missing && IsUnitExtension(LowerExtension(PathText(entry.file))))
                Add({entry.file, PathText(entry.file.lexically_proximate(fs::current_path())), entry.formFile,
                     project.codePage});
    }

    void AddGroup(const fs::path& file) {
        ProjectGroupDescription group = ReadProjectGroup(file);
        problems_.insert(problems_.end(), group.problems.begin(), group.problems.end());
        for (const ProjectGroupEntry& project : group.projects)
            if (!project.missing)
                AddProject(project.file);
    }

    void AddUnit(const fs::path& file) {
        PathResolver resolver;
        fs::path form;
        for (const char* extension : {".dfm", ".xfm"}) {
            if (auto found = resolver.Resolve(file.has_parent_path() ? file.parent_path() : fs::path("."),
                                              PathText(fs::path(file.filename()).replace_extension(extension)))) {
                form = *found;
                break;
            }
        }
        Add({file, PathText(file), form, {}});
    }

    std::vector<UnitFile> Take() { return std::move(units_); }

private:
    void Add(UnitFile unit) {
        if (seen_.insert(unit.file.lexically_normal().native()).second)
            units_.push_back(std::move(unit));
    }

    std::vector<std::string>& problems_;
    std::vector<UnitFile> units_;
    std::unordered_set<fs::path::string_type> seen_;
};

} // namespace

std::vector<UnitFile> FindUnits(const std::vector<std::string>& paths, std::vector<std::string>& problems) {
    Collector collector(problems);
    for (const std::string& written : paths) {
        fs::path path = PathFromText(written);
        std::error_code error;
        if (!fs::exists(path, error))
            throw Error(written + ": no such file or folder");
        if (fs::is_directory(path, error))
            collector.AddFolder(path);
        else if (IsProjectGroupFile(path))
            collector.AddGroup(path);
        else if (IsProjectFile(path))
            collector.AddProject(path);
        else
            collector.AddUnit(path);
    }
    return collector.Take();
}

} // namespace glotta
