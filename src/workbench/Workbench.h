// What a run of the desktop host consists of, without its windows: the IDE, the settings and the expert's package.
#pragma once
#include "host/PlainIde.h"
#include "platform/Automation.h"
#include "platform/Launch.h"
#include "platform/RegistryStore.h"
#include "scanner/HelperLibrary.h"
#include "translation/TransEditor.h"
#include "workbench/QtUi.h"

#include <filesystem>
#include <memory>
#include <optional>

namespace glotta {

class TGlottaExpert;

class Workbench {
public:
    static constexpr const char* Key = "\\Software\\Quorlane\\TGlotta\\Workbench";

    explicit Workbench(const std::optional<std::filesystem::path>& registryFile);
    ~Workbench();

    PlainIde& Ide() { return *ide_; }
    QtUi& UiPort() { return ui_; }
    RegistryStore& Registry() { return *registry_; }
    TRegIniFile Settings() { return TRegIniFile(*registry_, Key); }

    // The expert's package, as an IDE loads and unloads packages.
    void LoadExpert();
    void UnloadExpert();
    std::shared_ptr<TGlottaExpert> Expert() const { return expert_.lock(); }

    // The host's: docks or frees the expert's main window.
    std::function<void(bool docked)> DockWindow;

private:
    std::unique_ptr<RegistryStore> registry_;
    QtUi ui_;
    TransEditorDialog transEditor_{ui_};
    HelperLibrary helper_;
    std::unique_ptr<Launcher> launcher_ = SystemLauncher();
    std::unique_ptr<Automation> automation_ = SystemAutomation();
    std::unique_ptr<PlainIde> ide_; // unloads the expert when it goes, so it goes first
    std::weak_ptr<TGlottaExpert> expert_;
    int package_ = 0; // its group of registrations
};

} // namespace glotta
