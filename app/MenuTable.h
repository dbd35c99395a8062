#pragma once

#include <QKeySequence>
#include <vector>

// One entry of a tab's menus: an action (text, status tip, optional standard shortcut and
// the main-window slot it triggers, in SLOT() form) or, when text is null, a separator.
struct MenuEntry {
    const char* menu;
    const char* text;
    const char* statusTip;
    QKeySequence::StandardKey shortcut;
    const char* slot;
    // A shortcut that is no standard key (added entries only).
    QKeySequence customShortcut = {};
};

enum TabIndex { RootsTab = 0, PentagonTab = 1, AssoTab = 2, SineTab = 3, TabCount = 4 };

// The menus of one tab, in menu-bar order; entries of one menu are consecutive. The entries
// Quillon adds come after the described ones of their menu.
const std::vector<MenuEntry>& menuTable(TabIndex tab);

// The slot every "&Exit" entry triggers.
extern const char* const kExitSlot;
