#include "inspect/gui/RootsInspection.h"

#include "inspect/engine/ErrorReport.h"
#include "inspect/engine/RootsReference.h"

#include <QObject>

namespace
{

FloatFormat columnFormat(int variant)
{
    return variant == 2 ? FloatFormat::Double : FloatFormat::Single;
}

double cellValue(const RootsSolver& solver, RootsRow row, int variant)
{
    const RootsQuantity& quantity = solver.quantity(row);
    return variant == 0   ? double(quantity.naive)
           : variant == 1 ? double(quantity.cancel)
                          : quantity.dbl;
}

// The quantity's true value from the coefficients alone.
void compareWithTrueValue(Inspection& inspection, const RootsSolver& solver, RootsRow row)
{
    const auto reference =
        rootsReference(solver.highA().get(), solver.highB().get(), solver.highC().get());
    if (!reference) {
        inspection.referenceNote = QObject::tr(
            "No true value: with the coefficients as read, b^2 < 4ac and the roots are not real.");
        return;
    }
    inspection.reference = (*reference)[size_t(row)];
    inspection.referenceNote =
        QObject::tr("True value: worked out with MPFR at %1 bits from the coefficients as "
                    "read from their fields (256 bits), not from their single or double "
                    "copies.")
            .arg(kReferenceBits);
}

// The true roots leave a residual of 0, against which no digit of a computed residual can
// agree; what tells something is the residual the column's own root really leaves.
void compareWithResidualOfRoot(Inspection& inspection, const RootsSolver& solver, RootsRow row,
                               int variant)
{
    const RootsRow rootRow = row == RowLargeResult ? RowLargeRoot : RowSmallRoot;
    const double root = cellValue(solver, rootRow, variant);
    const QString rootName = QLatin1String(kRootsRowNames[rootRow]);
    // x1 and x2, as the row names them.
    const std::string symbol = rootRow == RowLargeRoot ? "x1" : "x2";
    inspection.context = {
        {symbol, shortestText(root, inspection.format)},
        {symbol + " exact decimal", exactDecimal(root)},
    };
    const auto residual =
        residualAt(solver.highA().get(), solver.highB().get(), solver.highC().get(), root);
    if (!residual) {
        inspection.referenceNote =
            QObject::tr("No true value: this column's %1 is not a finite number.").arg(rootName);
        return;
    }
    inspection.reference = *residual;
    inspection.referenceNote =
        QObject::tr("True value: a x^2 + b x + c at %1, the %2 this column computed, with the "
                    "coefficients as read from their fields (256 bits), worked out exactly with "
                    "GMP rationals and held in MPFR at %3 bits. It is how far that root misses: "
                    "only an exact root leaves 0. The errors say how well the column worked it "
                    "out from its own copies of a, b and c.")
            .arg(QString::fromStdString(symbol), rootName)
            .arg(kReferenceBits);
}

} // namespace

QString rootsCellSource(RootsRow row, int variant)
{
    return QStringLiteral("Roots, %1, %2")
        .arg(QLatin1String(kRootsVariantNames[variant]), QLatin1String(kRootsRowNames[row]));
}

std::variant<Inspection, QString> rootsInspection(const RootsSolver& solver, RootsRow row,
                                                  int variant)
{
    if (variant == kRootsVariantCount - 1) {
        return QObject::tr("This column is computed with 256-bit GMP numbers and shown rounded "
                           "to double: it holds no binary32 or binary64 value to inspect. The "
                           "other columns are inspected against true values worked out from the "
                           "same coefficients with MPFR at %1 bits.")
            .arg(kReferenceBits);
    }
    if (!solver.isValid(variant)) {
        return QObject::tr("This column found no real roots: b^2 < 4ac as it computed them.");
    }
    Inspection inspection;
    inspection.source = rootsCellSource(row, variant);
    inspection.format = columnFormat(variant);
    inspection.value = cellValue(solver, row, variant);
    if (row == RowLargeResult || row == RowSmallResult) {
        compareWithResidualOfRoot(inspection, solver, row, variant);
    } else {
        compareWithTrueValue(inspection, solver, row);
    }
    return inspection;
}
