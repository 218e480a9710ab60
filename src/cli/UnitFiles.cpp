#include "cli/UnitFiles.h"

#include "host/ProjectFiles.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "platform/Text.h"

#include <array>
#include <deque>
#include <unordered_map>
#include <unordered_set>

namespace glotta {

namespace fs = std::filesystem;

namespace {

constexpr std::array UnitExtensions = {".pas", ".dpr", ".cpp", ".c", ".h"};
constexpr std::size_t Few = 48;

bool IsUnitExtension(const std::string& extension) {
    return std::find(UnitExtensions.begin(), UnitExtensions.end(), extension) != UnitExtensions.end();
}

std::string LowerStem(const fs::path& file) { return LowerCase(PathText(file.stem())); }

} // namespace

struct UnitFiles::Walk {
    std::vector<std::string> problems;
    std::deque<UnitFile> units;    // named, or found so far
    std::vector<fs::path> folders; // to be walked, the next one last
    std::unordered_set<fs::path::string_type> seen;

    void Add(UnitFile unit) {
        if (seen.insert(unit.file.lexically_normal().native()).second)
            units.push_back(std::move(unit));
    }

    void AddPath(const std::string& written) {
        fs::path path = PathFromText(written);
        std::error_code error;
        if (!fs::exists(path, error))
            throw Error(written + ": no such file or folder");
        if (fs::is_directory(path, error))
            folders.push_back(path);
        else if (IsProjectGroupFile(path))
            AddGroup(path);
        else if (IsProjectFile(path))
            AddProject(path);
        else
            AddUnit(path);
    }

    void AddProject(const fs::path& file) {
        ProjectDescription project = ReadProject(file);
        problems.insert(problems.end(), project.problems.begin(), project.problems.end());
        for (const ProjectEntry& entry : project.entries)
            if (!entry.missing && IsUnitExtension(LowerExtension(PathText(entry.file))))
                Add({entry.file, PathText(entry.file.lexically_proximate(fs::current_path())), entry.formFile,
                     project.codePage});
    }

    void AddGroup(const fs::path& file) {
        ProjectGroupDescription group = ReadProjectGroup(file);
        problems.insert(problems.end(), group.problems.begin(), group.problems.end());
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

    // A folder that cannot be read has no units.
    void AddFolder(const fs::path& folder) {
        std::vector<fs::path> files, inner;
        std::unordered_map<std::string, fs::path> forms; // by lower-case stem
        std::error_code error;
        fs::directory_iterator entry(folder, fs::directory_options::skip_permission_denied, error);
        for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
            std::error_code ignored;
            std::string extension = LowerExtension(PathText(entry->path()));
            if (entry->is_directory(ignored) && !entry->is_symlink(ignored))
                inner.push_back(entry->path());
            else if (IsUnitExtension(extension) && entry->is_regular_file(ignored))
                files.push_back(entry->path());
            else if (extension == ".dfm" || extension == ".xfm")
                forms.try_emplace(LowerStem(entry->path()), entry->path());
        }
        std::sort(files.begin(), files.end());
        for (fs::path& file : files) {
            auto form = forms.empty() ? forms.end() : forms.find(LowerStem(file));
            std::string shown = PathText(file);
            Add({std::move(file), std::move(shown), form == forms.end() ? fs::path() : form->second, {}});
        }
        std::sort(inner.rbegin(), inner.rend());
        std::move(inner.begin(), inner.end(), std::back_inserter(folders));
    }
};

UnitFiles::UnitFiles(const std::vector<std::string>& paths) : walk_(std::make_unique<Walk>()) {
    for (const std::string& path : paths)
        walk_->AddPath(path);
    std::reverse(walk_->folders.begin(), walk_->folders.end());
}

UnitFiles::~UnitFiles() = default;

const std::vector<std::string>& UnitFiles::Problems() const { return walk_->problems; }

std::vector<UnitFile> UnitFiles::Next() {
    while (walk_->units.size() < Few && !walk_->folders.empty()) {
        fs::path folder = std::move(walk_->folders.back());
        walk_->folders.pop_back();
        walk_->AddFolder(folder);
    }
    std::vector<UnitFile> next;
    for (; !walk_->units.empty() && next.size() < Few; walk_->units.pop_front())
        next.push_back(std::move(walk_->units.front()));
    return next;
}

} // namespace glotta
