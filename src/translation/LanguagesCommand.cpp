// The command "Languages": the language list of the selected form's component, or of its dispatcher.
#include "ide/FileAsItWas.h"
#include "platform/Error.h"
#include "platform/Text.h"
#include "translation/ConfigureLanguages.h"
#include "translation/FormTranslation.h"

namespace glotta {

namespace {

// The dispatcher's form and name as the component's property writes them: "Data1.GlottaDispatcher1", or the
// name alone when it stands on the same form. An empty name: not linked.
struct DispatcherLink {
    std::string form, name;
};

DispatcherLink LinkOf(const TgxCustomLang& glotta, const std::string& formName) {
    const FormProperty* property = glotta.Node().Find("LangDispatcher");
    if (!property || property->value.kind != FormValueKind::Identifier) return {};
    const std::string& path = property->value.text;
    const auto dot = path.find('.');
    if (dot == std::string::npos) return {formName, path};
    return {path.substr(0, dot), path.substr(dot + 1)};
}

std::vector<std::string> DefaultLanguages(const SettingsValues& settings) {
    const auto defaults = SplitLines(settings.DefaultLangNames);
    std::vector<std::string> names;
    while (int(names.size()) < std::min(settings.NumLang, TfrmConfigureLanguages::MaxLanguages))
        names.push_back(NextLanguageName(names, defaults));
    return names;
}

} // namespace

// The names to start from, and the dispatcher that the form's component is linked to.
struct FormTranslation::FormLanguages {
    std::vector<std::string> names;
    DispatcherLink link;
};

FormTranslation::FormLanguages FormTranslation::LanguagesOf(const FormsListItem& item) {
    return WithFileAsItWas(ide_, item.fileName, [&]() -> FormLanguages {
        if (const TgxCustomLang* glotta = GetGlotta(item.formName))
            return {glotta->LangNames(), LinkOf(*glotta, item.formName)};
        return {DefaultLanguages(settings_), {}};
    });
}

std::vector<std::string> FormTranslation::LanguagesOfDispatcher(const FormsListItem& item,
                                                                const std::string& name) {
    using Names = std::optional<std::vector<std::string>>;
    const Names names = WithFileAsItWas(ide_, item.fileName, [&]() -> Names {
        const auto* dispatcher =
            dynamic_cast<TGlottaDispatcher*>(ide_.GetComponentOnForm(item.formName, name));
        return dispatcher ? Names(dispatcher->LangNames()) : Names();
    });
    if (!names) throw Error(item.formName + "." + name + " is not a dispatcher");
    return *names;
}

void FormTranslation::sbLanguagesClick() {
    const auto selected = ide_.Forms().Selected();
    if (selected.empty()) return;
    FormsListItem& item = *selected.front();
    Ui& ui = ide_.GetUi();
    try {
        auto [names, link] = LanguagesOf(item);
        FormsListItem* dispatcherForm = nullptr;
        if (!link.name.empty() &&
            ui.MessageDlg(
                "Selected component is linked to a dispatcher! Do you wish to edit languages of the "
                "dispatcher component?",
                MsgType::Confirmation, {ModalResult::Yes, ModalResult::No}) == ModalResult::Yes) {
            dispatcherForm = ide_.Forms().FindText(link.form);
            if (!dispatcherForm) throw Error("the dispatcher's form " + link.form + " is not in the project");
            names = LanguagesOfDispatcher(*dispatcherForm, link.name);
        }
        if (ConfigureLanguages(ui, names, settings_.DefaultLangNames) != ModalResult::OK) return;
        const int count = int(names.size());
        if (dispatcherForm)
            ConfigureLangComponent(count, *dispatcherForm, names, link.name, "TGlottaDispatcher", false);
        else
            SetUpLang(count, item, names, "TgxCustomLang", true);
    } catch (const Error& error) {
        ui.MessageDlg(std::string("Lang error: ") + error.what(), MsgType::Error);
    }
    Refresh();
}

} // namespace glotta
