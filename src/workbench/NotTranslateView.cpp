#include "editors/Dntcedit.h"
#include "ui_NotTranslateView.h"
#include "workbench/Views.h"

namespace glotta {

namespace {

class NotTranslateView : public WindowOf<QDialog, Ui_NotTranslateView, TfrmNotTranslate> {
public:
    NotTranslateView(TfrmNotTranslate& f, Ui& ui, QWidget* parent) : WindowOf(f, ui, parent) {
        auto& c = controls;
        setMinimumSize(TfrmNotTranslate::MinimumWidth, TfrmNotTranslate::MinimumHeight);
        c.lblPrompt->setText(Q(form.lblPrompt));
        c.lblComps->setText(Q(form.lblComps));
        c.lblSelected->setText(Q(form.lblSelected));
        for (const auto& [view, list] :
             {std::pair{c.lbComps, &form.lbComps}, std::pair{c.lbSelected, &form.lbSelected}}) {
            bind.Bind(*view, *list);
            view->ShowAsList();
        }
        const std::pair<QPushButton*, TAction*> buttons[] = {
            {c.btMove, &form.btMove},       {c.btMoveBack, &form.btMoveBack},
            {c.btMoveAll, &form.btMoveAll}, {c.btMoveAllBack, &form.btMoveAllBack},
            {c.btOK, &form.btOK},           {c.btCancel, &form.btCancel}};
        for (const auto& [button, action] : buttons)
            bind.Bind(*button, *action);
        c.btOK->setDefault(true);
        form.FormShow();
        Restore(form.Place());
    }

private:
    void Restore(const TfrmNotTranslate::Placement& place) {
        resize(place.width.value_or(width()), place.height.value_or(height()));
        if (place.left && place.top) move(*place.left, *place.top);
    }

    // The column of buttons stays in the middle, whatever width the left list had.
    void Moved() override {
        form.Place.Enter({width(), height(), y(), x(), controls.pnLeft->width()});
    }
};

} // namespace

View* MakeNotTranslateView(TfrmNotTranslate& form, Ui& ui, QWidget* parent) {
    return new NotTranslateView(form, ui, parent);
}

} // namespace glotta
