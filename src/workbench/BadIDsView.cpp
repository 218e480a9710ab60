#include "storage/_badidsform.h"
#include "ui_BadIDsView.h"
#include "workbench/ActionBar.h"
#include "workbench/Views.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>

namespace glotta {

namespace {

const std::vector<int> DesignedWidths = {150, 260, 90, 320};

class BadIDsView : public WindowOf<QMainWindow, Ui_BadIDsView, TfrmBadIDs> {
public:
    BadIDsView(TfrmBadIDs& f, Ui& ui, QWidget* parent) : WindowOf(f, ui, parent) {
        auto& c = controls;
        setWindowFlag(Qt::Window);
        c.lblNotice->setText(TfrmBadIDs::Notice);
        bind.Bind(*c.IDsList, form.IDsList);
        c.IDsList->SetColumnWidths(DesignedWidths);
        bind.BindColumns(*c.IDsList, form.ColumnWidths);
        auto* popup = new QMenu(this);
        popup->addActions(
            {WindowAction(*this, bind, form.acViewSource), WindowAction(*this, bind, form.acDelete)});
        c.IDsList->OnPopup = [popup](const QPoint& at) { popup->popup(at); };
        c.IDsList->OnActivated = [this](int row) { bind.Act([&] { form.LVIDsDblClick(std::size_t(row)); }); };
        for (std::size_t panel = 0; panel < form.StatusTexts().size(); ++panel) {
            auto* label = new QLabel(this);
            c.StatusBar->addWidget(label);
            bind.Always([this, label, panel] { label->setText(Q(form.StatusTexts()[panel])); });
        }
        auto* close = new QAction(this);
        close->setShortcut(Qt::Key_Escape);
        addAction(close);
        connect(close, &QAction::triggered, this, [this] { AskToClose(); });
        c.IDsList->setFocus();
    }
};

} // namespace

View* MakeBadIDsView(TfrmBadIDs& form, Ui& ui, QWidget* parent) {
    return new BadIDsView(form, ui, parent);
}

} // namespace glotta
