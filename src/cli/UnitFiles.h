// Which units a command line's paths name.
#pragma once
#include <filesystem>
#include <memory>
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

// Units (any file), folders (all their .pas .dpr .cpp .c .h, at any depth: a folder's own before those of the folders
// in it) and projects or groups (their units), each unit once. Folders are walked as the units are asked for.
class UnitFiles {
public:
    // Throws Error for a path that does not exist and a project that cannot be read.
    explicit UnitFiles(const std::vector<std::string>& paths);
    ~UnitFiles();

    // What a project lists but the disk lacks.
    const std::vector<std::string>& Problems() const;
    // The next few units; none at the end.
    std::vector<UnitFile> Next();

private:
    struct Walk;
    std::unique_ptr<Walk> walk_;
};

} // namespace glotta
