#include "assoc/gui/AssoUserMenu.h"

AssoUserMenu::AssoUserMenu(const QString& title) : HelpTextWindow(title, helpText()) {}

QString AssoUserMenu::helpText()
{
    return QStringLiteral(
        "The \"File\" menu consists of four options. \n"
        "\n"
        "\"Open a configuration file\" and \"Save to a configuration file\" could load and save "
        "the color settings of the lines to a \"conf\" file, respectively."
        "\"Save data to a txt file\" and \"Save data to a csv file\" could save the values "
        "calculated by the five approaches to a txt and csv file, respectively. \n"
        "\n"
        "The \"Tools\" menu consists of three options.\n"
        "\n"
        "The \"Region focus\" window allows the user to zoom in any region in the display "
        "screen.\n"
        "The \"Selections\" window has two sections. The left section allows the user to select "
        "the approaches to visualize. The right section allows the user to compare the "
        "differences among the approaches with one of them chosen to be the base function.\n"
        "The \"Color map\" window allows the user to select colors for the approaches \n");
}
