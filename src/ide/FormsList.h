// The working set of the main window's commands: one row per form of the project (or external file).
#pragma once
#include "ide/ToolsApi.h"

#include <memory>
#include <string>
#include <vector>

namespace glotta {

struct FormsListItem {
    std::string formName; // the caption
    std::string unitName;
    std::string fileName;        // the unit file
    std::string languages = "0"; // number of languages as decimal text; "0": not translated
    std::string glotta;          // class name of the localization component, empty when there is none
    int imageIndex = 0;          // 1: has a localization component
    bool dispatcher = false;     // has a TGlottaDispatcher
    bool selected = false;
    bool focused = false;
    std::weak_ptr<IOTAModuleNotifier> data; // the entry's own notifier of its module
};

struct FormsList {
    std::vector<FormsListItem> items;

    FormsListItem* FindExact(std::string_view formName);
    FormsListItem* FindText(std::string_view formName); // ignores letter case
    std::vector<FormsListItem*> Selected();
};

// What a form file on disk tells of its localization.
struct FormAnalysis {
    std::string formName;
    int languages = 0;
    std::string glotta;
    bool dispatcher = false;
};
// Throws Error for a form file that cannot be read.
FormAnalysis AnalyzeFormFile(const std::string& formFile);

// One row per project entry that has a form, in project order. A form file that cannot be read gives a row
// without a component; its error is appended to `errors`.
FormsList ListProjectForms(const IOTAProject& project, std::vector<std::string>& errors);

} // namespace glotta
