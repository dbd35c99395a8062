#include "pentagon/picture/PentagonPlotPicture.h"
#include "common/picture/PictureFile.h"
#include "tests/support/PlotPictureItems.h"

#include <QFontMetrics>
#include <QFontMetricsF>
#include <QImage>
#include <QXmlStreamReader>
#include <QtTest>
#include <algorithm>
#include <cmath>

// The Pentagon plot's description, checked against values worked out by hand (or by a short
// script in single precision following the plot's rules), and its picture files.
class PentagonPlotPictureTest : public QObject
{
    Q_OBJECT

private slots:
    void defaultFrameIsTheInitialPentagonInItsColour();
    void olderPentagonsFadeAndRepeatedSegmentsAreSkipped();
    void greysLightenWithAgeUpTo128();
    void selectionModeDrawsOnlyTheMarkedPentagons();
    void enteredPointsAreDrawnAloneInTheirColours();
    void labelsAndGridLinesFollowTheRange();
    void rubberBandOnlyOnScreenAndRingOnTheMarkedVertex();
    void failedStepShowsItsMessageCentred();
    void finishedPictureDrawsTheWholeHistoryFitted();
    void finishedPictureFilesHoldThePlot();
    void emptyRangeShowsTheWayBackOnScreenAndInFiles();
    void noRangeWithWidthAndHeightShowsTheWayBack();
};

namespace
{

using quillon::PlotRgb;
using quillon::PlotStroke;

constexpr QSize kView(800, 600);

PlotRgb rgb(int red, int green, int blue)
{
    return {float(red) / 255.0f, float(green) / 255.0f, float(blue) / 255.0f};
}

PlotRgb grey(int level)
{
    return rgb(level, level, level);
}

PentagonPoints pentagon(std::array<float, 10> coordinates)
{
    PentagonPoints points;
    points.coordinates = coordinates;
    return points;
}

// The Default pentagon with epsilon 0.1: e = 1 + 0.1 rounded to single is 1.10000002384.
constexpr float kE = 1.10000002384185791015625f;
const PentagonPoints kDefault = pentagon({0, 0, 0, 1, 1, kE, kE, 1, 1, 0});

PentagonPoints shifted(const PentagonPoints& points, float dx, float dy)
{
    PentagonPoints moved = points;
    for (int point = 1; point <= 5; ++point) {
        moved.x(point) += dx;
        moved.y(point) += dy;
    }
    return moved;
}

const PlotStroke& onlyStroke(const quillon::PlotPicture& picture)
{
    static const PlotStroke none;
    return picture.background.strokes.size() == 1 ? picture.background.strokes.front() : none;
}

void compareVertex(const quillon::PlotVertex& vertex, float x, float y, PlotRgb color)
{
    QCOMPARE(vertex.x, x);
    QCOMPARE(vertex.y, y);
    QCOMPARE(vertex.color, color);
}

// The colour of every segment (vertex pair) of a run of lines, in order.
QList<PlotRgb> segmentColours(const PlotStroke& stroke)
{
    QList<PlotRgb> colours;
    for (size_t i = 0; i + 1 < stroke.vertices.size(); i += 2) {
        // Both ends of a segment have its colour.
        if (!(stroke.vertices[i].color == stroke.vertices[i + 1].color)) {
            return {};
        }
        colours << stroke.vertices[i].color;
    }
    return colours;
}

QStringList svgTexts(const QByteArray& svg, QString* error)
{
    QStringList texts;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QStringLiteral("text")) {
            texts << reader.readElementText(QXmlStreamReader::IncludeChildElements);
        }
    }
    *error = reader.hasError() ? reader.errorString() : QString();
    return texts;
}

int countPixels(const QImage& image, const std::function<bool(QRgb)>& wanted)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += wanted(image.pixel(x, y)) ? 1 : 0;
        }
    }
    return count;
}

} // namespace

// At start-up the tab shows the Default pentagon with epsilon 0.1 alone, in the initial colour
// (red), its five edges and five diagonals in the order (1,2), (1,3), ... (4,5), at depth 0,
// one pixel wide and solid, in the range fitted to it; nothing over it.
void PentagonPlotPictureTest::defaultFrameIsTheInitialPentagonInItsColour()
{
    const quillon::PlotPicture picture =
        describePentagonPlot(PentagonPlotState{}, kView, quillon::PictureUse::Screen);
    QCOMPARE(picture.size, kView);
    // The fit: centre e/2, half side e/2 x 1.1, each rounded to single: -0.055 .. 1.155.
    QCOMPARE(picture.background.left, double(-0.055f));
    QCOMPARE(picture.background.right, double(1.155f));
    QCOMPARE(picture.background.bottom, double(-0.055f));
    QCOMPARE(picture.background.top, double(1.155f));
    QCOMPARE(picture.background.strokes.size(), size_t(1));
    const PlotStroke& stroke = onlyStroke(picture);
    QCOMPARE(stroke.kind, PlotStroke::Kind::Lines);
    QCOMPARE(stroke.width, 1.0f);
    QCOMPARE(int(stroke.stipple), 0);
    QCOMPARE(stroke.depth, 0.0f);
    const float expected[20][2] = {{0, 0},  {0, 1},  {0, 0},  {1, kE}, {0, 0},  {kE, 1}, {0, 0},
                                   {1, 0},  {0, 1},  {1, kE}, {0, 1},  {kE, 1}, {0, 1},  {1, 0},
                                   {1, kE}, {kE, 1}, {1, kE}, {1, 0},  {kE, 1}, {1, 0}};
    QCOMPARE(stroke.vertices.size(), size_t(20));
    for (size_t i = 0; i < 20; ++i) {
        compareVertex(stroke.vertices[i], expected[i][0], expected[i][1], PlotRgb{1, 0, 0});
    }
    QVERIFY(picture.overlay.empty());
}

// Four pentagons, the third equal to the first but for -0 in place of 0 (the same pixels):
// the first in the initial colour, the second two steps older than the newest in grey 16
// (2 x 0.0625 x 128) without the segment (1,2) it shares with the first, the third not at all
// (every segment drawn before), the newest in the current colour; in the settings' width.
void PentagonPlotPictureTest::olderPentagonsFadeAndRepeatedSegmentsAreSkipped()
{
    PentagonPlotState state;
    const PentagonPoints second = pentagon({0, 0, 0, 1, 2, 2, 3, 1, 2, 0});
    const PentagonPoints negativeZeros = pentagon({-0.0f, -0.0f, -0.0f, 1, 1, kE, kE, 1, 1, -0.0f});
    const PentagonPoints newest = shifted(kDefault, 5, 5);
    state.pentagons = {kDefault, second, negativeZeros, newest};
    state.colours.colors[5] = {10, 20, 30};
    state.colours.colors[6] = {200, 100, 50};
    state.colours.lineWidth = 3;
    const PlotStroke stroke =
        onlyStroke(describePentagonPlot(state, kView, quillon::PictureUse::File));
    QCOMPARE(stroke.width, 3.0f);
    QList<PlotRgb> expected;
    for (int i = 0; i < 10; ++i) {
        expected << rgb(10, 20, 30);
    }
    for (int i = 0; i < 9; ++i) {
        expected << grey(16);
    }
    for (int i = 0; i < 10; ++i) {
        expected << rgb(200, 100, 50);
    }
    QCOMPARE(segmentColours(stroke), expected);
    // The second pentagon starts with its segment (1,3): (0, 0) to (2, 2).
    compareVertex(stroke.vertices[20], 0, 0, grey(16));
    compareVertex(stroke.vertices[21], 2, 2, grey(16));
    // The newest starts with its own (1,2): (5, 5) to (5, 6).
    compareVertex(stroke.vertices[38], 5, 5, rgb(200, 100, 50));
    compareVertex(stroke.vertices[39], 5, 6, rgb(200, 100, 50));
}

// Eighteen pentagons apart from each other: age a from 1 to 15 is grey int(a x 8), 16 and
// older grey 128; the first is in the initial colour however old, the last in the current one.
void PentagonPlotPictureTest::greysLightenWithAgeUpTo128()
{
    PentagonPlotState state;
    state.pentagons.clear();
    for (int n = 0; n < 18; ++n) {
        state.pentagons.push_back(shifted(kDefault, float(10 * n), 0));
    }
    const PlotStroke stroke =
        onlyStroke(describePentagonPlot(state, kView, quillon::PictureUse::Screen));
    QCOMPARE(stroke.vertices.size(), size_t(18 * 20));
    const auto colourOf = [&](int n) { return stroke.vertices[size_t(20 * n)].color; };
    QCOMPARE(colourOf(0), rgb(255, 0, 0));
    QCOMPARE(colourOf(1), grey(128)); // age 16
    QCOMPARE(colourOf(2), grey(120)); // age 15
    QCOMPARE(colourOf(9), grey(64));  // age 8
    QCOMPARE(colourOf(16), grey(8));  // age 1
    QCOMPARE(colourOf(17), rgb(0, 0, 255));
}

// Only the marked pentagons, each in the colour of its age in the whole history; a pentagon
// that is not drawn does not hide the segments of a later one at the same coordinates.
void PentagonPlotPictureTest::selectionModeDrawsOnlyTheMarkedPentagons()
{
    PentagonPlotState state;
    state.pentagons = {kDefault, shifted(kDefault, 3, 0), kDefault, shifted(kDefault, 6, 0)};
    state.selectionMode = true;
    state.selected = {false, true, true};
    const PlotStroke stroke =
        onlyStroke(describePentagonPlot(state, kView, quillon::PictureUse::Screen));
    QList<PlotRgb> expected;
    for (int i = 0; i < 10; ++i) {
        expected << grey(16);
    }
    for (int i = 0; i < 10; ++i) {
        expected << grey(8);
    }
    // The fourth has no mark.
    QCOMPARE(segmentColours(stroke), expected);
    compareVertex(stroke.vertices[0], 3, 0, grey(16));
    compareVertex(stroke.vertices[20], 0, 0, grey(8));

    // Selection mode draws the history even while a pentagon is being entered.
    state.enteringPoints = true;
    state.enteredCount = 2;
    QCOMPARE(onlyStroke(describePentagonPlot(state, kView, quillon::PictureUse::Screen)).kind,
             PlotStroke::Kind::Lines);
}

// While a pentagon is being entered: its points alone, point k in the colour of Point k (red,
// orange 255 165 0, green by default), the settings' point size, in front at depth 1.
void PentagonPlotPictureTest::enteredPointsAreDrawnAloneInTheirColours()
{
    PentagonPlotState state;
    state.enteringPoints = true;
    state.enteredPoints = pentagon({-0.5f, -0.5f, 0.25f, -0.75f, 0.5f, 0.5f, 0, 0, 0, 0});
    state.enteredCount = 3;
    const PlotStroke stroke =
        onlyStroke(describePentagonPlot(state, kView, quillon::PictureUse::Screen));
    QCOMPARE(stroke.kind, PlotStroke::Kind::Points);
    QCOMPARE(stroke.width, 8.0f);
    QCOMPARE(stroke.depth, 1.0f);
    QCOMPARE(stroke.vertices.size(), size_t(3));
    compareVertex(stroke.vertices[0], -0.5f, -0.5f, rgb(255, 0, 0));
    compareVertex(stroke.vertices[1], 0.25f, -0.75f, rgb(255, 165, 0));
    compareVertex(stroke.vertices[2], 0.5f, 0.5f, rgb(0, 255, 0));
}

// Range x 0 .. 2, y -1 .. 1 in an 800 x 600 view. The grid values are the middle plus
// (i - 10) twentieths of the span in single precision; their pixels, worked out the same way
// by a script, are 40 apart across (39.99998 for 0.1, whose single value is a little short)
// and 30 apart up. x labels stand along the bottom turned upwards in dark magenta, each
// centred on its vertical line, which stands half the label's width right of the value; y
// labels at the left edge, half a line of text below their heights.
void PentagonPlotPictureTest::labelsAndGridLinesFollowTheRange()
{
    PentagonPlotState state;
    state.range = {0.0f, 2.0f, -1.0f, 1.0f};
    state.showXIndices = true;
    state.showYIndices = true;
    state.showXAxis = true;
    state.showYAxis = true;
    const quillon::PlotPicture picture =
        describePentagonPlot(state, kView, quillon::PictureUse::File);
    const auto texts = itemsOf<quillon::PlotText>(picture);
    const auto lines = itemsOf<quillon::PlotLines>(picture);
    QCOMPARE(picture.overlay.size(), size_t(21 + 21 + 2));
    QCOMPARE(texts.size(), 42);
    QCOMPARE(lines.size(), 2);

    const float xPixels[21] = {0,          39.999985f, 79.99999f, 120.00001f, 159.99998f, 200,
                               240.00002f, 280,        320,       360,        400,        440,
                               480.00003f, 520,        560,       600,        640,        680,
                               720,        760.00006f, 800};
    const QStringList xTexts = {
        "0.00e+00", "1.00e-01", "2.00e-01", "3.00e-01", "4.00e-01", "5.00e-01", "6.00e-01",
        "7.00e-01", "8.00e-01", "9.00e-01", "1.00e+00", "1.10e+00", "1.20e+00", "1.30e+00",
        "1.40e+00", "1.50e+00", "1.60e+00", "1.70e+00", "1.80e+00", "1.90e+00", "2.00e+00"};
    const QFont font(QStringLiteral("times"), 10, QFont::Bold);
    const QFontMetrics metrics(font);
    const QFontMetricsF exact(font);
    for (int i = 0; i < 21; ++i) {
        const quillon::PlotText& label = texts[i];
        const QString text = xTexts[i];
        QCOMPARE(label.text, text);
        QCOMPARE(label.turn, -90.0);
        QCOMPARE(label.color, QColor(Qt::darkMagenta));
        QCOMPARE(label.font.family(), QStringLiteral("times"));
        QCOMPARE(label.font.pointSize(), 10);
        QCOMPARE(label.font.weight(), QFont::Bold);
        QCOMPARE(label.baseline.y(), 600.0);
        const QLineF line = lines[0].lines[size_t(i)];
        const float lineX = xPixels[i] + float(metrics.horizontalAdvance(text)) / 2.0f;
        QCOMPARE(line, QLineF(lineX, 0, lineX, 600));
        // Turned upwards, the ink's middle across the view is the baseline plus the middle of
        // the text's height.
        QVERIFY(qAbs(label.baseline.x() + exact.tightBoundingRect(text).center().y() - lineX) <
                1e-4);
    }
    const float yPixels[21] = {600, 570, 540,        510, 480,        450,        420,
                               390, 360, 330,        300, 270,        240,        210,
                               180, 150, 119.99999f, 90,  59.999996f, 29.999989f, 0};
    const QStringList yTexts = {
        "-1.00e+00", "-9.00e-01", "-8.00e-01", "-7.00e-01", "-6.00e-01", "-5.00e-01", "-4.00e-01",
        "-3.00e-01", "-2.00e-01", "-1.00e-01", "0.00e+00",  "1.00e-01",  "2.00e-01",  "3.00e-01",
        "4.00e-01",  "5.00e-01",  "6.00e-01",  "7.00e-01",  "8.00e-01",  "9.00e-01",  "1.00e+00"};
    const float halfHeight = float(metrics.height()) / 2.0f;
    for (int i = 0; i < 21; ++i) {
        const quillon::PlotText& label = texts[21 + i];
        QCOMPARE(label.text, yTexts[i]);
        QCOMPARE(label.turn, 0.0);
        QCOMPARE(label.color, QColor(Qt::darkMagenta));
        QCOMPARE(label.baseline, QPointF(0, yPixels[i] + halfHeight));
        QCOMPARE(lines[1].lines[size_t(i)], QLineF(0, yPixels[i], 800, yPixels[i]));
    }
    QCOMPARE(lines[0].pen.color(), QColor(Qt::darkMagenta));
    QCOMPARE(lines[1].pen.color(), QColor(Qt::darkMagenta));
}

// The drag's rectangle from its press corner (100, 50) round to the pointer (30, 200) in
// black, on screen only; the ring of radius 7 around point 3 of the second pentagon, (1.5,
// 0.5) in range 0 .. 2 both ways, which lies at 400 x 0.75 = 300 across and 200 x 0.75 = 150
// down in a 400 x 200 view.
void PentagonPlotPictureTest::rubberBandOnlyOnScreenAndRingOnTheMarkedVertex()
{
    PentagonPlotState state;
    state.pentagons = {kDefault, pentagon({0, 0, 0, 1, 1.5f, 0.5f, 1, 1, 1, 0})};
    state.range = {0, 2, 0, 2};
    state.rubberBand = QRectF(QPointF(100, 50), QPointF(30, 200));
    state.markedVertex = quillon::PlotNode{1, 3};
    const QSize view(400, 200);
    const quillon::PlotPicture screen =
        describePentagonPlot(state, view, quillon::PictureUse::Screen);
    QCOMPARE(screen.overlay.size(), size_t(2));
    const auto* band = std::get_if<quillon::PlotLines>(&screen.overlay[0]);
    QVERIFY(band != nullptr);
    const std::vector<QLineF> edges = {QLineF(100, 50, 30, 50), QLineF(30, 50, 30, 200),
                                       QLineF(30, 200, 100, 200), QLineF(100, 200, 100, 50)};
    QCOMPARE(band->lines, edges);
    QCOMPARE(band->pen.color(), QColor(Qt::black));
    const auto* ring = std::get_if<quillon::PlotRing>(&screen.overlay[1]);
    QVERIFY(ring != nullptr);
    QCOMPARE(ring->centre, QPointF(300, 150));
    QCOMPARE(ring->radius, 7.0);

    const quillon::PlotPicture file = describePentagonPlot(state, view, quillon::PictureUse::File);
    QCOMPARE(file.overlay.size(), size_t(1));
    QVERIFY(std::holds_alternative<quillon::PlotRing>(file.overlay[0]));

    // A ring on a pentagon no longer in the history is not drawn.
    state.markedVertex = quillon::PlotNode{2, 1};
    QVERIFY(describePentagonPlot(state, view, quillon::PictureUse::File).overlay.empty());
}

// The message of the last status without its line break, red, 20 point bold "times", centred
// across the view on the baseline at half its height.
void PentagonPlotPictureTest::failedStepShowsItsMessageCentred()
{
    PentagonPlotState state;
    state.lastStatus = StatusParallel;
    const quillon::PlotPicture picture =
        describePentagonPlot(state, kView, quillon::PictureUse::File);
    const auto texts = itemsOf<quillon::PlotText>(picture);
    QCOMPARE(texts.size(), 1);
    const quillon::PlotText& message = texts.front();
    QCOMPARE(message.text, QStringLiteral("Error! Two lines are parallel! "));
    QCOMPARE(message.color, QColor(255, 0, 0));
    QCOMPARE(message.font.family(), QStringLiteral("times"));
    QCOMPARE(message.font.pointSize(), 20);
    QCOMPARE(message.font.weight(), QFont::Bold);
    QCOMPARE(message.baseline.y(), 300.0);
    const double width = QFontMetrics(message.font).horizontalAdvance(message.text);
    QCOMPARE(message.baseline.x() + width / 2, 400.0);
}

// After an Out and an In from the Default pentagon: three pentagons, the initial one red, the
// Out's grey 8, the newest blue, in a square box around all their points (the Out's reach
// beyond the initial pentagon's) with 5% to spare on each side of the larger extent; no
// labels, grid lines or message.
void PentagonPlotPictureTest::finishedPictureDrawsTheWholeHistoryFitted()
{
    PentagonEngine engine;
    engine.out();
    engine.in();
    const quillon::PlotPicture picture =
        pentagonFinishedPicture(engine, PentagonColorSettings{}, quillon::kDefaultPlotViewSize);
    QCOMPARE(picture.size, quillon::kDefaultPlotViewSize);
    QVERIFY(picture.overlay.empty());
    const PlotStroke& stroke = onlyStroke(picture);
    const QList<PlotRgb> colours = segmentColours(stroke);
    QVERIFY(!colours.isEmpty());
    QCOMPARE(colours.first(), rgb(255, 0, 0));
    QVERIFY(colours.contains(grey(8)));
    QCOMPARE(colours.last(), rgb(0, 0, 255));

    double xMin = 1e9, xMax = -1e9, yMin = 1e9, yMax = -1e9;
    for (const PentagonPoints& drawn : engine.validPentagons()) {
        for (int point = 1; point <= 5; ++point) {
            xMin = std::min(xMin, double(drawn.x(point)));
            xMax = std::max(xMax, double(drawn.x(point)));
            yMin = std::min(yMin, double(drawn.y(point)));
            yMax = std::max(yMax, double(drawn.y(point)));
        }
    }
    const double half = std::max(xMax - xMin, yMax - yMin) * 0.55;
    const quillon::PlotBackground& box = picture.background;
    QVERIFY(qAbs(box.left - ((xMin + xMax) / 2 - half)) < 1e-6);
    QVERIFY(qAbs(box.right - ((xMin + xMax) / 2 + half)) < 1e-6);
    QVERIFY(qAbs(box.bottom - ((yMin + yMax) / 2 - half)) < 1e-6);
    QVERIFY(qAbs(box.top - ((yMin + yMax) / 2 + half)) < 1e-6);
}

// Two Ins at 1920 x 1080: a PNG of that size showing the initial pentagon in red, the first
// In's in near-black grey 8 and the newest in blue on white, and an SVG that is well-formed
// XML whose only text is the failed step's message when the run ended in one.
void PentagonPlotPictureTest::finishedPictureFilesHoldThePlot()
{
    const QSize pixels(1920, 1080);
    PentagonEngine engine;
    engine.in();
    engine.in();
    const PentagonColorSettings colours;
    const auto describe = [&](QSize size) {
        return pentagonFinishedPicture(engine, colours, size);
    };
    QImage png = QImage::fromData(quillon::pictureFileBytes(
        describe, pixels, quillon::kDefaultPlotViewSize, quillon::PictureFormat::Png));
    QCOMPARE(png.size(), pixels);
    png = png.convertToFormat(QImage::Format_RGB32);
    const int reddish =
        countPixels(png, [](QRgb p) { return qRed(p) > 200 && qGreen(p) < 120 && qBlue(p) < 120; });
    const int bluish =
        countPixels(png, [](QRgb p) { return qBlue(p) > 200 && qRed(p) < 120 && qGreen(p) < 120; });
    const int greyish = countPixels(
        png, [](QRgb p) { return qRed(p) < 160 && qRed(p) == qGreen(p) && qGreen(p) == qBlue(p); });
    const int white = countPixels(png, [](QRgb p) { return p == qRgb(255, 255, 255); });
    QVERIFY2(reddish > 500, qPrintable(QString::number(reddish)));
    QVERIFY2(bluish > 500, qPrintable(QString::number(bluish)));
    QVERIFY2(greyish > 500, qPrintable(QString::number(greyish)));
    QVERIFY(white > pixels.width() * pixels.height() / 2);

    QString error;
    QStringList texts =
        svgTexts(quillon::pictureFileBytes(describe, pixels, quillon::kDefaultPlotViewSize,
                                           quillon::PictureFormat::Svg),
                 &error);
    QVERIFY2(error.isEmpty(), qPrintable(error));
    QVERIFY(texts.isEmpty());

    // The Default pentagon's eleventh In fails.
    engine.resetHistory();
    for (int step = 0; step < 11; ++step) {
        engine.in();
    }
    QCOMPARE(engine.lastStatus(), int(StatusNotPentagon));
    texts = svgTexts(quillon::pictureFileBytes(describe, pixels, quillon::kDefaultPlotViewSize,
                                               quillon::PictureFormat::Svg),
                     &error);
    QVERIFY2(error.isEmpty(), qPrintable(error));
    QCOMPARE(texts.size(), 1);
    QCOMPARE(texts.front().trimmed(),
             QStringLiteral("Error! New five points can not form a pentagon!"));
}

namespace
{

const QString kWayBack = QStringLiteral("right-click to go back");

// The texts of a described frame, in painting order.
QStringList overlayTexts(const quillon::PlotPicture& picture)
{
    QStringList texts;
    for (const quillon::PlotText& text : itemsOf<quillon::PlotText>(picture)) {
        texts << text.text;
    }
    return texts;
}

} // namespace

// A click that does not drag zooms to a range with no width and no height (the press corner
// is the release corner): the view then shows no pentagon, and says, in the overlay font,
// black, centred across the view on the baseline a third of the way down, how to go back;
// an exported picture of it says so too. A failed step's message stays, below the hint.
void PentagonPlotPictureTest::emptyRangeShowsTheWayBackOnScreenAndInFiles()
{
    PentagonPlotState state;
    state.range = {0.5f, 0.5f, 0.25f, 0.25f};
    for (const quillon::PictureUse use : {quillon::PictureUse::Screen, quillon::PictureUse::File}) {
        const auto texts = itemsOf<quillon::PlotText>(describePentagonPlot(state, kView, use));
        QCOMPARE(texts.size(), 1);
        const quillon::PlotText& hint = texts.front();
        QCOMPARE(hint.text, kWayBack);
        QCOMPARE(hint.color, QColor(Qt::black));
        QCOMPARE(hint.font.family(), QStringLiteral("times"));
        QCOMPARE(hint.font.pointSize(), 10);
        QCOMPARE(hint.font.weight(), QFont::Bold);
        QCOMPARE(hint.baseline.y(), 200.0);
        const double width = QFontMetrics(hint.font).horizontalAdvance(hint.text);
        QCOMPARE(hint.baseline.x() + width / 2, 400.0);
    }
    // A drag along one edge leaves a range with no width, or no height: as empty.
    state.range = {0.5f, 0.5f, 0.0f, 1.0f};
    QCOMPARE(overlayTexts(describePentagonPlot(state, kView, quillon::PictureUse::Screen)),
             QStringList{kWayBack});
    state.range = {0.0f, 1.0f, 0.25f, 0.25f};
    QCOMPARE(overlayTexts(describePentagonPlot(state, kView, quillon::PictureUse::Screen)),
             QStringList{kWayBack});
    state.lastStatus = StatusParallel;
    QCOMPARE(overlayTexts(describePentagonPlot(state, kView, quillon::PictureUse::Screen)),
             (QStringList{QStringLiteral("Error! Two lines are parallel! "), kWayBack}));

    state.lastStatus = StatusOk;
    const auto describe = [&](QSize size) {
        return describePentagonPlot(state, size, quillon::PictureUse::File);
    };
    QString error;
    const QStringList texts = svgTexts(quillon::pictureFileBytes(describe, QSize(1920, 1080),
                                                                 quillon::kDefaultPlotViewSize,
                                                                 quillon::PictureFormat::Svg),
                                       &error);
    QVERIFY2(error.isEmpty(), qPrintable(error));
    QCOMPARE(texts.size(), 1);
    QCOMPARE(texts.front().trimmed(), kWayBack);
}

// The hint belongs to the empty range alone: not at start-up, not with labels, grid lines, a
// drag, a ring or a failed step's message, not in a range one float wide and high.
void PentagonPlotPictureTest::noRangeWithWidthAndHeightShowsTheWayBack()
{
    PentagonPlotState state;
    QVERIFY(!overlayTexts(describePentagonPlot(state, kView, quillon::PictureUse::Screen))
                 .contains(kWayBack));
    state.showXIndices = true;
    state.showYIndices = true;
    state.showXAxis = true;
    state.showYAxis = true;
    state.rubberBand = QRectF(10, 10, 0, 0);
    state.markedVertex = quillon::PlotNode{0, 1};
    state.lastStatus = StatusNotPentagon;
    QVERIFY(!overlayTexts(describePentagonPlot(state, kView, quillon::PictureUse::Screen))
                 .contains(kWayBack));
    const float next = std::nextafter(0.5f, 1.0f);
    state = PentagonPlotState();
    state.range = {0.5f, next, 0.5f, next};
    QVERIFY(overlayTexts(describePentagonPlot(state, kView, quillon::PictureUse::File)).isEmpty());
    QVERIFY(
        overlayTexts(describePentagonPlot(state, kView, quillon::PictureUse::Screen)).isEmpty());
}

QTEST_MAIN(PentagonPlotPictureTest)
#include "PentagonPlotPictureTest.moc"
