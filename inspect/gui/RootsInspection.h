#pragma once

#include "inspect/gui/Inspection.h"
#include "roots/engine/RootsSolver.h"

#include <QString>
#include <variant>

// What the inspector shows for one cell of the Roots grid: the cell's value in its column's
// format against the true value worked out from the coefficients (for a residual row, the
// residual that the column's computed root leaves exactly), or why there is nothing to inspect
// (the 256-bit column, or a column that found no real roots).
std::variant<Inspection, QString> rootsInspection(const RootsSolver& solver, RootsRow row,
                                                  int variant);

// "Roots, <column>, <quantity>".
QString rootsCellSource(RootsRow row, int variant);
