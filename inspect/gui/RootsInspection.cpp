#include "inspect/gui/RootsInspection.h"

#include "inspect/engine/ErrorReport.h"
#include "inspect/engine/RootsReference.h"

#include <QObject>

QString rootsCellSource(RootsRow row, int variant)
{
    return QStringLiteral("Roots, %1, %2")
        .arg(QLatin1String(kRootsVariantNames[variant]), QLatin1String(kRootsRowNames[row]));
}

std::variant<Inspection, QString> rootsInspection(const RootsSolver& solver, RootsRow row,
                                                  int variant)
{
    if (variant == kRootsVariantCount - 1) {
        return QObject::tr("This column is computed with 256-bit numbers: it is the nearest the "
                           "grid comes to the true values, which the other columns are "
                           "inspected against.");
    }
    if (!solver.isValid(variant)) {
        return QObject::tr("This column found no real roots: b^2 < 4ac as it computed them.");
    }
    const auto reference =
        rootsReference(solver.highA().get(), solver.highB().get(), solver.highC().get());
    const RootsQuantity& quantity = solver.quantity(row);
    Inspection inspection;
    inspection.source = rootsCellSource(row, variant);
    inspection.format = variant == 2 ? FloatFormat::Double : FloatFormat::Single;
    inspection.value = variant == 0   ? double(quantity.naive)
                       : variant == 1 ? double(quantity.cancel)
                                      : quantity.dbl;
    if (reference) {
        inspection.reference = (*reference)[size_t(row)];
        inspection.referenceNote =
            QObject::tr("True value: worked out with MPFR at %1 bits from the coefficients as "
                        "read from their fields (256 bits), not from their single or double "
                        "copies.")
                .arg(kReferenceBits);
    } else {
        inspection.referenceNote = QObject::tr(
            "No true value: with the coefficients as read, b^2 < 4ac and the roots are not real.");
    }
    return inspection;
}
