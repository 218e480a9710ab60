#include "storage/TranslationFileCommands.h"

#include "platform/Error.h"
#include "platform/Files.h"
#include "settings/ExpertSettings.h"
#include "storage/FormComponents.h"
#include "storage/Projectsettings.h"

namespace glotta {

namespace {

std::optional<Encoding> HintOf(IdeServices& ide) {
    const IOTAProject* project = ide.GetActiveProject();
    return project ? project->EncodingHint() : std::nullopt;
}

bool Exists(const std::string& fileName) {
    std::error_code ignored;
    return std::filesystem::exists(PathFromText(fileName), ignored);
}

} // namespace

TranslationFileCommands::TranslationFileCommands(IdeServices& ide, FormTranslation& translation,
                                                 ExpertSettings& settings,
                                                 const TGlottaProjectSettings* project)
    : ide_(ide), translation_(translation), settings_(settings), project_(project) {}

TranslationFiles TranslationFileCommands::Files() {
    return TranslationFiles(HintOf(ide_));
}

FormsListItem* TranslationFileCommands::Find(const std::string& formName) {
    if (byName_.empty())
        for (FormsListItem& item : ide_.Forms().items)
            byName_.emplace(item.formName, &item);
    const auto found = byName_.find(formName);
    return found == byName_.end() ? nullptr : found->second;
}

// --- what a command asks first ---

bool TranslationFileCommands::CheckTGlotta(bool wholeList, const FormsListItem* item) {
    return wholeList ? !Translated().empty() : item && item->languages != "0";
}

bool TranslationFileCommands::MayStart(bool project) {
    const Items selected = ide_.Forms().Selected();
    if (!project && selected.empty()) return false;
    if (!project && selected.size() > 1) return true;
    if (CheckTGlotta(project, project ? nullptr : selected.front())) return true;
    ide_.GetUi().MessageDlg("Project or file is not translated!", MsgType::Error);
    return false;
}

std::string TranslationFileCommands::ProposedFile() const {
    const std::string name =
        project_ ? project_->GetOptionValue("DefaultTranslationFileName") : std::string();
    IOTAProject* const project = ide_.GetActiveProject();
    if (name.empty() || !project) return name;
    const std::filesystem::path folder = PathFromText(project->FileName()).parent_path();
    return PathText(PathResolver().Resolve(folder, name).value_or(PathResolver::Native(folder, name)));
}

std::optional<std::string> TranslationFileCommands::AskForFile(bool save) {
    FileDialog dialog;
    dialog.save = save;
    dialog.title = "Select file...";
    dialog.defaultExtension = "glt";
    dialog.filter = "TGlotta text files (*.glt)|*.glt|TGlotta binary files (*.glb)|*.glb";
    dialog.filterIndex = settings_.Values().LastFilterIndex;
    dialog.fileName = ProposedFile();
    if (!ide_.GetUi().Execute(dialog)) return {};
    settings_.SetLastFilterIndex(dialog.filterIndex);
    return dialog.files.empty() ? dialog.fileName : dialog.files.front();
}

std::string TranslationFileCommands::GetGLTFileDelimiter(const std::string& fileName) {
    return ReadGLTDelimiter(fileName, settings_.Values().Delimiter, HintOf(ide_));
}

bool TranslationFileCommands::AskForDelimiter(const std::string& oldDelimiter, const std::string& fileName,
                                              std::string& newDelimiter) {
    Ui& ui = ide_.GetUi();
    const auto answer = ui.InputBox("Saving to file", "Input delimeter:", newDelimiter);
    if (!answer) return false;
    newDelimiter = *answer;
    if (newDelimiter.empty()) {
        ui.MessageDlg("You cannot use empty delimiter!", MsgType::Error);
        return false;
    }
    return newDelimiter == oldDelimiter || !Exists(fileName) ||
           ui.MessageDlg(
               "The existing delimiter in file differs from new one. This may cause errors in future "
               "reading translation information Continue?",
               MsgType::Warning, {ModalResult::Yes, ModalResult::No}) == ModalResult::Yes;
}

// --- saving ---

void TranslationFileCommands::sbSaveAllClick(int mode) {
    if (!MayStart(mode == Project)) return;
    const auto file = AskForFile(true);
    if (!file) return;
    const bool binary = IsBinaryTranslationFile(*file);
    std::string delimiter;
    if (!binary) {
        const std::string old = GetGLTFileDelimiter(*file);
        delimiter = old;
        if (!AskForDelimiter(old, *file, delimiter)) return;
    }
    if (mode != Project)
        SaveForms(ide_.Forms().Selected(), *file, delimiter, true,
                  binary ? OnFailure::TellAndEnd : OnFailure::Raise);
    else if (binary)
        SaveProjectToGLBFile(*file);
    else
        SaveProjectToGLTFile(*file, delimiter);
}

TranslationFileCommands::Items TranslationFileCommands::Translated() {
    Items items;
    for (FormsListItem& item : ide_.Forms().items)
        if (item.languages != "0") items.push_back(&item);
    return items;
}

void TranslationFileCommands::SaveProjectToGLTFile(const std::string& fileName,
                                                   const std::string& delimiter) {
    SaveForms(Translated(), fileName, delimiter, false, OnFailure::Raise);
}

void TranslationFileCommands::SaveProjectToGLBFile(const std::string& fileName) {
    SaveForms(Translated(), fileName, {}, false, OnFailure::TellAndGoOn);
}

// The forms before a failing one are written, and so are those behind it where the command goes on; a command
// that the person stops leaves the file as it was.
void TranslationFileCommands::SaveForms(const Items& items, const std::string& fileName,
                                        const std::string& delimiter, bool insert, OnFailure onFailure) {
    TranslationFiles files = Files();
    if (Exists(fileName)) // a file that cannot be read is told once, not for each form
        IsBinaryTranslationFile(fileName) ? files.FindBinary(fileName, {}) : files.FindText(fileName, {});
    try {
        Progress progress(ide_.GetUi(), "Saving translations...");
        for (FormsListItem* item : items) {
            if (progress.Cancelled()) return;
            progress.Text("Saving translations: " + item->formName);
            if (!SaveGuarded(files, *item, fileName, delimiter, insert, onFailure)) break;
        }
    } catch (...) {
        files.Flush();
        throw;
    }
    files.Flush();
}

// False when the command has to end here.
bool TranslationFileCommands::SaveGuarded(TranslationFiles& files, FormsListItem& item,
                                          const std::string& fileName, const std::string& delimiter,
                                          bool insert, OnFailure onFailure) {
    try {
        if (insert) translation_.InsertTGlotta(item);
        SaveFormToFile(files, item.formName, fileName, delimiter);
        return true;
    } catch (const EGlottaSilent&) {
        throw;
    } catch (const std::exception& error) {
        if (onFailure == OnFailure::Raise) throw;
        ide_.GetUi().MessageDlg("Unable to export form to file!\r\nError: " + std::string(error.what()) +
                                    ". Form: " + item.formName,
                                MsgType::Error);
        return onFailure == OnFailure::TellAndGoOn;
    }
}

void TranslationFileCommands::SaveFormToFile(TranslationFiles& files, const std::string& formName,
                                             const std::string& fileName, const std::string& delimiter) {
    const FormsListItem* item = Find(formName);
    if (!item || item->glotta.empty() || item->fileName.empty()) return;
    const std::string unit = item->fileName;
    const bool wasOpen = ide_.IsFileOpen(unit);
    ide_.OpenFile(unit, false);
    if (!ide_.TestForCorrectForm(formName)) return;
    try {
        if (TgxCustomLang* const glotta = FindGlotta(ide_, formName)) {
            glotta->RefreshLists();
            if (IsBinaryTranslationFile(fileName))
                glotta->SaveAllToBinaryFile(files, fileName);
            else
                glotta->SaveAllToFile(files, fileName, delimiter);
            ++formsDone_;
        }
    } catch (...) {
        if (!wasOpen) ide_.CloseFile(unit);
        throw;
    }
    if (!wasOpen) ide_.CloseFile(unit);
}

// --- loading ---

void TranslationFileCommands::sbLoadAllClick(int mode) {
    const bool project = mode == Project || mode == MergeProject;
    if (!MayStart(project)) return;
    const auto file = AskForFile(false);
    if (!file) return;
    if (project)
        LoadProjFromFile(*file, mode == MergeProject);
    else
        LoadForms(ide_.Forms().Selected(), *file, mode == MergeForms, true);
}

void TranslationFileCommands::LoadProjFromFile(const std::string& fileName, bool merge) {
    Items all;
    for (FormsListItem& item : ide_.Forms().items)
        all.push_back(&item);
    LoadForms(all, fileName, merge, false);
}

void TranslationFileCommands::LoadForms(const Items& items, const std::string& fileName, bool merge,
                                        bool insert) {
    TranslationFiles files = Files();
    const std::string what = merge ? "Merging translations" : "Loading translations";
    Progress progress(ide_.GetUi(), what + "...");
    for (FormsListItem* item : items) {
        if (progress.Cancelled()) return;
        progress.Text(what + ": " + item->formName);
        if (insert) translation_.InsertTGlotta(*item);
        if (merge)
            MergeFormFromFile(files, item->formName, fileName);
        else
            LoadFormFromFile(files, item->formName, fileName);
    }
}

void TranslationFileCommands::LoadFormFromFile(TranslationFiles& files, const std::string& formName,
                                               const std::string& fileName) {
    FormsListItem* const item = Find(formName);
    if (!item || item->glotta.empty()) return;
    LoadForm(*item, [&](TgxCustomLang& glotta) {
        const bool loaded = IsBinaryTranslationFile(fileName) ? glotta.LoadAllFromBinaryFile(files, fileName)
                                                              : glotta.LoadAllFromFile(files, fileName, true);
        item->languages = std::to_string(glotta.NumberOfLanguages());
        return loaded;
    });
}

void TranslationFileCommands::MergeFormFromFile(TranslationFiles& files, const std::string& formName,
                                                const std::string& fileName) {
    if (const FormsListItem* item = Find(formName))
        LoadForm(*item, [&](TgxCustomLang& glotta) { return glotta.MergeAllFromFile(files, fileName); });
}

// A form that the file does not hold stays as it is.
void TranslationFileCommands::LoadForm(const FormsListItem& item, const Act& load) {
    if (item.fileName.empty()) return;
    const std::string unit = item.fileName, formName = item.formName;
    const bool wasOpen = ide_.IsFileOpen(unit);
    ide_.OpenFile(unit, false);
    if (!ide_.TestForCorrectForm(formName)) return;
    bool changed = false;
    try {
        TgxCustomLang* const glotta = FindGlotta(ide_, formName);
        changed = glotta && load(*glotta);
    } catch (...) {
        if (!wasOpen) ide_.CloseFile(unit);
        throw;
    }
    formsDone_ += changed ? 1 : 0;
    if (changed) ide_.MarkModifiedForm(unit);
    if (wasOpen) return;
    IOTAModuleServices& modules = ide_.Ide().modules;
    IOTAModule* module = modules.FindFormModule(formName);
    // What could not be saved stays open, so that nothing is lost.
    if (module && changed && !module->Save(false, true)) return;
    module = modules.FindFormModule(formName); // saving may have made it another one
    if (module) module->Close();
}

} // namespace glotta
