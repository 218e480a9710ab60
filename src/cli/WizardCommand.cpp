// glotta wizard: the translation wizard, its pages answered by a file.
#include "cli/CommandLine.h"
#include "cli/FileChanges.h"
#include "cli/ProjectSession.h"
#include "cli/ScanReport.h"
#include "cli/WizardAnswers.h"
#include "editors/Translationwizard.h"
#include "platform/Error.h"
#include "platform/Files.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <unordered_map>

namespace glotta {

namespace {

struct WizardOptions {
    std::string project, answers;
    bool apply = false;
};

class WizardRun {
public:
    WizardRun(const GlobalOptions& global, const WizardOptions& options)
        : session_(global), options_(options), answers_(WizardAnswers::Read(options.answers)),
          project_(session_, options.project),
          translation_(project_.Services(), session_.Settings().Values()) {}

    int Run() {
        SelectForms();
        TfrmTranslationWizard wizard({project_.Services(), translation_, session_.Settings().Values()});
        try {
            Answer(wizard);
        } catch (const std::exception&) {
            PrintMessages();
            throw;
        }
        PrintMessages();
        PrintChanges();
        return wizard.Failures().empty() ? 0 : 2;
    }

private:
    std::string Known(const std::string& key, const std::string& form) {
        return project_.FindForm(answers_.file + ": " + key, form).formName;
    }

    void SelectForms() {
        for (const auto& [form, insert] : answers_.forms)
            insert_.insert_or_assign(Known("[Forms]", form), insert);
        for (FormsListItem& item : project_.Forms().items) {
            if (answers_.otherForms)
                insert_.try_emplace(item.formName,
                                    item.glotta.empty() ? *answers_.otherForms : std::string(NoComponent));
            item.selected = insert_.contains(item.formName);
        }
    }

    void Answer(TfrmTranslationWizard& wizard) {
        Next(wizard);
        for (std::size_t row = 0; row < wizard.lvSelectedForms.RowCount(); ++row)
            wizard.lvSelectedForms.SetInsert(row, insert_.at(wizard.lvSelectedForms.Rows()[row].form));
        Next(wizard);
        AnswerLanguages(wizard);
        AnswerContainer(wizard);
        Next(wizard);
        wizard.ckbChangeProperties.Enter(answers_.changeProperties);
        for (std::size_t i = 0; i < WizardPropertyCount; ++i)
            wizard.gbProperties[i].Enter(answers_.properties[i]);
        Next(wizard);
        std::cout << wizard.memActions() << "\n\n";
        Next(wizard);
    }

    void Next(TfrmTranslationWizard& wizard) const {
        if (!wizard.btnNext.Enabled())
            throw Error(answers_.file + ": the page \"" + wizard.lbTitle() + "\" is not answered");
        wizard.btnNext.Execute();
    }

    void AnswerLanguages(TfrmTranslationWizard& wizard) {
        if (answers_.languages) {
            wizard.rbSetManually.Execute();
            wizard.edLanguagesToUse.Enter(*answers_.languages);
            return;
        }
        const bool isNew = answers_.dispatcher.empty();
        const std::string key = isNew ? "[Languages] NewDispatcher" : "[Languages] Dispatcher";
        wizard.cbDispatcherForm.Enter(Known(key, answers_.dispatcherForm));
        if (!isNew) return Choose(wizard.cbDispatcher, wizard.Dispatchers, answers_.dispatcher, key);
        project_.GetUi().Answer("This will insert new TGlottaDispatcher", ModalResult::Yes);
        wizard.btnCreateDispatcher.Execute();
    }

    void AnswerContainer(TfrmTranslationWizard& wizard) {
        wizard.ckbSetCommonContainer.Enter(!answers_.commonForm.empty());
        if (answers_.commonForm.empty()) return;
        const std::string key = "[Languages] CommonContainer";
        const std::string form = Known(key, answers_.commonForm);
        wizard.cbCommonForm.Enter(form);
        if (!answers_.commonContainer.empty())
            return Choose(wizard.cbCommonContainer, wizard.CommonContainers, answers_.commonContainer, key);
        const auto inserted = insert_.find(form);
        if (inserted == insert_.end() || !CanBeContainer(inserted->second))
            throw Error(answers_.file + ": " + key +
                        ": no container is inserted there; write it as Form.Component");
        Choose(wizard.cbCommonContainer, wizard.CommonContainers, NewlyInserted(inserted->second), key);
    }

    void Choose(TField<std::string>& combo, const std::vector<std::string>& items, const std::string& name,
                const std::string& key) const {
        const auto found = std::find_if(items.begin(), items.end(),
                                        [&](const std::string& item) { return SameText(item, name); });
        if (found == items.end() || *found == NoComponent)
            throw Error(answers_.file + ": " + key + ": the form has no component " + name + " to choose");
        combo.Enter(*found);
    }

    void PrintMessages() {
        for (const CliUi::Message& message : project_.GetUi().Messages())
            std::cerr << OneLine(message.text) << "\n";
        project_.PrintProblems();
    }

    void PrintChanges() {
        const std::vector<FileChange> changes = project_.Ide().ModifiedFiles();
        project_.PrintChanges(changes);
        if (options_.apply) project_.Ide().SaveAll();
        std::cout << FilesText(changes.size(), options_.apply);
    }

    Session session_;
    const WizardOptions& options_;
    WizardAnswers answers_;
    ProjectSession project_;
    FormTranslation translation_;
    std::unordered_map<std::string, std::string> insert_; // by form name
};

} // namespace

void AddWizardCommand(const CommandLine& line) {
    const auto options = std::make_shared<WizardOptions>();
    CLI::App* app = line.app.add_subcommand(
        "wizard",
        "Put localization components on forms and connect them (a dry run without --apply; exit code 2 "
        "when a form could not be done)");
    app->add_flag("--apply", options->apply, "Write the files (all or none); without it nothing is written");
    app->add_option("PROJECT", options->project, "The project file")->required();
    app->add_option("ANSWERS", options->answers, "An INI file with the answers to the wizard's pages")
        ->required();
    app->footer(WizardAnswersHelp);
    app->final_callback([&line = line, options] {
        line.run = [&global = line.global, options] { return WizardRun(global, *options).Run(); };
    });
}

} // namespace glotta
