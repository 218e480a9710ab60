#include "host/Module.h"

#include "platform/Error.h"
#include "platform/Files.h"

namespace glotta {
namespace {

unsigned FormCodePage(std::optional<Encoding> told, std::optional<Encoding> hint, const Encoding& unit) {
    for (const auto& encoding : {told, hint, std::optional(unit)})
        if (encoding && encoding->kind == EncodingKind::CodePage) return encoding->codePage;
    return Encoding().codePage;
}

// Empty of a file that is gone.
std::string BytesOnDisk(ModuleHost& host, const std::filesystem::path& file) {
    return host.Files().Exists(file) ? host.Files().Read(file) : std::string();
}

} // namespace

KnownFiles ReadKnown(ModuleHost& host, const std::vector<std::filesystem::path>& files) {
    KnownFiles known;
    for (const auto& file : files)
        known.emplace_back(file, BytesOnDisk(host, file));
    return known;
}

std::vector<std::filesystem::path> ChangedFiles(ModuleHost& host, const KnownFiles& files) {
    std::vector<std::filesystem::path> changed;
    for (const auto& [file, bytes] : files)
        if (BytesOnDisk(host, file) != bytes) changed.push_back(file);
    return changed;
}

// --- one source file ---

OpenSource::OpenSource(ModuleHost& host, IOTAModule& module, std::filesystem::path file,
                       std::optional<Encoding> hint)
    : file_(std::move(file)), bytes_(host.Files().Read(file_)),
      editor_(module, PathText(file_), DecodeUnit(bytes_, host.ToldEncoding(), hint),
              [&host, &module] { host.ShowModule(module); }) {}

void OpenSource::AddChange(std::vector<FileChange>& changes) const {
    if (editor_.Modified()) changes.push_back({file_, bytes_, editor_.Bytes()});
}

void OpenSource::MarkSaved(const std::vector<FileChange>& changes) {
    TakeSavedBytes(changes, file_, bytes_);
    editor_.MarkSaved();
}

void OpenSource::KeepOver(std::string diskBytes) {
    bytes_ = std::move(diskBytes);
    editor_.MarkUnsaved();
}

void TakeSavedBytes(const std::vector<FileChange>& changes, const std::filesystem::path& file,
                    std::string& bytes) {
    for (const FileChange& change : changes)
        if (change.file == file) bytes = change.newBytes;
}

// --- module ---

PlainModule::PlainModule(ModuleHost& host, ModuleFiles files, std::optional<Encoding> hint)
    : host_(host), files_(std::move(files)), source_(host, *this, files_.unit, hint) {
    if (!files_.header.empty()) header_ = std::make_unique<OpenSource>(host, *this, files_.header, hint);
    editors_.push_back(&source_.Editor());
    if (!files_.form.empty()) OpenForm(hint);
    if (header_) editors_.push_back(&header_->Editor());
}

void PlainModule::OpenForm(std::optional<Encoding> hint) {
    try {
        formBytes_ = host_.Files().Read(files_.form);
        const Encoding& encoding = source_.Editor().Buffer().Unit().encoding;
        form_ = std::make_unique<PlainFormEditor>(
            *this, PathText(files_.form), formBytes_, FormCodePage(host_.ToldEncoding(), hint, encoding),
            FormUnit(source_.Editor(), Header(), files_.isCpp),
            [this](const std::string& formClass) { return host_.FindAncestor(*this, formClass); },
            [this] { host_.ShowModule(*this); });
        form_->InheritedNames = [this] { return host_.InheritedNames(*form_); };
        form_->RequiredUnits = [this](TComponent& component) {
            return host_.RequiredUnits(component, form_->Designer());
        };
        form_->Texts = [this] {
            std::vector<PlainSourceEditor*> texts = host_.ProjectSources();
            texts.push_back(&source_.Editor());
            if (header_) texts.push_back(&header_->Editor());
            return texts;
        };
        form_->Designer().isFormTaken = [this](const FormNames& names) { return host_.HasForm(names); };
        form_->Designer().renameInProjects = [this](const FormNames& from, const FormNames& to) {
            host_.RenameForm(*this, from, to);
        };
        form_->Designer().onRenamed = [this](TComponent& component, const std::string& oldName,
                                             const std::string& newName) {
            notifiers_.ForEach([&](IOTAModuleNotifier& notifier) {
                notifier.ComponentRenamed(&component, oldName, newName);
            });
        };
        editors_.push_back(form_.get());
    } catch (const Error& error) {
        host_.AddProblem(error.what());
    }
}

std::string PlainModule::FileName() const {
    return PathText(files_.unit);
}

std::string PlainModule::Name() const {
    return form_ ? form_->Designer().Root().Name() : PathText(files_.unit.stem());
}

IOTAEditor* PlainModule::GetModuleFileEditor(int index) {
    return index >= 0 && index < GetModuleFileCount() ? editors_[static_cast<std::size_t>(index)] : nullptr;
}

bool PlainModule::Modified() const {
    return std::any_of(editors_.begin(), editors_.end(),
                       [](const IOTAEditor* editor) { return editor->Modified(); });
}

bool PlainModule::Save(bool /*changeName*/, bool /*forceSave*/) {
    const std::vector<FileChange> changes = Changes();
    host_.Files().Save(changes);
    MarkSaved(changes);
    return true;
}

std::vector<FileChange> PlainModule::Changes() {
    std::vector<FileChange> changes;
    if (form_ && form_->Modified()) changes.push_back({files_.form, formBytes_, form_->Bytes()});
    if (header_) header_->AddChange(changes);
    source_.AddChange(changes);
    return changes;
}

void PlainModule::MarkSaved(const std::vector<FileChange>& changes) {
    source_.MarkSaved(changes);
    if (header_) header_->MarkSaved(changes);
    if (form_) {
        TakeSavedBytes(changes, files_.form, formBytes_);
        form_->MarkSaved();
    }
}

std::vector<std::filesystem::path> PlainModule::Paths() const {
    std::vector<std::filesystem::path> paths{files_.unit};
    for (const auto& path : {files_.header, files_.form})
        if (!path.empty()) paths.push_back(path);
    return paths;
}

std::vector<std::filesystem::path> PlainModule::ChangedOnDisk() const {
    KnownFiles known{{source_.Path(), source_.Bytes()}};
    if (header_) known.emplace_back(header_->Path(), header_->Bytes());
    if (form_) known.emplace_back(files_.form, formBytes_);
    return ChangedFiles(host_, known);
}

void PlainModule::KeepOverDisk() {
    const auto keep = [&](OpenSource& source) {
        if (std::string bytes = BytesOnDisk(host_, source.Path()); bytes != source.Bytes())
            source.KeepOver(std::move(bytes));
    };
    keep(source_);
    if (header_) keep(*header_);
    if (!form_) return;
    if (std::string bytes = BytesOnDisk(host_, files_.form); bytes != formBytes_) {
        formBytes_ = std::move(bytes);
        form_->MarkUnsaved();
    }
}

} // namespace glotta
