#include "assoc/gui/AssoHelpWindow.h"

AssoHelpWindow::AssoHelpWindow(const QString& title) : HelpTextWindow(title, helpText()) {}

QString AssoHelpWindow::helpText()
{
    return QStringLiteral(
        "When we use the associative law to apply different computation orders to calculate a "
        "formula, the results may be inconsistent.\n"
        "\n"
        "Given a value R and an initial value X0 , calculate:\n"
        "X_{n} = (R + 1) * X_{n-1} - R * X_{n-1} * X_{n-1}\n"
        "\n"
        "In this formula, R denotes the growing rate. When R is larger than 2.57, the "
        "rounding-off error dramatically influences the accuracy and causes the associative law "
        "to fail.\n"
        "\n"
        "We calculate the formula with five different orders:\n"
        "X_{n} = (R + 1) * X_{n-1} - R * (X_{n-1} * X_{n-1})\n"
        "X_{n} = (R + 1) * X_{n-1} - (R * X_{n-1}) * X_{n-1}\n"
        "X_{n} = ((R + 1) - R * X_{n-1}) * X_{n-1} \n"
        "X_{n} = R * X_{n-1} + (1 - R * X_{n-1}) * X_{n-1}\n"
        "X_{n} = X_{n-1} + R * (X_{n-1} - X_{n-1} * X_{n-1})\n"
        "\n"
        "In theory, these orders will generate the same set of X_{n}. However, because of the "
        "rounding-off error, they will not.\n");
}
