#include "sine/gui/SineUserMenu.h"

SineUserMenu::SineUserMenu(const QString& title) : HelpTextWindow(title, helpText()) {}

// The file paragraph runs its two sentences together and speaks of "five approaches", as the
// text always has.
QString SineUserMenu::helpText()
{
    return QStringLiteral(
        "The \"File\" menu consists of four options. \n"
        "\n"
        "\"Open a configuration file\" and \"Save to a configuration file\" could load and save "
        "the color settings of the lines to a \"conf\" file, respectively."
        "\"Save data to a txt file\" and \"Save data to a csv file\" could save the values "
        "calculated by the five approaches to a txt and csv file, respectively. \n"
        "\n"
        "The \"Tools\" menu consists of four options.\n"
        "\n"
        "The \"Region focus\" window allows the user to zoom in any region in the display "
        "screen.\n"
        "The \"Selections\" window allows the user to select different approaches to "
        "visualize.\n"
        "The \"Status\" window show the detailed information of each approach.\n"
        "The \"Color map\" window allows the user to select colors for the approaches \n");
}
