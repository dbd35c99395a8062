#include "assoc/gui/AssoOverviewWindow.h"

#include "common/gui/PlotOverviewTexts.h"

AssoOverviewWindow::AssoOverviewWindow(const QString& title) : HelpTextWindow(title, overviewText())
{
}

QString AssoOverviewWindow::overviewText()
{
    return QStringLiteral(
               "What it shows: the sequence X_n = (R + 1) * X_{n-1} - R * X_{n-1} * X_{n-1} "
               "computed in single precision in five orders of operations that are equal in exact "
               "arithmetic. Each curve is one order, plotted against the iteration n. The curves "
               "agree at first and then part: each order rounds differently, and for a large R "
               "the differences grow until the curves have nothing in common.\n"
               "\n"
               "Colours (the default ones; the Color map window changes them): order 1 is purple, "
               "order 2 teal, order 3 orange-red, order 4 olive and order 5 green. The legend "
               "shows each order's formula beside its colour.\n"
               "\n"
               "The \"Error:\" readout below the plot is the spread of the orders at the last "
               "iteration shown: the largest value minus the smallest, over the shown orders "
               "that have a value there without an error. It appears when at least two do.\n"
               "\n") +
           referenceLinesOverview() + QStringLiteral("\n") + animationKeysOverview();
}
