#include "workbench/MenuAdapter.h"

#include "workbench/QtText.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

namespace glotta {
namespace {

constexpr int WhileOpen = 100; // milliseconds

bool IsBelow(const TMenuItem& parent, const TMenuItem* item) {
    bool found = false;
    parent.ForEach([&](TMenuItem& each) { found = found || &each == item; });
    return found;
}

void Describe(QAction& action, const TMenuItem& item) {
    action.setText(Q(item.Caption()));
    action.setObjectName(Q(item.Name()));
    action.setShortcut(QKeySequence::fromString(Q(item.ShortCut())));
    const QString hint = Q(item.ShortHint());
    action.setToolTip(hint.isEmpty() ? Q(item.Caption()).remove('&') : hint);
    const std::size_t bar = item.Hint().find('|');
    action.setStatusTip(bar == std::string::npos ? hint : Q(item.Hint().substr(bar + 1)));
    action.setEnabled(item.Enabled());
    const bool offersNothing = action.menu() && item.Count() == 0 && item.Enabled();
    action.setVisible(item.Visible() && !offersNothing);
    action.setCheckable(item.Checked() || item.RadioItem());
    action.setChecked(item.Checked());
}

void FillPopup(QMenu& menu, TMenuItem& parent, TMenuItem*& chosen) {
    for (std::size_t i = 0; i < parent.Count(); ++i) {
        TMenuItem& item = parent[i];
        if (item.IsSeparator()) {
            menu.addSeparator()->setVisible(item.Visible());
            continue;
        }
        if (item.Count() == 0) {
            QAction* action = menu.addAction(QString());
            Describe(*action, item);
            QObject::connect(action, &QAction::triggered, &menu, [&chosen, &item] { chosen = &item; });
            continue;
        }
        QMenu* below = menu.addMenu(QString());
        Describe(*below->menuAction(), item);
        QObject::connect(below, &QMenu::aboutToShow, below, [below, &item, &chosen] {
            item.Click();
            below->clear();
            FillPopup(*below, item, chosen);
        });
        FillPopup(*below, item, chosen); // a menu without actions would not open
    }
}

} // namespace

MenuAdapter::MenuAdapter(QWidget& bar, TMenu& menu, bool takesKeys)
    : bar_(bar), menu_(menu), takesKeys_(takesKeys) {
    menu_.OnView = [this] {
        if (stale_) return;
        stale_ = true;
        RefreshSoon();
    };
    Rebuild();
}

MenuAdapter::~MenuAdapter() {
    menu_.OnView = nullptr;
}

void MenuAdapter::RefreshSoon() {
    QTimer::singleShot(0, this, [this] {
        // A menu that somebody has open is not taken away.
        if (stale_ && QApplication::activePopupWidget() && ShapeOf() != shape_)
            return QTimer::singleShot(WhileOpen, this, [this] { RefreshSoon(); });
        Refresh();
    });
}

void MenuAdapter::Refresh() {
    if (!stale_) return;
    if (ShapeOf() != shape_) return Rebuild();
    for (const auto& [item, kind] : shape_)
        if (QAction* action = ActionOf(*item); action && !item->IsSeparator()) Describe(*action, *item);
    stale_ = false;
}

MenuAdapter::Shape MenuAdapter::ShapeOf() const {
    Shape shape;
    menu_.Items.ForEach([&](TMenuItem& item) {
        shape.emplace_back(&item, item.IsSeparator() ? 2 : item.Count() > 0 ? 1 : 0);
    });
    return shape;
}

QAction* MenuAdapter::ActionOf(const TMenuItem& item) const {
    const auto found = actions_.find(&item);
    return found == actions_.end() ? nullptr : found->second;
}

QAction* MenuAdapter::ActionOf(const QKeySequence& keys) const {
    for (const auto& [item, action] : actions_)
        if (!keys.isEmpty() && action->shortcut() == keys) return action;
    return nullptr;
}

void MenuAdapter::Rebuild() {
    actions_.clear();
    for (QAction* action : bar_.actions()) {
        bar_.removeAction(action);
        // The handler of an action may be running.
        if (action->menu())
            action->menu()->deleteLater();
        else
            action->deleteLater();
    }
    for (std::size_t i = 0; i < menu_.Items.Count(); ++i)
        bar_.addAction(MakeAction(menu_.Items[i], bar_));
    shape_ = ShapeOf();
    stale_ = false;
}

void MenuAdapter::FillMenu(QMenu& menu, TMenuItem& parent) {
    for (QAction* action : menu.actions()) {
        menu.removeAction(action);
        action->deleteLater();
    }
    for (std::size_t i = 0; i < parent.Count(); ++i)
        menu.addAction(MakeAction(parent[i], menu));
}

QAction* MenuAdapter::MakeAction(TMenuItem& item, QWidget& owner) {
    QAction* action;
    if (item.IsSeparator()) {
        action = new QAction(&owner);
        action->setSeparator(true);
        action->setVisible(item.Visible());
    } else if (item.Count() > 0 || (item.Parent() == &menu_.Items && qobject_cast<QMenuBar*>(&bar_))) {
        auto* below = new QMenu(&owner);
        below->setToolTipsVisible(true);
        action = below->menuAction();
        Describe(*action, item);
        FillMenu(*below, item);
        connect(below, &QMenu::aboutToShow, this, [this, below, opened = &item] {
            if (!IsThere(opened)) return;
            opened->Click();
            if (stale_ && ShapeOf() == shape_)
                Refresh();
            else if (stale_ && IsThere(opened))
                FillMenu(*below, *opened);
        });
    } else {
        action = new QAction(&owner);
        // As a key of the bar, which never has the focus, it takes none.
        if (!takesKeys_) action->setShortcutContext(Qt::WidgetShortcut);
        Describe(*action, item);
        connect(action, &QAction::triggered, this, [this, action, chosen = &item] {
            const QPointer<QAction> shown = action;
            const QPointer<MenuAdapter> alive = this; // the command may close the menu's window
            Chosen(chosen);
            if (alive && shown && IsThere(chosen)) Describe(*shown, *chosen);
        });
    }
    actions_[&item] = action;
    return action;
}

void MenuAdapter::Chosen(TMenuItem* item) {
    if (IsThere(item)) item->Click();
}

bool MenuAdapter::IsThere(const TMenuItem* item) const {
    return IsBelow(menu_.Items, item);
}

void PopUp(TPopupMenu& menu, QWidget& over, const QPoint& globalPosition) {
    if (menu.OnPopup) menu.OnPopup();
    TMenuItem* chosen = nullptr;
    {
        QMenu shown(&over);
        shown.setToolTipsVisible(true);
        FillPopup(shown, menu.Items, chosen);
        shown.exec(globalPosition);
    }
    if (chosen && IsBelow(menu.Items, chosen)) chosen->Click();
}

} // namespace glotta
