#pragma once

#include "common/gui/HelpTextWindow.h"

// The Roots tab's "What am I looking at?" window: what the grid and its colours show.
class RootsOverviewWindow : public HelpTextWindow
{
    Q_OBJECT

public:
    explicit RootsOverviewWindow(const QString& title);

    static QString overviewText();
};
