#include "cli/Commands.h"
#include "cli/ProjectSession.h"
#include "cli/ScanReport.h"
#include "platform/Text.h"
#include "runtime/CustomLang.h"

#include <iostream>

namespace glotta {

namespace {

void PrintStrings(const std::string& form, const TgxCustomLang& glotta) {
    std::cout << form << "." << glotta.Name() << " (";
    for (int i = 0; i < glotta.NumberOfLanguages(); ++i)
        std::cout << (i ? ", " : "") << (i < static_cast<int>(glotta.LangNames().size()) ? glotta.LangNames()[i] : "?");
    std::cout << ")\n";
    for (int i = 0; i < static_cast<int>(glotta.Strings(stStrings).Count()); ++i) {
        std::cout << "  " << glotta.GetIDByIndex(i);
        for (int language = 1; language <= glotta.NumberOfLanguages(); ++language)
            std::cout << (language == 1 ? " = " : " | ") << OneLine(glotta.GetTextFromByIndex(i, language));
        std::cout << "\n";
    }
}

} // namespace

int RunStrings(const GlobalOptions& global, const StringsOptions& options) {
    Session session(global);
    ProjectSession project(session, options.project);
    for (const FormsListItem& item : project.Forms().items) {
        bool wanted = options.forms.empty() || std::any_of(options.forms.begin(), options.forms.end(),
                                                           [&](const std::string& name) { return SameText(name, item.formName); });
        if (!wanted || item.glotta.empty() || !project.Services().OpenFile(item.fileName, false))
            continue;
        if (TComponent* root = project.Services().GetOwnerByName(item.formName))
            for (TComponent* component : root->Components())
                if (auto* glotta = dynamic_cast<TgxCustomLang*>(component))
                    PrintStrings(item.formName, *glotta);
    }
    project.PrintProblems();
    return 0;
}

} // namespace glotta
