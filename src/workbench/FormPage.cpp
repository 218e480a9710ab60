#include "workbench/FormPage.h"

#include "host/DesignMenu.h"
#include "workbench/ComponentPalette.h"
#include "workbench/FormCanvas.h"
#include "workbench/MenuAdapter.h"
#include "workbench/QtText.h"

#include <QtCore/QTimer>
#include <QtGui/QShortcut>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>
#include <unordered_set>

namespace glotta {
namespace {

TComponent* ComponentOf(const QTreeWidgetItem& item) {
    return static_cast<TComponent*>(item.data(0, Qt::UserRole).value<void*>());
}

constexpr int MaximumDepth = 200;

} // namespace

FormPage::FormPage(PlainFormEditor& form, DesignRegistry& registry, ObjectInspector::Run run, QWidget* parent)
    : QWidget(parent), form_(form), registry_(registry), run_(std::move(run)) {
    tree_ = new QTreeWidget(this);
    tree_->setObjectName("components");
    tree_->setHeaderHidden(true);
    tree_->setUniformRowHeights(true);
    tree_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    inspector_ = new ObjectInspector(form_, registry_, run_, this);
    auto* again = new QShortcut(QKeySequence("Ctrl+Y"), this);
    again->setContext(Qt::WidgetWithChildrenShortcut);
    connect(again, &QShortcut::activated, this, [this] {
        run_([this] {
            if (form_.CanRedo()) form_.Redo();
        });
    });
    auto* left = new QSplitter(Qt::Vertical, this);
    left->addWidget(tree_);
    left->addWidget(inspector_);
    left->setStretchFactor(1, 2);
    canvas_ = new FormCanvas(this);
    auto* scroll = new QScrollArea(this);
    scroll->setWidget(canvas_);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    palette_ = new ComponentPalette(this);
    auto* all = new QSplitter(Qt::Horizontal, this);
    all->addWidget(left);
    all->addWidget(scroll);
    all->addWidget(palette_);
    all->setSizes({290, 540, 190});
    all->setStretchFactor(1, 1);
    auto* row = new QVBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(all);

    connect(tree_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (!filling_ && item) form_.Designer().SelectComponent(ComponentOf(*item));
    });
    connect(tree_, &QTreeWidget::itemSelectionChanged, this, [this] {
        if (!filling_) inspector_->Show(Selection());
    });
    connect(tree_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        Activate(ComponentOf(*item));
    });
    canvas_->OnSelect = [this](TComponent* component) {
        form_.Designer().SelectComponent(component ? component : &form_.Tree().Root());
    };
    canvas_->OnActivate = [this](TComponent* component) { Activate(component); };
    for (QWidget* widget : std::initializer_list<QWidget*>{tree_, canvas_}) {
        widget->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(widget, &QWidget::customContextMenuRequested, this,
                [this, widget](const QPoint& at) { PopUpMenu(widget->mapToGlobal(at)); });
    }
    palette_->OnPlace = [this](const std::string& className) { PlaceComponent(className); };
    palette_->Show(registry_.PalettePages());
    inspector_->OnEntered = [this] { Later(); }; // also what was refused is shown as it is
    form_.OnView = [this] { Later(); };
    form_.Designer().onSelected = [this] { Select(form_.Designer().SelectedComponent()); };
    selected_ = form_.Designer().SelectedComponent();
}

FormPage::~FormPage() {
    form_.OnView = nullptr;
    form_.Designer().onSelected = nullptr;
}

void FormPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (stale_) Refresh();
}

// Several changes of one command are shown together, and only while somebody looks.
void FormPage::Later() {
    stale_ = true;
    if (pending_) return;
    pending_ = true;
    QTimer::singleShot(0, this, [this] {
        pending_ = false;
        if (stale_ && isVisible()) Refresh();
    });
}

void FormPage::Refresh() {
    stale_ = false;
    // Another one may have been selected while nobody looked: then that one alone.
    const bool goesOn = tree_->currentItem() && ComponentOf(*tree_->currentItem()) == selected_;
    const IDesignerSelections before = goesOn ? Selection() : IDesignerSelections();
    FillTree();
    canvas_->SetPicture(PictureOf(form_.Tree()));
    const bool there = selected_ && byNode_.contains(&selected_->Node());
    if (!there) selected_ = &form_.Tree().Root();
    SelectAgain(goesOn && there ? before : IDesignerSelections{selected_});
    Select(selected_);
}

// --- the tree ---

void FormPage::FillTree() {
    filling_ = true;
    byNode_.clear();
    const std::function<void(TComponent&, int)> index = [&](TComponent& owner, int depth) {
        byNode_[&owner.Node()] = &owner;
        if (depth < MaximumDepth)
            for (TComponent* component : owner.Components())
                index(*component, depth + 1);
    };
    index(form_.Tree().Root(), 0);
    tree_->clear();
    AddNode(*tree_->invisibleRootItem(), form_.Tree().Root().Node(), 0);
    tree_->expandToDepth(1);
    filling_ = false;
}

void FormPage::AddNode(QTreeWidgetItem& parent, const FormNode& node, int depth) {
    const auto found = byNode_.find(&node);
    if (found == byNode_.end() || depth > MaximumDepth) return;
    const QString name = node.name.empty() ? QString("(no name)") : Q(node.name);
    auto* item = new QTreeWidgetItem(&parent, {name + ": " + Q(node.className)});
    item->setData(0, Qt::UserRole, QVariant::fromValue(static_cast<void*>(found->second)));
    for (const auto& child : node.children)
        AddNode(*item, *child, depth + 1);
}

void FormPage::SelectAgain(const IDesignerSelections& selection) {
    filling_ = true;
    const std::unordered_set<const TComponent*> selected(selection.begin(), selection.end());
    for (QTreeWidgetItemIterator item(tree_); *item; ++item) {
        TComponent* const component = ComponentOf(**item);
        if (selected.contains(component)) (*item)->setSelected(true);
        if (component == selected_) tree_->setCurrentItem(*item, 0, QItemSelectionModel::NoUpdate);
    }
    filling_ = false;
}

void FormPage::Select(TComponent* component) {
    selected_ = component ? component : &form_.Tree().Root();
    if (stale_) return;
    filling_ = true;
    for (QTreeWidgetItemIterator item(tree_); *item; ++item)
        if (ComponentOf(**item) == selected_) {
            if (*item != tree_->currentItem()) // else more may be selected
                tree_->setCurrentItem(*item, 0, QItemSelectionModel::ClearAndSelect);
            break;
        }
    filling_ = false;
    canvas_->Select(selected_);
    inspector_->Show(Selection());
}

// --- what packages brought ---

void FormPage::DesignChanged() {
    menu_.Items.Clear();
    inspector_->Forget(); // its editors
    palette_->Show(registry_.PalettePages());
    Later();
}

IDesignerSelections FormPage::Selection() const {
    IDesignerSelections selection;
    for (const QTreeWidgetItem* item : tree_->selectedItems())
        selection.push_back(ComponentOf(*item));
    if (selection.empty() && selected_) selection.push_back(selected_);
    return selection;
}

TPopupMenu& FormPage::DesignMenu() {
    FillDesignMenu(menu_.Items, registry_, form_.Designer(), Selection(), [this](const std::function<void()>& verb) {
        run_([&] { form_.EditStep(verb); });
    });
    return menu_;
}

void FormPage::PopUpMenu(const QPoint& global) {
    if (DesignMenu().Items.Count() > 0) PopUp(menu_, *this, global);
}

// When the click is done: an editor may open a dialog.
void FormPage::Activate(TComponent* component) {
    form_.Designer().SelectComponent(component ? component : &form_.Tree().Root());
    QTimer::singleShot(0, this, [this] {
        if (!selected_) return;
        const auto editor = registry_.ComponentEditorOf(*selected_, form_.Designer());
        if (!editor) return inspector_->GoToDefaultEvent();
        run_([&] {
            form_.EditStep([&] { editor->Edit(); });
        });
    });
}

void FormPage::PlaceComponent(const std::string& className) {
    run_([&] {
        TComponent* placed = nullptr;
        form_.Step([&] { placed = &form_.CreateComponent(className, selected_); });
        form_.Designer().SelectComponent(placed);
    });
}

} // namespace glotta
