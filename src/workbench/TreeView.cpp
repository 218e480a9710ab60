#include "workbench/TreeView.h"

#include "workbench/QtText.h"

#include <QtGui/QContextMenuEvent>

namespace glotta {

void TreeModel::SetTree(TTree* tree) {
    beginResetModel();
    tree_ = tree;
    endResetModel();
}

void TreeModel::NodesChanged() {
    beginResetModel();
    endResetModel();
}

QModelIndex TreeModel::IndexOf(int node) const {
    return tree_ && node != TTree::None ? createIndex((*tree_)[node].row, 0, quintptr(node)) : QModelIndex();
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
    if (!tree_ || column != 0 || row < 0 || row >= rowCount(parent)) return {};
    return createIndex(row, 0, quintptr(tree_->Children(NodeOf(parent))[std::size_t(row)]));
}

QModelIndex TreeModel::parent(const QModelIndex& child) const {
    const int node = NodeOf(child);
    if (!tree_ || node == TTree::None || std::size_t(node) >= tree_->Count()) return {};
    return IndexOf((*tree_)[node].parent);
}

int TreeModel::rowCount(const QModelIndex& parent) const {
    const int node = NodeOf(parent);
    if (!tree_ || (node != TTree::None && std::size_t(node) >= tree_->Count())) return 0;
    return int(tree_->Children(node).size());
}

QVariant TreeModel::data(const QModelIndex& index, int role) const {
    const int node = NodeOf(index);
    if (!tree_ || node == TTree::None || std::size_t(node) >= tree_->Count()) return {};
    if (role == Qt::DisplayRole) return Q((*tree_)[node].text);
    if (role == Qt::DecorationRole && Icon) return Icon((*tree_)[node].image);
    return {};
}

Qt::ItemFlags TreeModel::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled
                           : Qt::ItemFlags(Qt::NoItemFlags);
}

TreeView::TreeView(QWidget* parent) : QTreeView(parent) {
    setModel(&model_);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setExpandsOnDoubleClick(false);
    setIndentation(16);
    setDragEnabled(true);
    setDragDropMode(DragOnly);
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
        if (topOpen_ && !index.parent().isValid()) expand(index);
    });
}

void TreeView::KeepTopOpen() {
    topOpen_ = true;
    setRootIsDecorated(false);
    for (int row = 0; row < model_.rowCount({}); ++row)
        expand(model_.index(row, 0, {}));
}

void TreeView::SetTree(TTree& tree) {
    telling_ = true;
    model_.SetTree(&tree);
    telling_ = false;
    tree.OnView = [this](TTree::Change change) { Show(change); };
    ShowCurrent();
}

void TreeView::Forget() {
    telling_ = true;
    model_.SetTree(nullptr);
    telling_ = false;
}

void TreeView::Show(TTree::Change change) {
    const bool before = std::exchange(telling_, true);
    if (change == TTree::Change::Nodes) {
        model_.NodesChanged();
        if (topOpen_) KeepTopOpen();
    }
    telling_ = before;
    if (change != TTree::Change::Images) ShowCurrent();
    viewport()->update();
    if (OnChanged) OnChanged();
}

void TreeView::ShowCurrent() {
    const bool before = std::exchange(telling_, true);
    const QModelIndex index = model_.IndexOf(model_.Tree()->Current());
    if (index.isValid()) {
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        scrollTo(index);
    } else {
        selectionModel()->clear();
    }
    telling_ = before;
}

void TreeView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    if (telling_ || !model_.Tree()) return;
    const int node = TreeModel::NodeOf(current);
    if (node == TTree::None || node == model_.Tree()->Current()) return;
    Run([&] { model_.Tree()->Select(node); });
}

void TreeView::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && OnDoubleClick &&
        indexAt(event->position().toPoint()) == currentIndex() && currentIndex().isValid())
        OnDoubleClick();
}

void TreeView::contextMenuEvent(QContextMenuEvent* event) {
    if (OnPopup) OnPopup(event->globalPos());
}

} // namespace glotta
