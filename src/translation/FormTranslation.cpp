#include "translation/FormTranslation.h"

#include "platform/Error.h"
#include "platform/Text.h"

namespace glotta {

namespace {

// Both kinds of component with languages offer the same operations without a common ancestor.
template <class Component>
void ApplyLanguages(Component& component, int numLang, std::vector<std::string> names) {
    if (!names.empty()) {
        if (numLang >= 0 && names.size() > std::size_t(numLang)) names.resize(std::size_t(numLang));
        component.SetLangNames(names);
    }
    component.SetNumberOfLanguages(numLang);
    const std::vector<std::string> has = component.LangNames();
    if (const int active = component.ActiveLanguage(); active >= 1 && std::size_t(active) <= has.size())
        component.SetLanguage(has[std::size_t(active) - 1]);
}

// A run over the selected forms that can be stopped between two of them; over one form it is none.
class ManyForms {
public:
    explicit ManyForms(IdeServices& ide) {
        if (ide.Forms().Selected().size() > 1) progress_.emplace(ide.GetUi(), "Opening forms...");
    }
    bool Cancelled() const { return progress_ && progress_->Cancelled(); }

private:
    std::optional<Progress> progress_;
};

} // namespace

void FormTranslation::Refresh() {
    if (UpdateStatusBar) UpdateStatusBar();
}

std::vector<TgxCustomLang*> FormTranslation::LangComponents(const std::string& formName) {
    std::vector<TgxCustomLang*> found;
    if (TComponent* root = ide_.GetOwnerByName(formName))
        for (TComponent* component : root->Components())
            if (auto* glotta = dynamic_cast<TgxCustomLang*>(component)) found.push_back(glotta);
    return found;
}

TgxCustomLang* FormTranslation::GetGlotta(const std::string& formName) {
    const FormsListItem* item = ide_.Forms().FindText(formName);
    if (formName.empty() || !item || !ide_.OpenFile(item->fileName, false)) return nullptr;
    const auto found = LangComponents(item->formName);
    return found.empty() ? nullptr : found.front();
}

void FormTranslation::InsertTGlotta(FormsListItem& item) {
    if (item.languages != "0") return Refresh();
    if (!ide_.OpenFile(item.fileName, true)) throw EGlottaSilent();
    if (TgxCustomLang* glotta = GetGlotta(item.formName)) {
        item.languages = std::to_string(glotta->NumberOfLanguages());
        item.imageIndex = 1;
    } else if (InsertComponentOnForm(item.formName, settings_.DefaultComp)) {
        item.languages = std::to_string(settings_.NumLang);
        item.glotta = settings_.DefaultComp;
        item.imageIndex = 1;
        // The new component alone: forms selected behind this one keep the languages they have.
        ConfigureLangComponent(settings_.NumLang, item, SplitLines(settings_.DefaultLangNames), {},
                               "TgxCustomLang", false);
    }
    Refresh();
}

TComponent* FormTranslation::InsertComponentOnForm(const std::string& formName,
                                                   const std::string& componentClass) {
    const FormsListItem* item = ide_.Forms().FindExact(formName);
    if (!item || !ide_.OpenFile(item->fileName, false)) throw EGlottaSilent();
    if (!ide_.TestForCorrectForm(formName)) return nullptr;
    IOTAFormEditor* editor = IdeServices::GetFormEditorFromModule(ide_.GetModuleFromFileName(item->fileName));
    if (!editor) return nullptr;
    try {
        return &editor->CreateComponent(componentClass);
    } catch (const Error& error) {
        ide_.GetUi().MessageDlg("Unable to insert " + componentClass + " component! Error message:\r\n" +
                                    error.what() +
                                    "\r\nPlease make sure the active project is a VCL application. If you "
                                    "have installed both CLX and VCL "
                                    "version please repeat your last action once again.",
                                MsgType::Error, {ModalResult::OK}, "TGlotta Expert (VCL Edition)");
        return nullptr;
    }
}

void FormTranslation::SetUpLang(int numLang, FormsListItem& first, const std::vector<std::string>& langNames,
                                std::string_view componentClass, bool insertIfNone) {
    auto& items = ide_.Forms().items;
    ManyForms many(ide_);
    for (FormsListItem* item = &first; item != items.data() + items.size(); ++item) {
        if (item != &first && !item->selected) continue;
        if (many.Cancelled()) return;
        ConfigureLangComponent(numLang, *item, langNames, {}, componentClass, insertIfNone);
        item->selected = item->focused = false;
    }
}

void FormTranslation::ConfigureLangComponent(int numLang, FormsListItem& item,
                                             const std::vector<std::string>& langNames,
                                             std::string_view componentName, std::string_view componentClass,
                                             bool insertIfNone) {
    if (item.languages == "0" && insertIfNone) InsertTGlotta(item);
    const bool wasOpen = ide_.IsFileOpen(item.fileName);
    if (!wasOpen && !ide_.OpenFile(item.fileName, false)) throw EGlottaSilent();
    const bool changed = ide_.TestForCorrectForm(item.formName) &&
                         ApplyToForm(numLang, item, langNames, componentName, componentClass);
    if (changed) ide_.MarkModifiedForm(item.fileName);
    // What could not be saved stays open, so that nothing is lost.
    if (!wasOpen && (!changed || ide_.SaveFile(item.fileName))) ide_.CloseFile(item.fileName);
}

bool FormTranslation::ApplyToForm(int numLang, FormsListItem& item, const std::vector<std::string>& langNames,
                                  std::string_view componentName, std::string_view componentClass) {
    TComponent* root = ide_.GetOwnerByName(item.formName);
    if (!root) return false;
    bool changed = false;
    for (TComponent* component : root->Components()) {
        if (!component->InheritsFrom(componentClass)) continue;
        if (!componentName.empty() && !SameText(component->Name(), componentName)) continue;
        if (auto* dispatcher = dynamic_cast<TGlottaDispatcher*>(component)) {
            ApplyLanguages(*dispatcher, numLang, langNames);
            changed = true;
        } else if (auto* glotta = dynamic_cast<TgxCustomLang*>(component)) {
            ApplyLanguages(*glotta, numLang, langNames);
            item.languages = std::to_string(numLang);
            item.imageIndex = 1;
            changed = true;
        }
    }
    return changed;
}

void FormTranslation::sbCaptionsClick() {
    if (!TransEditorDlg) return;
    ManyForms many(ide_);
    for (FormsListItem* item : ide_.Forms().Selected()) {
        if (many.Cancelled()) return;
        TranslateForm(*item);
    }
}

void FormTranslation::TranslateForm(FormsListItem& item) {
    if (!ide_.OpenFile(item.fileName, false)) throw EGlottaSilent();
    InsertTGlotta(item);
    if (!ide_.TestForCorrectForm(item.formName)) return;
    const auto components = LangComponents(item.formName);
    if (components.size() > 1) {
        ide_.GetUi().MessageDlg("Only one TgxCustomLang", MsgType::Plain);
        return;
    }
    if (!ide_.GetDesignerByFormName(item.formName)) {
        ide_.GetUi().MessageDlg("Nil designer", MsgType::Plain);
        return;
    }
    if (components.empty()) return;
    IOTAFormEditor* editor = IdeServices::GetFormEditorFromModule(ide_.GetModuleFromFileName(item.fileName));
    if (TransEditorDlg(*components.front()) && editor) editor->MarkModified();
}

} // namespace glotta
