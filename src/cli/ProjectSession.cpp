#include "cli/ProjectSession.h"

#include "cli/FileChanges.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "storage/Projectsettings.h"

#include <iostream>
#include <unordered_set>
#include <utility>

namespace glotta {

ProjectSession::ProjectSession(Session& session, const std::string& project)
    : session_(session), services_(ide_.Services(), forms_, ui_) {
    ide_.SetDeferWrites(true);
    ide_.OpenProject(project, session.ToldEncoding());
    forms_ = ListProjectForms(Project(), problems_);
}

IOTAProject& ProjectSession::Project() {
    IOTAProject* project = services_.GetActiveProject();
    if (!project) {
        PrintProblems();
        throw Error("the project group has no project that can be opened");
    }
    return *project;
}

FormsListItem& ProjectSession::FindForm(const std::string& option, const std::string& name) {
    FormsListItem* item = forms_.FindExact(name);
    if (!item)
        item = forms_.FindText(name);
    if (!item)
        throw Error(option + " " + name + ": the project has no such form");
    return *item;
}

void ProjectSession::SelectForms(const std::vector<std::string>& names) {
    for (FormsListItem& item : forms_.items)
        item.selected = names.empty();
    for (const std::string& name : names)
        FindForm("--form", name).selected = true;
}

std::string ProjectSession::Shown(const std::string& fileName) const {
    return PathText(PathFromText(fileName).lexically_proximate(std::filesystem::current_path()));
}

std::string ProjectSession::ProjectOption(std::string_view name) {
    TGlottaProjectSettings settings;
    settings.SetFileName(PathFromText(Project().FileName()).replace_extension(".gxproj"));
    return settings.GetOptionValue(name);
}

std::optional<Encoding> ProjectSession::EncodingHint() {
    if (session_.ToldEncoding())
        return session_.ToldEncoding();
    auto* project = dynamic_cast<PlainProject*>(&Project());
    return project ? project->EncodingHint() : std::nullopt;
}

void ProjectSession::PrintChanges(const std::vector<FileChange>& changes) {
    for (const FileChange& change : changes)
        std::cout << ChangeText(change, Shown(PathText(change.file)), EncodingHint());
}

void ProjectSession::PrintProblems() {
    std::unordered_set<std::string_view> printed; // a damaged form is met by the list and by the module
    for (const std::vector<std::string>* problems : {&std::as_const(problems_), &ide_.Problems()})
        for (const std::string& problem : *problems)
            if (printed.insert(problem).second)
                std::cerr << problem << "\n";
}

} // namespace glotta
