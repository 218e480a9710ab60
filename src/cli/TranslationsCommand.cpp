// The commands on stored translations: save, load, merge, update, clear.
#include "cli/CommandLine.h"
#include "cli/ProjectSession.h"
#include "cli/ScanReport.h"
#include "platform/Files.h"
#include "storage/TranslationFileCommands.h"
#include "storage/UpdateTranslations.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <iostream>
#include <memory>
#include <optional>

namespace glotta {

namespace {

struct TranslationsOptions {
    std::vector<std::string> forms; // by name; empty: the whole project
    std::string project, file;
    std::optional<std::string> delimiter;
    bool yes = false;
};

std::string Count(std::size_t count, const std::string& what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

// What was passed over, and the expert's messages. False when one of them tells of an error.
bool PrintMessages(ProjectSession& project) {
    project.PrintProblems();
    bool good = true;
    for (const CliUi::Message& message : project.GetUi().Messages()) {
        good &= message.type != MsgType::Error;
        std::cerr << OneLine(message.text) << "\n";
    }
    return good;
}

// Writes what the command changed, all files or none, and tells of it. The exit code.
int Finish(ProjectSession& project, std::string done) {
    const bool good = PrintMessages(project);
    const std::vector<FileChange> changes = project.Ide().ModifiedFiles();
    project.Ide().SaveAll();
    for (const FileChange& change : changes)
        std::cout << project.Shown(PathText(change.file)) << "\n";
    if (done.empty() || !changes.empty())
        done += (done.empty() ? "" : ", ") + Count(changes.size(), "file") + " written";
    std::cout << done << "\n";
    return good ? 0 : 2;
}

// Where the file lies does not depend on what the command does on its way.
std::string FullName(const std::string& file) {
    return PathText(std::filesystem::absolute(PathFromText(file)));
}

// Saving, loading and merging.
int RunFileCommand(const GlobalOptions& global, const TranslationsOptions& options, const std::string& done,
                   const std::function<void(TranslationFileCommands&)>& run) {
    Session session(global, false);
    ProjectSession project(session, options.project);
    if (!options.forms.empty())
        project.SelectForms(options.forms);
    FormTranslation translation(project.Services(), session.Settings().Values());
    TranslationFileCommands commands(project.Services(), translation, session.Settings(), nullptr);
    const std::string file = FullName(options.file);
    CliUi& ui = project.GetUi();
    ui.AnswerFile("Select file...", file);
    if (options.yes)
        ui.Answer({}, ModalResult::Yes);
    // Without the option the proposal is the answer: the file's own delimiter, or that of the settings.
    if (!IsBinaryTranslationFile(file))
        ui.AnswerInput("Input delimeter:",
                       options.delimiter ? *options.delimiter : commands.GetGLTFileDelimiter(file));
    run(commands);
    const std::string what = Count(std::size_t(commands.FormsDone()), "form") + " " + done + " " + project.Shown(file);
    if (commands.FormsDone() > 0)
        return Finish(project, what);
    PrintMessages(project);
    std::cerr << what << ", nothing was written\n";
    return 2;
}

int RunFormsCommand(const GlobalOptions& global, const TranslationsOptions& options,
                    void (UpdateTranslations::*command)()) {
    Session session(global, false);
    ProjectSession project(session, options.project);
    project.SelectForms(options.forms);
    if (options.yes)
        project.GetUi().Answer({}, ModalResult::Yes);
    UpdateTranslations commands(project.Services());
    (commands.*command)();
    return Finish(project, {});
}

using Options = std::shared_ptr<TranslationsOptions>; // live as long as the command line

CLI::App& AddCommand(const CommandLine& line, const char* name, const char* what, const Options& options) {
    CLI::App& app = *line.app.add_subcommand(name, what);
    app.add_option("--form", options->forms, "A form, by name (else all)")->allow_extra_args(false);
    app.add_option("PROJECT", options->project, "The project file")->required();
    return app;
}

void AddFileCommand(const CommandLine& line, const char* name, const char* what, const std::string& done, int forms,
                    int whole, void (TranslationFileCommands::*command)(int)) {
    const auto options = std::make_shared<TranslationsOptions>();
    CLI::App& app = AddCommand(line, name, what, options);
    app.add_option("FILE", options->file, "The translation file: .glb is binary, every other one is text")->required();
    app.add_option("--delimiter", options->delimiter,
                   "The field delimiter to save with (else the file's own, or that of the settings)");
    app.add_flag("--yes", options->yes, "Change the delimiter of an existing file");
    app.final_callback([&run = line.run, &global = line.global, options, done, forms, whole, command] {
        run = [&global, options, done, forms, whole, command] {
            return RunFileCommand(global, *options, done, [&](TranslationFileCommands& commands) {
                (commands.*command)(options->forms.empty() ? whole : forms);
            });
        };
    });
}

} // namespace

void AddTranslationsCommands(const CommandLine& line) {
    using Commands = TranslationFileCommands;
    AddFileCommand(line, "save", "Save the translations of a project or of forms to a file", "saved to",
                   Commands::SelectedForms, Commands::Project, &Commands::sbSaveAllClick);
    AddFileCommand(line, "load", "Replace the translations by those of a file", "loaded from",
                   Commands::SelectedForms, Commands::Project, &Commands::sbLoadAllClick);
    AddFileCommand(line, "merge", "Add the translations of a file", "merged from", Commands::MergeForms,
                   Commands::MergeProject, &Commands::sbLoadAllClick);

    const auto update = std::make_shared<TranslationsOptions>();
    AddCommand(line, "update", "Bring the translations up to date with the forms", update)
        .final_callback([&run = line.run, &global = line.global, update] {
            run = [&global, update] {
                return RunFormsCommand(global, *update, &UpdateTranslations::Updatetranslation1Click);
            };
        });
    const auto clear = std::make_shared<TranslationsOptions>();
    CLI::App& app = AddCommand(line, "clear", "Remove all translations", clear);
    app.add_flag("--yes", clear->yes, "Do it without asking");
    app.final_callback([&run = line.run, &global = line.global, clear] {
        run = [&global, clear] {
            return RunFormsCommand(global, *clear, &UpdateTranslations::ClearTranslations1Click);
        };
    });
}

} // namespace glotta
