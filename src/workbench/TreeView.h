// A tree on the screen. The current node is the form's tree's; a node is asked for when it is drawn.
#pragma once
#include "platform/Tree.h"

#include <QtCore/QAbstractItemModel>
#include <QtGui/QIcon>
#include <QtWidgets/QTreeView>
#include <functional>

namespace glotta {

class TreeModel : public QAbstractItemModel {
public:
    explicit TreeModel(QObject* parent) : QAbstractItemModel(parent) {}
    void SetTree(TTree* tree);
    TTree* Tree() const { return tree_; }
    void NodesChanged();
    QModelIndex IndexOf(int node) const;
    static int NodeOf(const QModelIndex& index) { return index.isValid() ? int(index.internalId()) : TTree::None; }

    std::function<QIcon(int image)> Icon;

    QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex&) const override { return 1; }
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    TTree* tree_ = nullptr;
};

class TreeView : public QTreeView {
    Q_OBJECT
public:
    explicit TreeView(QWidget* parent = nullptr);
    ~TreeView() override { setModel(nullptr); }

    void SetTree(TTree& tree);
    void Forget(); // the tree is gone
    TreeModel& Model() { return model_; }
    // The nodes at the top stay open and have no mark to close them.
    void KeepTopOpen();

    // Runs what may fail; the message is its matter.
    std::function<void(const std::function<void()>&)> Run = [](const std::function<void()>& act) { act(); };
    std::function<void()> OnChanged;                   // another node is current, or it looks different
    std::function<void()> OnDoubleClick;               // on the current node
    std::function<void(const QPoint& global)> OnPopup; // the context menu is wanted

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void Show(TTree::Change change);
    void ShowCurrent();
    TreeModel model_{this};
    bool topOpen_ = false;
    bool telling_ = false; // the tree tells the view, or is told by it: no echo
};

} // namespace glotta
