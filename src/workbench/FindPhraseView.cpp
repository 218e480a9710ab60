#include "storage/_findphrase.h"
#include "ui_FindPhraseView.h"
#include "workbench/Views.h"

namespace glotta {

namespace {

class FindPhraseView : public WindowOf<QDialog, Ui_FindPhraseView, TfrmFind> {
public:
    FindPhraseView(TfrmFind& f, Ui& ui, QWidget* parent) : WindowOf(f, ui, parent) {
        auto& c = controls;
        bind.Bind(*c.edFindText, form.edFindText);
        bind.Bind(*c.edReplace, form.edReplace);
        c.lblReplace->setHidden(!form.edReplace.Visible());
        bind.Bind(*c.ckbSensit, form.ckbSensit);
        bind.Bind(*c.ckbWhole, form.ckbWhole);
        bind.Bind(*c.ckbIdent, form.ckbIdent);
        bind.Bind(*c.ckbDoPrompt, form.ckbDoPrompt);
        bind.Bind(*c.btOK, form.btOK);
        bind.Bind(*c.btCancel, form.btCancel);
        resize(width(), sizeHint().height());
        c.edFindText->selectAll();
        c.edFindText->setFocus();
    }
};

} // namespace

View* MakeFindPhraseView(TfrmFind& form, Ui& ui, QWidget* parent) {
    return new FindPhraseView(form, ui, parent);
}

} // namespace glotta
