#include "ide/Services.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "platform/Text.h"

namespace glotta {
namespace {

constexpr std::size_t pieceLength = 1024;

template <class Editor> Editor* FirstEditor(IOTAModule* module) {
    for (int i = 0; module && i < module->GetModuleFileCount(); ++i)
        if (auto* editor = dynamic_cast<Editor*>(module->GetModuleFileEditor(i))) return editor;
    return nullptr;
}

// The first open module for which `matches` holds.
template <class Matches> IOTAModule* FindOpenModule(IOTAModuleServices& modules, Matches matches) {
    for (int i = 0; i < modules.ModuleCount(); ++i)
        if (IOTAModule* module = modules.GetModule(i); module && matches(*module)) return module;
    return nullptr;
}

std::string ReadWhole(IOTASourceEditor& editor) {
    const auto reader = editor.CreateReader();
    std::string text;
    for (std::size_t position = 0;; position += pieceLength) {
        const std::string piece = reader->GetText(position, pieceLength);
        text += piece;
        if (CharCount(piece) < pieceLength) return text;
    }
}

struct Selection {
    std::size_t begin, end;
};

Selection SelectionOf(IOTASourceEditor& editor) {
    const IOTAEditView& view = editor.View();
    return {editor.PosToOffset(view.BlockStart()), editor.PosToOffset(view.BlockAfter())};
}

} // namespace

IOTAProjectGroup* IdeServices::GetActiveProjectGroup() {
    return AsProjectGroup(
        FindOpenModule(ide_.modules, [](IOTAModule& module) { return AsProjectGroup(&module); }));
}

IOTAProject* IdeServices::GetActiveProject() {
    IOTAModule* first = FindOpenModule(
        ide_.modules, [](IOTAModule& module) { return AsProjectGroup(&module) || AsProject(&module); });
    IOTAProjectGroup* group = AsProjectGroup(first);
    return group ? group->ActiveProject() : AsProject(first);
}

IOTAProject& IdeServices::RequireActiveProject() {
    if (IOTAProject* project = GetActiveProject()) return *project;
    ui_.MessageDlg("Project is NIL!", MsgType::Plain);
    throw EGlottaSilent();
}

IOTAModule* IdeServices::GetModuleFromFileName(const std::string& fileName) {
    RequireActiveProject();
    return ide_.modules.FindModule(fileName);
}

IOTASourceEditor* IdeServices::GetSourceEditorFromFileName(const std::string& fileName) {
    return GetSourceEditorFromModule(GetModuleFromFileName(fileName));
}

IOTASourceEditor* IdeServices::GetSourceEditorFromFormName(const std::string& formName) {
    if (const FormsListItem* item = forms_->FindText(formName))
        return GetSourceEditorFromFileName(item->fileName);
    for (const IOTAModuleInfo& info : RequireActiveProject().Modules())
        if (SameText(info.formName, formName)) return GetSourceEditorFromFileName(info.fileName);
    return nullptr;
}

IOTAModule* IdeServices::GetFormIdeModule(const std::string& formName) {
    IOTAModule* last = nullptr;
    for (int i = 0; i < ide_.modules.ModuleCount(); ++i)
        if (IOTAModule* module = ide_.modules.GetModule(i); module && module->Name() == formName)
            last = module;
    return last;
}

IOTAModule* IdeServices::GetCurrentIdeModule() {
    return ide_.modules.CurrentModule();
}

IOTAFormEditor* IdeServices::GetFormEditorFromModule(IOTAModule* module) {
    return FirstEditor<IOTAFormEditor>(module);
}

IOTASourceEditor* IdeServices::GetSourceEditorFromModule(IOTAModule* module) {
    return FirstEditor<IOTASourceEditor>(module);
}

std::string IdeServices::GetIDEEditControlClass() {
    for (int i = 0; ide_.menus && i < ide_.menus->FormCount(); ++i) {
        const INTAForm* form = ide_.menus->GetForm(i);
        if (!form || !SameText(form->ClassName(), EditWindowClass)) continue;
        for (const std::string& name : form->ComponentClasses())
            if (SameText(name, EditControlClass)) return name;
        return {};
    }
    return {};
}

IDesigner* IdeServices::GetDesigner() {
    const std::vector<FormsListItem*> selected = forms_->Selected();
    return selected.empty() ? nullptr : GetDesignerByFormName(selected.front()->formName);
}

IDesigner* IdeServices::GetDesignerByFormName(const std::string& formName) {
    const FormsListItem* item = forms_->FindExact(formName);
    IOTAFormEditor* editor = item ? GetFormEditorFromModule(GetModuleFromFileName(item->fileName)) : nullptr;
    return editor ? &editor->Designer() : nullptr;
}

TComponent* IdeServices::GetComponentOnForm(const std::string& formName, const std::string& componentName) {
    const FormsListItem* item = forms_->FindExact(formName);
    if (!item || !OpenFile(item->fileName, false) || !TestForCorrectForm(formName)) return nullptr;
    TComponent* root = GetOwnerByName(formName);
    return root ? root->FindComponent(componentName) : nullptr;
}

TComponent* IdeServices::GetOwnerByName(const std::string& formName) {
    IDesigner* designer = GetDesignerByFormName(formName);
    return designer ? &designer->Root() : nullptr;
}

bool IdeServices::IsDataModule(const std::string& formName) {
    const TComponent* root = GetOwnerByName(formName);
    return root && root->InheritsFrom("TDataModule");
}

bool IdeServices::TestForCorrectForm(const std::string& formName) {
    if (ide_.modules.FindFormModule(formName)) return true;
    ui_.MessageDlg("Unable to obtain the interface of form module! Please check your project source.",
                   MsgType::Error);
    if (mainWindow) ui_.BringToFront(*mainWindow);
    return false;
}

bool IdeServices::IsFileOpen(const std::string& fileName) {
    return ide_.modules.FindModule(fileName);
}

bool IdeServices::OpenFile(const std::string& fileName, bool show) {
    return (!show && IsFileOpen(fileName)) || ide_.actions.OpenFile(fileName);
}

bool IdeServices::CloseFile(const std::string& fileName) {
    return ide_.actions.CloseFile(fileName);
}

bool IdeServices::CloseFileUnsaved(const std::string& fileName) {
    IOTAModule* module = ide_.modules.FindModule(fileName);
    return module && module->CloseModule(true);
}

bool IdeServices::SaveFile(const std::string& fileName) {
    IOTAModule* module = GetModuleFromFileName(fileName);
    return module && module->Save(false, true);
}

void IdeServices::MarkModifiedForm(const std::string& fileName) {
    if (IOTAFormEditor* editor = GetFormEditorFromModule(GetModuleFromFileName(fileName)))
        editor->Designer().Modified();
}

std::string IdeServices::GetUnitSource(const std::string& fileName) {
    IOTASourceEditor* editor = GetSourceEditorFromFileName(fileName);
    if (!editor) return {};
    const Progress progress(ui_, "Scanning...");
    return ReadWhole(*editor);
}

IOTASourceEditor* IdeServices::GetCurrentSourceEditor() {
    return GetSourceEditorFromModule(GetCurrentIdeModule());
}

std::string IdeServices::GetSelectedSourceText() {
    IOTASourceEditor* editor = GetCurrentSourceEditor();
    if (!editor) return {};
    const Selection selection = SelectionOf(*editor);
    return selection.end > selection.begin
               ? editor->CreateReader()->GetText(selection.begin, selection.end - selection.begin)
               : std::string{};
}

void IdeServices::ReplaceSelectedSourceText(std::string_view text) {
    IOTASourceEditor* editor = GetCurrentSourceEditor();
    if (!editor) return;
    const Selection selection = SelectionOf(*editor);
    const auto writer = editor->CreateUndoableWriter();
    writer->CopyTo(selection.begin);
    writer->DeleteTo(std::max(selection.begin, selection.end));
    writer->Insert(text);
}

int IdeServices::GetLineByPos(std::string_view text, std::size_t position) {
    const std::string_view before = CharPrefix(text, position > 0 ? position - 1 : 0);
    int line = 1;
    for (std::size_t at = before.find("\r\n"); at != std::string_view::npos; at = before.find("\r\n", at + 2))
        ++line;
    return line;
}

int IdeServices::Pos2Line4CurrentSource(std::size_t position, std::string_view text) {
    IOTASourceEditor* editor = GetCurrentSourceEditor();
    if (!editor) return -1;
    if (modeMarker == SelectionMarker) position += SelectionOf(*editor).begin;
    return GetLineByPos(text, position);
}

} // namespace glotta
