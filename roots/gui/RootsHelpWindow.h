#pragma once

#include "common/gui/HelpTextWindow.h"

// The Roots tab's "About" window: the three ways of solving the quadratic equation.
class RootsHelpWindow : public HelpTextWindow
{
    Q_OBJECT

public:
    explicit RootsHelpWindow(const QString& title);

    static QString helpText();
};
