#include "storage/_stridrepl.h"
#include "ui_StrReplaceView.h"
#include "workbench/ActionBar.h"
#include "workbench/Views.h"

#include <QtWidgets/QMenu>

namespace glotta {

namespace {

class StrReplaceView : public WindowOf<QDialog, Ui_StrReplaceView, TfrmStrReplace> {
public:
    StrReplaceView(TfrmStrReplace& f, Ui& ui, QWidget* parent) : WindowOf(f, ui, parent) {
        auto& c = controls;
        setWindowFlag(Qt::WindowMaximizeButtonHint);
        BindUnits();
        BindLines();
        bind.Bind(*c.btHelp, form.btHelp);
        bind.Bind(*c.btOK, form.btOK);
        bind.Bind(*c.btCancel, form.btCancel);
        bind.Always([this] { controls.pnStages->setCurrentIndex(form.ShowsLines() ? 1 : 0); });
        (form.ShowsLines() ? c.lvSourceLines : c.lbProjectUnits)->setFocus();
    }

private:
    void BindUnits() {
        auto& c = controls;
        bind.Bind(*c.lbProjectUnits, form.lbProjectUnits);
        bind.Bind(*c.lbScanUnits, form.lbScanUnits);
        for (GridView* list : {c.lbProjectUnits, c.lbScanUnits})
            list->ShowAsList();
        bind.Bind(*c.btAdd, form.btAdd);
        bind.Bind(*c.btAddAll, form.btAddAll);
        bind.Bind(*c.btRemove, form.btRemove);
        bind.Bind(*c.btRemoveAll, form.btRemoveAll);
        c.lbProjectUnits->OnActivated = [this](int) { bind.Act([this] { form.btAdd.Execute(); }); };
        c.lbScanUnits->OnActivated = [this](int) { bind.Act([this] { form.btRemove.Execute(); }); };
    }

    void BindLines() {
        auto& c = controls;
        bind.Follow(form.lblSourceLines, [this] {
            controls.lblSourceLines->setText(Q(form.lblSourceLines()).replace('\r', '\n'));
        });
        bind.Bind(*c.lvSourceLines, form.lvSourceLines);
        c.lvSourceLines->SetColumnWidths({60, 330, 330});
        auto* popup = new QMenu(this);
        for (TAction* action : {&form.acDelete, &form.acInvertSelection, &form.acEditResult}) {
            auto* shown = new QAction(this);
            shown->setShortcutContext(Qt::WidgetWithChildrenShortcut);
            c.lvSourceLines->addAction(shown);
            bind.Bind(*shown, *action);
            popup->addAction(shown);
        }
        c.lvSourceLines->OnPopup = [popup](const QPoint& at) { popup->popup(at); };
    }
};

} // namespace

View* MakeStrReplaceView(TfrmStrReplace& form, Ui& ui, QWidget* parent) {
    return new StrReplaceView(form, ui, parent);
}

} // namespace glotta
