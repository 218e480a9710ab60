#include "host/ProjectModule.h"

#include "host/FormHead.h"
#include "host/ProjectListing.h"
#include "platform/Error.h"
#include "platform/Files.h"

#include <utility>

namespace glotta {
namespace {

constexpr unsigned Utf8CodePage = 65001;

void Append(std::vector<FileChange>& to, std::vector<FileChange> changes) {
    std::move(changes.begin(), changes.end(), std::back_inserter(to));
}

bool SaveFiles(ModuleHost& host, OpenFiles& files) {
    const std::vector<FileChange> changes = files.Changes();
    host.Files().Save(changes);
    files.MarkSaved(changes);
    return true;
}

} // namespace

// --- project ---

PlainProject::PlainProject(ModuleHost& host, ProjectDescription description)
    : host_(host) {
    Take(std::move(description));
}

void PlainProject::Take(ProjectDescription description) {
    description_ = std::move(description);
    known_ = ReadKnown(host_, Paths());
    modules_ = ModuleInfos(description_);
    byFile_.clear();
    byFormClass_.clear();
    descendants_.clear();
    readHeads_ = false;
    for (const std::string& problem : description_.problems)
        host_.AddProblem(problem);
    for (const IOTAModuleInfo& info : modules_)
        byFile_.emplace(info.fileName, &info);
}

void PlainProject::ReadAgain() {
    ProjectDescription description = ReadProject(description_.file);
    source_.reset();
    Take(std::move(description));
}

void PlainProject::KeepOverDisk() {
    known_ = ReadKnown(host_, Paths());
    for (const auto& [file, bytes] : known_)
        if (source_ && file == source_->Path() && bytes != source_->Bytes()) source_->KeepOver(bytes);
}

std::string PlainProject::FileName() const {
    return PathText(description_.file);
}
std::string PlainProject::Name() const {
    return PathText(description_.file.stem());
}

IOTAEditor* PlainProject::GetModuleFileEditor(int index) {
    if (index != 0 || description_.mainSource.empty()) return nullptr;
    if (!source_)
        source_ = std::make_unique<OpenSource>(host_, *this, description_.mainSource, EncodingHint());
    return &source_->Editor();
}

bool PlainProject::Save(bool /*changeName*/, bool /*forceSave*/) {
    return SaveFiles(host_, *this);
}

std::optional<Encoding> PlainProject::EncodingHint() const {
    if (!description_.codePage) return std::nullopt;
    if (*description_.codePage == Utf8CodePage)
        return Encoding{EncodingKind::Utf8, Encoding().codePage, false};
    return EncodingByName(std::to_string(*description_.codePage));
}

const IOTAModuleInfo* PlainProject::FindEntry(const std::filesystem::path& file) const {
    const auto found = byFile_.find(PathText(file));
    return found == byFile_.end() ? nullptr : found->second;
}

void PlainProject::ReadHeads() {
    if (std::exchange(readHeads_, true)) return;
    for (const IOTAModuleInfo& info : modules_)
        if (const auto head = ReadFormHead(PathFromText(info.formFile))) {
            byFormClass_.emplace(head->className, &info);
            if (head->kind == FormNodeKind::Inherited) descendants_.push_back({&info, head->className, {}});
        }
}

std::vector<PlainProject::Descendant>& PlainProject::Descendants() {
    ReadHeads();
    return descendants_;
}

const IOTAModuleInfo* PlainProject::FindFormClass(const std::string& formClass) {
    ReadHeads();
    const auto found = byFormClass_.find(formClass);
    return found == byFormClass_.end() ? nullptr : found->second;
}

bool PlainProject::HasForm(const FormNames& names) {
    return FindFormClass(names.className) ||
           std::any_of(modules_.begin(), modules_.end(),
                       [&](const IOTAModuleInfo& info) { return SameText(info.formName, names.name); });
}

void PlainProject::RenameForm(const std::filesystem::path& unit, const FormNames& from, const FormNames& to) {
    const auto entry = byFile_.find(PathText(unit));
    if (entry == byFile_.end()) return;
    if (GetModuleFileEditor(0)) {
        const std::string& text = source_->Editor().Buffer().Text();
        TextEdits edits = glotta::RenameForm(text, IsCpp(), from, to);
        AddListedRename(edits, text, IsCpp(), PathText(unit.stem()), from.name, to.name);
        source_->Editor().Apply({std::move(edits)});
    }
    IOTAModuleInfo& info = modules_[static_cast<std::size_t>(entry->second - modules_.data())];
    info.formName = to.name;
    if (SameText(info.annotatedFormName, from.name)) info.annotatedFormName = to.name;
    byFormClass_.erase(from.className);
    byFormClass_.emplace(to.className, &info);
}

std::vector<FileChange> PlainProject::Changes() {
    std::vector<FileChange> changes;
    if (source_) source_->AddChange(changes);
    return changes;
}

void PlainProject::MarkSaved(const std::vector<FileChange>& changes) {
    if (source_) source_->MarkSaved(changes);
    for (auto& [file, bytes] : known_)
        TakeSavedBytes(changes, file, bytes);
}

std::vector<std::filesystem::path> PlainProject::Paths() const {
    std::vector<std::filesystem::path> paths{description_.file};
    if (!description_.mainSource.empty() && description_.mainSource != description_.file)
        paths.push_back(description_.mainSource);
    return paths;
}

// --- group ---

PlainProjectGroup::PlainProjectGroup(ModuleHost& host, ProjectGroupDescription description)
    : host_(host), description_(std::move(description)), known_(ReadKnown(host_, {description_.file})),
      slots_(description_.projects.size()) {
    for (const std::string& problem : description_.problems)
        host_.AddProblem(problem);
}

std::string PlainProjectGroup::FileName() const {
    return PathText(description_.file);
}
std::string PlainProjectGroup::Name() const {
    return PathText(description_.file.stem());
}

PlainProject* PlainProjectGroup::GetProject(int index) {
    if (index < 0 || index >= ProjectCount()) return nullptr;
    Slot& slot = slots_[static_cast<std::size_t>(index)];
    const ProjectGroupEntry& entry = description_.projects[static_cast<std::size_t>(index)];
    if (!slot.read && !entry.missing) {
        try {
            slot.project = std::make_unique<PlainProject>(host_, ReadProject(entry.file));
        } catch (const Error& error) {
            host_.AddProblem(error.what());
        }
    }
    slot.read = true;
    return slot.project.get();
}

void PlainProjectGroup::SetActiveProject(int index) {
    if (index < 0 || index >= ProjectCount() || index == description_.activeIndex) return;
    description_.activeIndex = index;
    if (IOTAProject* project = GetProject(index)) host_.ActiveProjectChanged(project->FileName());
}

void PlainProjectGroup::ReadAgain() {
    ProjectGroupDescription description = ReadProjectGroup(description_.file);
    std::vector<Slot> slots(description.projects.size());
    const PlainProject* active = ActiveProject();
    for (std::size_t i = 0; i < slots.size(); ++i)
        for (Slot& old : slots_) {
            if (!old.project || old.project->FileName() != PathText(description.projects[i].file)) continue;
            if (old.project.get() == active) description.activeIndex = static_cast<int>(i);
            slots[i] = std::move(old);
        }
    description_ = std::move(description);
    slots_ = std::move(slots);
    known_ = ReadKnown(host_, Paths());
    for (const std::string& problem : description_.problems)
        host_.AddProblem(problem);
}

std::vector<PlainProject*> PlainProjectGroup::LoadedProjects() const {
    std::vector<PlainProject*> projects;
    for (const Slot& slot : slots_)
        if (slot.project) projects.push_back(slot.project.get());
    return projects;
}

bool PlainProjectGroup::Modified() const {
    const auto projects = LoadedProjects();
    return std::any_of(projects.begin(), projects.end(),
                       [](const PlainProject* project) { return project->Modified(); });
}

bool PlainProjectGroup::Save(bool /*changeName*/, bool /*forceSave*/) {
    return SaveFiles(host_, *this);
}

std::vector<FileChange> PlainProjectGroup::Changes() {
    std::vector<FileChange> changes;
    for (PlainProject* project : LoadedProjects())
        Append(changes, project->Changes());
    return changes;
}

void PlainProjectGroup::MarkSaved(const std::vector<FileChange>& changes) {
    for (PlainProject* project : LoadedProjects())
        project->MarkSaved(changes);
}

} // namespace glotta
