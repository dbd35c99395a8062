#include "common/picture/IndexLabels.h"

#include "common/core/CFormat.h"

#include <QFontMetrics>

namespace quillon
{

IndexLabels::IndexLabels(const QFont& font) : labelFont(font) {}

void IndexLabels::grow(int index)
{
    const QFontMetrics metrics(labelFont);
    for (int n = int(texts.size()); n <= index; ++n) {
        texts.push_back(QString::fromStdString(cformat("%d", n)));
        widths.push_back(metrics.horizontalAdvance(texts.back()));
        staticTexts.emplace_back(texts.back());
        staticTexts.back().setTextFormat(Qt::PlainText);
        staticTexts.back().prepare(QTransform(), labelFont);
    }
}

const QString& IndexLabels::text(int index)
{
    if (index >= int(texts.size())) {
        grow(index);
    }
    return texts[index];
}

const QStaticText& IndexLabels::staticText(int index)
{
    if (index >= int(staticTexts.size())) {
        grow(index);
    }
    return staticTexts[index];
}

int IndexLabels::width(int index)
{
    if (index >= int(widths.size())) {
        grow(index);
    }
    return widths[index];
}

} // namespace quillon
