#include "host/StringListEditor.h"
#include "ui_StringListView.h"
#include "workbench/Views.h"

namespace glotta {

namespace {

class StringListView : public WindowOf<QDialog, Ui_StringListView, TStringsEditDlg> {
public:
    StringListView(TStringsEditDlg& f, Ui& ui, QWidget* parent) : WindowOf(f, ui, parent) {
        auto& c = controls;
        bind.Bind(*c.Memo, form.Memo);
        bind.Bind(*c.LineCount, form.LineCount);
        bind.Bind(*c.OKButton, form.OKButton);
        bind.Bind(*c.CancelButton, form.CancelButton);
        c.Memo->setFocus();
    }
};

} // namespace

View* MakeStringListView(TStringsEditDlg& form, Ui& ui, QWidget* parent) {
    return new StringListView(form, ui, parent);
}

} // namespace glotta
