// An open unit with its header and its form.
#pragma once
#include "host/FormEditor.h"
#include "host/Notifications.h"
#include "host/OpenFiles.h"
#include "ide/ToolsApi.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace glotta {

// The files of a unit; those without a path are not there.
struct ModuleFiles {
    std::filesystem::path unit, header, form;
    bool isCpp = false;
};

class PlainModule : public IOTAModule, public OpenFiles {
public:
    // A form that cannot be read leaves the module without form editor, and the host with a problem.
    // Throws Error when the unit itself cannot be read.
    PlainModule(ModuleHost& host, ModuleFiles files, std::optional<Encoding> hint);

    std::string FileName() const override;
    std::string Name() const override;
    int GetModuleFileCount() const override { return static_cast<int>(editors_.size()); }
    IOTAEditor* GetModuleFileEditor(int index) override; // unit, form, header
    bool Modified() const override;
    bool Save(bool changeName, bool forceSave) override;
    bool Close() override { return CloseModule(false); }
    bool CloseModule(bool forceClosed) override { return host_.CloseModule(*this, forceClosed); }
    int AddNotifier(std::shared_ptr<IOTAModuleNotifier> notifier) override {
        return notifiers_.Add(std::move(notifier));
    }
    void RemoveNotifier(int index) override { notifiers_.Remove(index); }
    // Tells that the module goes away.
    void TellDestroyed() { notifiers_.Destroy(); }

    PlainSourceEditor& Source() { return source_.Editor(); }
    PlainSourceEditor* Header() { return header_ ? &header_->Editor() : nullptr; }
    PlainFormEditor* Form() { return form_.get(); }

    std::vector<FileChange> Changes() override;
    void MarkSaved(const std::vector<FileChange>& changes) override;
    std::vector<std::filesystem::path> Paths() const override;
    std::vector<std::filesystem::path> ChangedOnDisk() const override;
    void KeepOverDisk() override;

private:
    void OpenForm(std::optional<Encoding> hint);

    ModuleHost& host_;
    ModuleFiles files_;
    OpenSource source_;
    std::unique_ptr<OpenSource> header_;
    std::string formBytes_;
    std::unique_ptr<PlainFormEditor> form_;
    std::vector<IOTAEditor*> editors_;
    Notifiers<IOTAModuleNotifier> notifiers_;
};

} // namespace glotta
