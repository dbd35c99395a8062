#pragma once

#include <QString>

namespace quillon
{

// The style of every group box: a 2-pixel black border, with the title set into the top
// border and room below it, so that the title never overlaps the box's first row (the
// contents start below the title: QGroupBox::contentsRect() accounts for it). A box without a
// title keeps no room for one.
QString groupBoxStyleSheet();

} // namespace quillon
