// glotta rename: another name for a string identifier, in the component and in the sources.
#include "cli/CommandLine.h"
#include "cli/FileChanges.h"
#include "cli/ProjectSession.h"
#include "platform/Files.h"
#include "storage/IdentifierRename.h"
#include "storage/ProjectUnits.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace glotta {

namespace {

struct RenameOptions {
    std::vector<std::string> units;
    bool all = false, apply = false;
    std::string project, form, oldID, newID;
};

std::vector<std::string> FilesToRename(ProjectSession& project, const RenameOptions& options,
                                       const std::string& ownUnit) {
    if (options.all) return IdentifierRename(project.Services()).UnitsInLanguageOf(ownUnit);
    if (options.units.empty()) return {ownUnit};
    std::vector<std::string> files;
    const std::vector<ProjectUnit> units = ProjectUnits(project.Services());
    for (const std::string& name : options.units)
        if (const std::string& file = FindUnit(units, name).fileName;
            std::ranges::find(files, file) == files.end())
            files.push_back(file);
    return files;
}

int RunRename(const GlobalOptions& global, const RenameOptions& options) {
    Session session(global, false);
    ProjectSession project(session, options.project);
    const FormsListItem& form = project.FindForm("FORM", options.form);
    const std::size_t lines = IdentifierRename(project.Services())
                                  .Rename(form.formName, options.oldID, options.newID,
                                          FilesToRename(project, options, form.fileName));
    project.PrintProblems();
    const std::vector<FileChange> changes = project.Ide().ModifiedFiles();
    project.PrintChanges(changes);
    if (options.apply) project.Ide().SaveAll();
    std::cout << lines << (lines == 1 ? " source line, " : " source lines, ")
              << FilesText(changes.size(), options.apply);
    return 0;
}

} // namespace

void AddRenameCommand(const CommandLine& line) {
    const auto options = std::make_shared<RenameOptions>();
    CLI::App* app = line.app.add_subcommand(
        "rename",
        "Give a string another identifier, in its component and in the source (a dry run without --apply)");
    CLI::Option* unit =
        app->add_option("--unit", options->units, "A unit to change, by name (else the form's own)")
            ->allow_extra_args(false);
    app->add_flag("--all", options->all, "All units of the project in the language of the form's own")
        ->excludes(unit);
    app->add_flag("--apply", options->apply, "Write the files (all or none); without it nothing is written");
    app->add_option("PROJECT", options->project, "The project file")->required();
    app->add_option("FORM", options->form, "The form that holds the string")->required();
    app->add_option("OLD", options->oldID, "Its identifier")->required();
    app->add_option("NEW", options->newID, "Its new identifier")->required();
    app->final_callback([&line = line, options] {
        line.run = [&global = line.global, options] { return RunRename(global, *options); };
    });
}

} // namespace glotta
