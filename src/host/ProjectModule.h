// Open projects and project groups.
#pragma once
#include "host/OpenFiles.h"
#include "host/ProjectFiles.h"
#include "ide/ToolsApi.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace glotta {

class PlainProject : public IOTAProject, public OpenFiles {
public:
    PlainProject(ModuleHost& host, ProjectDescription description);

    std::string FileName() const override;
    std::string Name() const override;
    int GetModuleFileCount() const override { return description_.mainSource.empty() ? 0 : 1; }
    IOTAEditor* GetModuleFileEditor(int index) override; // the project source
    bool Modified() const override { return source_ && source_->Editor().Modified(); }
    bool Save(bool changeName, bool forceSave) override;
    bool Close() override { return CloseModule(false); }
    bool CloseModule(bool forceClosed) override { return host_.CloseModule(*this, forceClosed); }
    const std::vector<IOTAModuleInfo>& Modules() const override { return modules_; }
    bool IsCpp() const override { return description_.IsCpp(); }

    // The project's code page.
    std::optional<Encoding> EncodingHint() const override;
    // The entry of a file on disk, nil when the project does not list it.
    const IOTAModuleInfo* FindEntry(const std::filesystem::path& file) const;
    // The entry whose form has this class, nil when there is none. Reads the heads of the form files at the
    // first call.
    const IOTAModuleInfo* FindFormClass(const std::string& formClass);
    // The project's forms whose files say that they inherit from another form.
    struct Descendant {
        const IOTAModuleInfo* info;
        std::string formClass;
        std::optional<std::string> parent; // class, when somebody has looked it up
    };
    std::vector<Descendant>& Descendants();

    bool HasForm(const FormNames& names);
    // Renames the form of a listed unit in the project's source, and in what is known of it.
    void RenameForm(const std::filesystem::path& unit, const FormNames& from, const FormNames& to);
    PlainSourceEditor* OpenedSource() { return source_ ? &source_->Editor() : nullptr; } // nil while nobody asked for it

    std::vector<FileChange> Changes() override;
    void MarkSaved(const std::vector<FileChange>& changes) override;
    std::vector<std::filesystem::path> Paths() const override;
    std::vector<std::filesystem::path> ChangedOnDisk() const override { return ChangedFiles(host_, known_); }
    void KeepOverDisk() override;
    // Reads project file and source again; the units stay open. Throws Error, and stays as it was, when the file cannot
    // be read.
    void ReadAgain();

private:
    void Take(ProjectDescription description);
    void ReadHeads();

    ModuleHost& host_;
    ProjectDescription description_;
    KnownFiles known_;
    std::vector<IOTAModuleInfo> modules_;
    std::unordered_map<std::string, const IOTAModuleInfo*> byFile_;
    std::unordered_map<std::string, const IOTAModuleInfo*, TextHash, TextEqual> byFormClass_;
    std::vector<Descendant> descendants_;
    bool readHeads_ = false;
    std::unique_ptr<OpenSource> source_;
};

class PlainProjectGroup : public IOTAProjectGroup, public OpenFiles {
public:
    PlainProjectGroup(ModuleHost& host, ProjectGroupDescription description);

    std::string FileName() const override;
    std::string Name() const override;
    int GetModuleFileCount() const override { return 0; }
    IOTAEditor* GetModuleFileEditor(int) override { return nullptr; }
    bool Modified() const override;
    bool Save(bool changeName, bool forceSave) override;
    bool Close() override { return CloseModule(false); }
    bool CloseModule(bool forceClosed) override { return host_.CloseModule(*this, forceClosed); }
    int ProjectCount() const override { return static_cast<int>(description_.projects.size()); }
    // What the group says of a project, without reading it.
    const ProjectGroupEntry& ProjectEntryOf(int index) const {
        return description_.projects[static_cast<std::size_t>(index)];
    }
    // Projects are read when they are asked for; one that cannot be read is nil, and a problem of the host.
    PlainProject* GetProject(int index) override;
    PlainProject* ActiveProject() override { return GetProject(description_.activeIndex); }
    void SetActiveProject(int index) override;

    // Those that were asked for so far, in the group's order.
    std::vector<PlainProject*> LoadedProjects() const;

    std::vector<FileChange> Changes() override;
    void MarkSaved(const std::vector<FileChange>& changes) override;
    std::vector<std::filesystem::path> Paths() const override { return {description_.file}; }
    std::vector<std::filesystem::path> ChangedOnDisk() const override { return ChangedFiles(host_, known_); }
    void KeepOverDisk() override { known_ = ReadKnown(host_, Paths()); }
    // Reads the group file again; projects that it still lists stay as they are. Throws Error, and stays as it was, when
    // it cannot be read.
    void ReadAgain();

private:
    struct Slot {
        bool read = false;
        std::unique_ptr<PlainProject> project;
    };
    ModuleHost& host_;
    ProjectGroupDescription description_;
    KnownFiles known_;
    std::vector<Slot> slots_;
};

} // namespace glotta
