#include "workbench/FormPage.h"

#include "platform/Error.h"
#include "platform/Text.h"
#include "workbench/FormCanvas.h"
#include "workbench/QtText.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

namespace glotta {
namespace {

TComponent* ComponentOf(const QTreeWidgetItem& item) {
    return static_cast<TComponent*>(item.data(0, Qt::UserRole).value<void*>());
}

constexpr int ChoicesRole = Qt::UserRole, MaximumDepth = 200;

// A value with few choices is picked from a list.
class ValueDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QStringList choices = index.data(ChoicesRole).toStringList();
        if (choices.isEmpty()) return QStyledItemDelegate::createEditor(parent, option, index);
        auto* combo = new QComboBox(parent);
        combo->addItems(choices);
        connect(combo, &QComboBox::activated, this, [this, combo] {
            Q_EMIT const_cast<ValueDelegate*>(this)->commitData(combo);
            Q_EMIT const_cast<ValueDelegate*>(this)->closeEditor(combo);
        });
        return combo;
    }
    void setEditorData(QWidget* editor, const QModelIndex& index) const override {
        if (auto* combo = qobject_cast<QComboBox*>(editor))
            combo->setCurrentText(index.data().toString());
        else
            QStyledItemDelegate::setEditorData(editor, index);
    }
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override {
        if (auto* combo = qobject_cast<QComboBox*>(editor))
            model->setData(index, combo->currentText());
        else
            QStyledItemDelegate::setModelData(editor, model, index);
    }
};

QTableWidget* MakeTable(QWidget* parent, const QString& name) {
    auto* table = new QTableWidget(0, 2, parent);
    table->setObjectName(name);
    table->horizontalHeader()->hide();
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Interactive);
    table->horizontalHeader()->setStretchLastSection(true);
    table->setColumnWidth(0, 130);
    table->setAlternatingRowColors(true);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setItemDelegateForColumn(1, new ValueDelegate(table));
    table->setTabKeyNavigation(false);
    return table;
}

MethodType MethodTypeOf(const PropertyInfo& info) {
    return {std::string(ClassCatalogue::PascalParameters(info.typeName)),
            std::string(ClassCatalogue::CppParameters(info.typeName))};
}

} // namespace

FormPage::FormPage(PlainFormEditor& form, std::function<void(const std::function<void()>&)> run, QWidget* parent)
    : QWidget(parent), form_(form), run_(std::move(run)) {
    tree_ = new QTreeWidget(this);
    tree_->setObjectName("components");
    tree_->setHeaderHidden(true);
    tree_->setUniformRowHeights(true);
    pages_ = new QTabWidget(this);
    pages_->setDocumentMode(true);
    properties_ = MakeTable(pages_, "properties");
    events_ = MakeTable(pages_, "events");
    pages_->addTab(properties_, "Properties");
    pages_->addTab(events_, "Events");
    filter_ = new QLineEdit(this);
    filter_->setPlaceholderText("Filter");
    filter_->setClearButtonEnabled(true);
    auto* inspector = new QWidget(this);
    auto* column = new QVBoxLayout(inspector);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(filter_);
    column->addWidget(pages_);
    auto* left = new QSplitter(Qt::Vertical, this);
    left->addWidget(tree_);
    left->addWidget(inspector);
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
    for (QTableWidget* table : {properties_, events_})
        connect(table, &QTableWidget::cellChanged, this,
                [this, table](int at, int cell) { Entered(*table, at, cell); });
    connect(events_, &QTableWidget::cellDoubleClicked, this, [this](int at, int) {
        if (at < int(rows_[1].size())) GoToEvent(rows_[1][std::size_t(at)].info);
    });
    connect(filter_, &QLineEdit::textChanged, this, [this] { FillInspector(); });
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
    FillInspector();
}

// --- the inspector ---

void FormPage::FillInspector() {
    if (!selected_) return;
    FillTable(*properties_, false);
    FillTable(*events_, true);
}

void FormPage::FillTable(QTableWidget& table, bool events) {
    filling_ = true;
    std::vector<PropertyRow>& rows = rows_[events];
    rows = PropertyRows(*selected_, events);
    std::erase_if(rows, [&](const PropertyRow& row) {
        return !Q(row.info.name).contains(filter_->text(), Qt::CaseInsensitive);
    });
    const int current = table.currentRow();
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setRowCount(int(rows.size()));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const PropertyRow& row = rows[i];
        auto* name = new QTableWidgetItem(Q(row.info.name));
        name->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        name->setToolTip(Q(row.info.name + ": " + row.info.typeName));
        auto* value = new QTableWidgetItem(Q(row.text));
        value->setToolTip(Q(row.text));
        QStringList choices;
        for (const std::string& choice : row.choices)
            choices << Q(choice);
        value->setData(ChoicesRole, choices);
        if (!row.editable) value->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        QFont font = table.font();
        font.setBold(row.stored);
        value->setFont(font);
        table.setItem(int(i), 0, name);
        table.setItem(int(i), 1, value);
    }
    if (current >= 0 && current < table.rowCount()) table.setCurrentCell(current, 1);
    table.setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                          QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
    filling_ = false;
}

void FormPage::Entered(QTableWidget& table, int row, int column) {
    if (filling_ || column != 1 || !selected_) return;
    const bool events = &table == events_;
    const PropertyRow property = rows_[events][std::size_t(row)];
    const std::string text = S(table.item(row, column)->text());
    if (text == property.text) return;
    run_([&] {
        if (events)
            SetEvent(property.info, text);
        else if (property.info.name == "Name")
            SetName(text);
        else
            SetProperty(*selected_, property.info, text);
        form_.Designer().Modified();
    });
    Later(); // also what was refused is shown as it is
}

void FormPage::SetName(const std::string& name) {
    if (!QRegularExpression("^[\\p{L}_][\\p{L}\\p{N}_]*$", QRegularExpression::UseUnicodePropertiesOption)
             .match(Q(name))
             .hasMatch())
        throw Error("'" + name + "' is not a valid component name");
    form_.Designer().RenameComponent(*selected_, name);
}

void FormPage::SetEvent(const PropertyInfo& info, const std::string& method) {
    if (method.empty())
        selected_->Node().Remove(info.name);
    else
        selected_->SetMethodProp(info.name, form_.Designer().CreateMethod(method, MethodTypeOf(info)));
}

void FormPage::GoToEvent(const PropertyInfo& info) {
    run_([&] {
        std::string method = selected_->GetMethodProp(info.name);
        if (method.empty()) {
            const std::string event = info.name.starts_with("On") ? info.name.substr(2) : info.name;
            const bool isRoot = selected_ == &form_.Tree().Root();
            method = form_.Designer().CreateMethod((isRoot ? "Form" : selected_->Name()) + event, MethodTypeOf(info));
            selected_->SetMethodProp(info.name, method);
            form_.Designer().Modified();
        }
        form_.Designer().ShowMethod(method);
    });
}

void FormPage::GoToDefaultEvent(TComponent* component) {
    if (!component) component = &form_.Tree().Root();
    form_.Designer().SelectComponent(component);
    for (const char* name : {"OnClick", "OnChange", "OnExecute", "OnCreate", "OnTimer"})
        if (const auto info = component->FindProperty(name)) return GoToEvent(*info);
}

} // namespace glotta


