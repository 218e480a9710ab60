#include "workbench/Workbench.h"

#include "expert/Glottaexp.h"
#include "workbench/HelpWindow.h"

namespace glotta {

Workbench::Workbench(const std::optional<std::filesystem::path>& registryFile)
    : registry_(OpenRegistry(registryFile)), ide_(std::make_unique<PlainIde>()) {}

Workbench::~Workbench() = default;

void Workbench::LoadExpert() {
    if (Expert()) return;
    ExpertPorts ports{ide_->Services(), ui_, *registry_, helper_, *launcher_, *automation_};
    ports.transEditor = &transEditor_;
    ports.ShowHelp = [this] {
        if (const auto expert = Expert()) ShowHelp(MainWindowHelp, *ui_.WindowOf(*expert->MainWindow()));
    };
    if (DockWindow) ports.DockWindow = DockWindow;
    expert_ = ExpRegister(std::move(ports));
}

} // namespace glotta
