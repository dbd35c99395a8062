#pragma once

#include "common/gui/HelpTextWindow.h"

// The Roots tab's "Help" window: what its menus do.
class RootsUserMenu : public HelpTextWindow
{
    Q_OBJECT

public:
    explicit RootsUserMenu(const QString& title);

    static QString helpText();
};
