// What a project file says, before anything is looked up on disk: pure functions of its bytes, one per
// format.
#pragma once
#include "host/ProjectFiles.h"
#include "platform/TextEdit.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

// A unit as a project file writes it.
struct ListedUnit {
    std::string unitName, path, formName, designClass;
    std::size_t formBegin = 0, formEnd = 0; // where a project source names the form
};

struct ProjectListing {
    ProjectKind kind = ProjectKind::DelphiProgram;
    std::string mainSource; // as written, empty when the file does not say
    std::optional<unsigned> codePage;
    std::vector<ListedUnit> units;
};

struct GroupListing {
    struct Project {
        std::string name, path; // name: by which the group refers to the active one
    };
    std::vector<Project> projects;
    std::string active; // name or path, empty when the file does not say
};

// .dpr, .dpk: the uses and contains clauses.
ProjectListing ListDelphiSource(std::string_view text);
// A C++Builder project source: the USE macros.
ProjectListing ListUseMacros(std::string_view text);
// .bdsproj, .dproj, .cbproj, .bpr and .bpk of the XML generations. Throws Error "file: line N: reason".
ProjectListing ListXmlProject(std::string_view text, const std::string& fileName);
// .bpr, .bpk of the makefile generations: units are in the project source alone.
ProjectListing ListMakefileProject(std::string_view text);
// .bpg.
GroupListing ListMakefileGroup(std::string_view text);
// .bdsgroup, .groupproj. Throws Error "file: line N: reason".
GroupListing ListXmlGroup(std::string_view text, const std::string& fileName);

// Adds to `edits` the form's name where a project source lists the unit with it, unless it is among them.
void AddListedRename(TextEdits& edits, std::string_view text, bool isCpp, std::string_view unit,
                     const std::string& name, const std::string& newName);

// "CodePage=1251" on a line of its own, as .dof, .bpr and .bpk files have it.
std::optional<unsigned> FindCodePageLine(std::string_view text);

// A form or class name, and not something else that stands at its place.
bool IsIdentifier(std::string_view text);
// The last part of a written path, without extension.
std::string WrittenStem(std::string_view path);
bool IsXml(std::string_view text);

} // namespace glotta
