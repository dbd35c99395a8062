#include "roots/picture/RootsGridPicture.h"
#include "common/picture/PictureFile.h"

#include <QFontMetricsF>
#include <QImage>
#include <QSet>
#include <QXmlStreamReader>
#include <QtTest>
#include <algorithm>
#include <cstdio>
#include <memory>

// The expected texts and colours below were worked out apart from the program: a script
// followed the four solvers' operations with IEEE single and double rounding and GMP's 256-bit
// mpf arithmetic, printed the cells with the grid's formats, and classified the rows by the
// 1e-11 three-way comparison; the colours follow from the highlighting rules (red, blue
// (0, 1, 255) and pink for the odd column, backgrounds banded 200 / 245 grey).

namespace
{

const QColor kBlack(0, 0, 0);
const QColor kRed(255, 0, 0);
const QColor kBlue(0, 1, 255);
const QColor kPink(255, 0, 255);
const QColor kDarkBand(200, 200, 200);
const QColor kLightBand(245, 245, 245);

struct ExpectedRow {
    QString heading; // the row heading's caption, empty when the heading is a formula only
    QStringList cells;
    QList<QColor> inks;
};

const QList<ExpectedRow>& startUpRows()
{
    static const QList<ExpectedRow> rows = {
        {{},
         {"1.000000e+06", "1.000000e+06", "1.000000000000e+06", "1.000000000000e+06"},
         {kBlack, kBlack, kBlack, kBlack}},
        {{},
         {"4.000000e+00", "4.000000e+00", "4.000000000000e+00", "4.000000000000e+00"},
         {kBlack, kBlack, kBlack, kBlack}},
        {"sqrt(b^2- 4ac)",
         {"9.999980e+02", "9.999980e+02", "9.999979999980e+02", "9.999979999980e+02"},
         {kBlack, kBlack, kPink, kBlack}},
        {"Large Root",
         {"-1.007080e-03", "-1.000001e-03", "-1.000001000023e-03", "-1.000001000002e-03"},
         {kRed, kBlue, kPink, kBlack}},
        {"Calculated",
         {"-7.079064e-03", "2.118193e-08", "-2.062106041478e-11", "-2.802091563974e-75"},
         {kRed, kBlue, kPink, kBlack}},
        {"Small Root",
         {"-9.999990e+02", "-9.999990e+02", "-9.999989999990e+02", "-9.999989999990e+02"},
         {kBlack, kBlack, kPink, kBlack}},
        {"Calculated",
         {"2.343845e-02", "2.343845e-02", "1.164153218269e-10", "-7.120167205344e-75"},
         {kBlack, kBlack, kPink, kBlack}},
    };
    return rows;
}

const QStringList kColumnHeadings = {"Naive\nSingle P.", "Cancellation\nSingle P.",
                                     "Naive\nDouble P.", "Naive\nHigh P."};

// A solver whose 256-bit trace lines go nowhere visible.
class QuietSolver
{
public:
    QuietSolver() : sink(std::tmpfile()), solver(std::make_unique<RootsSolver>(sink)) {}
    ~QuietSolver()
    {
        solver.reset();
        std::fclose(sink);
    }

    std::FILE* sink;
    std::unique_ptr<RootsSolver> solver;
};

template <typename Item> std::vector<Item> itemsOf(const quillon::PlotPicture& picture)
{
    std::vector<Item> items;
    for (const quillon::PlotOverlayItem& item : picture.overlay) {
        if (const auto* found = std::get_if<Item>(&item)) {
            items.push_back(*found);
        }
    }
    return items;
}

// The texts as a reader meets them: lines from the top (texts whose boxes share a middle
// height), each from the left.
QList<QList<quillon::PlotBoxText>> readingOrder(const quillon::PlotPicture& picture)
{
    std::vector<quillon::PlotBoxText> texts = itemsOf<quillon::PlotBoxText>(picture);
    std::sort(texts.begin(), texts.end(), [](const auto& a, const auto& b) {
        return a.box.center().y() != b.box.center().y() ? a.box.center().y() < b.box.center().y()
                                                        : a.box.center().x() < b.box.center().x();
    });
    QList<QList<quillon::PlotBoxText>> lines;
    for (const quillon::PlotBoxText& text : texts) {
        if (lines.isEmpty() ||
            std::abs(lines.back().front().box.center().y() - text.box.center().y()) > 0.5) {
            lines.append(QList<quillon::PlotBoxText>());
        }
        lines.back().append(text);
    }
    return lines;
}

QStringList textsIn(const QList<quillon::PlotBoxText>& line)
{
    QStringList texts;
    for (const quillon::PlotBoxText& text : line) {
        texts << text.text;
    }
    return texts;
}

// The colour under a point: the last fill painted there, white where there is none.
QColor fillUnder(const quillon::PlotPicture& picture, QPointF point)
{
    QColor color = Qt::white;
    for (const quillon::PlotFill& fill : itemsOf<quillon::PlotFill>(picture)) {
        if (fill.rect.contains(point)) {
            color = fill.color;
        }
    }
    return color;
}

QStringList expectedLine(const ExpectedRow& row)
{
    QStringList line = row.cells;
    if (!row.heading.isEmpty()) {
        line.prepend(row.heading);
    }
    return line;
}

QByteArray pictureFile(const RootsSolver& solver, QSize pixels, quillon::PictureFormat format)
{
    return quillon::pictureFileBytes(
        [&solver](QSize viewSize) { return rootsGridPicture(solver, viewSize); }, pixels,
        kRootsPictureSize, format);
}

int pixelsOf(const QImage& image, const QColor& color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

} // namespace

class RootsGridPictureTest : public QObject
{
    Q_OBJECT

private slots:
    void startUpShowsTheEquationAndTheCoefficients();
    void startUpGridHoldsHeadingsAndCellsInReadingOrder();
    void startUpCellsHaveTheirHighlightAndBandColours();
    void exampleThreeShowsTheSingleCopiesOfTheCoefficients();
    void invalidColumnsShowTheirWords();
    void everyTextFitsItsPlace_data();
    void everyTextFitsItsPlace();
    void theFontGrowsWithThePicture();
    void pngHasTheSizeAndTheColoursOfTheGrid();
    void svgIsWellFormedAndHoldsEveryText();
};

void RootsGridPictureTest::startUpShowsTheEquationAndTheCoefficients()
{
    QuietSolver quiet;
    const quillon::PlotPicture picture = rootsGridPicture(*quiet.solver, kRootsPictureSize);
    QCOMPARE(picture.size, kRootsPictureSize);
    QVERIFY(picture.background.strokes.empty());
    const QList<QList<quillon::PlotBoxText>> lines = readingOrder(picture);
    QVERIFY(!lines.isEmpty());
    QCOMPARE(textsIn(lines.front()),
             QStringList({"a = 1.000000", "b = 1000.000000", "c = 1.000000"}));
    // The equation's image stands on the coefficients' line, left of them; the five row
    // headings' formulas (b^2, 4ac, the radicand and twice the polynomial) are the others.
    const auto images = itemsOf<quillon::PlotImage>(picture);
    QCOMPARE(int(images.size()), 6);
    const QRectF equation = images.front().target;
    const QRectF firstCoefficient = lines.front().front().box;
    QVERIFY(equation.right() <= firstCoefficient.left());
    QVERIFY(equation.top() >= firstCoefficient.top());
    QVERIFY(equation.bottom() <= firstCoefficient.bottom());
    // Drawn from the program's image of a x^2 + b x + c = 0 (210 x 39), in its proportions.
    QVERIFY(!images.front().image.isNull());
    QVERIFY(std::abs(equation.width() / equation.height() - 210.0 / 39.0) < 0.01);
}

void RootsGridPictureTest::startUpGridHoldsHeadingsAndCellsInReadingOrder()
{
    QuietSolver quiet;
    const quillon::PlotPicture picture = rootsGridPicture(*quiet.solver, kRootsPictureSize);
    const QList<QList<quillon::PlotBoxText>> lines = readingOrder(picture);
    QCOMPARE(lines.size(), 2 + kRootsRowCount);
    QCOMPARE(textsIn(lines[1]), QStringList({"Solution"}) + kColumnHeadings);
    for (int row = 0; row < kRootsRowCount; ++row) {
        QCOMPARE(textsIn(lines[2 + row]), expectedLine(startUpRows()[row]));
    }
}

void RootsGridPictureTest::startUpCellsHaveTheirHighlightAndBandColours()
{
    QuietSolver quiet;
    const quillon::PlotPicture picture = rootsGridPicture(*quiet.solver, kRootsPictureSize);
    const QList<QList<quillon::PlotBoxText>> lines = readingOrder(picture);
    QCOMPARE(lines.size(), 2 + kRootsRowCount);
    for (const quillon::PlotBoxText& heading : lines[1]) {
        QCOMPARE(heading.color, kBlack);
        QCOMPARE(fillUnder(picture, heading.box.center()), QColor(Qt::white));
    }
    for (int row = 0; row < kRootsRowCount; ++row) {
        const ExpectedRow& expected = startUpRows()[row];
        const QList<quillon::PlotBoxText> line = lines[2 + row];
        const QColor band = row % 2 == 0 ? kDarkBand : kLightBand;
        // The heading's caption (or formula) is on the row's band as well.
        QCOMPARE(fillUnder(picture, line.front().box.topLeft() + QPointF(1, 1)), band);
        const int firstCell = int(line.size()) - kRootsVariantCount;
        for (int variant = 0; variant < kRootsVariantCount; ++variant) {
            const quillon::PlotBoxText& cell = line[firstCell + variant];
            QCOMPARE(cell.color, expected.inks[variant]);
            QCOMPARE(fillUnder(picture, cell.box.center()), band);
        }
    }
}

void RootsGridPictureTest::exampleThreeShowsTheSingleCopiesOfTheCoefficients()
{
    QuietSolver quiet;
    quiet.solver->useExample(3);
    const QList<QList<quillon::PlotBoxText>> lines =
        readingOrder(rootsGridPicture(*quiet.solver, kRootsPictureSize));
    QCOMPARE(lines.size(), 2 + kRootsRowCount);
    // 249999.99999 rounds to 250000 in single precision.
    QCOMPARE(textsIn(lines[0]),
             QStringList({"a = 0.010000", "b = 100.000000", "c = 250000.000000"}));
    QCOMPARE(
        textsIn(lines[2 + RowSqrtD]).mid(1),
        QStringList({"0.000000e+00", "0.000000e+00", "6.324579399433e-04", "6.324555320337e-04"}));
    QCOMPARE(textsIn(lines[2 + RowLargeRoot]).mid(1),
             QStringList(
                 {"-5.000000e+03", "-5.000000e+03", "-4.999968377103e+03", "-4.999968377223e+03"}));
}

void RootsGridPictureTest::invalidColumnsShowTheirWords()
{
    QuietSolver quiet;
    quiet.solver->readA("1");
    quiet.solver->readB("2.784548160");
    quiet.solver->readC("1.938427098");
    quiet.solver->recomputeAll();
    const quillon::PlotPicture picture = rootsGridPicture(*quiet.solver, kRootsPictureSize);
    const QList<QList<quillon::PlotBoxText>> lines = readingOrder(picture);
    QCOMPARE(lines.size(), 2 + kRootsRowCount);
    QCOMPARE(textsIn(lines[2 + RowB2]), QStringList({"7.753708e+00", "7.753708e+00",
                                                     "7.753708455359e+00", "7.753708455359e+00"}));
    QCOMPARE(textsIn(lines[2 + RowSqrtD]),
             QStringList({"sqrt(b^2- 4ac)", "No real value", "No real value", "2.517129042820e-04",
                          "2.517129031258e-04"}));
    QCOMPARE(textsIn(lines[2 + RowLargeRoot]),
             QStringList({"Large Root", "No real roots", "No real roots", "-1.392148223548e+00",
                          "-1.392148223548e+00"}));
    QCOMPARE(textsIn(lines[2 + RowSmallResult]),
             QStringList({"Calculated", "N/A", "N/A", "0.000000000000e+00", "7.990970649861e-78"}));
    // A column without roots makes every row agree (class 0): all black.
    for (const auto& line : lines.mid(2)) {
        for (const quillon::PlotBoxText& text : line) {
            QCOMPARE(text.color, kBlack);
        }
    }
}

void RootsGridPictureTest::everyTextFitsItsPlace_data()
{
    QTest::addColumn<QSize>("viewSize");
    QTest::newRow("reference") << kRootsPictureSize;
    QTest::newRow("1920x1080") << QSize(1920, 1080);
    QTest::newRow("640x360") << QSize(640, 360);
    QTest::newRow("tall") << QSize(700, 1400);
}

// No text is wider or taller than its box, no two boxes overlap, no formula covers a text,
// and everything lies inside the picture.
void RootsGridPictureTest::everyTextFitsItsPlace()
{
    QFETCH(QSize, viewSize);
    QuietSolver quiet;
    const quillon::PlotPicture picture = rootsGridPicture(*quiet.solver, viewSize);
    const QRectF view(QPointF(0, 0), QSizeF(viewSize));
    const std::vector<quillon::PlotBoxText> texts = itemsOf<quillon::PlotBoxText>(picture);
    QCOMPARE(int(texts.size()), 3 + 5 + 5 + 4 * kRootsRowCount);
    for (const quillon::PlotBoxText& text : texts) {
        const QFontMetricsF metrics(text.font);
        const QStringList lines = text.text.split(QLatin1Char('\n'));
        for (const QString& line : lines) {
            QVERIFY2(metrics.horizontalAdvance(line) <= text.box.width(), qPrintable(line));
        }
        QVERIFY2(lines.size() * metrics.lineSpacing() <= text.box.height(), qPrintable(text.text));
        QVERIFY2(view.contains(text.box), qPrintable(text.text));
        for (const quillon::PlotBoxText& other : texts) {
            if (&other != &text) {
                QVERIFY2(!text.box.intersects(other.box),
                         qPrintable(text.text + QStringLiteral(" / ") + other.text));
            }
        }
    }
    for (const quillon::PlotImage& image : itemsOf<quillon::PlotImage>(picture)) {
        QVERIFY(view.contains(image.target));
        for (const quillon::PlotBoxText& text : texts) {
            QVERIFY2(!image.target.intersects(text.box), qPrintable(text.text));
        }
    }
}

void RootsGridPictureTest::theFontGrowsWithThePicture()
{
    QuietSolver quiet;
    const auto cellFontPixels = [&quiet](QSize size) {
        return itemsOf<quillon::PlotBoxText>(rootsGridPicture(*quiet.solver, size))
            .back()
            .font.pixelSize();
    };
    const int small = cellFontPixels(QSize(640, 360));
    const int reference = cellFontPixels(kRootsPictureSize);
    const int large = cellFontPixels(QSize(1920, 1080));
    QVERIFY2(small < reference && reference < large,
             qPrintable(QStringLiteral("%1 %2 %3").arg(small).arg(reference).arg(large)));
    // Readable on a slide: at least the page's own 12 pixels in the reference view.
    QVERIFY(reference >= 12);
}

void RootsGridPictureTest::pngHasTheSizeAndTheColoursOfTheGrid()
{
    QuietSolver quiet;
    const QImage image = QImage::fromData(
        pictureFile(*quiet.solver, QSize(1920, 1080), quillon::PictureFormat::Png), "PNG");
    QCOMPARE(image.size(), QSize(1920, 1080));
    const QImage pixels = image.convertToFormat(QImage::Format_RGB32);
    // Four dark and three light bands of five cells share most of the grid.
    const int area = pixels.width() * pixels.height();
    QVERIFY(pixelsOf(pixels, kDarkBand) > area / 4);
    QVERIFY(pixelsOf(pixels, kLightBand) > area / 6);
    QVERIFY(pixelsOf(pixels, kBlack) > 1000);
    // The highlighted cells' inks: the cores of their glyphs keep the exact colours.
    QVERIFY(pixelsOf(pixels, kRed) > 50);
    QVERIFY(pixelsOf(pixels, kBlue) > 50);
    QVERIFY(pixelsOf(pixels, kPink) > 200);
}

void RootsGridPictureTest::svgIsWellFormedAndHoldsEveryText()
{
    QuietSolver quiet;
    const QByteArray svg =
        pictureFile(*quiet.solver, QSize(1920, 1080), quillon::PictureFormat::Svg);
    QXmlStreamReader reader(svg);
    QStringList characters;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::Characters) {
            characters << reader.text().toString();
        }
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    const QSet<QString> found(characters.begin(), characters.end());
    QStringList wanted = {"Solution", "a = 1.000000", "b = 1000.000000", "c = 1.000000"};
    for (const QString& heading : kColumnHeadings) {
        wanted << heading.split(QLatin1Char('\n'));
    }
    for (const ExpectedRow& row : startUpRows()) {
        wanted << expectedLine(row);
    }
    for (const QString& text : wanted) {
        QVERIFY2(found.contains(text), qPrintable(text));
    }
}

QTEST_MAIN(RootsGridPictureTest)
#include "RootsGridPictureTest.moc"
