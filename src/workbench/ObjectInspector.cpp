#include "workbench/ObjectInspector.h"

#include "workbench/QtText.h"

#include <QtGui/QShortcut>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace glotta {
namespace {

constexpr int HasChoicesRole = Qt::UserRole, OtherTextsRole = Qt::UserRole + 1; // what may be typed besides

// A value with few choices is picked from a list.
class ValueDelegate : public QStyledItemDelegate {
public:
    // `choicesOf` tells the choices of a row when its list drops down.
    ValueDelegate(QObject* parent, std::function<QStringList(int row)> choicesOf)
        : QStyledItemDelegate(parent), choicesOf_(std::move(choicesOf)) {}
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        if (!index.data(HasChoicesRole).toBool()) return QStyledItemDelegate::createEditor(parent, option, index);
        auto* combo = new QComboBox(parent);
        combo->addItems(choicesOf_(index.row()));
        combo->setEditable(index.data(OtherTextsRole).toBool());
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

private:
    std::function<QStringList(int row)> choicesOf_;
};

QTableWidget* MakeTable(QWidget* parent, const QString& name, std::function<QStringList(int row)> choicesOf) {
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
    table->setItemDelegateForColumn(1, new ValueDelegate(table, std::move(choicesOf)));
    table->setTabKeyNavigation(false);
    return table;
}

} // namespace

ObjectInspector::ObjectInspector(PlainFormEditor& form, DesignRegistry& registry, Run run, QWidget* parent)
    : QWidget(parent), form_(form), registry_(registry), run_(std::move(run)) {
    pages_ = new QTabWidget(this);
    pages_->setDocumentMode(true);
    const auto choicesOf = [this](bool events) {
        return [this, events](int row) {
            QStringList texts;
            for (const std::string& choice : Choices(rows_[events][std::size_t(row)]))
                texts << Q(choice);
            return texts;
        };
    };
    properties_ = MakeTable(pages_, "properties", choicesOf(false));
    events_ = MakeTable(pages_, "events", choicesOf(true));
    pages_->addTab(properties_, "Properties");
    pages_->addTab(events_, "Events");
    filter_ = new QLineEdit(this);
    filter_->setPlaceholderText("Filter");
    filter_->setClearButtonEnabled(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(filter_);
    column->addWidget(pages_);

    for (QTableWidget* table : {properties_, events_})
        connect(table, &QTableWidget::cellChanged, this,
                [this, table](int at, int cell) { Entered(*table, at, cell); });
    connect(events_, &QTableWidget::cellDoubleClicked, this, [this](int at, int) {
        if (at < int(rows_[1].size())) GoToEvent(rows_[1][std::size_t(at)].info);
    });
    connect(properties_, &QTableWidget::cellDoubleClicked, this, [this](int at, int) { OpenDialog(at); });
    auto* open = new QShortcut(QKeySequence("Ctrl+Return"), properties_);
    open->setContext(Qt::WidgetWithChildrenShortcut);
    connect(open, &QShortcut::activated, this, [this] { OpenDialog(properties_->currentRow()); });
    connect(filter_, &QLineEdit::textChanged, this, [this] { Fill(); });
}

void ObjectInspector::Show(IDesignerSelections components) {
    components_ = std::move(components);
    Fill();
}

void ObjectInspector::Forget() {
    components_.clear();
    for (QTableWidget* table : {properties_, events_})
        table->setRowCount(0);
    for (auto& rows : rows_)
        rows.clear();
}

void ObjectInspector::Fill() {
    if (components_.empty()) return;
    FillTable(*properties_, false);
    FillTable(*events_, true);
}

void ObjectInspector::FillTable(QTableWidget& table, bool events) {
    filling_ = true;
    std::vector<PropertyRow>& rows = rows_[events];
    rows = PropertyRows(components_, events, [this](TComponent& component, const PropertyInfo& info) {
        return registry_.PropertyEditorOf(component, info, form_.Designer());
    });
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
        value->setData(HasChoicesRole, row.hasChoices);
        value->setData(OtherTextsRole, !row.editors.empty());
        if (!row.editable) value->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        QFont font = table.font();
        font.setBold(row.stored);
        value->setFont(font);
        table.setItem(int(i), 0, name);
        table.setItem(int(i), 1, value);
        table.removeCellWidget(int(i), 1);
        if (row.HasDialog()) AddDialogButton(table, int(i));
    }
    if (current >= 0 && current < table.rowCount()) table.setCurrentCell(current, 1);
    table.setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                          QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
    filling_ = false;
}

void ObjectInspector::Entered(QTableWidget& table, int row, int column) {
    if (filling_ || column != 1 || components_.empty()) return;
    const PropertyRow property = rows_[&table == events_][std::size_t(row)];
    const std::string text = S(table.item(row, column)->text());
    if (text == property.text) return;
    run_([&] { EnterValue(form_, components_, property, text); });
    if (OnEntered) OnEntered();
}

void ObjectInspector::AddDialogButton(QTableWidget& table, int row) {
    auto* holder = new QWidget;
    auto* button = new QToolButton(holder);
    button->setObjectName("dialog");
    button->setText("...");
    button->setToolTip("Edit (Ctrl+Enter)");
    button->setFocusPolicy(Qt::NoFocus);
    auto* line = new QHBoxLayout(holder);
    line->setContentsMargins(0, 0, 1, 0);
    line->addStretch();
    line->addWidget(button);
    table.setCellWidget(row, 1, holder);
    // The button goes when the rows are filled anew, which the dialog may lead to.
    connect(button, &QToolButton::clicked, this, [this, row] { OpenDialog(row); }, Qt::QueuedConnection);
}

void ObjectInspector::OpenDialog(int row) {
    if (components_.empty() || row < 0 || row >= int(rows_[0].size())) return;
    const PropertyRow property = rows_[0][std::size_t(row)];
    if (!property.HasDialog()) return;
    run_([&] {
        form_.EditStep([&] { property.editors.front()->Edit(); });
    });
    if (OnEntered) OnEntered();
}

void ObjectInspector::GoToEvent(const PropertyInfo& info) {
    run_([&, info] { form_.Designer().ShowMethod(EventMethod(form_, components_, info)); });
}

void ObjectInspector::GoToDefaultEvent() {
    if (components_.empty()) return;
    if (const auto info = DefaultEvent(*components_.front())) GoToEvent(*info);
}

} // namespace glotta
