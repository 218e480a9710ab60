// The source files of the active project, its own source among them.
#pragma once
#include "ide/Services.h"

#include <string>
#include <vector>

namespace glotta {

struct ProjectUnit {
    std::string unitName, fileName;
    std::string formName; // empty for a unit without a form
};

// In project order, the project's own source first; what is missing on disk is left out. None without a
// project.
std::vector<ProjectUnit> ProjectUnits(IdeServices& ide);

// The unit of that name or file. Throws Error when there is none.
const ProjectUnit& FindUnit(const std::vector<ProjectUnit>& units, const std::string& name);

} // namespace glotta
