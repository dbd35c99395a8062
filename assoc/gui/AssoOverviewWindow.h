#pragma once

#include "common/gui/HelpTextWindow.h"

// The Associative Law tab's "What am I looking at?" window: what the plot, its colours and keys
// show.
class AssoOverviewWindow : public HelpTextWindow
{
    Q_OBJECT

public:
    explicit AssoOverviewWindow(const QString& title);

    static QString overviewText();
};
