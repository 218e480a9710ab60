#include "editors/Translationwizard.h"
#include "ui_TranslationWizardView.h"
#include "workbench/Views.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtGui/QTextOption>

namespace glotta {

namespace {

class TranslationWizardView : public WindowOf<QDialog, Ui_TranslationWizardView, TfrmTranslationWizard> {
public:
    TranslationWizardView(TfrmTranslationWizard& f, Ui& ui, QWidget* parent) : WindowOf(f, ui, parent) {
        BindHeading();
        BindForms();
        BindLanguages();
        BindProperties();
        BindEnd();
        auto& c = controls;
        bind.Bind(*c.pcPages, form.pcPages);
        bind.Bind(*c.btnBack, form.btnBack);
        bind.Bind(*c.btnNext, form.btnNext);
        bind.Bind(*c.btnClose, form.btnClose);
        bind.Always([this, &c] {
            c.btnBack->setVisible(form.BackVisible());
            c.btnHelp->setEnabled(bool(form.ShowHelp));
        });
        connect(c.btnHelp, &QPushButton::clicked, bind.Context(), [this] { bind.Act(form.ShowHelp); });
    }

private:
    void BindHeading() {
        auto& c = controls;
        c.pnHeader->setBackgroundRole(QPalette::Base);
        Enlarge(*c.lbTitle, 1.25);
        Enlarge(*c.lbWelcome, 1.5);
        bind.Bind(*c.lbTitle, form.lbTitle);
        bind.Bind(*c.lbSubHeading, form.lbSubHeading);
    }

    static void Enlarge(QLabel& label, double factor) {
        QFont font = label.font();
        font.setPointSizeF(font.pointSizeF() * factor);
        font.setBold(true);
        label.setFont(font);
    }

    void BindForms() {
        auto& c = controls;
        bind.Bind(*c.lvSelectedForms, form.lvSelectedForms);
        c.lvSelectedForms->SetColumnWidths({220, 150, 150});
        bind.Bind(*c.cbGlottaToInsert, form.cbGlottaToInsert, form.GlottaClasses);
        c.lbStructure->setText("<a href=\"#\">" + Q(form.lbStructure.caption) + "</a>");
        connect(c.lbStructure, &QLabel::linkActivated, bind.Context(),
                [this] { bind.Act([this] { form.lbStructure.Execute(); }); });
        c.lbStructureCaption->setText(Q(form.StructureCaption));
        c.imgStructure->OnClick = [this] { bind.Act([this] { form.imgStructure.Set(false); }); };
        bind.Follow(form.imgStructure, [this, &c] {
            c.stForms->setCurrentWidget(form.imgStructure() ? c.pnStructure : c.pnForms);
        });
    }

    void BindLanguages() {
        auto& c = controls;
        bind.Bind(*c.rbSetDispatcher, form.rbSetDispatcher);
        bind.Bind(*c.cbDispatcherForm, form.cbDispatcherForm, form.FormNames);
        bind.Bind(*c.cbDispatcher, form.cbDispatcher, form.Dispatchers);
        bind.Bind(*c.btnCreateDispatcher, form.btnCreateDispatcher);
        bind.Bind(*c.btnConfigureDispatcher, form.btnConfigureDispatcher);
        bind.Bind(*c.rbSetManually, form.rbSetManually);
        bind.Bind(*c.edLanguagesToUse, form.edLanguagesToUse);
        bind.Bind(*c.btnConfigureLanguages, form.btnConfigureLanguages);
        bind.Bind(*c.ckbSetCommonContainer, form.ckbSetCommonContainer);
        bind.Bind(*c.cbCommonForm, form.cbCommonForm, form.FormNames);
        bind.Bind(*c.cbCommonContainer, form.cbCommonContainer, form.CommonContainers);
    }

    void BindProperties() {
        auto& c = controls;
        bind.Bind(*c.ckbChangeProperties, form.ckbChangeProperties);
        QCheckBox* const boxes[WizardPropertyCount] = {
            c.ckbAutoSkipEmpties, c.ckbChangeLocales,          c.ckbDoRaiseExceptions,  c.ckbIsInheritedOwner,
            c.ckbStoreAsUTF8,     c.ckbTranslateExtendedFirst, c.ckbUseDefaultLanguage, c.ckbUseTaskMsgDlg};
        for (std::size_t i = 0; i < WizardPropertyCount; ++i)
            bind.Bind(*boxes[i], form.gbProperties[i]);
    }

    void BindEnd() {
        auto& c = controls;
        SetTabs(*c.memActions);
        bind.Bind(*c.memActions, form.memActions);
        c.lbFinal->viewport()->setAutoFillBackground(false);
        bind.Bind(*c.lbFinal, form.lbFinal);
        bind.Bind(*c.lvProgress, form.lvProgress);
        c.lvProgress->SetColumnWidths({380, 130});
        bind.Follow(form.pbProgress, [this, &c] {
            c.pbProgress->setMaximum(form.ProgressMax());
            c.pbProgress->setValue(form.pbProgress());
            if (form.Page() == tsPerform) DrawNow();
        });
    }

    // An indent, then a column behind the longest form name.
    void SetTabs(QPlainTextEdit& memo) const {
        constexpr int indent = 24;
        int widest = 0;
        for (const std::string& name : form.FormNames)
            widest = std::max(widest, memo.fontMetrics().horizontalAdvance(Q(name + ":")));
        QTextOption option = memo.document()->defaultTextOption();
        option.setTabs({{indent, QTextOption::LeftTab}, {2.0 * indent + widest, QTextOption::LeftTab}});
        memo.document()->setDefaultTextOption(option);
    }

    // The work leaves no time for events; what the person does meanwhile waits.
    static void DrawNow() {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                        QEventLoop::ExcludeSocketNotifiers);
    }
};

} // namespace

View* MakeTranslationWizardView(TfrmTranslationWizard& form, Ui& ui, QWidget* parent) {
    return new TranslationWizardView(form, ui, parent);
}

} // namespace glotta
