#pragma once

#include "common/gui/HelpTextWindow.h"

// The associative-law tab's "About" window: why the five orders disagree.
class AssoHelpWindow : public HelpTextWindow
{
    Q_OBJECT

public:
    explicit AssoHelpWindow(const QString& title);

    static QString helpText();
};
