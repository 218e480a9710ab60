#include "scanner/_scan.h"
#include "ui_FoundView.h"
#include "workbench/ActionBar.h"
#include "workbench/CellDelegate.h"
#include "workbench/SourcePreview.h"
#include "workbench/Views.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>

namespace glotta {

namespace {

const std::vector<int> DesignedWidths = {80, 130, 370, 400};

class FoundView : public WindowOf<QMainWindow, Ui_FoundView, TfrmFound> {
public:
    FoundView(TfrmFound& f, Ui& ui, QWidget* parent) : WindowOf(f, ui, parent) {
        setWindowFlag(Qt::Window);
        BindGrids();
        BindPreview();
        BindNotice();
        MakeToolBar();
        MakePopup();
        for (std::size_t panel = 0; panel < form.StatusTexts().size(); ++panel) {
            auto* label = new QLabel(this);
            label->setMinimumWidth(150);
            controls.StatusBar->addWidget(label);
            bind.Always([this, label, panel] { label->setText(Q(form.StatusTexts()[panel])); });
        }
        controls.sgStrings->setFocus();
    }

private:
    QAction* Shown(TAction& action) {
        QAction*& shown = shown_[&action];
        if (!shown) shown = WindowAction(*this, bind, action);
        return shown;
    }

    void BindGrids() {
        const std::pair<GridView*, FoundGrid*> grids[] = {{controls.sgStrings, &form.sgStrings},
                                                          {controls.sgDeleted, &form.sgDeleted}};
        for (const auto& [view, grid] : grids) {
            bind.Bind(*view, *grid);
            view->SetColumnWidths(DesignedWidths);
            bind.BindColumns(*view, form.GridCols);
            view->OnPopup = [this](const QPoint& at) { popup_->popup(at); };
        }
        bind.Always([this] { controls.pnGrids->setCurrentIndex(form.ShowsDeleted() ? 1 : 0); });
    }

    void BindPreview() {
        auto& c = controls;
        MakeSourcePane(*c.edPreview);
        bind.Follow(form.edPreview, [this, &c] {
            ShowSource(*c.edPreview, form.edPreview(), form.PreviewLine, form.PreviewColumn,
                       form.PreviewLength);
        });
        c.lblNote->setAutoFillBackground(true);
        QPalette noted = c.lblNote->palette();
        noted.setColor(QPalette::Window, NotedColor(noted));
        c.lblNote->setPalette(noted);
        bind.Follow(form.lblNote, [this, &c] {
            c.lblNote->setText(Q(form.lblNote()));
            c.lblNote->setHidden(form.lblNote().empty());
        });
        c.Splitter->setStretchFactor(0, 1);
        c.Splitter->setSizes({400, 190});
        bind.Follow(form.PreviewHeight, [this, &c] {
            if (form.PreviewHeight() > 0)
                c.Splitter->setSizes(
                    {std::max(c.Splitter->height() - form.PreviewHeight(), 60), form.PreviewHeight()});
        });
        connect(c.Splitter, &QSplitter::splitterMoved, bind.Context(),
                [this, &c] { form.PreviewHeight.Enter(c.Splitter->sizes().back()); });
    }

    void BindNotice() {
        auto& c = controls;
        bind.Bind(*c.lbHideNotice, form.acHideNotice);
        bind.Follow(form.pnNotice, [this, &c] {
            c.lblNotice->setText(Q(form.pnNotice()));
            c.pnNotice->setHidden(!form.pnNotice.Visible());
        });
        QPalette link = c.lbHideNotice->palette();
        link.setColor(QPalette::ButtonText, link.color(QPalette::Link));
        c.lbHideNotice->setPalette(link);
        c.lbHideNotice->setCursor(Qt::PointingHandCursor);
    }

    void MakeToolBar() {
        QToolBar& bar = *controls.ToolBar;
        bar.addActions({Shown(form.acModifySource), Shown(form.acCancel)});
        bar.addSeparator();
        bar.addActions({Shown(form.acDeleteRow), Shown(form.acStartID), Shown(form.acExclude)});
        auto* ignore = new QToolButton(&bar);
        ignore->setText("Ignore");
        ignore->setPopupMode(QToolButton::InstantPopup);
        auto* ways = new QMenu(ignore);
        ways->addActions({Shown(form.acMarktoIgnore), Shown(form.acRemoveIgnoreMark)});
        ignore->setMenu(ways);
        bar.addWidget(ignore);
        ignore->setMinimumWidth(ignore->sizeHint().width() + 12); // its arrow
        bar.addSeparator();
        bar.addActions(
            {Shown(form.acSwitchDeleted), Shown(form.acRestoreDeletedRow), Shown(form.acViewSkipped)});
        bar.addSeparator();
        bar.addAction(Shown(form.acHelp));
        LetTabReach(bar);
    }

    void MakePopup() {
        popup_ = new QMenu(this);
        const auto group = [this](std::initializer_list<TAction*> actions) {
            for (TAction* action : actions)
                popup_->addAction(Shown(*action));
            popup_->addSeparator();
        };
        group({&form.acSelectRow, &form.acInvertSelection, &form.acRemoveSelection});
        group({&form.acDeleteRow, &form.acDeleteRowsContains, &form.acExclude, &form.acRestoreDeletedRow});
        group({&form.acMarktoIgnore, &form.acRemoveIgnoreMark});
        group({&form.acStartID, &form.acTypecastPChar});
        QMenu* methods = popup_->addMenu("Use method:");
        for (TAction& method : form.acUseMethod)
            methods->addAction(Shown(method));
    }

    std::unordered_map<const TAction*, QAction*> shown_;
    QMenu* popup_ = nullptr;
};

} // namespace

View* MakeFoundView(TfrmFound& form, Ui& ui, QWidget* parent) {
    return new FoundView(form, ui, parent);
}

} // namespace glotta
