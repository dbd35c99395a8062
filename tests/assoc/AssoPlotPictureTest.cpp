#include "assoc/picture/AssoPlotPicture.h"
#include "assoc/engine/AssoRecurrence.h"
#include "common/picture/IndexLabels.h"
#include "common/picture/PictureFile.h"
#include "common/picture/PlotStyle.h"
#include "tests/support/PlotPictureItems.h"

#include <QFontMetrics>
#include <QImage>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>

// The description of Associative Law frames, checked against the drawing rules worked out by
// hand: where each curve's vertices lie, in which colours, widths and depths, and where the
// legend's squares stand in the default 795 x 769 view.
class AssoPlotPictureTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void slidInWindowGivesReferenceLinesAndFiveCurves();
    void overlayHoldsLabelsLegendAndSpread();
    void highlightedOrderLiesNearer();
    void comparingDrawsDifferencesToTheBase();
    void aFileLeavesOutTheRubberBand();
    void finishedPictureShowsTheWholeRun();
    void finishedPictureMakesPngAndSvg();

private:
    AssoSequences sequences;
    std::shared_ptr<quillon::IndexLabels> labels =
        std::make_shared<quillon::IndexLabels>(quillon::plotOverlayFont());
    AssoPlotState state;
};

namespace
{

// The view in the default window.
const QSize kViewSize(795, 769);

// x(n) for the window 0..20 once slid in: w = fl(3 / 20), x = fl(w * n + (-1.5)).
float slidInX(int n)
{
    const float w = 3.0f / 20.0f;
    const float product = w * float(n);
    return product + -1.5f;
}

} // namespace

void AssoPlotPictureTest::init()
{
    computeSequences(3.0f, 0.5f, 300, sequences);
    state = AssoPlotState();
    state.results = &sequences;
    state.prepareForPicture();
    state.indexLabels = labels;
    state.view.window = {0, 20, 1, 21};
    state.view.yMin = -0.25f;
    state.view.yMax = 1.75f;
    state.view.width = 795;
    state.view.height = 769;
}

void AssoPlotPictureTest::slidInWindowGivesReferenceLinesAndFiveCurves()
{
    const quillon::PlotPicture picture =
        describeAssoPlot(state, kViewSize, quillon::PictureUse::Screen);
    QCOMPARE(picture.size, QSize(795, 769));
    const quillon::PlotBackground& background = picture.background;
    QCOMPARE(background.left, -1.5);
    QCOMPARE(background.right, 1.5);
    QCOMPARE(background.bottom, -0.25);
    QCOMPARE(background.top, 1.75);
    QCOMPARE(int(background.strokes.size()), 6);

    const quillon::PlotStroke& reference = background.strokes[0];
    QCOMPARE(reference.stipple, std::uint16_t(0xAAAA));
    QCOMPARE(reference.width, 1.0f);
    QCOMPARE(reference.depth, 0.0f);
    const float levels[] = {-1.0f, 1.0f, 0.0f};
    QCOMPARE(int(reference.vertices.size()), 6);
    for (int i = 0; i < 6; ++i) {
        QCOMPARE(reference.vertices[i].x, i % 2 == 0 ? -1.5f : 1.5f);
        QCOMPARE(reference.vertices[i].y, levels[i / 2]);
        QCOMPARE(reference.vertices[i].color.red, 0.25f);
    }

    const int colours[5][3] = {
        {128, 0, 128}, {0, 128, 128}, {255, 69, 0}, {128, 128, 0}, {0, 255, 0}};
    for (int k = 0; k < 5; ++k) {
        const quillon::PlotStroke& curve = background.strokes[k + 1];
        QCOMPARE(curve.stipple, std::uint16_t(0));
        QCOMPARE(curve.width, 4.0f);
        QCOMPARE(curve.depth, 2.0f);
        // Twenty segments, each from node n back to node n - 1.
        QCOMPARE(int(curve.vertices.size()), 40);
        for (int n = 1; n <= 20; ++n) {
            const quillon::PlotVertex& from = curve.vertices[2 * (n - 1)];
            const quillon::PlotVertex& to = curve.vertices[2 * (n - 1) + 1];
            QCOMPARE(from.x, slidInX(n));
            QCOMPARE(from.y, sequences.values[k][n]);
            QCOMPARE(to.x, slidInX(n - 1));
            QCOMPARE(to.y, sequences.values[k][n - 1]);
            QCOMPARE(from.color.red, float(colours[k][0]) / 255.0f);
            QCOMPARE(from.color.green, float(colours[k][1]) / 255.0f);
            QCOMPARE(from.color.blue, float(colours[k][2]) / 255.0f);
        }
    }
}

void AssoPlotPictureTest::overlayHoldsLabelsLegendAndSpread()
{
    const quillon::PlotPicture picture =
        describeAssoPlot(state, kViewSize, quillon::PictureUse::Screen);
    const auto indexLabels = itemsOf<quillon::PlotIndexLabels>(picture);
    QCOMPARE(int(indexLabels.size()), 1);
    QCOMPARE(indexLabels[0].turn, 90.0);
    QCOMPARE(indexLabels[0].color, QColor(Qt::darkBlue));
    QCOMPARE(int(indexLabels[0].placed.size()), 21);
    for (int n = 0; n <= 20; ++n) {
        QCOMPARE(indexLabels[0].placed[n].second, n);
        QCOMPARE(labels->text(n), QString::number(n));
    }

    // The legend in a 795 x 769 view: rows of floor(769 / 4) / 5 = 38 pixels from y = 576,
    // columns of 795 / 15 = 53 pixels, squares of min(53, 38) = 38; the colour squares stand
    // in column 13 at x = 13 * 53 + (53 - 38) / 2 = 696.
    const auto lines = itemsOf<quillon::PlotLines>(picture);
    QCOMPARE(int(lines.size()), 1);
    QCOMPARE(lines[0].lines.front(), QLineF(0, 576, 795, 576));
    const auto fills = itemsOf<quillon::PlotFill>(picture);
    QCOMPARE(int(fills.size()), 5);
    const QColor colours[] = {QColor(128, 0, 128), QColor(0, 128, 128), QColor(255, 69, 0),
                              QColor(128, 128, 0), QColor(0, 255, 0)};
    for (int k = 0; k < 5; ++k) {
        QCOMPARE(fills[k].rect, QRectF(696, 576 + 38 * k, 38, 38));
        QCOMPARE(fills[k].color, colours[k]);
    }
    // Check marks at x = (53 - 38) / 2 = 7 and the formulas from x = 2 * 53 = 106, as high as
    // the smaller of a row and 10 * 53 / 14.788462.
    const auto images = itemsOf<quillon::PlotImage>(picture);
    QCOMPARE(int(images.size()), 10);
    for (int k = 0; k < 5; ++k) {
        QCOMPARE(images[2 * k].target, QRectF(7, 576 + 38 * k, 38, 38));
        QCOMPARE(images[2 * k + 1].target.left(), 106.0);
        QCOMPARE(images[2 * k + 1].target.height(), double(530.0f / 14.788462f));
    }

    // The spread at iteration 20, the last node inside the plot.
    float largest = sequences.values[0][20];
    float smallest = largest;
    for (int k = 1; k < 5; ++k) {
        largest = std::max(largest, sequences.values[k][20]);
        smallest = std::min(smallest, sequences.values[k][20]);
    }
    const auto texts = itemsOf<quillon::PlotBoxText>(picture);
    QCOMPARE(int(texts.size()), 1);
    QCOMPARE(texts[0].text, QString::asprintf("Error: %2e", double(largest) - double(smallest)));
    // Its box's top: 0.75 * 769 - 38.
    QCOMPARE(texts[0].box.top(), 538.75);
}

void AssoPlotPictureTest::highlightedOrderLiesNearer()
{
    state.highlightedFunc = 2;
    const quillon::PlotBackground background = assoPlotBackground(state);
    for (int k = 0; k < 5; ++k) {
        QCOMPARE(background.strokes[k + 1].depth, k == 2 ? 3.0f : 2.0f);
    }
}

void AssoPlotPictureTest::comparingDrawsDifferencesToTheBase()
{
    state.compare = true;
    state.baseFunc = 1;
    state.needFunc = {true, true, false, false, true};
    const quillon::PlotBackground background = assoPlotBackground(state);
    // The reference lines, then orders 0, 1 and 4.
    QCOMPARE(int(background.strokes.size()), 4);
    for (const quillon::PlotVertex& vertex : background.strokes[2].vertices) {
        QCOMPARE(vertex.y, 0.0f);
    }
    const quillon::PlotVertex& first = background.strokes[3].vertices[0];
    QCOMPARE(first.y, sequences.values[4][1] - sequences.values[1][1]);
}

void AssoPlotPictureTest::aFileLeavesOutTheRubberBand()
{
    state.rubberBand = QRectF(10, 20, 100, 50);
    QCOMPARE(itemsOf<quillon::PlotOutline>(
                 describeAssoPlot(state, kViewSize, quillon::PictureUse::Screen))
                 .size(),
             size_t(1));
    QVERIFY(
        itemsOf<quillon::PlotOutline>(describeAssoPlot(state, kViewSize, quillon::PictureUse::File))
            .empty());
}

void AssoPlotPictureTest::finishedPictureShowsTheWholeRun()
{
    const quillon::PlotPicture picture =
        assoFinishedPicture(3.0f, 0.5f, 300, kAssoDefaultColors, QSize(1000, 600));
    QCOMPARE(picture.size, QSize(1000, 600));
    // Iterations 0..299 over the whole width: w = fl(3 / 299); 299 segments per order.
    for (int k = 0; k < 5; ++k) {
        const quillon::PlotStroke& curve = picture.background.strokes[k + 1];
        QCOMPARE(int(curve.vertices.size()), 2 * 299);
        // The first segment runs from node 1 back to node 0, the last from 299 back to 298.
        const float w = 3.0f / 299.0f;
        QCOMPARE(curve.vertices[0].x, w * 1.0f + -1.5f);
        QCOMPARE(curve.vertices[1].x, -1.5f);
        QCOMPARE(curve.vertices.back().x, w * 298.0f + -1.5f);
    }
    float lowest = sequences.values[0][0];
    float highest = lowest;
    for (int k = 0; k < 5; ++k) {
        for (int n = 0; n < 300; ++n) {
            lowest = std::min(lowest, sequences.values[k][n]);
            highest = std::max(highest, sequences.values[k][n]);
        }
    }
    QCOMPARE(float(picture.background.bottom), lowest);
    QCOMPARE(float(picture.background.top), highest);
    const auto labels = itemsOf<quillon::PlotIndexLabels>(picture);
    QCOMPARE(int(labels.at(0).placed.size()), 300);
}

void AssoPlotPictureTest::finishedPictureMakesPngAndSvg()
{
    const quillon::PictureDescriber describe = [](QSize size) {
        return assoFinishedPicture(3.0f, 0.5f, 60, kAssoDefaultColors, size);
    };
    const QSize size(1920, 1080);
    QImage png;
    QVERIFY(
        png.loadFromData(quillon::pictureFileBytes(describe, size, quillon::kDefaultPlotViewSize,
                                                   quillon::PictureFormat::Png),
                         "PNG"));
    QCOMPARE(png.size(), size);
    QSet<QRgb> colours;
    for (int y = 0; y < png.height(); y += 3) {
        for (int x = 0; x < png.width(); x += 3) {
            colours.insert(png.pixel(x, y));
        }
    }
    QVERIFY2(colours.size() > 50, qPrintable(QString::number(colours.size())));
    QVERIFY(colours.contains(qRgb(128, 0, 128)));
    QVERIFY(colours.contains(qRgb(0, 255, 0)));

    const QByteArray svg = quillon::pictureFileBytes(describe, size, quillon::kDefaultPlotViewSize,
                                                     quillon::PictureFormat::Svg);
    QXmlStreamReader reader(svg);
    QStringList texts;
    QString root;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && root.isEmpty()) {
            root = reader.name().toString();
            QCOMPARE(reader.attributes().value(QStringLiteral("viewBox")).toString(),
                     QStringLiteral("0 0 1920 1080"));
        }
        if (reader.isCharacters() && !reader.isWhitespace()) {
            texts << reader.text().toString();
        }
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    QCOMPARE(root, QStringLiteral("svg"));
    QVERIFY(texts.contains(QStringLiteral("59")));
    QVERIFY(std::any_of(texts.begin(), texts.end(),
                        [](const QString& text) { return text.startsWith("Error: "); }));
}

QTEST_MAIN(AssoPlotPictureTest)
#include "AssoPlotPictureTest.moc"
