#include "translation/TranslUnits.h"
#include "ui_TranslUnitsView.h"
#include "workbench/Views.h"

#include <QtGui/QKeyEvent>

namespace glotta {

namespace {

class TranslUnitsView : public WindowOf<QDialog, Ui_TranslUnitsView, TfrmTranslUnits> {
public:
    TranslUnitsView(TfrmTranslUnits& f, Ui& ui, QWidget* parent) : WindowOf(f, ui, parent) {
        auto& c = controls;
        bind.Bind(*c.lblUnits, form.lblUnits);
        bind.Bind(*c.edUnitName, form.edUnitName);
        bind.Bind(*c.lbUnits, form.lbUnits);
        bind.Bind(*c.lblForms, form.lblForms);
        bind.Bind(*c.cbFormNames, form.cbFormNames, form.FormNames());
        bind.Bind(*c.btOK, form.btOK);
        bind.Bind(*c.btCancel, form.btCancel);
        c.lbUnits->ShowAsList();
        c.lbUnits->horizontalHeader()->setMinimumSectionSize(form.ScrollExtent(
            [this](const std::string& text) { return fontMetrics().horizontalAdvance(Q(text)); }));
        c.edUnitName->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Up && key != Qt::Key_Down) return QDialog::eventFilter(watched, event);
        bind.Act([&] { form.WalkList(key == Qt::Key_Up ? -1 : 1); });
        return true;
    }
};

} // namespace

View* MakeTranslUnitsView(TfrmTranslUnits& form, Ui& ui, QWidget* parent) {
    return new TranslUnitsView(form, ui, parent);
}

} // namespace glotta
