#include "pentagon/gui/PentagonHelpWindow.h"

PentagonHelpWindow::PentagonHelpWindow(const QString& title) : HelpTextWindow(title, helpText()) {}

// The sentences run on without a blank after "operation," and after "one.": the text reads as
// it always has.
QString PentagonHelpWindow::helpText()
{
    return QStringLiteral(
        "Given a pentagon, connecting the diagonal edges to form a new pentagon is named \"In\" "
        "operation,"
        "while extending the alternative edges to get the intersection points to form a large "
        "pentagon is called \"Out\" operation.\n"
        "\n"
        "In theory, as long as the numbers of \"In\"s and \"Out\"s are equal, the new pentagon "
        "should be exactly the same as the initial one."
        "However, in this program, we will demonstrate that the new pentagon may be different "
        "because of the rounding-off errors.\n");
}
