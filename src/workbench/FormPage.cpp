#include "workbench/FormPage.h"

#include "workbench/FormCanvas.h"
#include "workbench/QtText.h"

#include <QtCore/QTimer>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

namespace glotta {
namespace {

TComponent* ComponentOf(const QTreeWidgetItem& item) {
    return static_cast<TComponent*>(item.data(0, Qt::UserRole).value<void*>());
}

constexpr int MaximumDepth = 200;

} // namespace

FormPage::FormPage(PlainFormEditor& form, ObjectInspector::Run run, QWidget* parent)
    : QWidget(parent), form_(form) {
    tree_ = new QTreeWidget(this);
    tree_->setObjectName("components");
    tree_->setHeaderHidden(true);
    tree_->setUniformRowHeights(true);
    inspector_ = new ObjectInspector(form_, std::move(run), this);
    auto* left = new QSplitter(Qt::Vertical, this);
    left->addWidget(tree_);
    left->addWidget(inspector_);
    left->setStretchFactor(1, 2);
    canvas_ = new FormCanvas(this);
    auto* scroll = new QScrollArea(this);
    scroll->setWidget(canvas_);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto* all = new QSplitter(Qt::Horizontal, this);
    all->addWidget(left);
    all->addWidget(scroll);
    all->setSizes({290, 700});
    all->setStretchFactor(1, 1);
    auto* row = new QVBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(all);

    connect(tree_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (!filling_ && item) form_.Designer().SelectComponent(ComponentOf(*item));
    });
    connect(tree_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        GoToDefaultEvent(ComponentOf(*item));
    });
    canvas_->OnSelect = [this](TComponent* component) {
        form_.Designer().SelectComponent(component ? component : &form_.Tree().Root());
    };
    canvas_->OnActivate = [this](TComponent* component) { GoToDefaultEvent(component); };
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
    FillTree();
    canvas_->SetPicture(PictureOf(form_.Tree()));
    Select(selected_ ? selected_ : &form_.Tree().Root());
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

void FormPage::Select(TComponent* component) {
    selected_ = component ? component : &form_.Tree().Root();
    if (stale_) return;
    filling_ = true;
    for (QTreeWidgetItemIterator item(tree_); *item; ++item)
        if (ComponentOf(**item) == selected_) {
            tree_->setCurrentItem(*item);
            break;
        }
    filling_ = false;
    canvas_->Select(selected_);
    inspector_->Show(*selected_);
}

void FormPage::GoToDefaultEvent(TComponent* component) {
    form_.Designer().SelectComponent(component ? component : &form_.Tree().Root());
    inspector_->GoToDefaultEvent();
}

} // namespace glotta
