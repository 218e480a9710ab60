// glotta find and glotta replace-phrase: a phrase in the stored translations of a project.
#include "cli/CommandLine.h"
#include "cli/ProjectSession.h"
#include "cli/ScanReport.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "storage/FindPhrase.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <iostream>

namespace glotta {

namespace {

struct FindOptions {
    PhraseOptions phrase;
    std::vector<std::string> forms;
    bool json = false, yes = false, apply = false;
    std::string replacement, project;
};

std::string OneJson(const nlohmann::ordered_json& object) {
    return object.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

class PhraseRun {
public:
    PhraseRun(const GlobalOptions& global, const FindOptions& options)
        : session_(global), options_(options), project_(session_, options.project),
          translation_(project_.Services(), session_.Settings().Values()),
          find_(project_.Services(), translation_) {
        project_.SelectForms(options.forms);
    }

    int Find() {
        for (const FoundPhrase& found : find_.Find(options_.phrase))
            Print(found);
        project_.PrintProblems();
        return 0;
    }

    int Replace() {
        if (options_.apply && !options_.yes)
            throw Error("a question that no option answers: " + std::string(TfrmReplConfirm::Question) +
                        " (--yes answers it for all)");
        const PhraseReplacements done = find_.Replace({options_.phrase, options_.replacement, false});
        const bool refused = PrintIdentifiers(done);
        project_.PrintProblems();
        const std::vector<FileChange> changes = project_.Ide().ModifiedFiles();
        if (!options_.json) project_.PrintChanges(changes);
        if (options_.apply) project_.Ide().SaveAll();
        PrintEnd(done.texts, changes.size());
        return refused ? 1 : 0;
    }

private:
    void Print(const FoundPhrase& found) const {
        const std::string file = project_.Shown(found.fileName),
                          property(StringsPropertyName(found.place.kind));
        if (options_.json)
            std::cout << OneJson({{"form", found.formName},
                                  {"file", file},
                                  {"property", property},
                                  {"line", found.place.line},
                                  {"location", found.location},
                                  {"text", found.text}})
                      << "\n";
        else
            std::cout << file << ": " << property << "[" << found.place.line << "] " << found.location << ": "
                      << OneLine(found.text) << "\n";
    }

    // True when one was refused.
    static bool PrintIdentifiers(const PhraseReplacements& done) {
        bool refused = false;
        for (const PhraseIdentifier& one : done.identifiers) {
            const std::string change =
                one.formName + ": \"" + OneLine(one.before) + "\" -> \"" + OneLine(one.id) + "\"";
            refused |= !one.refusal.empty();
            if (!one.refusal.empty())
                std::cerr << "identifier not replaced: " << change << " (" << one.refusal << ")\n";
            else if (one.kind == stStrings)
                std::cerr << "identifier replaced, source code that uses it is not changed: " << change
                          << "\n";
        }
        return refused;
    }

    void PrintEnd(std::size_t texts, std::size_t files) const {
        if (options_.json)
            std::cout << OneJson({{"texts", texts}, {"files", files}, {"applied", options_.apply}}) << "\n";
        else
            std::cout << texts << (texts == 1 ? " text in " : " texts in ") << files
                      << (files == 1 ? " file " : " files ")
                      << (options_.apply ? "replaced\n" : "to replace (--apply writes them)\n");
    }

    Session session_;
    const FindOptions& options_;
    ProjectSession project_;
    FormTranslation translation_;
    FindPhrase find_;
};

void AddOptions(CLI::App& app, FindOptions& options) {
    app.add_flag("--case", options.phrase.caseSensitive, "Letter case counts");
    app.add_flag("--whole", options.phrase.wholePhrase, "The phrase is the whole text");
    app.add_flag("--identifiers", options.phrase.identifiers, "Identifiers, too");
    app.add_option("--form", options.forms, "A form, by name (else all)")->allow_extra_args(false);
    app.add_flag("--json", options.json, "JSON, one object a line");
    app.add_option("PROJECT", options.project, "The project file")->required();
    app.add_option("TEXT", options.phrase.text, "The phrase")->required();
}

} // namespace

void AddFindCommand(const CommandLine& line) {
    const auto options = std::make_shared<FindOptions>();
    CLI::App* app = line.app.add_subcommand(
        "find", "List where a phrase stands in the translations (exit code 0, whether or not it is there)");
    AddOptions(*app, *options);
    app->final_callback([&line = line, options] {
        line.run = [&global = line.global, options] { return PhraseRun(global, *options).Find(); };
    });
}

void AddReplacePhraseCommand(const CommandLine& line) {
    const auto options = std::make_shared<FindOptions>();
    CLI::App* app = line.app.add_subcommand(
        "replace-phrase",
        "Replace a phrase in the translations (a dry run without --apply; exit code 1 when an "
        "identifier could not be replaced)");
    AddOptions(*app, *options);
    app->add_option("REPLACEMENT", options->replacement, "What takes its place")->required();
    app->add_flag("--yes", options->yes, "Replace every occurrence without a question");
    app->add_flag("--apply", options->apply, "Write the files (all or none); without it nothing is written");
    app->final_callback([&line = line, options] {
        line.run = [&global = line.global, options] { return PhraseRun(global, *options).Replace(); };
    });
}

} // namespace glotta
