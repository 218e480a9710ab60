#include "translation/TransEditor.h"
#include "ui_TransEditorView.h"
#include "workbench/ActionBar.h"
#include "workbench/Views.h"

#include <QtGui/QShortcut>
#include <QtWidgets/QMenu>

namespace glotta {

namespace {

class TransEditorView : public WindowOf<QDialog, Ui_TransEditorView, TfrmTransEditor> {
public:
    TransEditorView(TfrmTransEditor& f, Ui& ui, QWidget* parent) : WindowOf(f, ui, parent) {
        auto& c = controls;
        setWindowFlag(Qt::WindowMaximizeButtonHint);
        BindLists();
        bind.Bind(*c.edFilter, form.edFilter);
        bind.Bind(*c.ckbUntranslated, form.ckbUntranslated);
        bind.Bind(*c.edFind, form.edFind);
        bind.Bind(*c.lblFirst, form.lblFirst);
        bind.Bind(*c.memFirst, form.memFirst);
        bind.Bind(*c.lblText, form.lblText);
        bind.Bind(*c.memText, form.memText);
        BindCommands();
        bind.Always([this, &c] {
            c.lblShown->setText(Q(form.StatusTexts()[0]));
            c.lblMissing->setText(Q(form.StatusTexts()[1]));
        });
        c.sgTexts->setFocus();
    }

private:
    void BindLists() {
        auto& c = controls;
        bind.Bind(*c.lbKinds, form.lbKinds);
        bind.Bind(*c.sgTexts, form.sgTexts);
        bind.BindColumn(*c.sgTexts, form.Column);
        c.lbKinds->SetColumnWidths({130, 55, 65});
        std::vector<int> widths(form.sgTexts.ColumnCount(), 240);
        widths[0] = 170;
        c.sgTexts->SetColumnWidths(widths);
        c.Splitter->setStretchFactor(1, 1);
        c.Splitter->setSizes({270, 820});
        c.TextsSplitter->setStretchFactor(0, 1);
        c.TextsSplitter->setSizes({420, 120});
    }

    void BindCommands() {
        auto& c = controls;
        const std::pair<QPushButton*, TAction*> buttons[] = {
            {c.btFindPrevious, &form.acFindPrevious},
            {c.btFindNext, &form.acFindNext},
            {c.btNextUntranslated, &form.acNextUntranslated},
            {c.btPreviousUntranslated, &form.acPreviousUntranslated},
            {c.btCopyFirst, &form.acCopyFirst},
            {c.btRenameID, &form.acRenameID},
            {c.btNavigate, &form.acNavigate}};
        auto* popup = new QMenu(this);
        for (const auto& [button, action] : buttons) {
            QAction* const shown = WindowAction(*this, bind, *action);
            popup->addAction(shown);
            connect(button, &QPushButton::clicked, shown, &QAction::trigger);
            bind.Always([button, shown] {
                button->setText(shown->text());
                button->setToolTip(shown->toolTip());
                button->setEnabled(shown->isEnabled());
            });
        }
        // Enter goes on searching instead of closing the dialog.
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            auto* next = new QShortcut(key, c.edFind);
            next->setContext(Qt::WidgetShortcut);
            connect(next, &QShortcut::activated, this, [this] { form.acFindNext.Execute(); });
        }
        c.sgTexts->OnPopup = [popup](const QPoint& at) { popup->popup(at); };
        bind.Bind(*c.btAbout, form.btAbout);
        bind.Bind(*c.btOK, form.btOK);
        bind.Bind(*c.btCancel, form.btCancel);
    }
};

} // namespace

View* MakeTransEditorView(TfrmTransEditor& form, Ui& ui, QWidget* parent) {
    return new TransEditorView(form, ui, parent);
}

} // namespace glotta
