#pragma once

#include "common/gui/HelpTextWindow.h"

// The Pentagon tab's "Help" text: what its File and Tools menus offer.
class PentagonUserMenu : public HelpTextWindow
{
    Q_OBJECT

public:
    explicit PentagonUserMenu(const QString& title);

    static QString helpText();
};
