#include "expert/Glottaexp.h"

#include "expert/IdeNotifiers.h"
#include "mainwindow/CommandRunner.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "runtime/TransEditor.h"
#include "scanner/SourceMarks.h"
#include "storage/IdentifierRename.h"
#include "storage/Projectsettings.h"

#include <utility>

namespace glotta {

TGlottaExpert::TGlottaExpert(ExpertPorts ports)
    : ports_(std::move(ports)), services_(ports_.ide, forms_, ports_.ui),
      settings_(ports_.registry, {NamesArray.begin(), NamesArray.end()}) {
    Configure();
    if (IOTAServices* services = ports_.ide.services) {
        addInNotifier_ = std::make_shared<TgxAddInNotifier>(*this);
        notifierIndex_ = services->AddNotifier(addInNotifier_);
    }
    if (TransEditor* editor = ports_.transEditor) {
        editor->NavigateToSource = [this](const std::string& id, bool activate) {
            return ShowStringInSource(services_, id, activate);
        };
        editor->ShowAboutBox = [this] { ShowAboutBox(); };
        editor->OnChangeStrID = [this](const std::string& formName, const std::string& oldID,
                                       std::string& newID) {
            IdentifierRename(services_).OnChangeStrID(formName, oldID, newID);
        };
    }
    InstallEditorPopupMenu();
}

TGlottaExpert::~TGlottaExpert() {
    RemoveSettings();
    if (notifierIndex_ >= 0) ports_.ide.services->RemoveNotifier(notifierIndex_);
    if (addInNotifier_) addInNotifier_->Detach();
    while (!moduleNotifiers_.empty()) {
        moduleNotifiers_.front()->Unregister();
        moduleNotifiers_.erase(moduleNotifiers_.begin());
    }
    if (TransEditor* editor = ports_.transEditor) {
        editor->NavigateToSource = {};
        editor->ShowAboutBox = {};
        editor->OnChangeStrID = {};
    }
    if (window_) window_->Close(ports_.ui, ModalResult::Cancel);
    RunCommand([this] { DestroyProjectSettings(); });
}

void TGlottaExpert::RunCommand(const std::function<void()>& command) {
    glotta::RunCommand(ports_.ui, command);
}

void TGlottaExpert::ShowAboutBox() {
    ports_.ui.MessageDlg(GetName() + "\r\nMakes the forms and units of a project translatable.",
                         MsgType::Information);
}

// --- main window ---

void TGlottaExpert::CreateMainWindow() {
    closedWindow_.reset();
    MainWindowContext context{services_,         settings_,         ports_.registry,  ports_.helper,
                              results_,          externalFiles_,    projectSettings_, ports_.launcher,
                              ports_.automation, ports_.transEditor};
    context.ProjectClosed = [this] { ProjectClosed(); };
    context.RunItemClick = [this] { RunItemClick(); };
    context.ReinstallMenu = [this] {
        RemoveSettings();
        Configure();
        InstallEditorPopupMenu();
    };
    // The window is still at work when it tells that it closes.
    context.WindowClosed = [this] {
        services_.mainWindow = nullptr;
        closedWindow_ = std::move(window_);
    };
    context.ShowAboutBox = [this] { ShowAboutBox(); };
    context.ShowHelp = ports_.ShowHelp;
    context.DockWindow = ports_.DockWindow;
    window_ = std::make_unique<TfrmGlotta>(std::move(context));
    services_.mainWindow = window_.get();
}

void TGlottaExpert::RunItemClick() {
    IOTAProject* project = services_.GetActiveProject();
    if (!project) return;
    if (!window_) CreateMainWindow();
    ProjectClosed();
    window_->FillFromProject(*project);
    AttachNotifiers();
    RunCommand([&] { InitializeProjectSettings(project->FileName()); });
    window_->Open();
}

// --- project ---

void TGlottaExpert::InitializeProjectSettings(const std::string& projectFileName) {
    DestroyProjectSettings();
    auto settings = std::make_unique<TGlottaProjectSettings>();
    settings->SetFileName(PathFromText(projectFileName).replace_extension(".gxproj"));
    projectSettings_ = std::move(settings);
}

void TGlottaExpert::DestroyProjectSettings() {
    const auto settings = std::move(projectSettings_);
    if (settings && settings->GetIsChanged()) settings->SaveFile();
}

void TGlottaExpert::ProjectClosed() {
    RunCommand([this] { DestroyProjectSettings(); });
    if (!window_) return;
    for (const FormsListItem& item : forms_.items)
        if (const auto held = item.data.lock()) {
            auto* notifier = static_cast<TgxModuleNotifier*>(held.get());
            notifier->Unregister();
            Forget(*notifier);
        }
    window_->ClearProject();
}

std::weak_ptr<TGlottaExpert> ExpRegister(ExpertPorts ports) {
    IOTAWizardServices* wizards = ports.ide.wizards;
    if (!wizards) throw Error("The IDE takes no package wizards");
    const auto expert = std::make_shared<TGlottaExpert>(std::move(ports));
    wizards->RegisterPackageWizard(expert);
    return expert;
}

} // namespace glotta
