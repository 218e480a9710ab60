// Delphi and C++Builder project files of every generation, read as lists of units and forms.
#pragma once
#include "ide/ToolsApi.h"
#include "platform/Files.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace glotta {

enum class ProjectKind { DelphiProgram, DelphiLibrary, DelphiPackage, CppBuilder };

// A unit that a project lists.
struct ProjectEntry {
    std::string unitName;       // "Main"; namespace and folder removed only where the project gives no name
    std::string writtenPath;    // as the project file writes it: '..\Units\Main.pas'
    std::filesystem::path file; // on disk; of a missing file where it would be
    bool missing = false;
    std::string annotatedFormName;  // "Form1", empty without a usable annotation
    std::string designClass;        // "TDataModule", "TFrame", as far as the project says; empty for a form
    std::filesystem::path formFile; // the .dfm or .xfm on disk, empty without one
};

struct ProjectDescription {
    std::filesystem::path file;       // as it was named, absolute
    std::filesystem::path mainSource; // the .dpr, .dpk or project .cpp; empty when there is none on disk
    ProjectKind kind = ProjectKind::DelphiProgram;
    std::optional<unsigned> codePage;  // a hint only; 65001 for UTF-8
    std::vector<ProjectEntry> entries; // in the project's order, each file once
    std::vector<std::string> problems; // one line each, with the file's name: what was passed over

    bool IsCpp() const { return kind == ProjectKind::CppBuilder; }
};

struct ProjectGroupEntry {
    std::string writtenPath;
    std::filesystem::path file; // on disk; of a missing project where it would be
    bool missing = false;
};

struct ProjectGroupDescription {
    std::filesystem::path file;
    std::vector<ProjectGroupEntry> projects; // each file once
    int activeIndex = 0;                     // of `projects`; the first one on disk unless the group says
    std::vector<std::string> problems;
};

// By extension: .bpg, .bdsgroup, .groupproj.
bool IsProjectGroupFile(const std::filesystem::path& file);
// By extension: .dpr, .dpk, .bdsproj, .dproj, .bpr, .bpk, .cbproj; a .cpp when it holds USE macros.
bool IsProjectFile(const std::filesystem::path& file);

// Throw Error when the file itself cannot be read or understood; what it lists is never a reason to.
// One resolver for all projects of a group saves listing their folders anew.
ProjectDescription ReadProject(const std::filesystem::path& file, PathResolver& paths);
ProjectDescription ReadProject(const std::filesystem::path& file);
ProjectGroupDescription ReadProjectGroup(const std::filesystem::path& file);

// What the IDE tells of a project's units. Form names are read from the heads of the form files.
std::vector<IOTAModuleInfo> ModuleInfos(const ProjectDescription& project);

} // namespace glotta
