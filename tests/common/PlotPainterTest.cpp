#include "common/picture/PlotPainter.h"

#include <QImage>
#include <QPainter>
#include <QPicture>
#include <QTest>

// The QPainter renderer of a plot description's background, pixel by pixel where a line covers
// whole pixels: a stippled line draws one view pixel per bit of its pattern, bit 0 at the
// segment's start, whether the painter is a raster image (which gets the dashes one by one) or
// a vector device (which gets a dashed pen; replayed here into an image); a solid line ends
// flat at its end points, as OpenGL draws it.
class PlotPainterTest : public QObject
{
    Q_OBJECT

private slots:
    void stippleDrawsOnePixelPerSetBit_data();
    void stippleDrawsOnePixelPerSetBit();
    void solidLineEndsFlat();
};

namespace
{

constexpr int kWidth = 64;
constexpr int kHeight = 8;

// A view of 64 x 8 pixels over the box 0..64 x 0..8, so that y = 4.5 is the middle of pixel
// row 3 and a line of width 1 there covers that row exactly.
quillon::PlotPicture oneLine(std::uint16_t stipple, float width, float fromX, float toX)
{
    quillon::PlotPicture picture;
    picture.size = QSize(kWidth, kHeight);
    picture.background = {0.0, double(kWidth), 0.0, double(kHeight), {}};
    quillon::PlotStroke stroke;
    stroke.width = width;
    stroke.stipple = stipple;
    stroke.vertices = {{fromX, 4.5f, {0, 0, 0}}, {toX, 4.5f, {0, 0, 0}}};
    picture.background.strokes.push_back(stroke);
    return picture;
}

QImage onImage(const quillon::PlotPicture& picture)
{
    QImage image(picture.size, QImage::Format_RGB32);
    QPainter painter(&image);
    quillon::paintPlotBackground(&painter, picture);
    return image;
}

QImage throughVectorDevice(const quillon::PlotPicture& picture)
{
    QPicture recorded;
    {
        QPainter painter(&recorded);
        quillon::paintPlotBackground(&painter, picture);
    }
    QImage image(picture.size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.drawPicture(0, 0, recorded);
    return image;
}

// "" when row 3 is black exactly at the columns `drawn` names and the rows beside it white.
QString rowMismatch(const QImage& image, const std::function<bool(int)>& drawn)
{
    for (int x = 0; x < kWidth; ++x) {
        const QRgb expected = drawn(x) ? qRgb(0, 0, 0) : qRgb(255, 255, 255);
        if (image.pixel(x, 3) != expected) {
            return QStringLiteral("column %1: %2").arg(x).arg(image.pixel(x, 3), 8, 16);
        }
        if (image.pixel(x, 2) != qRgb(255, 255, 255) || image.pixel(x, 4) != qRgb(255, 255, 255)) {
            return QStringLiteral("column %1 spills over its row").arg(x);
        }
    }
    return QString();
}

} // namespace

void PlotPainterTest::stippleDrawsOnePixelPerSetBit_data()
{
    QTest::addColumn<int>("stipple");
    QTest::addColumn<bool>("vector");
    for (const int stipple : {0x00FF, 0x1C47, 0x8001, 0xAAAA}) {
        const QByteArray name = QByteArray::number(stipple, 16);
        QTest::newRow(name + " raster") << stipple << false;
        QTest::newRow(name + " vector") << stipple << true;
    }
}

void PlotPainterTest::stippleDrawsOnePixelPerSetBit()
{
    QFETCH(int, stipple);
    QFETCH(bool, vector);
    // 0x1C47 sets bits 0, 1, 2, 6, 10, 11 and 12: pixels 0-2, 6, 10-12, then 16-18 and so on.
    const quillon::PlotPicture picture = oneLine(std::uint16_t(stipple), 1.0f, 0.0f, kWidth);
    const QImage image = vector ? throughVectorDevice(picture) : onImage(picture);
    const QString mismatch =
        rowMismatch(image, [stipple](int x) { return (stipple >> (x % 16) & 1) != 0; });
    QVERIFY2(mismatch.isEmpty(), qPrintable(mismatch));
}

void PlotPainterTest::solidLineEndsFlat()
{
    // From x = 10 to x = 20: pixels 10 to 19, and nothing beyond the ends.
    const QImage image = onImage(oneLine(0, 1.0f, 10.0f, 20.0f));
    const QString mismatch = rowMismatch(image, [](int x) { return 10 <= x && x < 20; });
    QVERIFY2(mismatch.isEmpty(), qPrintable(mismatch));
}

QTEST_MAIN(PlotPainterTest)
#include "PlotPainterTest.moc"
