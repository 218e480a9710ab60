// Tool bars and context menus of actions.
#pragma once
#include "workbench/Bindings.h"

#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QWidget>

namespace glotta {

// An action of the window, shown in as many places as it is added to; its shortcut works anywhere in the
// window.
inline QAction* WindowAction(QWidget& window, Bindings& bind, TAction& action) {
    auto* shown = new QAction(&window);
    shown->setShortcutContext(Qt::WindowShortcut);
    window.addAction(shown);
    bind.Bind(*shown, action);
    return shown;
}

// So that the buttons are reached by Tab.
inline void LetTabReach(QToolBar& bar) {
    for (auto* button : bar.findChildren<QToolButton*>())
        button->setFocusPolicy(Qt::TabFocus);
}

} // namespace glotta
