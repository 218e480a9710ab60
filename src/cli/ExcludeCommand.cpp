// glotta exclude: what a form keeps out of its translation, listed and changed.
#include "cli/CommandLine.h"
#include "cli/FileChanges.h"
#include "cli/ProjectSession.h"
#include "editors/ExclusionModel.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "translation/FormTranslation.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <iostream>

namespace glotta {

namespace {

struct ExcludeOptions {
    std::vector<std::string> components, properties, componentProperties, removed;
    bool json = false, apply = false;
    std::string project, form;

    bool Changes() const {
        return !(components.empty() && properties.empty() && componentProperties.empty() && removed.empty());
    }
};

constexpr struct {
    ExclusionPage page;
    const char *heading, *key;
} ListNames[] = {{ComponentsPage, "Components", "components"},
                 {PropertiesPage, "Properties", "properties"},
                 {CompPropertiesPage, "Component's Properties", "componentProperties"}};

// A class may be missing on the form; a component that is meant by name may not.
void CheckComponent(const ExclusionModel& model, const char* option, std::string_view name) {
    const bool known = name.starts_with('!') ? name.size() > 1 : model.tvComponents.Find(name) != TTree::None;
    if (!known) throw Error(std::string(option) + " " + std::string(name) + ": the form has no such component");
}

void Add(ExclusionModel& model, ExclusionPage page, const std::string& item) {
    if (model.List(page).AddNew(item)) model.modified = true;
}

void Remove(ExclusionModel& model, const std::string& item) {
    bool found = false;
    for (const auto& list : ListNames) {
        ExclusionList& items = model.List(list.page);
        if (!items.Contains(item)) continue;
        found = true;
        items.ClearSelection();
        for (std::size_t row = 0; row < items.RowCount(); ++row)
            if (SameText(items.Items()[row], item)) items.Select(row, true);
        model.DeleteSelected(list.page);
    }
    if (!found) throw Error("--remove " + item + ": no list holds it");
}

void Change(ExclusionModel& model, const ExcludeOptions& options) {
    for (const std::string& item : options.removed)
        Remove(model, item);
    for (const std::string& item : options.components) {
        CheckComponent(model, "--add-component", item);
        Add(model, ComponentsPage, item);
    }
    for (const std::string& item : options.properties) {
        if (Trim(item).empty()) throw Error("--add-property: the name of a property is wanted");
        Add(model, PropertiesPage, item);
    }
    for (const std::string& item : options.componentProperties) {
        const std::size_t dot = item.find('.');
        if (dot == std::string::npos || dot + 1 == item.size())
            throw Error("--add " + item + ": a component or !class, a dot and a property are wanted");
        CheckComponent(model, "--add", std::string_view(item).substr(0, dot));
        Add(model, CompPropertiesPage, item);
    }
}

void PrintJson(const std::string& form, const std::string& component, ExclusionModel& model) {
    nlohmann::ordered_json all = {{"form", form}, {"component", component}};
    for (const auto& list : ListNames)
        all[list.key] = model.List(list.page).Items();
    std::cout << all.dump() << "\n";
}

void PrintLists(const std::string& form, const std::string& component, ExclusionModel& model) {
    std::cout << form << "." << component << "\n";
    for (const auto& list : ListNames) {
        std::cout << list.heading << "\n";
        for (const std::string& item : model.List(list.page).Items())
            std::cout << "  " << item << "\n";
    }
}

int RunExclude(const GlobalOptions& global, const ExcludeOptions& options) {
    Session session(global, false);
    ProjectSession project(session, options.project);
    const FormsListItem& form = project.FindForm("FORM", options.form);
    FormTranslation translation(project.Services(), session.Settings().Values());
    TgxCustomLang* const lang = translation.GetGlotta(form.formName);
    if (!lang) throw Error("FORM " + options.form + ": the form has no localization component");
    ExclusionModel model(project.GetUi(), *lang);
    Change(model, options);
    if (model.modified) {
        model.WriteBack();
        project.Services().MarkModifiedForm(form.fileName);
    }
    project.PrintProblems();
    const std::vector<FileChange> changes = project.Ide().ModifiedFiles();
    if (options.json)
        PrintJson(form.formName, lang->Name(), model);
    else if (!options.Changes())
        PrintLists(form.formName, lang->Name(), model);
    else
        project.PrintChanges(changes);
    if (options.apply) project.Ide().SaveAll();
    if (options.Changes() && !options.json)
        std::cout << FilesText(changes.size(), options.apply);
    return 0;
}

} // namespace

void AddExcludeCommand(const CommandLine& line) {
    const auto options = std::make_shared<ExcludeOptions>();
    CLI::App* app = line.app.add_subcommand(
        "exclude", "List or change what a form keeps out of its translation (a dry run without --apply)");
    const auto many = [app](const char* name, std::vector<std::string>& items, const char* text) {
        app->add_option(name, items, text)->allow_extra_args(false);
    };
    many("--add-component", options->components, "A component, by name, or '!' and the class of many");
    many("--add-property", options->properties, "A property name, on whatever component");
    many("--add", options->componentProperties, "COMPONENT.PROPERTY or '!CLASS.PROPERTY'");
    many("--remove", options->removed, "An item of any of the three lists");
    app->add_flag("--json", options->json, "The lists as one JSON object, as they are after the changes");
    app->add_flag("--apply", options->apply, "Write the files (all or none); without it nothing is written");
    app->add_option("PROJECT", options->project, "The project file")->required();
    app->add_option("FORM", options->form, "The form, by name")->required();
    app->final_callback([&line = line, options] {
        line.run = [&global = line.global, options] { return RunExclude(global, *options); };
    });
}

} // namespace glotta
