#include "inspect/gui/InspectorBits.h"

#include <QPainter>

namespace
{

const QColor kSignColor(255, 204, 204);
const QColor kExponentColor(204, 230, 255);
const QColor kSignificandColor(214, 245, 214);
constexpr int kBoxHeight = 22;

} // namespace

InspectorBits::InspectorBits(QWidget* parent) : QWidget(parent)
{
    setMinimumHeight(kBoxHeight + 2);
}

void InspectorBits::showBits(const QString& newPattern, int newExponentBits)
{
    pattern = newPattern;
    exponentBits = newExponentBits;
    update();
}

QSize InspectorBits::sizeHint() const
{
    return {640, kBoxHeight + 2};
}

// Equal boxes across the width; binary64's 64 boxes get narrow, so their digits are dropped
// when a box is narrower than its digit.
void InspectorBits::paintEvent(QPaintEvent*)
{
    if (pattern.isEmpty()) {
        return;
    }
    QPainter painter(this);
    const double boxWidth = double(width() - 1) / double(pattern.size());
    const bool digits = boxWidth >= fontMetrics().horizontalAdvance(QLatin1Char('0')) + 2;
    for (int i = 0; i < int(pattern.size()); ++i) {
        const QColor fill = i == 0              ? kSignColor
                            : i <= exponentBits ? kExponentColor
                                                : kSignificandColor;
        const QRectF box(i * boxWidth, 0, boxWidth, kBoxHeight);
        painter.fillRect(box, fill);
        painter.setPen(Qt::gray);
        painter.drawRect(box);
        if (digits) {
            painter.setPen(Qt::black);
            painter.drawText(box, Qt::AlignCenter, QString(pattern[i]));
        }
    }
}
