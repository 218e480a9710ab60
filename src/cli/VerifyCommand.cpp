#include "cli/CliUi.h"
#include "cli/Commands.h"
#include "host/Verify.h"
#include "platform/Files.h"

#include <iostream>

namespace glotta {

int RunVerify(const GlobalOptions& global, const VerifyCommandOptions& options) {
    Session session(global);
    CliUi ui;
    VerifyOptions verify;
    verify.told = session.ToldEncoding();
    verify.progress = [&](std::size_t done, std::size_t all) {
        ui.SetProgress(std::to_string(done) + " of " + std::to_string(all) + " files");
    };
    std::vector<std::filesystem::path> paths;
    for (const std::string& path : options.paths)
        paths.push_back(PathFromText(path));
    VerifyResult result = VerifyPaths(paths, verify);
    ui.SetProgress({});
    for (const VerifyFailure& failure : result.failures)
        std::cout << failure.file << ": " << failure.reason << "\n";
    std::cout << result.units << " units and " << result.forms << " forms read, " << result.failures.size()
              << " would not come back identical\n";
    return result.failures.empty() ? 0 : 1;
}

} // namespace glotta
