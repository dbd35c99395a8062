#include "roots/gui/RootsOverviewWindow.h"

RootsOverviewWindow::RootsOverviewWindow(const QString& title)
    : HelpTextWindow(title, overviewText())
{
}

QString RootsOverviewWindow::overviewText()
{
    return QStringLiteral(
        "What it shows: the roots of a x^2 + b x + c = 0 worked out four ways, one per column: "
        "the naive formula in single precision, the formula that avoids cancellation in single "
        "precision, the naive formula in double precision and the naive formula in high "
        "precision (256 bits). The rows are b^2, 4ac, sqrt(b^2 - 4ac), the large root, "
        "a x1^2 + b x1 + c for it, the small root and a x2^2 + b x2 + c for it, so you can see "
        "at which step the single-precision columns lose their digits.\n"
        "\n"
        "Colours: in every row the first three columns are compared in pairs, and a pair counts "
        "as different when its values are more than 1e-11 apart. When all three differ, the "
        "three cells are red (naive single), blue (cancellation single) and pink (double). When "
        "one column disagrees with the other two, which agree, only that column's cell is "
        "coloured, in its own colour (red, blue or pink), and the other two are black. When all "
        "three agree, or a column has no valid value, all three are black. When only one pair "
        "differs, the cells keep the colours they had. The high-precision column is the "
        "reference and is never coloured. The grey bands only tell the rows apart.\n"
        "\n"
        "Keys: this tab has no animation, so Space, + and - do nothing here.\n");
}
