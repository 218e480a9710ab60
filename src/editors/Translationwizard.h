// The translation wizard: puts localization components on the selected forms and connects them, page by page.
#pragma once
#include "editors/WizardActions.h"
#include "editors/WizardChoices.h"
#include "editors/WizardGrids.h"
#include "editors/WizardPages.h"
#include "platform/Form.h"
#include "translation/FormTranslation.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

class TfrmTranslationWizard : public TForm {
public:
    struct Context {
        IdeServices& ide; // whose selected forms it works on
        FormTranslation& translation;
        const SettingsValues& settings;
        // The forms of the project's options, shown first; empty for none.
        std::string dispatcherForm = {}, commonForm = {};
        std::function<void()> RunItemClick = {}; // brings the expert's main window up to date
    };
    explicit TfrmTranslationWizard(Context context);

    TField<int> pcPages{tsWelcome};
    TField<std::string> lbTitle, lbSubHeading;
    TAction btnBack, btnNext, btnClose;
    bool BackVisible() const { return Page() != tsWelcome; }
    WizardPage Page() const { return WizardPage(pcPages()); }

    // tsForms
    WizardFormsGrid lvSelectedForms;
    TField<std::string> cbGlottaToInsert;
    std::vector<std::string> GlottaClasses;
    TAction lbStructure;              // shows the picture
    TField<bool> imgStructure{false}; // whether it shows
    static constexpr const char* StructureCaption = "Recommended Structure. (Click on image to close)";

    // tsLanguageSettings
    TAction rbSetDispatcher, rbSetManually;
    TField<std::string> cbDispatcherForm, cbDispatcher, edLanguagesToUse;
    TAction btnCreateDispatcher, btnConfigureDispatcher, btnConfigureLanguages;
    TField<bool> ckbSetCommonContainer{true};
    TField<std::string> cbCommonForm, cbCommonContainer;
    std::vector<std::string> FormNames, Dispatchers, CommonContainers; // of the combos
    bool CanGoNextDispatcher() const;
    bool CanGoNextCommon() const;

    // tsSetProperties
    TField<bool> ckbChangeProperties{false};
    std::array<TField<bool>, WizardPropertyCount> gbProperties;

    TField<std::string> memActions; // tsActionsMemo
    // tsPerform
    WizardProgressGrid lvProgress;
    TField<int> pbProgress{0};
    int ProgressMax() const { return WizardTaskCount + int(lvSelectedForms.RowCount()); }
    TField<std::string> lbFinal; // tsFinal

    bool CloseQuery(Ui& ui, ModalResult result) override;
    std::function<void()> ShowHelp; // the host's
    // The forms that could not be done, once all is done.
    const std::vector<WizardActions::Failure>& Failures() const { return failures_; }

private:
    void SetUpActions();
    void SetPage(WizardPage page);
    bool CanGoNext() const;
    void FormSelected();
    void InsertChosen();
    void SetManually(bool manually);
    void EnterLanguages();
    void EnableChoices();
    void RefillDispatchers();
    void RefillContainers();
    std::vector<std::string> ComponentsOn(const std::string& formName,
                                          const std::function<bool(const TComponent&)>& wanted);
    void CreateDispatcher();
    void ConfigureDispatcher();
    void ConfigureManually();
    std::string FirstDispatcherForm() const;
    std::string FirstContainerForm() const;
    WizardChoices Choices() const;
    void Perform();
    void Finish();
    Ui& UiPort() const { return context_.ide.GetUi(); }

    Context context_;
    bool manually_ = false;
    std::vector<WizardActions::Failure> failures_;
};

} // namespace glotta
