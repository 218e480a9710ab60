#include "storage/ReplConfirm.h"
#include "ui_ReplConfirmView.h"
#include "workbench/Views.h"

namespace glotta {

namespace {

class ReplConfirmView : public WindowOf<QDialog, Ui_ReplConfirmView, TfrmReplConfirm> {
public:
    ReplConfirmView(TfrmReplConfirm& f, Ui& ui, QWidget* parent) : WindowOf(f, ui, parent) {
        auto& c = controls;
        bind.Bind(*c.lblFileName, form.lblFileName);
        bind.Bind(*c.lblProperty, form.lblProperty);
        bind.Bind(*c.lblLocation, form.lblLocation);
        bind.Bind(*c.memCurrent, form.memCurrent);
        bind.Bind(*c.memResult, form.memResult);
        c.lblQuestion->setText(TfrmReplConfirm::Question);
        bind.Bind(*c.btYes, form.btYes);
        bind.Bind(*c.btNo, form.btNo);
        bind.Bind(*c.btCancel, form.btCancel);
        bind.Bind(*c.btYesToAll, form.btYesToAll);
        c.btYes->setFocus();
    }
};

} // namespace

View* MakeReplConfirmView(TfrmReplConfirm& form, Ui& ui, QWidget* parent) {
    return new ReplConfirmView(form, ui, parent);
}

} // namespace glotta
