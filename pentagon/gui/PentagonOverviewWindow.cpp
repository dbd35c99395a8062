#include "pentagon/gui/PentagonOverviewWindow.h"

PentagonOverviewWindow::PentagonOverviewWindow(const QString& title)
    : HelpTextWindow(title, overviewText())
{
}

QString PentagonOverviewWindow::overviewText()
{
    return QStringLiteral(
        "What it shows: a pentagon with its diagonals. \"In\" joins the diagonals' crossing "
        "points into a smaller pentagon, \"Out\" extends the edges into a larger one. With as "
        "many Ins as Outs the pentagon should come back exactly to where it started; the plot "
        "shows how far rounding errors carry it away instead.\n"
        "\n"
        "Colours (the default ones; the Color map window changes them): the initial pentagon is "
        "red, the newest pentagon is blue, and the ones in between are greys that lighten with "
        "age, from nearly black for the one just before the newest to a middle grey for those "
        "16 or more steps old.\n"
        "\n"
        "Keys: while \"Animated example\" is the chosen mode, Space presses the Start (later "
        "Restart) button and runs the example from the beginning, whenever no text field has "
        "the keyboard focus (a focused button or check box takes Space for itself). This tab has "
        "no speed buttons, so + and - do nothing here; in the other modes Space does nothing "
        "either.\n");
}
