#include "pentagon/gui/PentagonUserMenu.h"

PentagonUserMenu::PentagonUserMenu(const QString& title) : HelpTextWindow(title, helpText()) {}

// "respectively." runs straight into the next sentence: the text reads as it always has.
QString PentagonUserMenu::helpText()
{
    return QStringLiteral(
        "The \"File\" menu consists of three options. \n"
        "\n"
        "\"Open a configuration file\" and \"Save to a configuration file\" could load and save "
        "the color settings of the lines to a \"conf\" file, respectively."
        "\"Save data to a txt file\" could save the points of all pentagons to a txt. \n"
        "\n"
        "The \"Tools\" menu consists of three options.\n"
        "\n"
        "The \"Region focus\" window allows the user to zoom in any region in the display "
        "screen.\n"
        "The \"Selections\" window allows the user to select any pentagon to visualize.\n"
        "The \"Color map\" window allows the user to select colors for the pentagons. \n");
}
