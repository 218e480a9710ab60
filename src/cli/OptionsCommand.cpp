#include "cli/CommandLine.h"
#include "cli/ScanReport.h"
#include "host/PlainIde.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "storage/Projectsettings.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>

namespace glotta {

namespace {

std::filesystem::path SettingsFileOf(const std::string& projectFile) {
    PlainIde ide;
    IOTAModule& opened = ide.OpenProject(projectFile);
    IOTAProjectGroup* const group = AsProjectGroup(&opened);
    IOTAModule* const project = group ? group->ActiveProject() : &opened;
    if (!project)
        throw Error(projectFile + ": the project group has no project that can be opened");
    return PathFromText(project->FileName()).replace_extension(".gxproj");
}

void Set(TGlottaProjectSettings& settings, const ProjectOption& option, const std::string& value) {
    constexpr std::string_view Flags[] = {"0", "1", "false", "true"};
    if (option.isBoolean &&
        std::none_of(std::begin(Flags), std::end(Flags), [&](std::string_view flag) { return SameText(flag, value); }))
        throw Error(std::string(option.name) + ": 0 or 1 is expected, not " + value);
    settings.SetOptionValue(option.name, value);
    settings.SaveFile();
}

// `words`: nothing, NAME, or NAME VALUE.
int RunOptions(const std::string& project, const std::vector<std::string>& words) {
    TGlottaProjectSettings settings;
    settings.SetFileName(SettingsFileOf(project));
    if (words.empty()) {
        for (const ProjectOption& option : ProjectOptions())
            std::cout << option.name << "=" << OneLine(settings.GetOptionValue(option.name)) << "\n";
        return 0;
    }
    const auto options = ProjectOptions();
    const auto option = std::find_if(options.begin(), options.end(),
                                     [&](const ProjectOption& known) { return SameText(known.name, words[0]); });
    if (option == options.end())
        throw Error(words[0] + ": there is no such option");
    if (words.size() == 1)
        std::cout << settings.GetOptionValue(option->name) << "\n";
    else
        Set(settings, *option, words[1]);
    return 0;
}

} // namespace

void AddOptionsCommand(const CommandLine& line) {
    const auto project = std::make_shared<std::string>();
    const auto words = std::make_shared<std::vector<std::string>>();
    CLI::App& app = *line.app.add_subcommand("options", "Show or change a project's options: PROJECT [NAME [VALUE]]");
    app.add_option("PROJECT", *project, "The project file")->required();
    app.add_option("NAME", *words, "The option's name, then its new value")->expected(0, 2);
    app.final_callback([&run = line.run, project, words] { run = [project, words] { return RunOptions(*project, *words); }; });
}

} // namespace glotta
