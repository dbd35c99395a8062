#include "sine/picture/SineLegendEntry.h"

#include "common/picture/PlotStyle.h"
#include "sine/engine/SineFiles.h"
#include "sine/engine/SinePlotGeometry.h"

#include <QFontMetrics>
#include <algorithm>
#include <cmath>

SineLegendEntry sineLegendEntry(int row, int column, int viewWidth, int viewHeight)
{
    constexpr int kGap = 4;
    const int top = int(std::floor(0.75 * viewHeight));
    const int rowHeight = int(std::floor(0.25 * viewHeight)) / 5;
    const int columnWidth = viewWidth / 3;
    const int side = std::max(std::min(rowHeight - 4, 16), 1);
    const int left = column * columnWidth + kGap;
    const int rowTop = top + row * rowHeight;
    SineLegendEntry entry;
    if (row == 0) {
        const char* firstRow[] = {"C++ Math lib", "Select all", "Select none"};
        entry.name = QString::fromLatin1(firstRow[column]);
        entry.slot = column == 0 ? kSineLibrarySlot : -1;
    } else {
        const int k = 3 * (row - 1) + column;
        entry.name = QString::fromLatin1(sineApproaches()[k].longName);
        entry.slot = k + 1;
    }
    int textLeft = left;
    if (entry.slot >= 0) {
        const int squareTop = rowTop + (rowHeight - side) / 2;
        entry.checkMark = QRect(left, squareTop, side, side);
        entry.colour = QRect(left + side + kGap, squareTop, side, side);
        textLeft += 2 * side + 2 * kGap;
    }
    const int textRight = (column + 1) * columnWidth;
    entry.textBox = QRect(textLeft, rowTop, std::max(textRight - textLeft, 0), rowHeight);
    entry.shownName = QFontMetrics(quillon::plotOverlayFont())
                          .elidedText(entry.name, Qt::ElideRight, entry.textBox.width());
    return entry;
}

std::optional<SineLegendEntry> sineLegendEntryAt(QPointF position, int viewWidth, int viewHeight)
{
    const SineLegendHit hit =
        sineLegendAt(float(position.x()), float(position.y()), viewWidth, viewHeight);
    switch (hit.kind) {
    case SineLegendHit::None:
        return std::nullopt;
    case SineLegendHit::Library:
        return sineLegendEntry(0, 0, viewWidth, viewHeight);
    case SineLegendHit::SelectAll:
        return sineLegendEntry(0, 1, viewWidth, viewHeight);
    case SineLegendHit::SelectNone:
        return sineLegendEntry(0, 2, viewWidth, viewHeight);
    case SineLegendHit::Approach:
        break;
    }
    return sineLegendEntry(1 + hit.approach / 3, hit.approach % 3, viewWidth, viewHeight);
}
