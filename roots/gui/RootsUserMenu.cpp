#include "roots/gui/RootsUserMenu.h"

RootsUserMenu::RootsUserMenu(const QString& title) : HelpTextWindow(title, helpText()) {}

QString RootsUserMenu::helpText()
{
    return QStringLiteral(
        "The \"File\" menu consists of one option. \n"
        "\n"
        "\"Save data to a txt file\" could save the values in each step to a txt file. \n"
        "\n"
        "The \"Examples\" menu consists of three examples.\n"
        "\n"
        "The \"Example 1\" is a regular example.\n"
        "The \"Example 2 is a case that b^2 >> 4ac.\n"
        "The \"Example 3\" is a case that b^2 is approximate to 4ac. \n"
        "\n"
        "Red, blue and pink colors are used to highlight the differences among the values with "
        "different solutions. \n"
        "\n"
        "You can change the input based on your preference. Please remember that \"a\" SHOULD "
        "not be 0.\n");
}
