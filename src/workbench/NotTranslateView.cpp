#include "editors/Dntcedit.h"
#include "ui_NotTranslateView.h"
#include "workbench/Placement.h"
#include "workbench/Views.h"

#include <algorithm>

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
    void Restore(const TfrmNotTranslate::Placement& stored) {
        FormPlacement place = PlacementOf(*this);
        place.width = stored.width.value_or(width());
        place.height = stored.height.value_or(height());
        resize(place.width, place.height);
        if (stored.left && stored.top) {
            place.left = *stored.left;
            place.top = *stored.top;
            Place(*this, place);
        }
        if (stored.leftWidth) controls.pnLeft->setFixedWidth(std::clamp(*stored.leftWidth, 60, width() - 140));
        widthOfStored_ = width();
    }

    void showEvent(QShowEvent* event) override {
        WindowOf::showEvent(event);
        Moved();
    }

    // From the first new width on, the column of buttons is in the middle again.
    void resizeEvent(QResizeEvent* event) override {
        if (event->size().width() != widthOfStored_) {
            controls.pnLeft->setMinimumWidth(0);
            controls.pnLeft->setMaximumWidth(QWIDGETSIZE_MAX);
            layout()->activate();
        }
        WindowOf::resizeEvent(event);
    }

    void Moved() override {
        const FormPlacement now = PlacementOf(*this);
        form.Place.Enter({now.width, now.height, now.top, now.left, controls.pnLeft->width()});
    }

    int widthOfStored_ = 0;
};

} // namespace

View* MakeNotTranslateView(TfrmNotTranslate& form, Ui& ui, QWidget* parent) {
    return new NotTranslateView(form, ui, parent);
}

} // namespace glotta
