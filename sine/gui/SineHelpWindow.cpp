#include "sine/gui/SineHelpWindow.h"

SineHelpWindow::SineHelpWindow(const QString& title) : HelpTextWindow(title, helpText()) {}

// The first sentence runs straight into the second, and the summation methods are introduced
// as "Term Evaluation": the text reads as it always has.
QString SineHelpWindow::helpText()
{
    return QStringLiteral(
        "In the program, we use 12 different approaches to calculate a Sine value and compare "
        "with the value calculated by C++ Math library."
        "By comparing these approaches, the user could realize which approaches provides better "
        "results and why they are better.\n"
        "\n"
        "The sine function sin(x) can be evaluated using an infinite series (Taylor series) as "
        "follows: \n"
        "Sin{x} = x - x^3 / 3! + x^5 / 5! - x^7 / 7! ... \n"
        "= SUM{(-1)^n * x^(2n + 1) / (2n + 1)!}, where x is in radian.\n"
        "\n"
        "To increase the accuracy, we provide the three improvements in Sine Input, Term "
        "Evaluations and Summation Methods. \n"
        "\n"
        "For the Sine Input, we reduce x in degree to the range of 0 to 90. \n"
        "\n"
        "For the Term Evaluation, we calculate x^(2n + 1) / [(2n + 1)!] = x^(2n - 1) / [(2n - "
        "1)!] * x^2 / [(2n)(2n - 1)] to delay the iteration that OVERFLOW or UNDERFLOW error "
        "occurs. \n"
        "\n"
        "For the Term Evaluation, we introduce two approaches. \n"
        "First, we add all positive values together, then negative values together, finally "
        "add these two to get the final summation value.\n"
        "Second, we use Kahan summation algorthm which records the error in each iteration and "
        "consider it in the next iteration.\n"
        "\n"
        "Therefore, we have 2 * 2 * 3 = 12 approaches.\n");
}
