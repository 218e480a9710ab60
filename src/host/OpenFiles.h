// What open modules need of their IDE, and what the IDE needs of them.
#pragma once
#include "host/FileStore.h"
#include "host/FormHeritage.h"
#include "host/SourceEditor.h"
#include "platform/Encoding.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace glotta {

class PlainFormEditor;

class ModuleHost {
public:
    virtual ~ModuleHost() = default;
    virtual FileStore& Files() = 0;
    virtual void ShowModule(IOTAModule& module) = 0;
    virtual bool CloseModule(IOTAModule& module, bool discard) = 0;
    virtual void ActiveProjectChanged(const std::string& fileName) = 0;
    virtual std::optional<AncestorForm> FindAncestor(const IOTAModule& asking,
                                                     const std::string& formClass) = 0;
    // Component names of the forms that this one inherits from, and of those that inherit from it.
    virtual std::vector<std::string> InheritedNames(const PlainFormEditor& form) = 0;
    // Whether a project has a form of this name or class.
    virtual bool HasForm(const FormNames& names) = 0;
    // Renames the form in the projects that list its unit: their sources, and what is known of their forms.
    virtual void RenameForm(const IOTAModule& module, const FormNames& from, const FormNames& to) = 0;
    // The sources of projects that are open.
    virtual std::vector<PlainSourceEditor*> ProjectSources() = 0;
    // Units that packages ask for, for a component of an open form.
    virtual std::vector<std::string> RequiredUnits(TComponent& component, IDesigner& designer) = 0;
    virtual void AddProblem(std::string problem) = 0;
    // The user's explicit wish.
    virtual std::optional<Encoding> ToldEncoding() const = 0;
};

// A module's side that only its host sees.
class OpenFiles {
public:
    virtual ~OpenFiles() = default;
    // The modified files and their new bytes, in the order in which they are written. Throws Error when a
    // text cannot be expressed.
    virtual std::vector<FileChange> Changes() = 0;
    // The changes reached the store.
    virtual void MarkSaved(const std::vector<FileChange>& changes) = 0;
    // All files that the module holds open.
    virtual std::vector<std::filesystem::path> Paths() const = 0;
    // Those of them whose bytes on disk are no longer the ones read or saved.
    virtual std::vector<std::filesystem::path> ChangedOnDisk() const { return {}; }
    // What is open counts instead of what others wrote: saving replaces theirs.
    virtual void KeepOverDisk() {}
};

// Files and the bytes that they had when they were read; none when they are gone.
using KnownFiles = std::vector<std::pair<std::filesystem::path, std::string>>;
KnownFiles ReadKnown(ModuleHost& host, const std::vector<std::filesystem::path>& files);
// Those that hold something else by now.
std::vector<std::filesystem::path> ChangedFiles(ModuleHost& host, const KnownFiles& files);

// A source file of a module, with the bytes that it was opened or saved with.
class OpenSource {
public:
    OpenSource(ModuleHost& host, IOTAModule& module, std::filesystem::path file,
               std::optional<Encoding> hint);

    const std::filesystem::path& Path() const { return file_; }
    PlainSourceEditor& Editor() { return editor_; }
    void AddChange(std::vector<FileChange>& changes) const;
    void MarkSaved(const std::vector<FileChange>& changes);
    const std::string& Bytes() const { return bytes_; } // as opened or saved
    void KeepOver(std::string diskBytes);

private:
    std::filesystem::path file_;
    std::string bytes_;
    PlainSourceEditor editor_;
};

// Takes the new bytes of `file`, when it is among the changes.
void TakeSavedBytes(const std::vector<FileChange>& changes, const std::filesystem::path& file,
                    std::string& bytes);

} // namespace glotta
