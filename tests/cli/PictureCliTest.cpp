#include "tests/cli/CliRun.h"
#include "tests/cli/UnreachableXDisplay.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <gtest/gtest.h>
#include <ostream>

// How GoogleTest shows sizes and texts in a failure (found by argument-dependent lookup, so in
// the namespace of QSize and QString).
void PrintTo(const QSize& size, std::ostream* out)
{
    *out << size.width() << 'x' << size.height();
}

void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace
{

// The five orders' colours at start-up, as the Associative Law tab draws its curves.
const QRgb kPurple = qRgb(128, 0, 128);
const QRgb kTeal = qRgb(0, 128, 128);
const QRgb kOrangeRed = qRgb(255, 69, 0);
const QRgb kOlive = qRgb(128, 128, 0);
const QRgb kGreen = qRgb(0, 255, 0);
const QRgb kRed = qRgb(255, 0, 0);

// A curve drawn over the whole width, or a legend swatch, covers thousands of pixels; a
// colour that only turns up at a few edges of other shapes does not reach this.
constexpr int kDrawnPixels = 1000;

// The view's size in the default window, quillon-cli's picture size by default.
const QSize kDefaultSize(795, 769);

CliRun assoc(QStringList arguments)
{
    arguments.prepend(QStringLiteral("assoc"));
    return CliRun::of(arguments);
}

int pixelsOf(const QImage& image, QRgb colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixel(x, y) == colour ? 1 : 0;
        }
    }
    return count;
}

int distinctColours(const QImage& image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colours.insert(image.pixel(x, y));
        }
    }
    return int(colours.size());
}

// The environment quillon-cli runs in, with `changes` set ("NAME=value") and `removed` unset.
QProcessEnvironment environmentWith(const QStringList& changes, const QStringList& removed = {})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& change : changes) {
        const qsizetype split = change.indexOf(QLatin1Char('='));
        environment.insert(change.left(split), change.mid(split + 1));
    }
    for (const QString& name : removed) {
        environment.remove(name);
    }
    return environment;
}

// A run that wrote the files at `paths`, in that order, and said so: its only output.
void expectSaved(const CliRun& run, const QStringList& paths)
{
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    QString confirmations;
    for (const QString& path : paths) {
        confirmations += QStringLiteral("save file %1 done\n").arg(path);
    }
    EXPECT_EQ(run.err, confirmations);
    EXPECT_TRUE(run.out.isEmpty());
}

// The error line of a refused run: exactly one line, naming the command.
void expectOneErrorLine(const CliRun& run, const std::string& shown)
{
    EXPECT_EQ(run.err.count(QLatin1Char('\n')), 1) << shown << ": " << run.err.toStdString();
    EXPECT_TRUE(run.err.startsWith(QStringLiteral("quillon-cli assoc: "))) << shown;
}

} // namespace

TEST(PictureCli, PngHasTheSizeAskedForAndTheCurvesInTheirColours)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("orders.png"));
    expectSaved(assoc({"--png", path, "--size", "1920x1080"}), {path});

    const QImage image(path, "PNG");
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(image.size(), QSize(1920, 1080));
    // Curves in five colours, smoothed edges, texts, images: far more than a blank picture's
    // one colour or a few flat shapes.
    EXPECT_GT(distinctColours(image), 200);
    EXPECT_GT(pixelsOf(image, qRgb(255, 255, 255)), 1920 * 1080 / 20);
    for (const QRgb colour : {kPurple, kTeal, kOrangeRed, kOlive, kGreen}) {
        EXPECT_GT(pixelsOf(image, colour), kDrawnPixels) << std::hex << colour;
    }
}

TEST(PictureCli, DefaultSizeIsTheViewInTheDefaultWindow)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("orders.png"));
    expectSaved(assoc({"--png", path}), {path});
    EXPECT_EQ(QImage(path, "PNG").size(), kDefaultSize);
}

TEST(PictureCli, SvgIsWellFormedAndAsLargeAsAskedFor)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("orders.svg"));
    expectSaved(assoc({"--svg", path, "--size", "1920x1080"}), {path});

    QXmlStreamReader reader(fileBytes(path));
    ASSERT_TRUE(reader.readNextStartElement()) << reader.errorString().toStdString();
    EXPECT_EQ(reader.name().toString(), QStringLiteral("svg"));
    const QXmlStreamAttributes root = reader.attributes();
    EXPECT_EQ(root.value(QStringLiteral("viewBox")).toString(), QStringLiteral("0 0 1920 1080"));
    // The width and height are in millimetres at 96 pixels to the inch: 1920 / 96 * 25.4 and
    // 1080 / 96 * 25.4.
    EXPECT_EQ(root.value(QStringLiteral("width")).toString(), QStringLiteral("508mm"));
    EXPECT_EQ(root.value(QStringLiteral("height")).toString(), QStringLiteral("285.75mm"));
    int texts = 0;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement &&
            reader.name() == QStringLiteral("text")) {
            ++texts;
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_GT(texts, 0);
}

TEST(PictureCli, TheOptionNamesTheFormatWhateverTheSuffix)
{
    QTemporaryDir folder;
    const QString png = folder.filePath(QStringLiteral("picture.svg"));
    const QString svg = folder.filePath(QStringLiteral("picture"));
    expectSaved(assoc({"--png", png, "--svg", svg, "--n", "20"}), {png, svg});
    EXPECT_TRUE(fileBytes(png).startsWith("\x89PNG\r\n\x1a\n"));
    EXPECT_TRUE(fileBytes(svg).startsWith("<?xml"));
    EXPECT_TRUE(fileBytes(svg).contains("<svg"));
}

TEST(PictureCli, PictureIsTheSameUnderEveryLocale)
{
    QTemporaryDir folder;
    // An overflow adds the error icons to the labels and the spread readout's number.
    const QStringList inputs = {"--r", "3.01", "--x0", "0.7", "--n", "120"};
    QList<QByteArray> pictures;
    for (const QString& locale : QStringList{"C", "de_DE.UTF-8"}) {
        const QString png = folder.filePath(locale + QStringLiteral(".png"));
        const QString svg = folder.filePath(locale + QStringLiteral(".svg"));
        const CliRun run =
            CliRun::inEnvironment(QStringList{"assoc", "--png", png, "--svg", svg} + inputs,
                                  environmentWith({"LC_ALL=" + locale, "LANG=" + locale}));
        ASSERT_EQ(run.exitCode, 0) << locale.toStdString() << ": " << run.err.toStdString();
        pictures << fileBytes(png) << fileBytes(svg);
    }
    EXPECT_TRUE(pictures[0] == pictures[2]) << "the PNG files differ";
    EXPECT_TRUE(pictures[1] == pictures[3]) << "the SVG files differ";
}

TEST(PictureCli, NeedsNoDisplay)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("orders.png"));
    const CliRun run = CliRun::inEnvironment(
        {"assoc", "--png", path},
        environmentWith({}, {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}));
    expectSaved(run, {path});
    EXPECT_EQ(QImage(path, "PNG").size(), kDefaultSize);
}

TEST(PictureCli, NeverReachesForTheDisplayItIsGiven)
{
    const UnreachableXDisplay display;
    ASSERT_TRUE(display.listening());
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("orders.png"));
    // Asked for the X platform, too: quillon-cli draws offscreen whatever the session says.
    const CliRun run = CliRun::inEnvironment(
        {"assoc", "--png", path},
        environmentWith({"DISPLAY=" + display.name(), "QT_QPA_PLATFORM=xcb"}));
    expectSaved(run, {path});
    EXPECT_EQ(QImage(path, "PNG").size(), kDefaultSize);
    EXPECT_EQ(display.attempts(), 0);
}

TEST(PictureCli, SizeThatIsNotWxHWithinTheLimitsIsRefused)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("orders.png"));
    for (const QString& size : QStringList{"0x10", "10x", "abc", "99999x2", "1920*1080", "15x100",
                                           "100x8193", "", " 20x20"}) {
        const CliRun run = assoc({"--png", path, "--size", size});
        const std::string shown = size.toStdString();
        EXPECT_EQ(run.exitCode, 2) << shown;
        expectOneErrorLine(run, shown);
        EXPECT_TRUE(run.err.contains(QStringLiteral("--size '%1'").arg(size))) << shown;
        EXPECT_TRUE(run.out.isEmpty()) << shown;
        EXPECT_FALSE(QFile::exists(path)) << shown;
    }
}

TEST(PictureCli, SizesAtTheLimitsAreTaken)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("orders.png"));
    const std::pair<QString, QSize> sizes[] = {
        {"16x16", QSize(16, 16)}, {"16X40", QSize(16, 40)}, {"8192x16", QSize(8192, 16)}};
    for (const auto& [text, size] : sizes) {
        expectSaved(assoc({"--png", path, "--size", text, "--n", "20"}), {path});
        EXPECT_EQ(QImage(path, "PNG").size(), size) << text.toStdString();
    }
}

TEST(PictureCli, PictureOptionNeedsAFileName)
{
    for (const QStringList& arguments :
         {QStringList{"--png"}, QStringList{"--svg", ""}, QStringList{"--png", ""}}) {
        const CliRun run = assoc(arguments);
        const std::string shown = arguments.join(QLatin1Char(' ')).toStdString();
        EXPECT_EQ(run.exitCode, 2) << shown;
        expectOneErrorLine(run, shown);
        EXPECT_TRUE(run.out.isEmpty()) << shown;
    }
}

TEST(PictureCli, PictureAloneWritesNothingToStandardOutputAndExportsStillWork)
{
    QTemporaryDir folder;
    const QString png = folder.filePath(QStringLiteral("orders.png"));
    const QString csv = folder.filePath(QStringLiteral("orders.csv"));
    expectSaved(assoc({"--png", png, "--n", "20"}), {png});
    expectSaved(assoc({"--csv", csv, "--png", png, "--n", "20"}), {csv, png});
    EXPECT_EQ(fileBytes(csv), assoc({"--n", "20"}).out.toUtf8());
}

TEST(PictureCli, FolderThatDoesNotExistIsAFileErrorAndLeavesNothing)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("missing/orders.png"));
    const CliRun run = assoc({"--png", path});
    EXPECT_EQ(run.exitCode, 1);
    expectOneErrorLine(run, "missing folder");
    EXPECT_TRUE(
        run.err.startsWith(QStringLiteral("quillon-cli assoc: cannot write \"%1\": ").arg(path)))
        << run.err.toStdString();
    EXPECT_EQ(folderEntries(folder.path()), QStringList());
}

TEST(PictureCli, ReadOnlyFolderLeavesTheOldFileUntouched)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("orders.png"));
    ASSERT_TRUE(writeFileBytes(path, "old bytes"));
    ASSERT_TRUE(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner));
    const CliRun run = CliRun::obeyingFilePermissions({"assoc", "--png", path});
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(run.exitCode, 1);
    expectOneErrorLine(run, "read-only folder");
    EXPECT_TRUE(
        run.err.startsWith(QStringLiteral("quillon-cli assoc: cannot write \"%1\": ").arg(path)))
        << run.err.toStdString();
    EXPECT_EQ(fileBytes(path), QByteArray("old bytes"));
    EXPECT_EQ(folderEntries(folder.path()), QStringList{QStringLiteral("orders.png")});
}

TEST(PictureCli, WritesThroughALinkAndKeepsIt)
{
    QTemporaryDir folder;
    const QString target = folder.filePath(QStringLiteral("target.png"));
    const QString link = folder.filePath(QStringLiteral("link.png"));
    ASSERT_TRUE(writeFileBytes(target, "old bytes"));
    ASSERT_TRUE(QFile::link(target, link));
    expectSaved(assoc({"--png", link, "--n", "20"}), {link});
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(QImage(target, "PNG").size(), kDefaultSize);
}

TEST(PictureCli, ColourFileColoursTheCurves)
{
    QTemporaryDir folder;
    const QString colours = folder.filePath(QStringLiteral("colours.conf"));
    // Order 0 pure red, the others as at start-up; a line break of either kind.
    ASSERT_TRUE(writeFileBytes(colours, "Func0 Color R 255 G 0 B 0\r\n"
                                        "Func1 Color R 0 G 128 B 128\n"
                                        "Func2 Color R 255 G 69 B 0\n"
                                        "Func3 Color R 128 G 128 B 0\n"
                                        "Func4 Color R 0 G 255 B 0\n"));
    const QString plain = folder.filePath(QStringLiteral("plain.png"));
    const QString coloured = folder.filePath(QStringLiteral("coloured.png"));
    expectSaved(assoc({"--png", plain}), {plain});
    expectSaved(assoc({"--png", coloured, "--colors", colours}), {coloured});

    const QImage before(plain, "PNG");
    const QImage after(coloured, "PNG");
    EXPECT_EQ(pixelsOf(before, kRed), 0);
    EXPECT_GT(pixelsOf(before, kPurple), kDrawnPixels);
    EXPECT_GT(pixelsOf(after, kRed), kDrawnPixels);
    EXPECT_EQ(pixelsOf(after, kPurple), 0);
    EXPECT_GT(pixelsOf(after, kTeal), kDrawnPixels);
}

TEST(PictureCli, ColourFileThatCannotBeReadIsAFileError)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("orders.png"));
    const QString missing = folder.filePath(QStringLiteral("missing.conf"));
    for (const QString& colours : {missing, folder.path()}) {
        const CliRun run = assoc({"--png", path, "--colors", colours});
        EXPECT_EQ(run.exitCode, 1) << colours.toStdString();
        expectOneErrorLine(run, colours.toStdString());
        EXPECT_TRUE(run.err.startsWith(
            QStringLiteral("quillon-cli assoc: cannot read \"%1\": ").arg(colours)))
            << run.err.toStdString();
        EXPECT_TRUE(run.out.isEmpty());
        EXPECT_FALSE(QFile::exists(path));
    }
}

TEST(PictureCli, HelpNamesThePictureOptions)
{
    const CliRun run = assoc({"--help"});
    EXPECT_EQ(run.exitCode, 0);
    for (const char* option : {"--png FILE", "--svg FILE", "--size WxH", "--colors FILE"}) {
        EXPECT_EQ(run.out.count(QLatin1String(option)), 2) << option;
    }
    EXPECT_TRUE(run.out.contains(QStringLiteral("Default: 795x769")));
}

TEST(PictureCli, DeviceThatTakesNoBytesIsAFileError)
{
    // A device is written directly, not replaced; /dev/full refuses every byte.
    const CliRun run = assoc({"--png", "/dev/full", "--n", "20"});
    EXPECT_EQ(run.exitCode, 1);
    expectOneErrorLine(run, "/dev/full");
    EXPECT_TRUE(run.err.startsWith(QStringLiteral("quillon-cli assoc: cannot write \"/dev/full\"")))
        << run.err.toStdString();
}

// The Roots picture: example 2 (b^2 >> 4ac) loses the large root in naive single precision,
// whose cells the grid shows in red, and the cancellation-free residual in the grid's blue,
// (0, 1, 255).
TEST(PictureCli, RootsPictureShowsTheGridInItsAgreementColours)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("roots.png"));
    const CliRun run =
        CliRun::of({"roots", "--example", "2", "--png", path, "--size", "1920x1080"});
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    // The grid still goes to standard output: a header and seven rows.
    EXPECT_EQ(run.out.count(QLatin1Char('\n')), 8);
    EXPECT_TRUE(run.err.endsWith(QStringLiteral("save file %1 done\n").arg(path)));
    const QImage image(path, "PNG");
    EXPECT_EQ(image.size(), QSize(1920, 1080));
    EXPECT_GT(pixelsOf(image, kRed), 100);
    EXPECT_GT(pixelsOf(image, qRgb(0, 1, 255)), 100);
}

TEST(PictureCli, RootsDefaultSizeIsTheGridInTheDefaultWindow)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("roots.png"));
    ASSERT_EQ(CliRun::of({"roots", "--png", path}).exitCode, 0);
    EXPECT_EQ(QImage(path, "PNG").size(), QSize(1060, 630));
}

TEST(PictureCli, RootsSvgHoldsTheHeadingsAndTheCells)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("roots.svg"));
    ASSERT_EQ(CliRun::of({"roots", "--example", "2", "--svg", path}).exitCode, 0);
    QXmlStreamReader reader(fileBytes(path));
    QStringList texts;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isCharacters() && !reader.isWhitespace()) {
            texts << reader.text().toString().trimmed();
        }
    }
    ASSERT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    // The naive single-precision large root of x^2 + 10000 x + 1 cancels to 0.
    for (const char* text : {"Cancellation", "Large Root", "0.000000e+00", "1.000000e+08"}) {
        EXPECT_TRUE(texts.contains(QString::fromLatin1(text))) << text;
    }
}

// The animated example's five Ins and five Outs: the initial pentagon in red, the one they
// give back in blue; the history goes nowhere but the status still ends standard error.
TEST(PictureCli, PentagonPictureShowsTheInitialAndTheNewestPentagon)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("drift.png"));
    const CliRun run =
        CliRun::of({"pentagon", "--ops", "IIIIIOOOOO", "--png", path, "--size", "1920x1080"});
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(run.out.isEmpty());
    EXPECT_EQ(run.err, QStringLiteral("save file %1 done\nok\n").arg(path));
    const QImage image(path, "PNG");
    EXPECT_EQ(image.size(), QSize(1920, 1080));
    EXPECT_GT(pixelsOf(image, kRed), kDrawnPixels);
    EXPECT_GT(pixelsOf(image, qRgb(0, 0, 255)), kDrawnPixels);
}
