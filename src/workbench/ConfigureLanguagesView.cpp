#include "translation/ConfigureLanguages.h"
#include "ui_ConfigureLanguagesView.h"
#include "workbench/Views.h"

namespace glotta {

namespace {

class ConfigureLanguagesView : public WindowOf<QDialog, Ui_ConfigureLanguagesView, TfrmConfigureLanguages> {
public:
    ConfigureLanguagesView(TfrmConfigureLanguages& f, Ui& ui, QWidget* parent) : WindowOf(f, ui, parent) {
        auto& c = controls;
        bind.Bind(*c.edLangCount, form.edLangCount);
        bind.FilterKeys(*c.edLangCount, TfrmConfigureLanguages::AcceptsKey);
        bind.Bind(*c.sbUp2, form.sbUp2);
        bind.Bind(*c.sbDown2, form.sbDown2);
        bind.Bind(*c.lbLangNames, form.lbLangNames);
        c.lbLangNames->ShowAsList();
        bind.Bind(*c.btnMoveUp, form.btnMoveUp);
        bind.Bind(*c.btnMoveDown, form.btnMoveDown);
        bind.Bind(*c.btnRename, form.btnRename);
        bind.Bind(*c.btnAdd, form.btnAdd);
        bind.Bind(*c.btnDelete, form.btnDelete);
        bind.Bind(*c.btnHelp, form.btnHelp);
        bind.Bind(*c.btOK, form.btOK);
        bind.Bind(*c.btCancel, form.btCancel);
    }
};

} // namespace

View* MakeConfigureLanguagesView(TfrmConfigureLanguages& form, Ui& ui, QWidget* parent) {
    return new ConfigureLanguagesView(form, ui, parent);
}

} // namespace glotta
