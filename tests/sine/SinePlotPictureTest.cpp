#include "sine/picture/SinePlotPicture.h"
#include "common/picture/IndexLabels.h"
#include "common/picture/PictureFile.h"
#include "common/picture/PlotStyle.h"
#include "sine/engine/SineEngine.h"
#include "tests/support/PlotPictureItems.h"

#include <QFontMetrics>
#include <QImage>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>
#include <variant>

// The description of Sine frames, checked against the drawing rules worked out by hand. The
// frames are made from a small hand-made run (the library sine 0.5; Func1 with six terms that
// halve and alternate in sign; Func4 stopped by an overflow at index 2; the others empty) in
// the window 0..4 fully slid in, which puts the nodes at x = -1.5, -0.75, 0, 0.75, 1.5 and, in
// an 800 x 600 view, at pixels 0, 200, 400, 600, 800; the Y range -2.5..2.5 makes a grid step
// of 0.25 and maps a value v to pixel row 120 * (2.5 - v).
class SinePlotPictureTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void backgroundHoldsReferenceLinesMarkersCurvesAndLibraryLine();
    void errorModeDrawsErrorsDropLinesAndGrid();
    void overlayHoldsIconLabelsErrorListLegendAndLargestError();
    void aLargerFileScalesThePointerKeepsTheIconAndDropsTheRubberBand();
    void finishedPictureShowsTheWholeRunFittedToIt();
    void finishedPictureMakesPngAndSvg();

private:
    SineResults results;
    SinePlotState state;
};

namespace
{

constexpr float kNodeX[] = {-1.5f, -0.75f, 0.0f, 0.75f, 1.5f};
constexpr float kNodePixelX[] = {0.0f, 200.0f, 400.0f, 600.0f, 800.0f};
constexpr float kFunc1Sums[] = {1.0f, 0.5f, 0.75f, 0.625f, 0.6875f, 0.65625f};

// The default colours of the library sine and Func1 .. Func12, as 0..255 triples.
constexpr int kDefaultColours[13][3] = {
    {0, 0, 0},     {255, 192, 203}, {255, 20, 147}, {199, 21, 133}, {139, 0, 0},
    {255, 0, 0},   {255, 69, 0},    {255, 215, 0},  {128, 128, 0},  {0, 255, 0},
    {0, 255, 255}, {0, 0, 128},     {106, 90, 205}};

bool sameColour(const quillon::PlotRgb& rgb, int slot)
{
    return rgb == quillon::PlotRgb{float(kDefaultColours[slot][0]) / 255.0f,
                                   float(kDefaultColours[slot][1]) / 255.0f,
                                   float(kDefaultColours[slot][2]) / 255.0f};
}

struct Point {
    float x;
    float y;
};

// Compares a stroke's kind of line and its vertices' places; a failure names the vertex.
void expectStroke(const quillon::PlotStroke& stroke, float width, std::uint16_t stipple,
                  float depth, const std::vector<Point>& points)
{
    QCOMPARE(stroke.kind, quillon::PlotStroke::Kind::Lines);
    QCOMPARE(stroke.width, width);
    QCOMPARE(stroke.stipple, stipple);
    QCOMPARE(stroke.depth, depth);
    QCOMPARE(int(stroke.vertices.size()), int(points.size()));
    for (size_t i = 0; i < points.size(); ++i) {
        QVERIFY2(stroke.vertices[i].x == points[i].x && stroke.vertices[i].y == points[i].y,
                 qPrintable(QStringLiteral("vertex %1 at %2, %3, expected %4, %5")
                                .arg(i)
                                .arg(stroke.vertices[i].x)
                                .arg(stroke.vertices[i].y)
                                .arg(points[i].x)
                                .arg(points[i].y)));
    }
}

void expectColour(const quillon::PlotStroke& stroke, const quillon::PlotRgb& colour)
{
    for (const quillon::PlotVertex& vertex : stroke.vertices) {
        QVERIFY(vertex.color == colour);
    }
}

void expectDefaultColour(const quillon::PlotStroke& stroke, int slot)
{
    for (const quillon::PlotVertex& vertex : stroke.vertices) {
        QVERIFY2(sameColour(vertex.color, slot), qPrintable(QStringLiteral("slot %1").arg(slot)));
    }
}

const quillon::PlotRgb kGrey = {0.25f, 0.25f, 0.25f};

} // namespace

void SinePlotPictureTest::init()
{
    results = SineResults();
    results.count = 6;
    results.librarySine = 0.5f;
    results.series[0].terms = {1.0f, -0.5f, 0.25f, -0.125f, 0.0625f, -0.03125f};
    results.series[0].codes = {0, 0, 0, 0, 0, 0};
    results.series[0].sums.assign(std::begin(kFunc1Sums), std::end(kFunc1Sums));
    results.series[3].terms = {2.0f, -1.0f};
    results.series[3].codes = {0, 0, SineOverflow};
    results.series[3].sums = {2.0f, 1.0f};

    state = SinePlotState();
    state.results = &results;
    state.prepareForPicture();
    state.view.count = 6;
    state.view.window = {0, 4, 1, 5};
    state.view.yMin = -2.5f;
    state.view.yMax = 2.5f;
    state.view.width = 800;
    state.view.height = 600;
}

void SinePlotPictureTest::backgroundHoldsReferenceLinesMarkersCurvesAndLibraryLine()
{
    const quillon::PlotPicture picture =
        describeSinePlot(state, QSize(800, 600), quillon::PictureUse::Screen);
    QCOMPARE(picture.size, QSize(800, 600));
    const quillon::PlotBackground& background = picture.background;
    QCOMPARE(background.left, -1.5);
    QCOMPARE(background.right, 1.5);
    QCOMPARE(background.bottom, -2.5);
    QCOMPARE(background.top, 2.5);
    // Reference lines, Func4's error marker, Func1's trend lines and curve, Func4's curve (its
    // two nodes have no trend partner), the library line; the empty approaches add nothing.
    QCOMPARE(int(background.strokes.size()), 6);
    expectStroke(
        background.strokes[0], 1.0f, 0xAAAA, 0.0f,
        {{-1.5f, -1.0f}, {1.5f, -1.0f}, {-1.5f, 1.0f}, {1.5f, 1.0f}, {-1.5f, 0.0f}, {1.5f, 0.0f}});
    expectColour(background.strokes[0], kGrey);
    expectStroke(background.strokes[1], 1.0f, 0, 1.0f, {{0.0f, 1.0f}, {0.0f, -1.0f}});
    expectDefaultColour(background.strokes[1], 4);
    // After positive terms: indices 0, 2, 4; after negative ones: 1, 3.
    expectStroke(background.strokes[2], 2.0f, 0x00FF, 2.0f,
                 {{-1.5f, 1.0f},
                  {0.0f, 0.75f},
                  {0.0f, 0.75f},
                  {1.5f, 0.6875f},
                  {-0.75f, 0.5f},
                  {0.75f, 0.625f}});
    expectDefaultColour(background.strokes[2], 1);
    expectStroke(background.strokes[3], 4.0f, 0, 2.0f,
                 {{-1.5f, 1.0f},
                  {-0.75f, 0.5f},
                  {-0.75f, 0.5f},
                  {0.0f, 0.75f},
                  {0.0f, 0.75f},
                  {0.75f, 0.625f},
                  {0.75f, 0.625f},
                  {1.5f, 0.6875f}});
    expectDefaultColour(background.strokes[3], 1);
    expectStroke(background.strokes[4], 4.0f, 0, 2.0f, {{-1.5f, 2.0f}, {-0.75f, 1.0f}});
    expectDefaultColour(background.strokes[4], 4);
    expectStroke(background.strokes[5], 1.0f, 0, 4.0f, {{-1.5f, 0.5f}, {1.5f, 0.5f}});
    expectDefaultColour(background.strokes[5], 0);
}

void SinePlotPictureTest::errorModeDrawsErrorsDropLinesAndGrid()
{
    state.errorComparison = true;
    state.showBoundary = false;
    state.needXAxis = true;
    state.needYAxis = true;
    state.hovered = 1;
    const quillon::PlotBackground background =
        describeSinePlot(state, QSize(800, 600), quillon::PictureUse::Screen).background;
    QCOMPARE(int(background.strokes.size()), 7);

    std::vector<Point> reference = {{-1.5f, -1.0f}, {1.5f, -1.0f}, {-1.5f, 1.0f},
                                    {1.5f, 1.0f},   {-1.5f, 0.0f}, {1.5f, 0.0f}};
    for (int j = 0; j <= 20; ++j) {
        reference.push_back({-1.5f, 0.25f * float(j - 10)});
        reference.push_back({1.5f, 0.25f * float(j - 10)});
    }
    expectStroke(background.strokes[0], 1.0f, 0xAAAA, 0.0f, reference);
    expectStroke(background.strokes[1], 1.0f, 0, 1.0f, {{0.0f, 1.0f}, {0.0f, -1.0f}});

    // Func1's errors against 0.5 are 0.5, 0, 0.25, 0.125, 0.1875; hovered, it lies at 3.
    const float errors[] = {0.5f, 0.0f, 0.25f, 0.125f, 0.1875f};
    std::vector<Point> curve;
    std::vector<Point> drops;
    for (int i = 0; i < 5; ++i) {
        if (i > 0) {
            curve.push_back({kNodeX[i - 1], errors[i - 1]});
            curve.push_back({kNodeX[i], errors[i]});
        }
        drops.push_back({kNodeX[i], errors[i]});
        drops.push_back({kNodeX[i], 0.0f});
    }
    expectStroke(background.strokes[2], 4.0f, 0, 3.0f, curve);
    expectDefaultColour(background.strokes[2], 1);
    expectStroke(background.strokes[3], 1.0f, 0, 3.0f, drops);
    expectColour(background.strokes[3], kGrey);

    // Func4's errors are 1.5 and 0.5, at the usual depth.
    expectStroke(background.strokes[4], 4.0f, 0, 2.0f, {{-1.5f, 1.5f}, {-0.75f, 0.5f}});
    expectStroke(background.strokes[5], 1.0f, 0, 2.0f,
                 {{-1.5f, 1.5f}, {-1.5f, 0.0f}, {-0.75f, 0.5f}, {-0.75f, 0.0f}});
    expectStroke(background.strokes[6], 1.0f, 0, 4.0f, {{-1.5f, 0.0f}, {1.5f, 0.0f}});
}

void SinePlotPictureTest::overlayHoldsIconLabelsErrorListLegendAndLargestError()
{
    // The pointer 0 pixels from index 2, where Func4 stopped; Func1's node 3 ringed.
    state.pointer = QPointF(400, 100);
    state.markedNode = quillon::PlotNode{0, 3};
    const quillon::PlotPicture picture =
        describeSinePlot(state, QSize(800, 600), quillon::PictureUse::Screen);
    const QFont font = quillon::plotOverlayFont();
    const QFontMetrics metrics(font);

    // The icon above index 2: a legend row is 150 / 5 = 30 pixels, less than 800 / 15, so the
    // side is 30; left 400 - 15, top 0.2 * 600 + 15.
    QVERIFY(std::holds_alternative<quillon::PlotImage>(picture.overlay[0]));
    QCOMPARE(std::get<quillon::PlotImage>(picture.overlay[0]).target, QRectF(385, 135, 30, 30));

    const auto labels = itemsOf<quillon::PlotIndexLabels>(picture);
    QCOMPARE(int(labels.size()), 1);
    QCOMPARE(labels[0].turn, 0.0);
    QCOMPARE(labels[0].color, QColor(Qt::darkBlue));
    QCOMPARE(int(labels[0].placed.size()), 5);
    for (int i = 0; i < 5; ++i) {
        const qreal half = metrics.horizontalAdvance(QString::number(i)) / 2.0;
        QCOMPARE(labels[0].placed[i].first, QPointF(kNodePixelX[i] - half, 2.0));
        QCOMPARE(labels[0].placed[i].second, i);
    }

    const auto texts = itemsOf<quillon::PlotText>(picture);
    QCOMPARE(int(texts.size()), 1);
    QCOMPARE(texts[0].text, QString::fromLatin1(sineApproaches()[3].longName) +
                                QStringLiteral("  gets an error: Overflow"));
    QCOMPARE(texts[0].color, QColor(255, 0, 0));
    QVERIFY(400 + metrics.horizontalAdvance(texts[0].text) <= 800);
    QCOMPARE(texts[0].baseline, QPointF(400, 100 + metrics.ascent()));

    // The legend's rule at 0.75 * 600; rows of 30 pixels, squares of 16 centred in them,
    // columns of 800 / 3 = 266 pixels.
    const auto rules = itemsOf<quillon::PlotLines>(picture);
    QCOMPARE(int(rules.size()), 1);
    QCOMPARE(rules[0].lines, std::vector<QLineF>{QLineF(0, 450, 800, 450)});
    const auto images = itemsOf<quillon::PlotImage>(picture);
    QCOMPARE(int(images.size()), 1 + 13);
    QCOMPARE(images[1].target, QRectF(4, 457, 16, 16));
    QCOMPARE(images[1].image, state.checkedImage);
    // Func2 (second row, second column) is not drawn.
    QCOMPARE(images[3].target, QRectF(270, 487, 16, 16));
    QCOMPARE(images[3].image, state.uncheckedImage);
    const auto fills = itemsOf<quillon::PlotFill>(picture);
    QCOMPARE(int(fills.size()), 13);
    QCOMPARE(fills[0].rect, QRectF(24, 457, 16, 16));
    QCOMPARE(fills[0].color, QColor(0, 0, 0));
    QCOMPARE(fills[2].rect, QRectF(290, 487, 16, 16));
    QCOMPARE(fills[2].color, QColor(255, 20, 147));

    const auto boxes = itemsOf<quillon::PlotBoxText>(picture);
    QCOMPARE(int(boxes.size()), 15 + 1);
    QCOMPARE(boxes[0].text, QStringLiteral("C++ Math lib"));
    QCOMPARE(boxes[0].box, QRectF(44, 450, 222, 30));
    QCOMPARE(boxes[1].text, QStringLiteral("Select all"));
    QCOMPARE(boxes[1].box, QRectF(270, 450, 262, 30));
    QCOMPARE(boxes[2].text, QStringLiteral("Select none"));
    QCOMPARE(boxes[2].box, QRectF(536, 450, 262, 30));
    for (int entry = 0; entry < 15; ++entry) {
        QCOMPARE(boxes[entry].color, QColor(Qt::black));
        QCOMPARE(boxes[entry].flags, int(Qt::AlignLeft | Qt::AlignVCenter));
    }

    // The rightmost index inside the plot is 4; of the selected approaches only Func1 has a
    // sum there: |0.6875 - 0.5|.
    const quillon::PlotBoxText& largest = boxes[15];
    QCOMPARE(largest.text,
             QStringLiteral("Maximal absolute error respect to C++ Math library: 1.875000e-01"));
    QCOMPARE(largest.box, QRectF(0, 450 - metrics.height(), 800, metrics.height()));

    // Func1's node 3 (0.625) at x 600, y 120 * (2.5 - 0.625).
    const auto rings = itemsOf<quillon::PlotRing>(picture);
    QCOMPARE(int(rings.size()), 1);
    QCOMPARE(rings[0].centre, QPointF(600, 225));
    QVERIFY(std::holds_alternative<quillon::PlotRing>(picture.overlay.back()));
}

void SinePlotPictureTest::aLargerFileScalesThePointerKeepsTheIconAndDropsTheRubberBand()
{
    state.pointer = QPointF(400, 100);
    state.rubberBand = QRectF(100, 50, 200, 100);
    state.blink = true;
    const QRectF icon(385, 135, 30, 30);

    // On screen the icon flashes (off on this tick) and the rubber band is drawn.
    const quillon::PlotPicture screen =
        describeSinePlot(state, QSize(800, 600), quillon::PictureUse::Screen);
    for (const quillon::PlotImage& image : itemsOf<quillon::PlotImage>(screen)) {
        QVERIFY(image.target != icon);
    }
    const auto outlines = itemsOf<quillon::PlotOutline>(screen);
    QCOMPARE(int(outlines.size()), 1);
    QCOMPARE(outlines[0].rect, QRectF(100, 50, 200, 100));
    QCOMPARE(outlines[0].pen.color(), QColor(Qt::black));

    // Twice the size in a file: index 2 at x 800, rows of 60 pixels, an icon of side 60 at
    // 800 - 30 and 0.2 * 1200 + 30; the pointer at (800, 200); no rubber band.
    const quillon::PlotPicture file =
        describeSinePlot(state, QSize(1600, 1200), quillon::PictureUse::File);
    QCOMPARE(file.size, QSize(1600, 1200));
    QVERIFY(std::holds_alternative<quillon::PlotImage>(file.overlay[0]));
    QCOMPARE(std::get<quillon::PlotImage>(file.overlay[0]).target, QRectF(770, 270, 60, 60));
    QVERIFY(itemsOf<quillon::PlotOutline>(file).empty());
    const auto texts = itemsOf<quillon::PlotText>(file);
    QCOMPARE(int(texts.size()), 1);
    QCOMPARE(texts[0].baseline,
             QPointF(800, 200 + QFontMetrics(quillon::plotOverlayFont()).ascent()));
}

// sin(0 degrees) with five terms: every term and sum is 0, so each selected approach has its
// five nodes on y = 0, joined by its curve and (all terms being <= 0) by one trend envelope.
// The fitted range is the flat span widened to min -+ 1e-11 and scaled by 0.6 in single
// precision: half = fl(fl(fl(1e-11) + fl(1e-11)) * fl(0.6)) = 0x1.a63666p-37.
void SinePlotPictureTest::finishedPictureShowsTheWholeRunFittedToIt()
{
    SineColors colours = kSineDefaultColors;
    colours[1] = {10, 20, 30};
    const quillon::PlotPicture picture = sineFinishedPicture(0, 5, colours, QSize(795, 769));
    QCOMPARE(picture.size, QSize(795, 769));
    const quillon::PlotBackground& background = picture.background;
    const float half = 0x1.a63666p-37f;
    QCOMPARE(background.left, -1.5);
    QCOMPARE(background.right, 1.5);
    QCOMPARE(background.bottom, double(-half));
    QCOMPARE(background.top, double(half));

    std::vector<Point> joined;
    for (int i = 1; i < 5; ++i) {
        joined.push_back({kNodeX[i - 1], 0.0f});
        joined.push_back({kNodeX[i], 0.0f});
    }
    QCOMPARE(int(background.strokes.size()), 1 + 4 * 2 + 1);
    QCOMPARE(background.strokes[0].stipple, std::uint16_t(0xAAAA));
    const int selected[] = {1, 4, 10, 12};
    for (int s = 0; s < 4; ++s) {
        const quillon::PlotStroke& trend = background.strokes[1 + 2 * s];
        const quillon::PlotStroke& curve = background.strokes[2 + 2 * s];
        expectStroke(trend, 2.0f, 0x00FF, 2.0f, joined);
        expectStroke(curve, 4.0f, 0, 2.0f, joined);
        if (selected[s] == 1) {
            expectColour(curve, {10.0f / 255.0f, 20.0f / 255.0f, 30.0f / 255.0f});
        } else {
            expectDefaultColour(curve, selected[s]);
        }
    }
    expectStroke(background.strokes[9], 1.0f, 0, 4.0f, {{-1.5f, 0.0f}, {1.5f, 0.0f}});

    const auto labels = itemsOf<quillon::PlotIndexLabels>(picture);
    QCOMPARE(int(labels.size()), 1);
    QCOMPARE(int(labels[0].placed.size()), 5);
    // The last index lies on the plot's right edge: no largest-error line.
    for (const quillon::PlotBoxText& box : itemsOf<quillon::PlotBoxText>(picture)) {
        QVERIFY(!box.text.startsWith(QLatin1String("Maximal absolute error")));
    }
}

void SinePlotPictureTest::finishedPictureMakesPngAndSvg()
{
    const quillon::PictureDescriber describe = [](QSize size) {
        return sineFinishedPicture(250, 300, kSineDefaultColors, size);
    };
    const QSize pixels(1920, 1080);
    const QImage png = QImage::fromData(quillon::pictureFileBytes(
        describe, pixels, quillon::kDefaultPlotViewSize, quillon::PictureFormat::Png));
    QCOMPARE(png.size(), pixels);
    int drawn = 0;
    bool func1Colour = false;
    for (int y = 0; y < png.height(); ++y) {
        for (int x = 0; x < png.width(); ++x) {
            const QRgb pixel = png.pixel(x, y);
            drawn += pixel != qRgb(255, 255, 255) ? 1 : 0;
            func1Colour = func1Colour || pixel == qRgb(255, 192, 203);
        }
    }
    QVERIFY2(drawn > pixels.width() * pixels.height() / 100, qPrintable(QString::number(drawn)));
    QVERIFY(func1Colour);

    const QByteArray svg = quillon::pictureFileBytes(
        describe, pixels, quillon::kDefaultPlotViewSize, quillon::PictureFormat::Svg);
    QXmlStreamReader reader(svg);
    QSet<QString> texts;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement &&
            reader.name() == QLatin1String("text")) {
            texts.insert(reader.readElementText(QXmlStreamReader::IncludeChildElements).trimmed());
        }
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    for (const char* name : {"C++ Math lib", "Select all", "Select none", "0", "299"}) {
        QVERIFY2(texts.contains(QLatin1String(name)), name);
    }
    for (const SineApproach& approach : sineApproaches()) {
        QVERIFY2(texts.contains(QLatin1String(approach.longName)), approach.longName);
    }
}

QTEST_MAIN(SinePlotPictureTest)
#include "SinePlotPictureTest.moc"
