#include "editors/WizardMemo.h"

#include "platform/Text.h"

#include <algorithm>

namespace glotta {

std::string FillRequestedActions(const WizardChoices& choices) {
    std::vector<std::string> lines = {"The following components will be inserted:"};
    for (const WizardForm& row : choices.forms)
        if (row.Inserts()) lines.push_back("\t" + row.form + ":\t" + row.insert);
    if (lines.size() == 1) lines.push_back("\t(None)");

    lines.insert(lines.end(), {"", "Languages settings:"});
    lines.push_back(choices.setDispatcher ? "\tUse " + choices.dispatcher + " from " + choices.dispatcherForm
                                          : "\tSet " + choices.languages + " as languages settings");
    lines.push_back("");
    if (choices.setCommonContainer) {
        lines.push_back("CommonContainer settings:");
        lines.push_back("\tSet CommonContainer to " + choices.commonContainer + " from " +
                        choices.commonForm);
    }
    if (choices.changeProperties) {
        lines.push_back("Additional settings:");
        for (std::size_t i = 0; i < WizardPropertyCount; ++i)
            lines.push_back("\tSet " + std::string(WizardProperties[i].name) + " property to " +
                            (choices.properties[i] ? "True" : "False"));
    }
    return JoinLines(lines);
}

} // namespace glotta
