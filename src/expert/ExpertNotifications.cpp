// How the expert keeps step with the IDE's files and projects.
#include "expert/Glottaexp.h"

#include "expert/IdeNotifiers.h"
#include "mainwindow/CommandRunner.h"
#include "platform/Error.h"

#include <algorithm>

namespace glotta {

void TGlottaExpert::FileNotification(TOTAFileNotification code, const std::string& fileName) {
    try {
        RemoveEditorPopupMenu();
        InstallEditorPopupMenu();
    } catch (const std::exception& error) {
        ports_.ui.MessageDlg(std::string("TGlotta caused:! ") + error.what(), MsgType::Plain);
    }
    notifications_ = static_cast<unsigned char>(std::min(notifications_ + 1, 3));
    if (notifications_ > 0) {
        RemoveMenuItem();
        Configure();
    }
    switch (code) {
    case ofnFileOpened:
        return FileOpened(fileName);
    case ofnFileClosing:
        return FileClosing(fileName);
    case ofnActiveProjectChanged:
        if (window_) RunCommand([this] { RunItemClick(); });
    }
}

void TGlottaExpert::FileOpened(const std::string& fileName) {
    if (IOTAModule* module = ports_.ide.modules.FindModule(fileName)) AddModuleNotifier(nullptr, *module);
    if (window_ && window_->Visible()) RunCommand([&] { window_->UpdateEntries(fileName); });
}

void TGlottaExpert::FileClosing(const std::string& fileName) {
    if (!window_) return;
    const auto closing =
        std::find_if(moduleNotifiers_.begin(), moduleNotifiers_.end(), [&](const auto& notifier) {
            return notifier->Registered() && notifier->Module()->FileName() == fileName;
        });
    if (closing != moduleNotifiers_.end()) {
        (*closing)->Unregister();
        moduleNotifiers_.erase(closing);
    }
    IOTAModule* const project = services_.GetActiveProject();
    IOTAModule* const group = services_.GetActiveProjectGroup();
    if ((project && project->FileName() == fileName) || (group && group->FileName() == fileName))
        ProjectClosed();
}

// --- module notifiers ---

void TGlottaExpert::AddModuleNotifier(FormsListItem* entry, IOTAModule& module) {
    try {
        moduleNotifiers_.push_back(TgxModuleNotifier::Create(*this, entry, module));
    } catch (const EGlottaSilent&) { // a unit without form: nothing to hear of
    }
}

void TGlottaExpert::AttachNotifiers() {
    for (FormsListItem& item : forms_.items) {
        IOTAModule* module = ports_.ide.modules.FindModule(item.fileName);
        if (!module) continue;
        const auto present = std::find_if(moduleNotifiers_.begin(), moduleNotifiers_.end(),
                                          [&](const auto& notifier) { return notifier->Module() == module; });
        if (present == moduleNotifiers_.end())
            AddModuleNotifier(&item, *module);
        else
            item.data = *present;
    }
}

FormsListItem* TGlottaExpert::EntryOf(const IOTAModuleNotifier& notifier, const std::string& fileName) {
    FormsListItem* ofFile = nullptr;
    for (FormsListItem& item : forms_.items) {
        if (item.data.lock().get() == &notifier) return &item;
        if (item.fileName == fileName) ofFile = &item;
    }
    return ofFile;
}

void TGlottaExpert::EntryRenamed() {
    if (window_) window_->lvFormNames.Refresh();
}

void TGlottaExpert::Forget(const TgxModuleNotifier& notifier) {
    std::erase_if(moduleNotifiers_, [&](const auto& each) { return each.get() == &notifier; });
}

} // namespace glotta
