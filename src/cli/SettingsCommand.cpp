#include "cli/Commands.h"
#include "cli/ScanReport.h"

#include <iostream>

namespace glotta {

int RunSettings(const GlobalOptions& global, const SettingsOptions& options) {
    Session session(global);
    ExpertSettings& settings = session.Settings();
    if (options.words.empty()) {
        for (const std::string& name : settings.Names())
            std::cout << name << "=" << OneLine(settings.GetByName(name)) << "\n";
        return 0;
    }
    if (options.words.size() == 1)
        std::cout << settings.GetByName(options.words[0]) << "\n";
    else
        settings.SetByName(options.words[0], options.words[1]);
    return 0;
}

} // namespace glotta
