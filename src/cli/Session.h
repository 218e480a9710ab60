// What every command starts from: settings with this run's overrides, the helper library, the told encoding.
#pragma once
#include "platform/Encoding.h"
#include "platform/RegistryStore.h"
#include "scanner/HelperLibrary.h"
#include "settings/ExpertSettings.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace glotta {

struct GlobalOptions {
    std::string registry;          // a file; empty for the user's own
    std::vector<std::string> sets; // NAME=VALUE
    std::string encoding;          // empty: detected
};

class Session {
public:
    // Throws Error for a damaged registry, an unknown setting or encoding.
    explicit Session(const GlobalOptions& options, bool withHelper = true);

    ExpertSettings& Settings() { return *settings_; }
    RegistryStore& Registry() { return *registry_; }
    const HelperLibrary& Helper() const { return helper_; }
    std::optional<Encoding> ToldEncoding() const { return encoding_; }

private:
    std::unique_ptr<RegistryStore> registry_;
    std::unique_ptr<ExpertSettings> settings_;
    HelperLibrary helper_;
    std::optional<Encoding> encoding_;
};

} // namespace glotta
