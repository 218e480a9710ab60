// The wizard's page of languages, dispatcher and common container.
#include "editors/Translationwizard.h"
#include "ide/FileAsItWas.h"
#include "platform/Error.h"
#include "platform/StringList.h"
#include "platform/Text.h"
#include "translation/ConfigureLanguages.h"

#include <algorithm>

namespace glotta {

namespace {

std::string CommaText(std::vector<std::string> items) {
    return TStringList(std::move(items)).CommaText();
}

// The chosen item when there still is one of that name, else the first.
std::string Chosen(const std::vector<std::string>& items, const std::string& before) {
    if (std::find(items.begin(), items.end(), before) != items.end()) return before;
    return items.empty() ? std::string() : items.front();
}

// As many names as a new component has languages.
std::vector<std::string> NamesOfNewDispatcher(const SettingsValues& settings) {
    std::vector<std::string> names = SplitLines(settings.DefaultLangNames);
    const auto count = std::size_t(std::clamp(settings.NumLang, 1, TfrmConfigureLanguages::MaxLanguages));
    if (names.size() > count) names.resize(count);
    while (names.size() < count)
        names.push_back(DefaultLanguageName(int(names.size()) + 1));
    return names;
}

} // namespace

bool TfrmTranslationWizard::CanGoNextDispatcher() const {
    return manually_ || (!cbDispatcher().empty() && cbDispatcher() != NoComponent);
}

bool TfrmTranslationWizard::CanGoNextCommon() const {
    return !ckbSetCommonContainer() || std::find(CommonContainers.begin(), CommonContainers.end(),
                                                 cbCommonContainer()) != CommonContainers.end();
}

void TfrmTranslationWizard::SetManually(bool manually) {
    manually_ = manually;
    EnableChoices();
}

void TfrmTranslationWizard::EnableChoices() {
    cbDispatcherForm.Enable(!manually_);
    cbDispatcher.Enable(!manually_);
    edLanguagesToUse.Enable(manually_);
    cbCommonForm.Enable(ckbSetCommonContainer());
    cbCommonContainer.Enable(ckbSetCommonContainer());
    for (TField<bool>& property : gbProperties)
        property.Enable(ckbChangeProperties());
    if (OnView) OnView();
}

void TfrmTranslationWizard::EnterLanguages() {
    if (edLanguagesToUse().empty()) {
        const std::vector<std::string> names = SplitLines(context_.settings.DefaultLangNames);
        edLanguagesToUse.Set(CommaText(names.empty() ? NamesOfNewDispatcher(context_.settings) : names));
    }
    if (cbDispatcherForm().empty()) cbDispatcherForm.Set(FirstDispatcherForm());
    if (cbCommonForm().empty()) cbCommonForm.Set(FirstContainerForm());
    if (!cbDispatcherForm().empty()) RefillDispatchers();
    if (!cbCommonForm().empty()) RefillContainers();
}

std::string TfrmTranslationWizard::FirstDispatcherForm() const {
    for (const FormsListItem& item : context_.ide.Forms().items)
        if (item.dispatcher) return item.formName;
    return {};
}

// The first form that has, or gets, a component to which others can be chained.
std::string TfrmTranslationWizard::FirstContainerForm() const {
    for (const WizardForm& row : lvSelectedForms.Rows())
        if (CanBeContainer(row.used) || CanBeContainer(row.insert)) return row.form;
    for (const FormsListItem& item : context_.ide.Forms().items)
        if (CanBeContainer(item.glotta)) return item.formName;
    return {};
}

std::vector<std::string>
TfrmTranslationWizard::ComponentsOn(const std::string& formName,
                                    const std::function<bool(const TComponent&)>& wanted) {
    std::vector<std::string> names;
    const FormsListItem* item = context_.ide.Forms().FindExact(formName);
    if (!item) return names;
    return WithFileAsItWas(context_.ide, item->fileName, [&] {
        if (!context_.ide.OpenFile(item->fileName, false)) throw EGlottaSilent();
        if (const TComponent* root = context_.ide.GetOwnerByName(formName))
            for (const TComponent* component : root->Components())
                if (wanted(*component)) names.push_back(component->Name());
        return names;
    });
}

void TfrmTranslationWizard::RefillDispatchers() {
    Dispatchers = ComponentsOn(cbDispatcherForm(), [](const TComponent& component) {
        return dynamic_cast<const TGlottaDispatcher*>(&component) != nullptr;
    });
    if (Dispatchers.empty()) Dispatchers.emplace_back(NoComponent);
    cbDispatcher.Set(Chosen(Dispatchers, cbDispatcher()));
    if (OnView) OnView();
}

void TfrmTranslationWizard::RefillContainers() {
    CommonContainers = ComponentsOn(cbCommonForm(), [](const TComponent& component) {
        return dynamic_cast<const TgxCustomLang*>(&component) && CanBeContainer(component.ClassName());
    });
    for (const WizardForm& row : lvSelectedForms.Rows())
        if (row.form == cbCommonForm() && CanBeContainer(row.insert))
            CommonContainers.push_back(NewlyInserted(row.insert));
    cbCommonContainer.Set(Chosen(CommonContainers, cbCommonContainer()));
    if (OnView) OnView();
}

// A form that was closed is saved and closed again; should that fail, it is as it was.
void TfrmTranslationWizard::CreateDispatcher() {
    if (UiPort().MessageDlg("This will insert new TGlottaDispatcher component on selected form! Continue?",
                            MsgType::Warning, {ModalResult::Yes, ModalResult::No}) != ModalResult::Yes)
        return;
    IdeServices& ide = context_.ide;
    FormsListItem* const item = ide.Forms().FindExact(cbDispatcherForm());
    if (!item) throw Error("the form " + cbDispatcherForm() + " is not in the list of forms");
    const std::vector<std::string> names = NamesOfNewDispatcher(context_.settings);
    FormTakeBack before(ide, *item);
    try {
        const TComponent* dispatcher =
            context_.translation.InsertComponentOnForm(item->formName, "TGlottaDispatcher");
        if (!dispatcher) return before.TakeBack();
        const std::string name = dispatcher->Name();
        context_.translation.ConfigureLangComponent(int(names.size()), *item, names, name,
                                                    "TGlottaDispatcher", false);
        if (!before.WasOpen()) {
            if (!ide.SaveFile(item->fileName)) throw Error(item->fileName + " could not be saved");
            ide.CloseFile(item->fileName);
        }
        item->dispatcher = true;
        RefillDispatchers();
        cbDispatcher.Set(name);
    } catch (...) {
        before.TakeBack();
        throw;
    }
}

void TfrmTranslationWizard::ConfigureDispatcher() {
    FormsListItem* const item = context_.ide.Forms().FindExact(cbDispatcherForm());
    if (!item) return;
    std::vector<std::string> names = context_.translation.LanguagesOfDispatcher(*item, cbDispatcher());
    if (ConfigureLanguages(UiPort(), names, context_.settings.DefaultLangNames) == ModalResult::OK)
        context_.translation.ConfigureLangComponent(int(names.size()), *item, names, cbDispatcher(),
                                                    "TGlottaDispatcher", false);
}

void TfrmTranslationWizard::ConfigureManually() {
    TStringList names;
    names.SetCommaText(edLanguagesToUse());
    std::vector<std::string> items = names.Items();
    if (ConfigureLanguages(UiPort(), items, context_.settings.DefaultLangNames) == ModalResult::OK)
        edLanguagesToUse.Set(CommaText(std::move(items)));
}

} // namespace glotta
