#include "roots/gui/RootsHelpWindow.h"

RootsHelpWindow::RootsHelpWindow(const QString& title) : HelpTextWindow(title, helpText()) {}

QString RootsHelpWindow::helpText()
{
    return QStringLiteral(
        "We provide three solutions for a quadratic equation: 0 = ax^2 + bx + c. \n"
        "The first two are with single precision\n"
        "\n"
        "Naive solution: \n"
        "x_{1,2} = (-b +/- sqrt(b^2 - 4ac)) / (2a).\n"
        "\n"
        "Solution with cancellation: \n"
        "When b^2 >> 4ac, sqrt(b^2 - 4ac) is very close to |b|.\n"
        "Then one of the roots is 0.\n"
        "To solve this program, we split it into two cases.\n"
        "When b >= 0, x1 = (-b - sqrt(b^2 - 4ac)) / 2a.\n"
        "When b < 0, x1 = (-b + sqrt(b^2 - 4ac)) / 2a.\n"
        "Based on the x_{1,2} in the naive solution, we can derive x1 * x2 = (-b + sqrt(b^2 - "
        "4ac)) / 2a * (-b - sqrt(b^2 - 4ac)) / 2a.\n"
        "Then x1 * x2 = [(-b)^2 - (b^2 - 4ac)] / 4a^2 = c/a.\n"
        "x2 = c / (a x1).\n"
        "\n"
        "Solution with double precision: \n"
        "The rounding-off error also occurs when b^2 is approximate to 4ac.\n"
        "Then the two roots may be equal.\n"
        "To our best knowledge, there is no good solution for this situation thus we use the "
        "solution with double-precision to decrease the errors.\n");
}
