// Which units a command line's paths name.
#pragma once
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace glotta {

struct UnitFile {
    std::filesystem::path file;
    std::string shown;                // as the output names it
    std::filesystem::path formFile;   // the unit's own form, empty without one
    std::optional<unsigned> codePage; // the project's hint
};

// Units (any file), folders (all their .pas .dpr .cpp .c .h, at any depth) and projects or groups (their units).
// What a project lists but the disk lacks is reported in `problems`. Throws Error for a path that does not exist.
std::vector<UnitFile> FindUnits(const std::vector<std::string>& paths, std::vector<std::string>& problems);

} // namespace glotta
