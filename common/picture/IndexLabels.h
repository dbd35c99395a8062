#pragma once

#include <QFont>
#include <QStaticText>
#include <QString>
#include <vector>

namespace quillon
{

// The "%d" labels of iteration indices and their widths in one font, made once and kept:
// a plot that shows ten thousand indices would otherwise format and measure each label again
// on every frame.
class IndexLabels
{
public:
    explicit IndexLabels(const QFont& font);

    const QFont& font() const { return labelFont; }

    const QString& text(int index);
    // The label laid out once, for drawing many times.
    const QStaticText& staticText(int index);
    int width(int index);

private:
    void grow(int index);

    QFont labelFont;
    std::vector<QString> texts;
    std::vector<QStaticText> staticTexts;
    std::vector<int> widths;
};

} // namespace quillon
