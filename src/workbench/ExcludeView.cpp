#include "editors/Excludededitor.h"
#include "ui_ExcludeView.h"
#include "workbench/ActionBar.h"
#include "workbench/ExclusionIcons.h"
#include "workbench/MenuAdapter.h"
#include "workbench/Placement.h"
#include "workbench/Views.h"

#include <QtGui/QDragEnterEvent>
#include <QtWidgets/QMenu>

#include <array>

namespace glotta {

namespace {

using Form = TfrmExcludeFromTranslation;
using Actions = std::initializer_list<TAction*>;

class ExcludeView : public WindowOf<QDialog, Ui_ExcludeView, TfrmExcludeFromTranslation> {
public:
    ExcludeView(TfrmExcludeFromTranslation& f, Ui& ui, QWidget* parent) : WindowOf(f, ui, parent) {
        setMinimumSize(Form::MinimumWidth, Form::MinimumHeight);
        MakeIcons();
        BindTrees();
        BindLists();
        MakeBars();
        BindSplitters();
        bind.Bind(*controls.btOK, form.btOK);
        bind.Bind(*controls.btCancel, form.btCancel);
        bind.Bind(*controls.btHelp, form.btHelp);
        controls.btOK->setDefault(true);
        bind.Follow(form.Frozen, [this] { setUpdatesEnabled(!form.Frozen()); });
        controls.tvComponents->setFocus();
    }

private:
    static constexpr ExclusionPage Pages[] = {ComponentsPage, PropertiesPage, CompPropertiesPage};

    std::array<GridView*, 3> ListViews() const {
        return {controls.lbExclComponents, controls.lbExclProperties, controls.lbExclCompProps};
    }

    void MakeIcons() {
        for (int image = 0; image < int(componentIcons_.size()); ++image)
            componentIcons_[std::size_t(image)] = ComponentIcon(image, palette());
        propertyIcon_ = PropertyIcon(CandidateProperty::PropertyImage, palette());
        objectIcon_ = PropertyIcon(CandidateProperty::ObjectImage, palette());
    }

    void BindTrees() {
        auto& c = controls;
        c.lblComponents->setText(Q(Form::ComponentsHeading));
        c.lblProperties->setText(Q(Form::PropertiesHeading));
        c.tvComponents->Model().Icon = [this](int image) { return componentIcons_[std::size_t(image)]; };
        c.tvProperties->Model().Icon = [this](int image) {
            return image == CandidateProperty::PropertyImage ? propertyIcon_ : objectIcon_;
        };
        bind.Bind(*c.tvComponents, form.Model.tvComponents);
        bind.Bind(*c.tvProperties, form.Model.tvProperties);
        c.tvComponents->KeepTopOpen();
        c.tvComponents->OnDoubleClick = [this] { bind.Act([this] { form.acAddComponent.Execute(); }); };
        c.tvProperties->OnDoubleClick = [this] { bind.Act([this] { form.acAddProperty.Execute(); }); };
        bind.Bind(*c.cbComponents, form.cbComponents, form.ComponentTexts());
        const TTree& tree = form.Model.tvComponents;
        int item = 0;
        for (const int node : tree.InOrder())
            c.cbComponents->setItemIcon(
                item++, componentIcons_[std::size_t(tree[node].image % ComponentNodes::Excluded)]);
    }

    void BindLists() {
        auto& c = controls;
        bind.Bind(*c.pnExcluded, form.pnExcluded);
        for (const ExclusionPage page : Pages) {
            const auto at = std::size_t(page);
            GridView& view = *ListViews()[at];
            bind.Bind(view, form.Model.List(page));
            view.ShowAsList();
            view.RowIcon = [this, page](int row) { return IconOf(page, row); };
            view.setAcceptDrops(true);
            view.viewport()->setAcceptDrops(true);
            view.viewport()->installEventFilter(this);
            c.pcExcluded->setTabText(page, Q(Form::PageCaptions[at]));
            bind.Follow(form.TabShown[at],
                        [this, page, at] { controls.pcExcluded->setTabVisible(page, form.TabShown[at]()); });
        }
        bind.Bind(*c.pcExcluded, form.pcExcluded);
        c.lbExclComponents->OnActivated = [this](int) {
            bind.Act([this] { form.acDeleteFromList.Execute(); });
        };
    }

    QIcon IconOf(ExclusionPage page, int row) const {
        if (page != ComponentsPage) return propertyIcon_;
        const ComponentNodes& nodes = form.Model.tvComponents;
        const int node = nodes.Find(form.Model.lbExclComponents.Items()[std::size_t(row)]);
        return node == TTree::None ? QIcon()
                                   : componentIcons_[std::size_t(nodes[node].image % ComponentNodes::Excluded)];
    }

    // The bar has the first action as a button and the others below one, the context menu has them all.
    void MakeAdding(QToolBar& bar, TreeView& tree, Actions actions) {
        auto* popup = new QMenu(this);
        auto* more = new QToolButton(&bar);
        auto* others = new QMenu(more);
        for (TAction* action : actions) {
            QAction* const shown = WindowAction(*this, bind, *action);
            popup->addAction(shown);
            if (action == *actions.begin())
                bar.addAction(shown);
            else
                others->addAction(shown);
        }
        others->setToolTipsVisible(true);
        more->setText("More");
        more->setMenu(others);
        more->setPopupMode(QToolButton::InstantPopup);
        bar.addWidget(more);
        more->setMinimumWidth(more->sizeHint().width() + 12); // its arrow
        LetTabReach(bar);
        tree.OnPopup = [popup](const QPoint& at) { popup->popup(at); };
    }

    void MakeBars() {
        auto& c = controls;
        MakeAdding(*c.tbComponents, *c.tvComponents,
                   {&form.acAddComponent, &form.acAddAllByComponent, &form.acAddCompChilds,
                    &form.acAddAllWithProperty});
        MakeAdding(*c.tbProperties, *c.tvProperties,
                   {&form.acAddProperty, &form.acAddPropertyAsSelectedType, &form.acAddPropOfCompType,
                    &form.acAddPropertyByType, &form.acAddPropertyByName, &form.acAddCustom});
        QToolBar& bar = *c.tbExcluded;
        auto* popup = new QMenu(this);
        for (TAction* action : {&form.acDeleteFromList, &form.acClearList, &form.acClearAll, &form.acSortList}) {
            QAction* const shown = WindowAction(*this, bind, *action);
            bar.addAction(shown);
            popup->addAction(shown);
        }
        for (GridView* view : ListViews())
            view->OnPopup = [popup](const QPoint& at) { popup->popup(at); };
        QAction* const defaults = WindowAction(*this, bind, form.acDefaults);
        bar.addSeparator();
        bar.addAction(defaults);
        LetTabReach(bar);
        form.OnDefaultsMenu = [this, defaults] {
            QWidget* const button = controls.tbExcluded->widgetForAction(defaults);
            PopUp(form.DefaultsMenu, *this, button->mapToGlobal(QPoint(0, button->height())));
        };
    }

    void BindSplitters() {
        auto& c = controls;
        if (form.Placement()) Place(*this, *form.Placement());
        c.VerticalSplitter->setStretchFactor(0, 0);
        c.VerticalSplitter->setStretchFactor(1, 1);
        c.HorizontalSplitter->setStretchFactor(0, 1);
        c.HorizontalSplitter->setStretchFactor(1, 0);
        bind.Follow(form.LeftPanelWidth, [this, &c] {
            c.VerticalSplitter->setSizes(
                {form.LeftPanelWidth(), std::max(width() - form.LeftPanelWidth(), 200)});
        });
        bind.Follow(form.PropertiesPanelHeight, [this, &c] {
            c.HorizontalSplitter->setSizes(
                {std::max(height() - form.PropertiesPanelHeight() - 140, 80), form.PropertiesPanelHeight()});
        });
        connect(c.VerticalSplitter, &QSplitter::splitterMoved, bind.Context(),
                [this, &c] { form.LeftPanelWidth.Enter(c.VerticalSplitter->sizes().front()); });
        connect(c.HorizontalSplitter, &QSplitter::splitterMoved, bind.Context(),
                [this, &c] { form.PropertiesPanelHeight.Enter(c.HorizontalSplitter->sizes().back()); });
    }

    void Moved() override { form.Placement.Enter(PlacementOf(*this)); }

    // --- dropping on a list ---

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto type = event->type();
        if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
            return WindowOf::eventFilter(watched, event);
        auto& drop = static_cast<QDropEvent&>(*event);
        const Form::DragSource from = drop.source() == controls.tvComponents   ? Form::DragSource::Components
                                      : drop.source() == controls.tvProperties ? Form::DragSource::Properties
                                                                               : Form::DragSource::None;
        for (const ExclusionPage page : Pages) {
            if (watched != ListViews()[std::size_t(page)]->viewport()) continue;
            drop.setAccepted(form.CanDrop(page, from));
            if (type == QEvent::Drop && drop.isAccepted())
                bind.Act([this, page, from] { form.Drop(page, from); });
        }
        return true;
    }

    std::array<QIcon, 2 * ComponentNodes::Excluded> componentIcons_;
    QIcon propertyIcon_, objectIcon_;
};

} // namespace

View* MakeExcludeView(TfrmExcludeFromTranslation& form, Ui& ui, QWidget* parent) {
    return new ExcludeView(form, ui, parent);
}

} // namespace glotta
