#include "workbench/Workbench.h"

#include "host/IdeEditors.h"
#include "package/Gxdialog_reg.h"
#include "package/Gxreg.h"
#include "workbench/HelpWindow.h"

namespace glotta {

Workbench::Workbench(const std::optional<std::filesystem::path>& registryFile)
    : registry_(OpenRegistry(registryFile)), ide_(std::make_unique<PlainIde>()) {
    RegisterIdeEditors(ide_->Design(), ui_);
}

Workbench::~Workbench() = default;

void Workbench::LoadExpert() {
    if (Expert()) return;
    ExpertPorts ports{ide_->Services(), ui_, *registry_, helper_, *launcher_, *automation_};
    ports.transEditor = &transEditor_;
    ports.ShowHelp = [this] {
        if (const auto expert = Expert()) ShowHelp(MainWindowHelp, *ui_.WindowOf(*expert->MainWindow()));
    };
    if (DockWindow) ports.DockWindow = DockWindow;
    package_ = ide_->Design().NewEditorGroup();
    try {
        expert_ = Gxreg::Register(std::move(ports));
        Gxdialog_reg::Register(ide_->Design());
    } catch (...) {
        UnloadExpert();
        throw;
    }
}

void Workbench::UnloadExpert() {
    if (package_) ide_->Design().FreeEditorGroup(package_);
    package_ = 0;
    ide_->PackageWizards().UnloadAll();
}

} // namespace glotta
