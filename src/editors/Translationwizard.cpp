#include "editors/Translationwizard.h"

#include "editors/WizardMemo.h"

#include <algorithm>

namespace glotta {

namespace {

// Forms without a component get the one that the options name; the others keep theirs.
std::vector<WizardForm> RowsOf(FormsList& forms, const std::string& defaultComponent) {
    std::vector<WizardForm> rows;
    for (const FormsListItem* item : forms.Selected())
        rows.push_back({item->formName, item->glotta,
                        item->glotta.empty() ? defaultComponent : std::string(NoComponent)});
    return rows;
}

std::string FailureText(const std::vector<WizardActions::Failure>& failures) {
    std::string text = "The following forms could not be configured and are left as they were:";
    for (const WizardActions::Failure& failure : failures)
        text += "\r\n" + failure.form + (failure.reason.empty() ? "" : ": " + failure.reason);
    return text;
}

} // namespace

TfrmTranslationWizard::TfrmTranslationWizard(Context context)
    : lvSelectedForms(RowsOf(context.ide.Forms(), context.settings.DefaultComp)),
      context_(std::move(context)) {
    caption = "Translation Wizard";
    GlottaClasses.emplace_back(NoComponent);
    GlottaClasses.insert(GlottaClasses.end(), WizardClasses.begin(), WizardClasses.end());
    for (const FormsListItem& item : context_.ide.Forms().items)
        FormNames.push_back(item.formName);
    const auto known = [this](const std::string& form) {
        return std::find(FormNames.begin(), FormNames.end(), form) != FormNames.end() ? form : std::string();
    };
    cbDispatcherForm.Set(known(context_.dispatcherForm));
    cbCommonForm.Set(known(context_.commonForm));
    SetUpActions();
    lvSelectedForms.OnChange = [this] { FormSelected(); };
    cbGlottaToInsert.OnChange = [this] { InsertChosen(); };
    cbDispatcherForm.OnChange = [this] { RefillDispatchers(); };
    cbCommonForm.OnChange = [this] { RefillContainers(); };
    ckbSetCommonContainer.OnChange = ckbChangeProperties.OnChange = [this] { EnableChoices(); };
    FormSelected();
    EnableChoices();
    SetPage(tsWelcome);
}

void TfrmTranslationWizard::SetUpActions() {
    btnBack = {"<< &Back",
               {},
               {},
               [this] { SetPage(WizardPage(Page() - 1)); },
               [this] { return BackVisible() && Page() < tsPerform; },
               {}};
    btnNext = {
        "&Next >>", {}, {}, [this] { SetPage(WizardPage(Page() + 1)); }, [this] { return CanGoNext(); }, {}};
    btnClose = {"Close",
                {},
                {},
                [this] { Close(UiPort(), Page() == tsFinal ? ModalResult::OK : ModalResult::Cancel); },
                [this] { return Page() != tsPerform; },
                {}};
    lbStructure = {"Click here to display recommended structure preview...",
                   {},
                   {},
                   [this] { imgStructure.Set(true); },
                   {},
                   {}};
    rbSetDispatcher = {"Set &LangDispatcher property to", {}, {},
                       [this] { SetManually(false); },    {}, [this] { return !manually_; }};
    rbSetManually = {"Set languages settings &manually", {}, {},
                     [this] { SetManually(true); },      {}, [this] { return manually_; }};
    btnCreateDispatcher = {"Create &new...",
                           {},
                           {},
                           [this] { CreateDispatcher(); },
                           [this] { return !manually_ && !cbDispatcherForm().empty(); },
                           {}};
    btnConfigureDispatcher = {"&Configure...",
                              {},
                              {},
                              [this] { ConfigureDispatcher(); },
                              [this] { return !manually_ && CanGoNextDispatcher(); },
                              {}};
    btnConfigureLanguages = {
        "&Configure...", {}, {}, [this] { ConfigureManually(); }, [this] { return manually_; }, {}};
}

// --- pages ---

bool TfrmTranslationWizard::CanGoNext() const {
    if (Page() == tsForms) return lvSelectedForms.RowCount() > 0;
    if (Page() == tsLanguageSettings) return CanGoNextDispatcher() && CanGoNextCommon();
    return Page() < tsPerform;
}

void TfrmTranslationWizard::SetPage(WizardPage page) {
    imgStructure.Set(false);
    if (page == tsLanguageSettings) EnterLanguages();
    if (page == tsActionsMemo) memActions.Set(FillRequestedActions(Choices()));
    const WizardHeading heading = HeadingOf(page);
    lbTitle.Set(std::string(heading.title));
    lbSubHeading.Set(std::string(heading.subHeading));
    pcPages.Set(page);
    if (OnView) OnView();
    if (page == tsPerform) Perform();
}

void TfrmTranslationWizard::FormSelected() {
    const auto rows = lvSelectedForms.TargetRows();
    cbGlottaToInsert.Set(rows.empty() ? std::string() : lvSelectedForms.Rows()[rows.front()].insert);
    cbGlottaToInsert.Enable(!rows.empty());
}

void TfrmTranslationWizard::InsertChosen() {
    if (cbGlottaToInsert().empty()) return;
    for (const std::size_t row : lvSelectedForms.TargetRows())
        lvSelectedForms.SetInsert(row, cbGlottaToInsert());
}

WizardChoices TfrmTranslationWizard::Choices() const {
    WizardChoices choices;
    choices.forms = lvSelectedForms.Rows();
    choices.setDispatcher = !manually_;
    choices.dispatcherForm = cbDispatcherForm();
    choices.dispatcher = cbDispatcher();
    choices.languages = edLanguagesToUse();
    choices.setCommonContainer = ckbSetCommonContainer();
    choices.commonForm = cbCommonForm();
    choices.commonContainer = cbCommonContainer();
    choices.changeProperties = ckbChangeProperties();
    for (std::size_t i = 0; i < WizardPropertyCount; ++i)
        choices.properties[i] = gbProperties[i]();
    return choices;
}

// --- the end ---

// Without dispatcher or container nothing was done: the confirmation shows again.
void TfrmTranslationWizard::Perform() {
    pbProgress.Set(0);
    lvProgress.Reset();
    const WizardChoices choices = Choices();
    WizardActions actions(context_.ide, context_.translation, choices);
    actions.OnTask = [this](WizardTask task, TaskState state) { lvProgress.SetState(task, state); };
    actions.OnAdvance = [this] { pbProgress.Set(pbProgress() + 1); };
    try {
        failures_ = actions.PerformRequestedActions();
    } catch (...) {
        SetPage(tsActionsMemo);
        throw;
    }
    Finish();
}

void TfrmTranslationWizard::Finish() {
    lbFinal.Set(failures_.empty() ? "All requested actions are done. Click Close button to leave the Wizard."
                                  : FailureText(failures_));
    SetPage(tsFinal);
    if (context_.RunItemClick) context_.RunItemClick();
    if (!failures_.empty()) UiPort().MessageDlg(FailureText(failures_), MsgType::Warning);
}

bool TfrmTranslationWizard::CloseQuery(Ui& ui, ModalResult result) {
    if (Page() == tsPerform) return false; // it is at work
    return result == ModalResult::OK || Page() == tsFinal ||
           ui.MessageDlg("Are you sure want to quit Wizard?", MsgType::Warning,
                         {ModalResult::Yes, ModalResult::No}) == ModalResult::Yes;
}

} // namespace glotta
