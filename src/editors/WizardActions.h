// What the translation wizard does to the forms, once everything is chosen.
#pragma once
#include "editors/FormTakeBack.h"
#include "editors/WizardChoices.h"
#include "translation/FormTranslation.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

enum class TaskState { Pending, Running, Done, Skipped };
std::string_view TaskStateName(TaskState state);

enum WizardTask { ObtainDispatcher, ObtainContainer, ConfigureForms, WizardTaskCount };
inline constexpr std::array<std::string_view, WizardTaskCount> WizardTasks = {
    "Obtain dispatcher interface", "Obtain \"CommonContainer\" interface", "Insert and configure components"};

class WizardActions {
public:
    // A form that is as it was before, and why; the reason is empty when it was told already.
    struct Failure {
        std::string form, reason;
    };

    WizardActions(IdeServices& ide, FormTranslation& translation, const WizardChoices& choices);

    std::function<void(WizardTask, TaskState)> OnTask;
    std::function<void()> OnAdvance; // StepCount times in all
    int StepCount() const { return WizardTaskCount + int(choices_.forms.size()); }

    // Throws Error or EGlottaSilent, and has changed nothing, when dispatcher or container are not to be had.
    std::vector<Failure> PerformRequestedActions();

private:
    void RunTask(WizardTask task, bool wanted, const std::function<void()>& act);
    void FindComponent(const std::string& formName, const std::string& name);
    void ProvideContainer();
    void ConfigureAll();
    void Configure(const WizardForm& row);
    void SetUp(TgxCustomLang& component, FormsListItem& item);
    TgxCustomLang& ComponentFor(const WizardForm& row);
    TgxCustomLang& Insert(const std::string& formName, const std::string& componentClass);
    FormsListItem& ItemOf(const std::string& formName);
    void Advance() {
        if (OnAdvance) OnAdvance();
    }

    IdeServices& ide_;
    FormTranslation& translation_;
    const WizardChoices& choices_;
    std::vector<std::string> languages_;
    std::string container_;                     // the common container's name
    std::optional<FormTakeBack> containerForm_; // of a container that the wizard inserted
    std::vector<Failure> failures_;
};

} // namespace glotta
