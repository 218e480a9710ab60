// Gathers a project's units: each file once, found on disk, with its form file.
#pragma once
#include "host/ProjectListing.h"

#include <unordered_map>

namespace glotta {

class ProjectEntries {
public:
    ProjectEntries(ProjectDescription& project, PathResolver& paths) : project_(project), paths_(paths) {}

    // Paths are written relative to `folder`.
    void Add(const std::filesystem::path& folder, std::vector<ListedUnit> units);
    // Tells more of units that are there already, but adds none.
    void Supplement(const std::filesystem::path& folder, const std::vector<ListedUnit>& units);

private:
    struct Place {
        std::filesystem::path file;
        bool missing;
    };
    Place Find(const std::filesystem::path& folder, const ListedUnit& unit);
    void FindForm(ProjectEntry& entry);

    ProjectDescription& project_;
    PathResolver& paths_;
    std::unordered_map<std::string, std::size_t> byFile_;
};

// Where the project file or its main source is missing, the path it would have.
std::filesystem::path ResolveOrNative(PathResolver& paths, const std::filesystem::path& folder,
                                      std::string_view written, bool& missing);

} // namespace glotta
