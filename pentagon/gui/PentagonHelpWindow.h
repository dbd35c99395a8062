#pragma once

#include "common/gui/HelpTextWindow.h"

// The Pentagon tab's "About" text: what In and Out are and what the tab demonstrates.
class PentagonHelpWindow : public HelpTextWindow
{
    Q_OBJECT

public:
    explicit PentagonHelpWindow(const QString& title);

    static QString helpText();
};
