#include "storage/ProjectUnits.h"

#include "platform/Error.h"
#include "platform/Files.h"
#include "platform/Text.h"

#include <algorithm>
#include <array>

namespace glotta {

namespace {

bool IsSource(const std::string& fileName) {
    static constexpr std::array<std::string_view, 4> Extensions = {".pas", ".dpr", ".cpp", ".c"};
    return std::ranges::find(Extensions, LowerExtension(fileName)) != Extensions.end();
}

} // namespace

std::vector<ProjectUnit> ProjectUnits(IdeServices& ide) {
    std::vector<ProjectUnit> units;
    IOTAProject* const project = ide.GetActiveProject();
    if (!project) return units;
    const IOTASourceEditor* source = IdeServices::GetSourceEditorFromModule(project);
    if (source && IsSource(source->FileName()))
        units.push_back({PathText(PathFromText(source->FileName()).stem()), source->FileName(), {}});
    for (const IOTAModuleInfo& info : project->Modules())
        if (!info.missing && IsSource(info.fileName))
            units.push_back({info.unitName, info.fileName, info.formName});
    return units;
}

const ProjectUnit& FindUnit(const std::vector<ProjectUnit>& units, const std::string& name) {
    const auto found = std::ranges::find_if(units, [&](const ProjectUnit& unit) {
        return SameText(unit.unitName, name) || SameFileName(unit.fileName, name);
    });
    if (found == units.end()) throw Error(name + ": the project has no such unit");
    return *found;
}

} // namespace glotta
