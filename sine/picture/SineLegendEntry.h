#pragma once

#include <QPointF>
#include <QRect>
#include <QString>
#include <optional>

// Where one entry of the Sine plot's legend lies in a view of viewWidth x viewHeight. The
// legend has three columns and five rows in the bottom quarter: the library, "Select all" and
// "Select none", then the twelve approaches three to a row. A curve's entry (slot >= 0) has
// its check mark and colour squares, then its text; an entry keeps a gap before the next
// column's check mark, and a name too long for its column is shortened with "..." (the tab's
// tool tip gives it whole).
struct SineLegendEntry {
    // kSineLibrarySlot, an approach 1..12, or -1 for "Select all" and "Select none".
    int slot = -1;
    QRect checkMark;
    QRect colour;
    QRect textBox;
    QString name;
    QString shownName;
};

SineLegendEntry sineLegendEntry(int row, int column, int viewWidth, int viewHeight);

// The entry under a point of the view; none off the legend.
std::optional<SineLegendEntry> sineLegendEntryAt(QPointF position, int viewWidth, int viewHeight);
