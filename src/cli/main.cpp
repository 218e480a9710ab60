#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "cli/ReplaceCommand.h"
#include "cli/ScanCommand.h"
#include "platform/Arguments.h"
#include "platform/Error.h"
#include "platform/Terminal.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <iostream>

using namespace glotta;

namespace {

void AddScan(CLI::App& app, ScanCommandOptions& options) {
    app.add_flag("--const", options.constMode, "Scan the CONST sections instead of the code");
    app.add_flag("--json", options.json, "One JSON object per unit and line");
    app.add_flag("--no-helper", options.noHelper, "Scan without the helper library (no comment test, no regular expressions)");
    app.add_option("--component", options.component, "The localization component that the calls name");
    app.add_option("--form", options.form, "The form that holds the component");
    app.add_option("PATH", options.paths, "Units, folders, projects or project groups")->required();
}

void AddReplace(CLI::App& app, ReplaceOptions& options) {
    app.add_option("--form", options.forms, "A form to localize, by name");
    app.add_option("--unit", options.units, "A unit to localize, by name");
    app.add_flag("--all", options.all, "All forms and units of the project");
    app.add_option("--strings-form", options.stringsForm, "The form whose component takes the strings of units without a form");
    app.add_flag("--const", options.constMode, "Localize the constants of CONST sections instead of the code");
    app.add_flag("--apply", options.apply, "Write the files (all or none); without it nothing is written");
    app.add_flag("--json", options.json, "The found and skipped strings as JSON instead of a diff");
    app.add_option("PROJECT", options.project, "The project file")->required();
}

int Run(std::vector<std::string> arguments) {
    CLI::App app("Localizes Delphi and C++Builder projects: finds hard-coded strings and turns them into look-up calls.",
                 "glotta");
    app.require_subcommand(1);
    app.set_version_flag("--version", "glotta " GLOTTA_VERSION);
    app.fallthrough();

    GlobalOptions global;
    app.add_option("--registry", global.registry, "The settings file (else GLOTTA_REGISTRY, else the user's own)");
    app.add_option("--set", global.sets, "NAME=VALUE: a setting for this run")->allow_extra_args(false);
    app.add_option("--encoding", global.encoding, "The encoding of units without a byte order mark (windows-1251, utf-8, ...)");

    std::function<int()> run;
    const CommandLine line{app, global, run};
    AddCheckCommand(line);
    AddExcludeCommand(line);
    AddFindCommand(line);
    AddOptionsCommand(line);
    AddRenameCommand(line);
    AddReplacePhraseCommand(line);
    AddTranslationsCommands(line);
    AddWizardCommand(line);
    ScanCommandOptions scan;
    CLI::App* scanApp = app.add_subcommand("scan", "List the hard-coded strings of units, folders or projects");
    AddScan(*scanApp, scan);
    scanApp->final_callback([&] { run = [&] { return RunScan(global, scan); }; });

    ReplaceOptions replace;
    CLI::App* replaceApp = app.add_subcommand("replace", "Rewrite units into look-up calls (a dry run without --apply)");
    AddReplace(*replaceApp, replace);
    replaceApp->final_callback([&] { run = [&] { return RunReplace(global, replace); }; });

    FormsOptions forms;
    CLI::App* formsApp = app.add_subcommand("forms", "List the forms of a project");
    formsApp->add_flag("--json", forms.json, "One JSON object per form and line");
    formsApp->add_option("PROJECT", forms.project, "The project file")->required();
    formsApp->final_callback([&] { run = [&] { return RunForms(global, forms); }; });

    StringsOptions strings;
    CLI::App* stringsApp = app.add_subcommand("strings", "List the strings of the localization components");
    stringsApp->add_option("--form", strings.forms, "A form, by name (else all)");
    stringsApp->add_option("PROJECT", strings.project, "The project file")->required();
    stringsApp->final_callback([&] { run = [&] { return RunStrings(global, strings); }; });

    SettingsOptions settings;
    CLI::App* settingsApp = app.add_subcommand("settings", "Show or change settings: [NAME [VALUE]]");
    settingsApp->add_option("NAME", settings.words, "The setting's name, then its new value")->expected(0, 2);
    settingsApp->final_callback([&] { run = [&] { return RunSettings(global, settings); }; });

    VerifyCommandOptions verify;
    CLI::App* verifyApp = app.add_subcommand("verify", "Prove that opening and saving gives identical files");
    verifyApp->add_option("PATH", verify.paths, "Files or folders")->required();
    verifyApp->final_callback([&] { run = [&] { return RunVerify(global, verify); }; });

    try {
        std::reverse(arguments.begin(), arguments.end()); // as the parser takes them
        app.parse(std::move(arguments));
        return run();
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : 2;
    }
}

} // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const Utf8Output output;
    try {
        return Run(ProgramArguments(argc, argv));
    } catch (const EGlottaSilent&) {
        return 2;
    } catch (const std::exception& error) {
        std::cout.flush();
        std::cerr << "glotta: " << error.what() << "\n";
        return 2;
    }
}
