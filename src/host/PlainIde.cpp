#include "host/PlainIde.h"

#include "host/FileKeys.h"
#include "host/ProjectEntries.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "runtime/CustomLang.h"

#include <unordered_set>

namespace glotta {
namespace {

namespace fs = std::filesystem;

// The form of a unit that no project lists, found as for those that one lists.
fs::path FormOf(const fs::path& unit) {
    PathResolver paths;
    ProjectDescription alone;
    ProjectEntries entries(alone, paths);
    ListedUnit listed;
    listed.path = PathText(unit.filename());
    entries.Add(unit.parent_path(), {std::move(listed)});
    return alone.entries.empty() ? fs::path() : alone.entries.front().formFile;
}

fs::path HeaderOf(const fs::path& unit) {
    if (LowerExtension(PathText(unit)) != ".cpp") return {};
    const fs::path header = Beside(unit, ".h");
    return header.empty() ? Beside(unit, ".hpp") : header;
}

} // namespace

PlainIde::PlainIde() {
    RegisterGlottaClasses();
    design_.ListForms = [this] { return OpenForms(); };
    design_.UseForm = [this](const std::string& name, const auto& use) { return WithForm(name, use); };
}
PlainIde::~PlainIde() {
    wizards_.UnloadAll();
}

// --- projects ---

template <class Module> Module& PlainIde::Adopt(std::unique_ptr<Module> module) {
    Module& result = *module;
    for (const fs::path& path : result.Paths())
        byFile_.emplace(FileKey(path), &result);
    if constexpr (std::is_same_v<Module, PlainModule>)
        if (result.Form()) byForm_.emplace(result.Name(), &result);
    if constexpr (!std::is_same_v<Module, PlainModule>) projects_.push_back(&result);
    modules_.push_back({std::move(module), &result});
    return result;
}

IOTAModule& PlainIde::OpenProject(const std::string& fileName, std::optional<Encoding> told) {
    const fs::path file = OnDisk(fileName);
    if (IOTAModule* open = FindModule(PathText(file))) return *open;
    told_ = told;
    if (IsProjectGroupFile(file))
        return OpenedProject(Adopt(std::make_unique<PlainProjectGroup>(Host(), ReadProjectGroup(file))));
    return OpenedProject(Adopt(std::make_unique<PlainProject>(Host(), ReadProject(file))));
}

IOTAModule& PlainIde::OpenedProject(IOTAModule& project) {
    notifications_.Tell(ofnFileOpened, project.FileName());
    ActiveProjectChanged(project.FileName());
    return project;
}

std::vector<PlainProject*> PlainIde::Projects() {
    std::vector<PlainProject*> projects;
    for (IOTAModule* module : projects_) {
        if (auto* project = dynamic_cast<PlainProject*>(module)) {
            projects.push_back(project);
        } else if (auto* group = dynamic_cast<PlainProjectGroup*>(module)) {
            group->ActiveProject();
            for (PlainProject* loaded : group->LoadedProjects())
                projects.push_back(loaded);
        }
    }
    return projects;
}

std::pair<PlainProject*, const IOTAModuleInfo*> PlainIde::FindEntry(const fs::path& file) {
    for (PlainProject* project : Projects())
        if (const IOTAModuleInfo* info = project->FindEntry(file)) return {project, info};
    return {nullptr, nullptr};
}

std::string PlainIde::TextOf(const fs::path& file, std::optional<Encoding> hint) {
    if (auto* open = dynamic_cast<PlainModule*>(FindModule(PathText(file)))) {
        const bool isHeader =
            open->Header() && FileKey(PathFromText(open->Header()->FileName())) == FileKey(file);
        return (isHeader ? *open->Header() : open->Source()).Buffer().Text();
    }
    return DecodeUnit(files_.Read(file), told_, hint).text;
}

std::optional<AncestorForm> PlainIde::FindAncestor(const IOTAModule& asking, const std::string& formClass) {
    std::vector<PlainProject*> projects = Projects();
    const fs::path asker = PathFromText(asking.FileName());
    std::stable_partition(projects.begin(), projects.end(),
                          [&](const PlainProject* project) { return project->FindEntry(asker) != nullptr; });
    for (PlainProject* project : projects) {
        const IOTAModuleInfo* info = project->FindFormClass(formClass);
        if (!info) continue;
        return AncestorForm{formClass, IsCppSource(PathFromText(info->fileName)),
                            DeclarationOf(*project, *info), info->formFile};
    }
    return std::nullopt;
}

std::string PlainIde::DeclarationOf(PlainProject& project, const IOTAModuleInfo& form) {
    const fs::path unit = PathFromText(form.fileName);
    const fs::path declaring = IsCppSource(unit) ? HeaderOf(unit) : unit;
    try {
        if (!declaring.empty()) return TextOf(declaring, project.EncodingHint());
    } catch (const Error& error) {
        AddProblem(error.what());
    }
    return {};
}

std::vector<std::string> PlainIde::InheritedNames(const PlainFormEditor& form) {
    std::vector<std::string> names;
    const auto add = [&](const std::string& formFile) {
        std::vector<std::string> more = NamesIn(formFile);
        std::move(more.begin(), more.end(), std::back_inserter(names));
    };
    for (const AncestorForm& ancestor : form.Heritage().Ancestors())
        add(ancestor.formFile);
    for (const std::string& descendant : DescendantFiles(form.Tree().Root().ClassName()))
        add(descendant);
    return names;
}

std::vector<std::string> PlainIde::DescendantFiles(const std::string& formClass) {
    std::vector<std::string> files, classes{formClass};
    std::unordered_set<std::string> seen; // units may declare classes in a circle
    for (std::size_t i = 0; i < classes.size(); ++i)
        for (PlainProject* project : Projects())
            for (PlainProject::Descendant& form : project->Descendants()) {
                if (!form.parent)
                    form.parent = FormUnit::ClassParent(IsCppSource(PathFromText(form.info->fileName)),
                                                        DeclarationOf(*project, *form.info), form.formClass);
                if (!SameText(*form.parent, classes[i]) || !seen.insert(form.info->formFile).second) continue;
                files.push_back(form.info->formFile);
                classes.push_back(form.formClass);
            }
    return files;
}

std::vector<std::string> PlainIde::NamesIn(const std::string& formFile) {
    auto* open = dynamic_cast<PlainModule*>(FindModule(formFile));
    if (open && open->Form()) return ComponentNames(open->Form()->Tree().File().Root());
    try {
        return ComponentNames(FormFile::Parse(files_.Read(PathFromText(formFile)), formFile).Root());
    } catch (const Error&) {
        return {}; // its own module tells of a damaged form
    }
}

std::vector<TComponent*> PlainIde::OpenForms() const {
    std::vector<TComponent*> roots;
    for (const Entry& entry : modules_)
        if (auto* module = dynamic_cast<PlainModule*>(entry.module.get()); module && module->Form())
            roots.push_back(&module->Form()->Tree().Root());
    return roots;
}

// A form that is only in the project is read for the look, and not opened.
bool PlainIde::WithForm(const std::string& name, const std::function<void(TComponent& root)>& use) {
    if (auto* open = dynamic_cast<PlainModule*>(FindFormModule(name))) {
        use(open->Form()->Tree().Root());
        return true;
    }
    for (PlainProject* project : Projects())
        for (const IOTAModuleInfo& info : project->Modules()) {
            if (info.formFile.empty() || !SameText(info.formName, name)) continue;
            FormFile file = FormFile::Parse(files_.Read(PathFromText(info.formFile)), info.formFile);
            ComponentTree tree(file, {});
            use(tree.Root());
            return true;
        }
    return false;
}

bool PlainIde::HasForm(const FormNames& names) {
    for (PlainProject* project : Projects())
        if (project->HasForm(names)) return true;
    return false;
}

void PlainIde::RenameForm(const IOTAModule& module, const FormNames& from, const FormNames& to) {
    const fs::path unit = PathFromText(module.FileName());
    for (PlainProject* project : Projects()) {
        if (!project->FindEntry(unit)) continue;
        project->RenameForm(unit, from, to);
        if (onProjectChanged) onProjectChanged(*project);
    }
}

std::vector<PlainSourceEditor*> PlainIde::ProjectSources() {
    std::vector<PlainSourceEditor*> sources;
    for (PlainProject* project : Projects())
        if (PlainSourceEditor* source = project->OpenedSource()) sources.push_back(source);
    return sources;
}

// --- modules ---

IOTAModule* PlainIde::GetModule(int index) {
    return index >= 0 && index < ModuleCount() ? modules_[static_cast<std::size_t>(index)].module.get()
                                               : nullptr;
}

IOTAModule* PlainIde::FindModule(const std::string& fileName) {
    const std::string key = FileKey(OnDisk(fileName));
    if (const auto found = byFile_.find(key); found != byFile_.end()) return found->second;
    // Projects of a group are read when they are needed, so their files are not in the table.
    for (IOTAModule* module : projects_)
        if (auto* group = dynamic_cast<PlainProjectGroup*>(module))
            for (PlainProject* project : group->LoadedProjects())
                for (const fs::path& path : project->Paths())
                    if (FileKey(path) == key) return project;
    return nullptr;
}

IOTAModule* PlainIde::FindFormModule(const std::string& formName) {
    if (const auto found = byForm_.find(formName);
        found != byForm_.end() && SameText(found->second->Name(), formName))
        return found->second;
    // A form that was renamed since it was opened, or none.
    for (const Entry& entry : modules_) {
        auto* module = dynamic_cast<PlainModule*>(entry.module.get());
        if (!module || !module->Form() || !SameText(module->Name(), formName)) continue;
        byForm_.insert_or_assign(formName, module);
        return module;
    }
    return nullptr;
}

void PlainIde::ShowModule(IOTAModule& module) {
    std::erase(shown_, &module);
    shown_.push_back(&module);
    if (onShow) onShow(module);
}

PlainModule& PlainIde::OpenUnit(const fs::path& file) {
    const auto [project, info] = FindEntry(file);
    ModuleFiles files;
    files.unit = info ? PathFromText(info->fileName) : file;
    files.isCpp = IsCppSource(file);
    files.form = info ? PathFromText(info->formFile) : FormOf(file);
    files.header = HeaderOf(file);
    return Adopt(std::make_unique<PlainModule>(Host(), std::move(files),
                                               project ? project->EncodingHint() : std::nullopt));
}

bool PlainIde::OpenFile(const std::string& fileName) {
    try {
        IOTAModule* module = FindModule(fileName);
        const fs::path file = OnDisk(fileName);
        const std::string extension = LowerExtension(PathText(file));
        if (!module && extension != ".cpp" && (IsProjectGroupFile(file) || IsProjectFile(file)))
            module = &OpenProject(fileName, told_);
        if (!module) {
            // A header is edited with the unit it belongs to.
            const fs::path unit = IsHeader(file) ? Beside(file, ".cpp") : fs::path();
            module = &OpenUnit(unit.empty() ? file : unit);
            ShowModule(*module);
            notifications_.Tell(ofnFileOpened, module->FileName());
        }
        ShowModule(*module);
        return true;
    } catch (const Error& error) {
        AddProblem(error.what());
        return false;
    }
}

bool PlainIde::CloseFile(const std::string& fileName) {
    IOTAModule* module = FindModule(fileName);
    return module && CloseModule(*module, false);
}

bool PlainIde::SaveFile(const std::string& fileName) {
    IOTAModule* module = FindModule(fileName);
    return module && module->Save(false, true);
}

std::vector<IOTAModule*> PlainIde::ChangedOnDisk() const {
    std::vector<IOTAModule*> changed;
    const auto check = [&](IOTAModule& module) {
        if (!dynamic_cast<OpenFiles&>(module).ChangedOnDisk().empty()) changed.push_back(&module);
    };
    for (const Entry& entry : modules_) {
        check(*entry.module);
        if (auto* group = dynamic_cast<PlainProjectGroup*>(entry.module.get()))
            for (PlainProject* project : group->LoadedProjects())
                check(*project);
    }
    return changed;
}

void PlainIde::KeepOverDisk(IOTAModule& module) {
    dynamic_cast<OpenFiles&>(module).KeepOverDisk();
}

void PlainIde::ReadProjectAgain(IOTAModule& module) {
    if (auto* group = dynamic_cast<PlainProjectGroup*>(&module)) group->ReadAgain();
    if (auto* project = dynamic_cast<PlainProject*>(&module)) project->ReadAgain();
    for (const fs::path& path : dynamic_cast<OpenFiles&>(module).Paths())
        byFile_.emplace(FileKey(path), &module);
    if (onProjectChanged) onProjectChanged(module);
    if (IOTAProject* active = Projects().empty() ? nullptr : Projects().front()) ActiveProjectChanged(active->FileName());
}

bool PlainIde::Reload(const std::string& fileName) {
    IOTAModule* const module = FindModule(fileName);
    if (!module || !files_.Exists(PathFromText(module->FileName()))) return false;
    if (AsProject(module) || AsProjectGroup(module)) {
        ReadProjectAgain(*module);
        return true;
    }
    const std::string name = module->FileName();
    return CloseModule(*module, true) && OpenFile(name);
}

bool PlainIde::MayClose(const Entry& entry) {
    if (!entry.module->Modified()) return true;
    switch (askClose ? askClose(*entry.module) : CloseAnswer::Cancel) {
    case CloseAnswer::Save:
        return entry.module->Save(false, true);
    case CloseAnswer::Discard:
        return true;
    default:
        return false;
    }
}

bool PlainIde::CloseModule(IOTAModule& module, bool discard) {
    const bool isProject = AsProject(&module) || AsProjectGroup(&module);
    std::vector<IOTAModule*> closing;
    for (const Entry& entry : modules_) {
        // A project takes its units along.
        if (entry.module.get() != &module && !(isProject && dynamic_cast<PlainModule*>(entry.module.get())))
            continue;
        if (!discard && !MayClose(entry)) return false;
        closing.push_back(entry.module.get());
    }
    for (IOTAModule* each : closing)
        if (!notifications_.Tell(ofnFileClosing, each->FileName())) return false;
    for (IOTAModule* each : closing)
        Forget(*each);
    return !closing.empty();
}

void PlainIde::Forget(IOTAModule& module) {
    if (auto* unit = dynamic_cast<PlainModule*>(&module)) unit->TellDestroyed();
    std::erase(shown_, &module);
    std::erase_if(byFile_, [&](const auto& item) { return item.second == &module; });
    std::erase(projects_, &module);
    std::erase_if(byForm_, [&](const auto& item) { return item.second == &module; });
    std::erase_if(modules_, [&](const Entry& entry) { return entry.module.get() == &module; });
}

// --- files ---

std::vector<FileChange> PlainIde::ModifiedFiles() {
    FileStore staged = files_;
    staged.deferWrites = true;
    for (const Entry& entry : modules_)
        staged.Save(entry.files->Changes());
    std::vector<FileChange> changes = staged.Pending();
    std::erase_if(changes, [](const FileChange& change) { return change.oldBytes == change.newBytes; });
    return changes;
}

void PlainIde::SaveAll() {
    std::vector<std::pair<OpenFiles*, std::vector<FileChange>>> perModule;
    std::vector<FileChange> all;
    for (const Entry& entry : modules_) {
        perModule.emplace_back(entry.files, entry.files->Changes());
        all.insert(all.end(), perModule.back().second.begin(), perModule.back().second.end());
    }
    files_.SaveAndCommit(std::move(all));
    for (const auto& [files, changes] : perModule)
        files->MarkSaved(changes);
}

} // namespace glotta
