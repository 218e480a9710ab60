#include "storage/ProjectSettingsForm.h"
#include "ui_ProjectSettingsView.h"
#include "workbench/Views.h"

#include <QtGui/QShortcut>
#include <QtWidgets/QStyle>

namespace glotta {

namespace {

class ProjectSettingsView : public WindowOf<QDialog, Ui_ProjectSettingsView, TfrmProjectTranslationSettings> {
public:
    ProjectSettingsView(TfrmProjectTranslationSettings& f, Ui& ui, QWidget* parent)
        : WindowOf(f, ui, parent) {
        BindPages();
        BindDictionary();
        auto& c = controls;
        bind.Bind(*c.edTranslationFile, form.edTranslationFile);
        bind.Bind(*c.btTranslationFile, form.btTranslationFile);
        bind.Bind(*c.cbFormForUnits, form.cbFormForUnits, form.FormNames().Items());
        bind.Bind(*c.cbDispatcherForm, form.cbDispatcherForm, form.FormNames().Items());
        bind.Bind(*c.cbCommonContainerForm, form.cbCommonContainerForm, form.FormNames().Items());
        bind.Bind(*c.btOK, form.btOK);
        bind.Bind(*c.btCancel, form.btCancel);
        c.edDictionary->setFocus();
    }

private:
    void BindPages() {
        auto& c = controls;
        c.pnSections->setToolTip(Q(TfrmProjectTranslationSettings::SectionsHint));
        bind.Follow(form.sbDictionary, [&c, this] { c.sbDictionary->setChecked(form.sbDictionary()); });
        bind.Follow(form.sbProject, [&c, this] {
            c.sbProject->setChecked(form.sbProject());
            c.pcPages->setCurrentIndex(form.sbProject() ? 1 : 0);
        });
        for (QPushButton* button : {c.sbDictionary, c.sbProject})
            connect(button, &QPushButton::clicked, bind.Context(),
                    [this, &c, button] { bind.Act([&] { form.ShowPage(button == c.sbProject); }); });
        connect(new QShortcut(QKeySequence("Ctrl+Tab"), this), &QShortcut::activated, this,
                [this] { bind.Act([this] { form.SwitchPage(); }); });
    }

    void BindDictionary() {
        auto& c = controls;
        bind.Bind(*c.edDictionary, form.edDictionary);
        bind.Bind(*c.btDictionary, form.btDictionary);
        c.cbBaseLanguage->setCompleter(nullptr); // what is typed is not completed to another language
        bind.Bind(*c.cbBaseLanguage, form.cbBaseLanguage, form.BaseLanguages().Items());
        const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
        c.imWarning->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
        c.imWarning->setToolTip(Q(TfrmProjectTranslationSettings::WarningHint));
        bind.Follow(form.imWarning, [&c, this] { c.imWarning->setVisible(form.imWarning()); });
        bind.Bind(*c.ckbConfirm, form.ckbConfirm);
        bind.Bind(*c.ckbCaseSensitive, form.ckbCaseSensitive);
        bind.Bind(*c.ckbSkipAmpersands, form.ckbSkipAmpersands);
        bind.Bind(*c.ckbParseMultilines, form.ckbParseMultilines);
        bind.Bind(*c.ckbOverwrite, form.ckbOverwrite);
        bind.Bind(*c.ckbForceEmpties, form.ckbForceEmpties);
    }
};

} // namespace

View* MakeProjectSettingsView(TfrmProjectTranslationSettings& form, Ui& ui, QWidget* parent) {
    return new ProjectSettingsView(form, ui, parent);
}

} // namespace glotta
