#pragma once

#include "common/core/ColorTriple.h"
#include "roots/engine/RootsGrid.h"

#include <optional>

// The colours of the roots grid. Only the three compared columns (variants 0, 1, 2) are
// coloured; the 256-bit column never is.

// The text colour of a compared cell for its row's agreement class; empty when the cell
// keeps whatever colour it had (classes 1 and 2).
std::optional<quillon::ColorTriple> rootsCellInk(int agreement, int variant);

// The banded background of a row.
quillon::ColorTriple rootsRowBackground(RootsRow row);
