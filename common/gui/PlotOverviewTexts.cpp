#include "common/gui/PlotOverviewTexts.h"

QString referenceLinesOverview()
{
    return QStringLiteral(
        "Reference lines: the dotted horizontal lines mark the values -1, 0 and 1, so that a "
        "curve's height can be read at a glance.\n");
}

QString animationKeysOverview()
{
    return QStringLiteral(
        "Keys: Space starts, pauses or resumes the animation (it presses the panel's start and "
        "pause button); + speeds it up and - slows it down (the Accelerate and Decelerate "
        "buttons). The keys work "
        "whenever no text field has the keyboard focus (a focused button or check box takes "
        "Space for itself).\n");
}
