#pragma once

#include "common/gui/HelpTextWindow.h"

// The sine tab's "About" window: the Taylor series and the three ways it is improved.
class SineHelpWindow : public HelpTextWindow
{
    Q_OBJECT

public:
    explicit SineHelpWindow(const QString& title);

    static QString helpText();
};
