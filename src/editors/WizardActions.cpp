#include "editors/WizardActions.h"

#include "ide/FileAsItWas.h"
#include "platform/Error.h"
#include "platform/StringList.h"

#include <algorithm>

namespace glotta {

namespace {

std::vector<std::string> CommaItems(const std::string& text) {
    TStringList items;
    items.SetCommaText(text);
    return items.Items();
}

// As the form file names a component: one of another form by that form's name, too.
void SetReference(TgxCustomLang& component, const std::string& ownForm, std::string_view property,
                  const std::string& form, const std::string& name) {
    component.Node().Set(property, FormValue::Identifier(form == ownForm ? name : form + "." + name));
}

} // namespace

std::string_view TaskStateName(TaskState state) {
    constexpr std::string_view names[] = {"Pending", "Running", "Done", "Skipped"};
    return names[static_cast<std::size_t>(state)];
}

WizardActions::WizardActions(IdeServices& ide, FormTranslation& translation, const WizardChoices& choices)
    : ide_(ide), translation_(translation), choices_(choices), languages_(CommaItems(choices.languages)) {}

std::vector<WizardActions::Failure> WizardActions::PerformRequestedActions() {
    RunTask(ObtainDispatcher, choices_.setDispatcher,
            [this] { FindComponent(choices_.dispatcherForm, choices_.dispatcher); });
    RunTask(ObtainContainer, choices_.setCommonContainer, [this] { ProvideContainer(); });
    RunTask(ConfigureForms, true, [this] { ConfigureAll(); });
    return std::move(failures_);
}

void WizardActions::RunTask(WizardTask task, bool wanted, const std::function<void()>& act) {
    const auto tell = [&](TaskState state) {
        if (OnTask) OnTask(task, state);
    };
    if (wanted) {
        tell(TaskState::Running);
        act();
    }
    tell(wanted ? TaskState::Done : TaskState::Skipped);
    Advance();
}

void WizardActions::FindComponent(const std::string& formName, const std::string& name) {
    const bool found = WithFileAsItWas(ide_, ItemOf(formName).fileName,
                                       [&] { return ide_.GetComponentOnForm(formName, name) != nullptr; });
    if (!found) throw Error(formName + " has no component " + name);
}

void WizardActions::ProvideContainer() {
    const std::string newClass = choices_.NewContainerClass();
    if (newClass.empty()) {
        container_ = choices_.commonContainer;
        return FindComponent(choices_.commonForm, container_);
    }
    containerForm_.emplace(ide_, ItemOf(choices_.commonForm));
    try {
        container_ = Insert(choices_.commonForm, newClass).Name();
    } catch (...) {
        containerForm_->TakeBack();
        throw;
    }
}

// The form of a new container comes first: should it fail, no other form refers to the container yet.
void WizardActions::ConfigureAll() {
    std::vector<const WizardForm*> rows;
    for (const WizardForm& row : choices_.forms)
        rows.push_back(&row);
    std::stable_partition(rows.begin(), rows.end(), [this](const WizardForm* row) {
        return containerForm_ && row->form == choices_.commonForm;
    });
    for (const WizardForm* row : rows) {
        if (row->Inserts() || !row->used.empty()) Configure(*row);
        Advance();
    }
}

void WizardActions::Configure(const WizardForm& row) {
    FormsListItem& item = ItemOf(row.form);
    const bool holdsContainer = containerForm_ && row.form == choices_.commonForm;
    std::optional<FormTakeBack> own;
    FormTakeBack& before = holdsContainer ? *containerForm_ : own.emplace(ide_, item);
    try {
        SetUp(ComponentFor(row), item);
        ide_.MarkModifiedForm(item.fileName);
        if (before.WasOpen()) return;
        if (!ide_.SaveFile(item.fileName)) throw Error(item.fileName + " could not be saved");
        ide_.CloseFile(item.fileName);
    } catch (const EGlottaSilent&) {
        before.TakeBack();
        if (holdsContainer) throw;
        failures_.push_back({row.form, {}});
    } catch (const std::exception& error) {
        before.TakeBack();
        if (holdsContainer) throw;
        failures_.push_back({row.form, error.what()});
    }
}

TgxCustomLang& WizardActions::ComponentFor(const WizardForm& row) {
    if (containerForm_ && row.form == choices_.commonForm)
        return dynamic_cast<TgxCustomLang&>(*ide_.GetComponentOnForm(row.form, container_));
    if (row.Inserts()) return Insert(row.form, row.insert);
    TgxCustomLang* const present = translation_.GetGlotta(row.form);
    if (!present) throw Error("the localization component of the form cannot be reached");
    return *present;
}

TgxCustomLang& WizardActions::Insert(const std::string& formName, const std::string& componentClass) {
    TComponent* const inserted = translation_.InsertComponentOnForm(formName, componentClass);
    if (!inserted) throw EGlottaSilent(); // told already
    auto* const glotta = dynamic_cast<TgxCustomLang*>(inserted);
    if (!glotta) throw Error(componentClass + " is not a localization component");
    FormsListItem& item = ItemOf(formName);
    if (item.glotta.empty()) item.glotta = glotta->ClassName();
    return *glotta;
}

void WizardActions::SetUp(TgxCustomLang& component, FormsListItem& item) {
    if (!ide_.GetDesignerByFormName(item.formName)) throw Error("the form has no designer");
    if (choices_.setDispatcher)
        SetReference(component, item.formName, "LangDispatcher", choices_.dispatcherForm,
                     choices_.dispatcher);
    else if (!languages_.empty()) // a list without names would cut all languages but one
        translation_.ConfigureLangComponent(int(languages_.size()), item, languages_, component.Name(),
                                            "TgxCustomLang", false);
    if (choices_.setCommonContainer && component.InheritsFrom("TGlottaLinked"))
        SetReference(component, item.formName, "CommonContainer", choices_.commonForm, container_);
    if (choices_.changeProperties)
        for (std::size_t i = 0; i < WizardPropertyCount; ++i)
            WizardProperties[i].set(component, choices_.properties[i]);
    item.languages = std::to_string(component.NumberOfLanguages());
    item.imageIndex = 1;
}

FormsListItem& WizardActions::ItemOf(const std::string& formName) {
    FormsListItem* const item = ide_.Forms().FindExact(formName);
    if (!item) throw Error("the form " + formName + " is not in the list of forms");
    return *item;
}

} // namespace glotta
