#pragma once

#include "app/MenuTable.h"

#include <QList>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

// The menus of one tab, created once from its table. The actions are children of the owner
// and trigger the owner's slots; the menus are kept so that the menu bar can be refilled
// with the same objects on every tab change instead of creating new ones.
class TabMenuSet
{
public:
    TabMenuSet(const std::vector<MenuEntry>& entries, QWidget* owner);

    // Clears the bar and fills it with this tab's menus.
    void installInto(QMenuBar* bar) const;

    // The action that triggers `slot` (in SLOT() form), or null.
    QAction* actionForSlot(const char* slot) const;

    const QList<QMenu*>& menus() const { return menuList; }

private:
    QMenu* menuTitled(const char* title, QWidget* owner);

    QList<QMenu*> menuList;
    std::vector<std::pair<QByteArray, QAction*>> actionsBySlot;
};
