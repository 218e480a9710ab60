#include "workbench/ProjectTree.h"

#include "host/ProjectModule.h"
#include "platform/Files.h"
#include "workbench/QtText.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

namespace glotta {
namespace {

enum Role { FileRole = Qt::UserRole, IsFormRole, ProjectRole };

QTreeWidgetItem& AddItem(QTreeWidgetItem& parent, const QString& text, const std::string& file, bool form = false) {
    auto* item = new QTreeWidgetItem(&parent, {text});
    item->setData(0, FileRole, Q(file));
    item->setData(0, IsFormRole, form);
    item->setToolTip(0, Q(file));
    return *item;
}

QString NameOf(const std::string& file) {
    return Q(PathText(PathFromText(file).filename()));
}

// True when the item or something below it matches; hides what does not.
bool FilterItem(QTreeWidgetItem& item, const QString& text) {
    bool any = text.isEmpty() || item.text(0).contains(text, Qt::CaseInsensitive);
    const bool self = any;
    for (int i = 0; i < item.childCount(); ++i)
        any = FilterItem(*item.child(i), self ? QString() : text) || any;
    item.setHidden(!any);
    return any;
}

} // namespace

ProjectTree::ProjectTree(QWidget* parent) : QWidget(parent) {
    filter_ = new QLineEdit(this);
    filter_->setPlaceholderText("Filter units and forms");
    filter_->setClearButtonEnabled(true);
    tree_ = new QTreeWidget(this);
    tree_->setObjectName("project");
    tree_->setHeaderHidden(true);
    tree_->setUniformRowHeights(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(filter_);
    column->addWidget(tree_);
    setFocusProxy(tree_);
    tree_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(filter_, &QLineEdit::textChanged, this, &ProjectTree::Filter);
    connect(tree_, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) { Load(*item); });
    connect(tree_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        const QString file = item->data(0, FileRole).toString();
        if (!file.isEmpty() && OnOpen) OnOpen(S(file), item->data(0, IsFormRole).toBool());
    });
    connect(tree_, &QTreeWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        QTreeWidgetItem* item = tree_->itemAt(at);
        if (!item) return;
        QMenu menu(tree_);
        const QString file = item->data(0, FileRole).toString();
        if (!file.isEmpty())
            menu.addAction("&Open", this, [this, item, file] { OnOpen(S(file), item->data(0, IsFormRole).toBool()); });
        if (const QVariant index = item->data(0, ProjectRole); index.isValid())
            menu.addAction("Set as &Active Project", this, [this, index] { OnActivateProject(index.toInt()); });
        if (!menu.isEmpty()) menu.exec(tree_->viewport()->mapToGlobal(at));
    });
}

void ProjectTree::ShowProject(IOTAModule* project) {
    shown_ = project;
    tree_->clear();
    if (auto* group = AsProjectGroup(project))
        AddGroup(*group);
    else if (auto* single = AsProject(project)) {
        QTreeWidgetItem& item = AddItem(*tree_->invisibleRootItem(), NameOf(single->FileName()), single->FileName());
        AddUnits(item, *single);
        item.setExpanded(true);
    }
    Filter(filter_->text());
}

void ProjectTree::AddUnits(QTreeWidgetItem& parent, IOTAProject& project) {
    for (const IOTAModuleInfo& info : project.Modules()) {
        QTreeWidgetItem& unit = AddItem(parent, NameOf(info.fileName), info.missing ? std::string() : info.fileName);
        if (info.missing) {
            unit.setDisabled(true);
            unit.setToolTip(0, Q(info.fileName) + " is missing");
        } else if (!info.formFile.empty()) {
            const QString form = info.formName.empty() ? NameOf(info.formFile) : Q(info.formName);
            AddItem(unit, form, info.fileName, true).setToolTip(0, Q(info.formFile));
        }
    }
}

void ProjectTree::AddGroup(IOTAProjectGroup& group) {
    auto& files = static_cast<PlainProjectGroup&>(group);
    QTreeWidgetItem& root = AddItem(*tree_->invisibleRootItem(), NameOf(group.FileName()), {});
    for (int i = 0; i < group.ProjectCount(); ++i) {
        const ProjectGroupEntry& entry = files.ProjectEntryOf(i);
        const std::string path = PathText(entry.file);
        QTreeWidgetItem& item = AddItem(root, NameOf(path), {});
        item.setToolTip(0, Q(path));
        item.setData(0, ProjectRole, i);
        item.setDisabled(entry.missing);
        if (!entry.missing) item.setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    }
    root.setExpanded(true);
    ShowActive();
}

void ProjectTree::Load(QTreeWidgetItem& item) {
    auto* group = AsProjectGroup(shown_);
    const QVariant index = item.data(0, ProjectRole);
    if (!group || !index.isValid() || item.childCount() > 0) return;
    if (IOTAProject* project = group->GetProject(index.toInt())) {
        item.setData(0, FileRole, Q(project->FileName()));
        AddUnits(item, *project);
    }
    item.setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
}

void ProjectTree::ShowAgain(IOTAProject& project) {
    for (QTreeWidgetItemIterator item(tree_); *item; ++item) {
        if ((*item)->data(0, FileRole).toString() != Q(project.FileName())) continue;
        qDeleteAll((*item)->takeChildren());
        AddUnits(**item, project);
        return Filter(filter_->text());
    }
}

void ProjectTree::ShowActive() {
    auto* group = AsProjectGroup(shown_);
    if (!group || tree_->topLevelItemCount() == 0) return;
    IOTAProject* active = group->ActiveProject();
    QTreeWidgetItem* root = tree_->topLevelItem(0);
    for (int i = 0; i < root->childCount(); ++i) {
        QTreeWidgetItem& item = *root->child(i);
        const int index = item.data(0, ProjectRole).toInt();
        const auto& entry = static_cast<PlainProjectGroup*>(group)->ProjectEntryOf(index);
        const bool isActive = active && active->FileName() == PathText(entry.file);
        QFont font = tree_->font();
        font.setBold(isActive);
        item.setFont(0, font);
        if (isActive) {
            Load(item);
            item.setExpanded(true);
            tree_->scrollToItem(&item);
        }
    }
}

void ProjectTree::Filter(const QString& text) {
    for (int i = 0; i < tree_->topLevelItemCount(); ++i) {
        FilterItem(*tree_->topLevelItem(i), text);
        tree_->topLevelItem(i)->setHidden(false);
    }
    if (!text.isEmpty()) tree_->expandAll();
}

} // namespace glotta
