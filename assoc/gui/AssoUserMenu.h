#pragma once

#include "common/gui/HelpTextWindow.h"

// The associative-law tab's "Help" window: what its menus and tool windows do.
class AssoUserMenu : public HelpTextWindow
{
    Q_OBJECT

public:
    explicit AssoUserMenu(const QString& title);

    static QString helpText();
};
