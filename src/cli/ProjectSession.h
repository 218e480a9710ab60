// A project opened for a command: the plain-file IDE, the expert's services over it, and the forms list.
#pragma once
#include "cli/CliUi.h"
#include "cli/Session.h"
#include "host/PlainIde.h"
#include "ide/FormsList.h"
#include "ide/Services.h"

#include <string>
#include <vector>

namespace glotta {

class ProjectSession {
public:
    // Throws Error when the project cannot be read. Nothing is written before SaveAll of the IDE.
    ProjectSession(Session& session, const std::string& project);

    PlainIde& Ide() { return ide_; }
    CliUi& GetUi() { return ui_; }
    IdeServices& Services() { return services_; }
    FormsList& Forms() { return forms_; }
    IOTAProject& Project();
    // `option` is named when the project has no such form; letter case decides where several fit.
    FormsListItem& FindForm(const std::string& option, const std::string& name);
    // Selects the forms that `--form` names, all without names.
    void SelectForms(const std::vector<std::string>& names);
    // The project's folder, with respect to which files are shown.
    std::string Shown(const std::string& fileName) const;
    // The value of a project option, empty without one.
    std::string ProjectOption(std::string_view name);
    // How the project's files are encoded where they do not tell themselves.
    std::optional<Encoding> EncodingHint();

    // Prints each as a diff.
    void PrintChanges(const std::vector<FileChange>& changes);
    // Prints what was passed over to the standard error stream.
    void PrintProblems();

private:
    Session& session_;
    PlainIde ide_;
    CliUi ui_;
    FormsList forms_;
    IdeServices services_;
    std::vector<std::string> problems_;
};

} // namespace glotta
