#include "cli/Session.h"

#include "platform/Error.h"
#include "platform/Files.h"
#include "runtime/CustomLang.h"

namespace glotta {

namespace {

std::unique_ptr<RegistryStore> Open(const std::string& file) {
    if (file.empty())
        return OpenRegistry();
    return OpenRegistry(PathFromText(file));
}

} // namespace

Session::Session(const GlobalOptions& options, bool withHelper)
    : registry_(Open(options.registry)), helper_(withHelper ? HelperLibrary() : HelperLibrary::Absent()) {
    RegisterGlottaClasses();
    settings_ = std::make_unique<ExpertSettings>(*registry_,
                                                 std::vector<std::string>(NamesArray.begin(), NamesArray.end()));
    for (const std::string& set : options.sets) {
        std::size_t equals = set.find('=');
        if (equals == std::string::npos)
            throw Error("--set " + set + ": NAME=VALUE is expected");
        settings_->OverrideByName(set.substr(0, equals), set.substr(equals + 1));
    }
    if (!options.encoding.empty()) {
        encoding_ = EncodingByName(options.encoding);
        if (!encoding_)
            throw Error("--encoding " + options.encoding + ": no such encoding");
    }
}

} // namespace glotta
