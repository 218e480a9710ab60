// The plain-file IDE: projects, units and forms opened from disk behind the tool interfaces.
#pragma once
#include "host/DesignRegistry.h"
#include "host/FileStore.h"
#include "host/HostMenus.h"
#include "host/Module.h"
#include "host/Notifications.h"
#include "host/OpenFiles.h"
#include "host/ProjectModule.h"
#include "ide/ToolsApi.h"
#include "platform/Text.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace glotta {

enum class CloseAnswer { Save, Discard, Cancel };

class PlainIde : public IOTAModuleServices, public IOTAActionServices, private ModuleHost {
public:
    PlainIde();
    ~PlainIde() override;
    PlainIde(const PlainIde&) = delete;
    PlainIde& operator=(const PlainIde&) = delete;

    BorlandIDEServices Services() {
        return {*this, *this, &notifications_, &menus_, &wizards_, &design_};
    }
    HostMenus& Menus() { return menus_; }
    Wizards& PackageWizards() { return wizards_; }
    DesignRegistry& Design() { return design_; }

    // Opens a project group or a project; `told` is the encoding of all its units where no byte order mark
    // tells another. Throws Error when the file cannot be read.
    IOTAModule& OpenProject(const std::string& fileName, std::optional<Encoding> told = {});

    int ModuleCount() const override { return static_cast<int>(modules_.size()); }
    IOTAModule* GetModule(int index) override;
    IOTAModule* CurrentModule() override { return shown_.empty() ? nullptr : shown_.back(); }
    IOTAModule* FindModule(const std::string& fileName) override;
    IOTAModule* FindFormModule(const std::string& formName) override;

    // False, and a problem, for a file that cannot be read.
    bool OpenFile(const std::string& fileName) override;
    // Asks askClose about what is not saved.
    bool CloseFile(const std::string& fileName) override;
    bool SaveFile(const std::string& fileName) override;

    // While set, saved files wait in memory until Commit or SaveAll; opening them again shows them as saved.
    void SetDeferWrites(bool defer) { files_.deferWrites = defer; }
    // Everything that differs from the disk: open and not saved, or saved and waiting.
    std::vector<FileChange> ModifiedFiles();
    // Writes all of them, all or none.
    void SaveAll();
    // Writes what was saved and waits.
    void Commit() { files_.SaveAndCommit({}); }

    // What was passed over so far, one line each: missing files, damaged forms.
    const std::vector<std::string>& Problems() const { return problems_; }

    // What to do with a modified module that is to be closed; unset, it stays open.
    std::function<CloseAnswer(IOTAModule&)> askClose;
    // The person looks at the module.
    void BringToFront(IOTAModule& module) { ShowModule(module); }
    // A module was brought to front; something was passed over. Both are a window's.
    std::function<void(IOTAModule&)> onShow;
    std::function<void(const std::string& problem)> onProblem;
    std::function<void(IOTAModule&)> onProjectChanged; // it lists other units, forms or projects than before

    // Open modules with files that others changed or deleted since they were read or saved.
    std::vector<IOTAModule*> ChangedOnDisk() const;
    // What is open counts instead of what lies on disk.
    void KeepOverDisk(IOTAModule& module);
    // Closes the file's module without saving and opens it as it is on disk. False, and nothing is closed, when it
    // cannot be read or a notifier forbids it. A project or group is read again in place: its units stay open. Throws
    // Error when that fails.
    bool Reload(const std::string& fileName);

private:
    struct Entry {
        std::unique_ptr<IOTAModule> module;
        OpenFiles* files;
    };

    ModuleHost& Host() { return *this; }
    FileStore& Files() override { return files_; }
    void ShowModule(IOTAModule& module) override;
    bool CloseModule(IOTAModule& module, bool discard) override;
    void ActiveProjectChanged(const std::string& fileName) override {
        notifications_.Tell(ofnActiveProjectChanged, fileName);
    }
    std::optional<AncestorForm> FindAncestor(const IOTAModule& asking, const std::string& formClass) override;
    std::vector<std::string> InheritedNames(const PlainFormEditor& form) override;
    bool HasForm(const FormNames& names) override;
    void RenameForm(const IOTAModule& module, const FormNames& from, const FormNames& to) override;
    std::vector<PlainSourceEditor*> ProjectSources() override;
    std::vector<std::string> RequiredUnits(TComponent& component, IDesigner& designer) override {
        return design_.RequiredUnits(component, designer);
    }
    void AddProblem(std::string problem) override {
        problems_.push_back(std::move(problem));
        if (onProblem) onProblem(problems_.back());
    }
    std::optional<Encoding> ToldEncoding() const override { return told_; }

    std::vector<PlainProject*> Projects();
    // The project that lists the file, and its entry.
    std::pair<PlainProject*, const IOTAModuleInfo*> FindEntry(const std::filesystem::path& file);
    template <class Module> Module& Adopt(std::unique_ptr<Module> module);
    IOTAModule& OpenedProject(IOTAModule& project);
    PlainModule& OpenUnit(const std::filesystem::path& file);
    // The text that declares the form's class.
    std::string DeclarationOf(PlainProject& project, const IOTAModuleInfo& form);
    std::vector<std::string> DescendantFiles(const std::string& formClass);
    std::vector<TComponent*> OpenForms() const;
    bool WithForm(const std::string& name, const std::function<void(TComponent& root)>& use);
    std::vector<std::string> NamesIn(const std::string& formFile);
    std::string TextOf(const std::filesystem::path& file, std::optional<Encoding> hint);
    void ReadProjectAgain(IOTAModule& module);
    bool MayClose(const Entry& entry);
    void Forget(IOTAModule& module);

    FileStore files_;
    std::optional<Encoding> told_;
    std::vector<Entry> modules_;
    std::vector<IOTAModule*> projects_; // those of them that are projects or groups
    std::unordered_map<std::string, IOTAModule*> byFile_; // every file of every open module, by FileKey
    std::unordered_map<std::string, PlainModule*, TextHash, TextEqual> byForm_; // by the name at the last look-up
    std::vector<IOTAModule*> shown_;                      // the one in front last
    std::vector<std::string> problems_;
    HostMenus menus_;
    Notifications notifications_;
    DesignRegistry design_;
    Wizards wizards_; // first to go: they use all of the above
};

} // namespace glotta
