#pragma once

#include "common/gui/HelpTextWindow.h"

// The sine tab's "Help" window: what its File and Tools menus and tool windows do.
class SineUserMenu : public HelpTextWindow
{
    Q_OBJECT

public:
    explicit SineUserMenu(const QString& title);

    static QString helpText();
};
