#include "translation/ExtendedTranslations.h"
#include "ui_ExtendedTranslationsView.h"
#include "workbench/Views.h"

namespace glotta {

namespace {

class ExtendedTranslationsView : public WindowOf<QDialog, Ui_ExtendedTranslationsView, TfrmExtendedTranslations> {
public:
    ExtendedTranslationsView(TfrmExtendedTranslations& f, Ui& ui, QWidget* parent) : WindowOf(f, ui, parent) {
        auto& c = controls;
        bind.Bind(*c.sgItems, form.sgItems);
        c.sgItems->SetColumnWidths(std::vector<int>(form.sgItems.ColumnCount(), 150));
        bind.Bind(*c.btAdd, form.btAdd);
        bind.Bind(*c.btDelete, form.btDelete);
        bind.Bind(*c.btOK, form.btOK);
        bind.Bind(*c.btCancel, form.btCancel);
        c.sgItems->setFocus();
    }
};

} // namespace

View* MakeExtendedTranslationsView(TfrmExtendedTranslations& form, Ui& ui, QWidget* parent) {
    return new ExtendedTranslationsView(form, ui, parent);
}

} // namespace glotta
