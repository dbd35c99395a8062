#include "roots/engine/RootsTextExport.h"

#include "common/core/CFormat.h"
#include "roots/engine/RootsSolver.h"

using quillon::cformat;

namespace
{

constexpr int kExportedVariants = 3;

double exportedValue(const RootsQuantity& quantity, int variant)
{
    switch (variant) {
    case 0:
        return quantity.naive;
    case 1:
        return quantity.cancel;
    default:
        return quantity.dbl;
    }
}

// "<label>" then, per exported variant, "%e, " of the value or the given word when the
// variant found no real roots; then a newline.
std::string guardedLine(const RootsSolver& solver, const char* label, RootsRow row,
                        const char* invalidText)
{
    std::string line = label;
    for (int variant = 0; variant < kExportedVariants; ++variant) {
        line += solver.isValid(variant)
                    ? cformat("%e, ", exportedValue(solver.quantity(row), variant))
                    : std::string(invalidText);
    }
    return line + "\n";
}

std::string alwaysShownLine(const RootsSolver& solver, const char* label, RootsRow row)
{
    const RootsQuantity& quantity = solver.quantity(row);
    return cformat("%s%e, %e, %e;\n", label, exportedValue(quantity, 0), exportedValue(quantity, 1),
                   exportedValue(quantity, 2));
}

} // namespace

std::string rootsTextExport(const RootsSolver& solver)
{
    return cformat("a: %e, b %e, c %e \n", double(solver.singleA()), double(solver.singleB()),
                   double(solver.singleC())) +
           "Approach: Naive; with Cancellation; with Double Precision\n" +
           alwaysShownLine(solver, "b^2: ", RowB2) + alwaysShownLine(solver, "4ac: ", RowFourAC) +
           guardedLine(solver, "sqrt(b^2 - 4ac): ", RowSqrtD, "No real value, ") +
           guardedLine(solver, "large root: ", RowLargeRoot, "No real root, ") +
           guardedLine(solver, "result: ", RowLargeResult, "N/A, ") +
           guardedLine(solver, "small root: ", RowSmallRoot, "No real root, ") +
           guardedLine(solver, "result: ", RowSmallResult, "N/A, ");
}
