#pragma once

#include "common/gui/HelpTextWindow.h"

// The Pentagon tab's "What am I looking at?" window: what the plot and its colours show.
class PentagonOverviewWindow : public HelpTextWindow
{
    Q_OBJECT

public:
    explicit PentagonOverviewWindow(const QString& title);

    static QString overviewText();
};
