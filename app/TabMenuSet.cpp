#include "app/TabMenuSet.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

TabMenuSet::TabMenuSet(const std::vector<MenuEntry>& entries, QWidget* owner)
{
    for (const MenuEntry& entry : entries) {
        QMenu* menu = menuTitled(entry.menu, owner);
        if (entry.text == nullptr) {
            menu->addSeparator();
            continue;
        }
        auto* action = new QAction(QObject::tr(entry.text), owner);
        action->setStatusTip(QObject::tr(entry.statusTip));
        if (entry.shortcut != QKeySequence::UnknownKey) {
            action->setShortcuts(entry.shortcut);
        } else if (!entry.customShortcut.isEmpty()) {
            action->setShortcut(entry.customShortcut);
        }
        QObject::connect(action, SIGNAL(triggered()), owner, entry.slot);
        menu->addAction(action);
        actionsBySlot.emplace_back(QByteArray(entry.slot), action);
    }
}

QMenu* TabMenuSet::menuTitled(const char* title, QWidget* owner)
{
    const QString text = QObject::tr(title);
    if (menuList.isEmpty() || menuList.last()->title() != text) {
        menuList.append(new QMenu(text, owner));
    }
    return menuList.last();
}

void TabMenuSet::installInto(QMenuBar* bar) const
{
    bar->clear();
    for (QMenu* menu : menuList) {
        bar->addMenu(menu);
    }
}

QAction* TabMenuSet::actionForSlot(const char* slot) const
{
    for (const auto& [name, action] : actionsBySlot) {
        if (name == slot) {
            return action;
        }
    }
    return nullptr;
}
