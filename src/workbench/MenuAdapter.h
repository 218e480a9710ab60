// Shows menus that are data: in a menu bar, in a tool bar, as a context menu.
#pragma once
#include "vcl/Menu.h"

#include <QtCore/QObject>
#include <QtCore/QPoint>

#include <unordered_map>
#include <utility>
#include <vector>

class QAction;
class QMenu;
class QWidget;

namespace glotta {

// Keeps the actions of a bar as the menu's items are. Changes are taken over together, when the program is idle.
class MenuAdapter : public QObject {
public:
    // The bar is a QMenuBar or a QToolBar; both must outlive the adapter's use of them. Without `takesKeys` its
    // shortcuts are only shown: who owns the bar asks for the action of a key.
    MenuAdapter(QWidget& bar, TMenu& menu, bool takesKeys = true);
    ~MenuAdapter() override;

    // Takes over now what changed.
    void Refresh();
    // The action that shows the item, nil when the item is new or gone.
    QAction* ActionOf(const TMenuItem& item) const;
    // The action with this shortcut, enabled or not; nil when there is none.
    QAction* ActionOf(const QKeySequence& keys) const;

private:
    // The items in order, with what each one needs an action of another kind for.
    using Shape = std::vector<std::pair<const TMenuItem*, int>>;
    Shape ShapeOf() const;
    void RefreshSoon();
    void Rebuild();
    void FillMenu(QMenu& menu, TMenuItem& parent);
    QAction* MakeAction(TMenuItem& item, QWidget& owner);
    void Chosen(TMenuItem* item);
    bool IsThere(const TMenuItem* item) const;

    QWidget& bar_;
    TMenu& menu_;
    bool takesKeys_;
    bool stale_ = true;
    Shape shape_;
    std::unordered_map<const TMenuItem*, QAction*> actions_;
};

// Opens a context menu and runs what is chosen in it.
void PopUp(TPopupMenu& menu, QWidget& over, const QPoint& globalPosition);

} // namespace glotta
