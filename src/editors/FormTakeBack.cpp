#include "editors/FormTakeBack.h"

namespace glotta {

namespace {

std::string TextOf(IOTASourceEditor& editor) {
    return editor.CreateReader()->GetText(0, std::string::npos);
}

} // namespace

FormTakeBack::FormTakeBack(IdeServices& ide, FormsListItem& item)
    : ide_(ide), formName_(item.formName), fileName_(item.fileName), entry_(item),
      wasOpen_(ide.IsFileOpen(item.fileName)) {
    if (!wasOpen_) return;
    IOTAModule* module = ide_.GetModuleFromFileName(fileName_);
    RememberUnit(*module);
    IOTAFormEditor* editor = IdeServices::GetFormEditorFromModule(module);
    if (!editor) return;
    wasModified_ = editor->Modified();
    for (TComponent* component : editor->Designer().Root().Components()) {
        components_.insert(component);
        if (auto* glotta = dynamic_cast<TgxCustomLang*>(component)) {
            glotta->BeforeWrite(); // its node holds all of it now
            properties_.emplace_back(glotta, glotta->Node().properties);
        }
    }
}

void FormTakeBack::RememberUnit(IOTAModule& module) {
    for (int i = 0; i < module.GetModuleFileCount(); ++i)
        if (auto* editor = dynamic_cast<IOTASourceEditor*>(module.GetModuleFileEditor(i)))
            texts_.emplace_back(editor, TextOf(*editor));
}

void FormTakeBack::TakeBack() {
    if (FormsListItem* item = ide_.Forms().FindExact(formName_)) {
        item->languages = entry_.languages;
        item->glotta = entry_.glotta;
        item->imageIndex = entry_.imageIndex;
    }
    if (!wasOpen_) {
        if (ide_.IsFileOpen(fileName_)) ide_.CloseFileUnsaved(fileName_);
        return;
    }
    UndoUnit();
    if (IOTAFormEditor* editor = IdeServices::GetFormEditorFromModule(ide_.GetModuleFromFileName(fileName_)))
        RestoreComponents(*editor);
}

void FormTakeBack::UndoUnit() {
    for (const auto& [editor, text] : texts_)
        while (TextOf(*editor) != text && editor->Undo()) {
        }
}

void FormTakeBack::RestoreComponents(IOTAFormEditor& editor) {
    if (!editor.Modified()) return; // so nothing was changed
    const std::vector<TComponent*> present = editor.Designer().Root().Components();
    for (TComponent* component : present)
        if (!components_.contains(component)) editor.DeleteComponent(*component);
    for (const auto& [glotta, properties] : properties_) {
        glotta->Node().properties = properties;
        glotta->Loaded();
    }
    if (wasModified_)
        editor.MarkModified();
    else
        editor.MarkTakenBack();
}

} // namespace glotta
