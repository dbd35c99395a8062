#include "app/GraphicsView.h"
#include "app/MainWindow.h"
#include "common/gui/PlotFocusWindow.h"
#include "common/gui/PlotOverlay.h"
#include "sine/engine/SineApproaches.h"
#include "sine/gui/SineOpenGLScene.h"
#include "tests/gui/GuiTestSupport.h"
#include "tests/gui/PaintedTextRecorder.h"
#include "tests/sine/SineGolden.h"

#include <QCheckBox>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QOpenGLWidget>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>
#include <QtTest>

namespace
{

std::string fileContents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string("<none>");
}

// The error icon is a red disc; no curve colour of the test is that red.
bool hasRedPixel(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.red() > 150 && pixel.green() < 100 && pixel.blue() < 100) {
                return true;
            }
        }
    }
    return false;
}

QColor colorOf(const quillon::ColorTriple& color)
{
    return QColor(color.red, color.green, color.blue);
}

} // namespace

class SineTabTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void panelStartsWithTheDefaults();
    void typingXAndEnterRecomputesAndRestarts();
    void calculateReadsXThenN();
    void fieldsRefuseWhatTheyCannotHold();
    void curvesAppearInTheirColours();
    void selectNoneLeavesTheGridAndTheLibraryLine();
    void legendClickTogglesAnApproach();
    void errorListNamesTheStoppedSeries();
    void errorListStaysWholeInsideThePlot();
    void errorModeWithNothingPlottedKeepsTheSceneRange();
    void yLabelsAndLargestErrorLine();
    void speedLevelsSetTheTimerAndButtons();
    void pauseTogglesItsText();
    void animationPausesItselfWhereASeriesStops();
    void dragZoomsAndRightClickUndoes();
    void clickWithoutMovementDoesNotZoom();
    void filesThroughTheDialogs();
    void toolWindowsAreInstalled();
    void timeSliderMovesTheWindow();
    void selectNoneFromTheLegendAndTheLibraryEntry();
    void libraryLineIsDrawnOnTop();
    void errorMarkerAndFlashingIcon();
    void animationStopsAtTheLastIndexWithoutPausing();
    void damagedColourFilesChangeOnlyWhatTheyHold();

private:
    template <typename T> T* child(const char* name) const
    {
        return window->findChild<T*>(QString::fromLatin1(name));
    }
    void typeAndEnter(const char* field, const QString& text);
    QImage grabPlot();
    QImage plotArea();
    QList<PaintedText> paintedTexts() const;
    void tickUntil(const std::function<bool()>& done);
    void saveOrOpen(const char* entry, const QString& path);
    void showOnly(int slot);

    std::unique_ptr<MainWindow> window;
    std::unique_ptr<QTemporaryDir> folder;
    SineOpenGLScene* scene = nullptr;
    GraphicsView* view = nullptr;
};

void SineTabTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    window = std::make_unique<MainWindow>();
    view =
        qobject_cast<GraphicsView*>(showStoppedPlotTab(*window, 3, "sine_VisWindow", "sine_timer"));
    QVERIFY(view != nullptr);
    scene = qobject_cast<SineOpenGLScene*>(view->scene());
    QVERIFY(scene != nullptr);
    // Leaving the first tab paused this one.
    scene->setPaused(false);
}

void SineTabTest::cleanup()
{
    window.reset();
    folder.reset();
}

void SineTabTest::typeAndEnter(const char* field, const QString& text)
{
    retype(child<QLineEdit>(field), text);
    QTest::keyClick(child<QLineEdit>(field), Qt::Key_Return);
}

QImage SineTabTest::grabPlot()
{
    return grabPlotFrame(view);
}

// The plot above the legend (which holds every colour whether drawn or not), without the
// index labels.
QImage SineTabTest::plotArea()
{
    // The index labels are dark blue, Func11's colour.
    child<QCheckBox>("sine_showXIndices")->setChecked(false);
    return grabPlot().copy(0, 0, view->width(), int(0.75 * view->height()) - 1);
}

QList<PaintedText> SineTabTest::paintedTexts() const
{
    return foregroundTexts(scene, view->size());
}

// Ticks as the timer gives them, resuming as a person would whenever the animation paused
// itself where a series stopped.
void SineTabTest::tickUntil(const std::function<bool()>& done)
{
    for (int tick = 0; tick < 1000 && !done(); ++tick) {
        if (scene->isAutoPaused()) {
            child<QPushButton>("sine_pause")->click();
        }
        scene->runningMan();
    }
    QVERIFY(done());
}

void SineTabTest::showOnly(int slot)
{
    const std::array<void (SineOpenGLScene::*)(bool), kSineApproachCount> needFunc = {
        &SineOpenGLScene::needFunc1,  &SineOpenGLScene::needFunc2,  &SineOpenGLScene::needFunc3,
        &SineOpenGLScene::needFunc4,  &SineOpenGLScene::needFunc5,  &SineOpenGLScene::needFunc6,
        &SineOpenGLScene::needFunc7,  &SineOpenGLScene::needFunc8,  &SineOpenGLScene::needFunc9,
        &SineOpenGLScene::needFunc10, &SineOpenGLScene::needFunc11, &SineOpenGLScene::needFunc12};
    scene->allUnchoose();
    (scene->*needFunc[slot - 1])(true);
}

void SineTabTest::saveOrOpen(const char* entry, const QString& path)
{
    QVERIFY(chooseFileThroughMenu(*window, QString::fromLatin1(entry), path));
}

void SineTabTest::panelStartsWithTheDefaults()
{
    QCOMPARE(child<QLineEdit>("sine_iteration_input")->text(), QStringLiteral("300"));
    QCOMPARE(child<QLineEdit>("sine_X_input")->text(), QStringLiteral("250"));
    QCOMPARE(child<QLabel>("sine_iteration_label")->text(), QStringLiteral("Maximum iterations:"));
    QCOMPARE(child<QLabel>("sine_X_label")->text(), QStringLiteral("X for sin(x) in degree:"));
    QCOMPARE(child<QPushButton>("sine_pause")->text(), QStringLiteral("Start"));
    QCOMPARE(child<QLabel>("sine_time_end_l")->text(), QStringLiteral("279"));
    QCOMPARE(child<QSlider>("sine_time_slider")->maximum(), 279);
    const std::pair<const char*, bool> boxes[] = {
        {"sine_showboundary", true}, {"sine_showvalues", true},
        {"sine_showXAxis", false},   {"sine_showYAxis", false},
        {"sine_showXIndices", true}, {"sine_showYIndices", false},
        {"sine_showLabels", true},   {"sine_needErrorComparison", false}};
    for (const auto& [name, checked] : boxes) {
        QCOMPARE(child<QCheckBox>(name)->isChecked(), checked);
    }
    const auto* angle =
        qobject_cast<const QIntValidator*>(child<QLineEdit>("sine_X_input")->validator());
    QVERIFY(angle != nullptr);
    QCOMPARE(angle->bottom(), -1000000);
    QCOMPARE(angle->top(), 1000000);
    const auto* count =
        qobject_cast<const QIntValidator*>(child<QLineEdit>("sine_iteration_input")->validator());
    QVERIFY(count != nullptr);
    QCOMPARE(count->bottom(), 1);
    QCOMPARE(count->top(), 10000);
    for (int slot = 0; slot <= kSineApproachCount; ++slot) {
        QCOMPARE(scene->isNeeded(slot),
                 slot == 0 || slot == 1 || slot == 4 || slot == 10 || slot == 12);
    }
    QCOMPARE(scene->results().series[0].terms.size(), size_t(17));
    QCOMPARE(sineBits(scene->results().librarySine), 0xBF708FB0u);
}

void SineTabTest::typingXAndEnterRecomputesAndRestarts()
{
    tickUntil([this] { return scene->xWindow().start > 3; });
    typeAndEnter("sine_X_input", QStringLiteral("30"));
    QCOMPARE(scene->getX(), 30);
    QCOMPARE(scene->xWindow().start, 0);
    QCOMPARE(scene->xWindow().end, 20);
    QCOMPARE(scene->xWindow().animationPosition, 0);
    QCOMPARE(child<QPushButton>("sine_pause")->text(), QStringLiteral("Pause"));
    // sin(30 degrees) with the short pi, in single precision.
    QCOMPARE(sineBits(scene->results().librarySine), 0x3EFFFFFFu);
    typeAndEnter("sine_iteration_input", QStringLiteral("40"));
    QCOMPARE(scene->getN(), 40);
    QCOMPARE(scene->results().series[3].terms.size(), size_t(40));
    QCOMPARE(child<QLabel>("sine_time_end_l")->text(), QStringLiteral("19"));
}

void SineTabTest::calculateReadsXThenN()
{
    child<QLineEdit>("sine_X_input")->setText(QStringLiteral("-"));
    child<QLineEdit>("sine_iteration_input")->setText(QStringLiteral("5"));
    QTest::mouseClick(child<QPushButton>("sine_calculate"), Qt::LeftButton);
    // "-" is no number: X is 0, and every partial sum is 0.
    QCOMPARE(scene->getX(), 0);
    QCOMPARE(scene->getN(), 5);
    for (const SineSeries& series : scene->results().series) {
        QCOMPARE(series.sums, std::vector<float>(5, 0.0f));
    }
}

void SineTabTest::fieldsRefuseWhatTheyCannotHold()
{
    for (const char* name : {"sine_X_input", "sine_iteration_input"}) {
        auto* edit = child<QLineEdit>(name);
        retype(edit, QStringLiteral("1,0.5e3"));
        // Neither group separators, decimals nor exponents can be typed.
        QCOMPARE(edit->text(), QStringLiteral("1053"));
    }
    typeAndEnter("sine_X_input", QStringLiteral("123456789"));
    QCOMPARE(child<QLineEdit>("sine_X_input")->text(), QStringLiteral("1234567"));
    QCOMPARE(scene->getX(), 250);
}

void SineTabTest::curvesAppearInTheirColours()
{
    tickUntil([this] { return scene->xWindow().slideInDone(); });
    // Each of the twelve, alone, is drawn in its colour and no other (equal curves would cover
    // each other). Func1-3 and Func7-9 stop at index 17, within the window.
    for (int slot = 1; slot <= kSineApproachCount; ++slot) {
        showOnly(slot);
        const QImage area = plotArea();
        for (int other = 1; other <= kSineApproachCount; ++other) {
            // Func5's pure red is also the red of the error icons.
            if (other != 5 || slot == 5) {
                QCOMPARE(hasColor(area, colorOf(scene->colors()[other])), other == slot);
            }
        }
    }
}

void SineTabTest::selectNoneLeavesTheGridAndTheLibraryLine()
{
    tickUntil([this] { return scene->xWindow().slideInDone(); });
    scene->allUnchoose();
    scene->needBaseSin(true);
    const QImage area = plotArea();
    for (int slot = 1; slot <= kSineApproachCount; ++slot) {
        QVERIFY2(!hasColor(area, colorOf(scene->colors()[slot])),
                 qPrintable(QString::number(slot)));
    }
    // The library line is black.
    QVERIFY(hasColor(area, QColor(0, 0, 0)));
    scene->needBaseSin(false);
    QVERIFY(!hasColor(plotArea(), QColor(0, 0, 0)));
}

void SineTabTest::legendClickTogglesAnApproach()
{
    // The legend: three columns from 0.75 of the height in five rows; Func2 is row 1, column 1.
    const int rowHeight = int(0.25 * view->height()) / 5;
    const QPoint func2(view->width() / 3 + 20, int(0.75 * view->height()) + rowHeight * 3 / 2);
    QVERIFY(!scene->isNeeded(2));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, func2);
    QVERIFY(scene->isNeeded(2));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, func2);
    QVERIFY(!scene->isNeeded(2));
    // Row 0, column 1: "Select all".
    const QPoint selectAll(view->width() / 3 + 20, int(0.75 * view->height()) + rowHeight / 2);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, selectAll);
    for (int slot = 0; slot <= kSineApproachCount; ++slot) {
        QVERIFY(scene->isNeeded(slot));
    }
    QStringList names;
    for (const PaintedText& painted : paintedTexts()) {
        names << painted.text;
    }
    for (const char* expected : {"C++ Math lib", "Select all", "Select none"}) {
        QVERIFY2(names.contains(QLatin1String(expected)), expected);
    }
    for (const SineApproach& approach : sineApproaches()) {
        QVERIFY2(names.contains(QLatin1String(approach.longName)), approach.longName);
    }
}

void SineTabTest::errorListNamesTheStoppedSeries()
{
    tickUntil([this] { return scene->xWindow().slideInDone(); });
    scene->allchoose();
    // Index 17 is where the six Direct evaluation series stopped: Original X with a negative
    // last term (Underflow), Reduced X of 250 degrees with a factor -1 (Overflow).
    const QPoint node(int(view->width() * (0.15f * 17 / 3.0f)), view->height() / 2);
    QTest::mouseMove(view->viewport(), node);
    QStringList lines;
    for (const PaintedText& painted : paintedTexts()) {
        if (painted.color == QColor(255, 0, 0)) {
            lines << painted.text;
        }
    }
    QCOMPARE(lines, (QStringList{"Original X + Direct eva + Naive  gets an error: Underflow",
                                 "Original X + Direct eva + NegPos  gets an error: Underflow",
                                 "Original X + Direct eva + Kahan  gets an error: Underflow",
                                 "Reduced X + Direct eva + Naive  gets an error: Overflow",
                                 "Reduced X + Direct eva + NegPos  gets an error: Overflow",
                                 "Reduced X + Direct eva + Kahan  gets an error: Overflow"}));
}

// Where the animation pauses itself, the failing index is near the plot's right edge: every
// line of the list, with the cursor there at any height, lies whole inside the plot.
void SineTabTest::errorListStaysWholeInsideThePlot()
{
    tickUntil([this] { return scene->isAutoPaused(); });
    scene->allchoose();
    // 18 nodes revealed: index 17 is at x = 17 * 0.15 + (1.5 - 18 * 0.15) = 1.35, that is
    // 0.95 of the width.
    const int nodeX = int(0.95 * view->width());
    const QFontMetrics metrics(quillon::plotOverlayFont());
    for (const int y : {2, view->height() / 2, view->height() - 2}) {
        QTest::mouseMove(view->viewport(), QPoint(nodeX, y));
        int lines = 0;
        for (const PaintedText& painted : paintedTexts()) {
            if (painted.color != QColor(255, 0, 0)) {
                continue;
            }
            ++lines;
            const QRectF box(painted.position.x(), painted.position.y() - metrics.ascent(),
                             metrics.horizontalAdvance(painted.text), metrics.height());
            const QString where = QStringLiteral("%1 at y %2: ").arg(painted.text).arg(y) +
                                  QStringLiteral("%1,%2 %3x%4")
                                      .arg(box.x())
                                      .arg(box.y())
                                      .arg(box.width())
                                      .arg(box.height());
            QVERIFY2(box.left() >= 0 && box.top() >= 0 && box.right() <= view->width() &&
                         box.bottom() <= view->height(),
                     qPrintable(where));
        }
        QCOMPARE(lines, 6);
    }
}

// With no approach selected, error mode has no point to fit: the scene keeps the range it
// had, through the switch and through the ticks that refit it.
void SineTabTest::errorModeWithNothingPlottedKeepsTheSceneRange()
{
    tickUntil([this] { return scene->xWindow().slideInDone(); });
    scene->allUnchoose();
    const float yLow = scene->getYLow();
    const float yHigh = scene->getYHigh();
    QVERIFY(yLow < yHigh);
    child<QCheckBox>("sine_needErrorComparison")->setChecked(true);
    QVERIFY(scene->isComparingErrors());
    QCOMPARE(scene->getYLow(), yLow);
    QCOMPARE(scene->getYHigh(), yHigh);
    scene->runningMan();
    QCOMPARE(scene->getYLow(), yLow);
    QCOMPARE(scene->getYHigh(), yHigh);
}

void SineTabTest::yLabelsAndLargestErrorLine()
{
    tickUntil([this] { return scene->xWindow().slideInDone(); });
    child<QCheckBox>("sine_showYIndices")->setChecked(true);
    QStringList labels;
    QStringList errorLines;
    for (const PaintedText& painted : paintedTexts()) {
        static const QRegularExpression twoDecimals(QStringLiteral("^-?\\d\\.\\d\\de[+-]\\d\\d$"));
        if (twoDecimals.match(painted.text).hasMatch()) {
            labels << painted.text;
        }
        if (painted.text.startsWith(QLatin1String("Maximal absolute error"))) {
            errorLines << painted.text;
        }
    }
    QCOMPARE(labels.size(), 21);
    // At index 20 Func1 has stopped; Func4 is 2^-21 off, Func10 and Func12 less.
    QCOMPARE(errorLines, QStringList{"Maximal absolute error respect to C++ Math library: "
                                     "4.768372e-07"});
}

void SineTabTest::speedLevelsSetTheTimerAndButtons()
{
    auto* timer = child<QTimer>("sine_timer");
    auto* faster = child<QPushButton>("sine_acceleration");
    auto* slower = child<QPushButton>("sine_deceleration");
    QCOMPARE(timer->interval(), 400);
    slower->click();
    QCOMPARE(timer->interval(), 400);
    for (int i = 0; i < 6; ++i) {
        faster->click();
    }
    QCOMPARE(scene->speedLevel(), 5);
    QCOMPARE(timer->interval(), 80);
    QVERIFY(!faster->isEnabled());
    for (int i = 0; i < 10; ++i) {
        slower->click();
    }
    QCOMPARE(timer->interval(), 2000);
    QVERIFY(!slower->isEnabled());
    QVERIFY(faster->isEnabled());
}

void SineTabTest::pauseTogglesItsText()
{
    auto* pause = child<QPushButton>("sine_pause");
    pause->click();
    QVERIFY(scene->isPaused());
    QCOMPARE(pause->text(), QStringLiteral("Resume"));
    pause->click();
    QVERIFY(!scene->isPaused());
    QCOMPARE(pause->text(), QStringLiteral("Pause"));
}

void SineTabTest::animationPausesItselfWhereASeriesStops()
{
    // Func1 stopped at index 17: with one node revealed per tick, the check finds it when 18
    // nodes are in.
    tickUntil([this] { return scene->isPaused(); });
    QCOMPARE(scene->xWindow().animationPosition, 18);
    QVERIFY(scene->isAutoPaused());
    QCOMPARE(child<QPushButton>("sine_pause")->text(), QStringLiteral("Resume"));
    const int revealed = scene->xWindow().animationPosition;
    scene->runningMan();
    QCOMPARE(scene->xWindow().animationPosition, revealed);
}

// The plot spans world x -1.5..1.5 over the view, with node i of the window 0..20 at
// -1.5 + i * 0.15; a drag takes the nearest nodes as the window's ends and the dragged
// heights as its Y range.
void SineTabTest::dragZoomsAndRightClickUndoes()
{
    tickUntil([this] { return scene->xWindow().slideInDone(); });
    QCOMPARE(scene->xWindow().start, 0);
    QCOMPARE(scene->xWindow().end, 20);
    const float yLow = scene->getYLow();
    const float yHigh = scene->getYHigh();
    const int width = view->width();
    const int height = view->height();
    const QPoint press(qRound(width * 5.2 / 20), height / 8);
    const QPoint release(qRound(width * 14.8 / 20), height / 2);
    QWidget* viewport = view->viewport();
    movePointer(viewport, press);
    QTest::mousePress(viewport, Qt::LeftButton, {}, press);
    movePointer(viewport, release);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, release);
    QCOMPARE(scene->zoomDepth(), 2);
    QCOMPARE(scene->xWindow().start, 5);
    QCOMPARE(scene->xWindow().end, 15);
    const auto draggedY = [&](int pixelY) {
        return float(double(yLow) + (double(yHigh) - double(yLow)) * (height - pixelY) / height);
    };
    QCOMPARE(scene->getYLow(), draggedY(release.y()));
    QCOMPARE(scene->getYHigh(), draggedY(press.y()));
    QTest::mouseClick(viewport, Qt::RightButton, {}, QPoint(10, 10));
    QCOMPARE(scene->zoomDepth(), 1);
    QCOMPARE(scene->xWindow().start, 0);
    QCOMPARE(scene->xWindow().end, 20);
    QCOMPARE(scene->getYLow(), yLow);
    QCOMPARE(scene->getYHigh(), yHigh);
}

void SineTabTest::clickWithoutMovementDoesNotZoom()
{
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(100, 100));
    QCOMPARE(scene->zoomDepth(), 0);
}

// The colour file holds the thirteen default colours, then what the colour map changed.
void SineTabTest::filesThroughTheDialogs()
{
    const QString txt = folder->filePath(QStringLiteral("sine data.txt"));
    const QString csv = folder->filePath(QStringLiteral("sine data.csv"));
    saveOrOpen("&Save data to a txt file ...", txt);
    saveOrOpen("&Save data to a CSV file ...", csv);
    QCOMPARE(fileContents(txt), sineGolden("default.txt"));
    QCOMPARE(fileContents(csv), sineGolden("default.csv"));
    const std::string defaults = "Sine Color R 0 G 0 B 0\n"
                                 "Func1 Color R 255 G 192 B 203\n"
                                 "Func2 Color R 255 G 20 B 147\n"
                                 "Func3 Color R 199 G 21 B 133\n"
                                 "Func4 Color R 139 G 0 B 0\n"
                                 "Func5 Color R 255 G 0 B 0\n"
                                 "Func6 Color R 255 G 69 B 0\n"
                                 "Func7 Color R 255 G 215 B 0\n"
                                 "Func8 Color R 128 G 128 B 0\n"
                                 "Func9 Color R 0 G 255 B 0\n"
                                 "Func10 Color R 0 G 255 B 255\n"
                                 "Func11 Color R 0 G 0 B 128\n"
                                 "Func12 Color R 106 G 90 B 205\n";
    const QString defaultConf = folder->filePath(QStringLiteral("default colours.conf"));
    saveOrOpen("&Save to a configuration file ...", defaultConf);
    QCOMPARE(fileContents(defaultConf), defaults);

    const QString conf = folder->filePath(QStringLiteral("colours.conf"));
    scene->setColor(5, {1, 2, 3});
    saveOrOpen("&Save to a configuration file ...", conf);
    std::string changed = defaults;
    const std::string func5 = "Func5 Color R 255 G 0 B 0\n";
    changed.replace(changed.find(func5), func5.size(), "Func5 Color R 1 G 2 B 3\n");
    QCOMPARE(fileContents(conf), changed);
    const SineColors saved = scene->colors();
    scene->setColor(5, {9, 9, 9});
    scene->setColor(0, {9, 9, 9});
    saveOrOpen("&Open a configuration file ...", conf);
    QCOMPARE(scene->colors(), saved);
}

void SineTabTest::toolWindowsAreInstalled()
{
    const std::pair<const char*, const char*> windows[] = {{"&Region focus ...", "Region focus"},
                                                           {"&Selections ...", "Selections"},
                                                           {"&Status ...", "Status"}};
    for (const auto& [entry, title] : windows) {
        QWidget* shown = popMenuWindow(*window, QStringLiteral("&Tools"),
                                       QString::fromLatin1(entry), QString::fromLatin1(title));
        QVERIFY2(shown != nullptr, title);
        shown->close();
    }
    const std::pair<const char*, const char*> helps[] = {{"&About ...", "sine-about.txt"},
                                                         {"&Help ...", "sine-help.txt"}};
    for (const auto& [entry, golden] : helps) {
        QAction* action = menuBarAction(*window, "&Help", entry);
        QVERIFY(action != nullptr && action->isEnabled());
        action->trigger();
        QTextBrowser* browser = nullptr;
        for (QWidget* topLevel : QApplication::topLevelWidgets()) {
            if (topLevel->isVisible() && topLevel->findChild<QTextBrowser*>() != nullptr) {
                browser = topLevel->findChild<QTextBrowser*>();
            }
        }
        QVERIFY(browser != nullptr);
        QCOMPARE(browser->toPlainText().toStdString(), sineGolden(golden));
        browser->window()->close();
    }
}

void SineTabTest::timeSliderMovesTheWindow()
{
    // With the node count fixed the end moves along; without, only the start moves.
    auto* focus = qobject_cast<quillon::PlotFocusWindow*>(
        popMenuWindow(*window, QStringLiteral("&Tools"), QStringLiteral("&Region focus ..."),
                      QStringLiteral("Region focus")));
    QVERIFY(focus != nullptr);
    focus->fixCheckBox()->setChecked(true);
    child<QSlider>("sine_time_slider")->setValue(50);
    QCOMPARE(scene->xWindow().start, 50);
    QCOMPARE(scene->xWindow().end, 70);
    QCOMPARE(scene->xWindow().animationPosition, 20);
    QCOMPARE(child<QLabel>("sine_time_value_l")->text(), QStringLiteral("50"));
    QCOMPARE(focus->startSlider()->value(), 50);
    // A start that would put the end past N - 1 = 299 is refused.
    scene->setTimeStartpoint(285);
    QCOMPARE(scene->xWindow().start, 50);
    focus->fixCheckBox()->setChecked(false);
    child<QSlider>("sine_time_slider")->setValue(60);
    QCOMPARE(scene->xWindow().start, 60);
    QCOMPARE(scene->xWindow().end, 70);
}

void SineTabTest::selectNoneFromTheLegendAndTheLibraryEntry()
{
    const int rowHeight = int(0.25 * view->height()) / 5;
    const int firstRow = int(0.75 * view->height()) + rowHeight / 2;
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      QPoint(view->width() * 2 / 3 + 20, firstRow));
    for (int slot = 0; slot <= kSineApproachCount; ++slot) {
        QVERIFY(!scene->isNeeded(slot));
    }
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(20, firstRow));
    QVERIFY(scene->isNeeded(SineOpenGLScene::kLibrary));
    QVERIFY(!scene->isNeeded(1));
}

void SineTabTest::libraryLineIsDrawnOnTop()
{
    tickUntil([this] { return scene->xWindow().slideInDone(); });
    // Func10's partial sums lie on the library value from index 10 on; its 4-pixel curve
    // would hide the 1-pixel library line unless the line is drawn in front.
    showOnly(10);
    scene->needBaseSin(true);
    const QImage frame = plotArea().convertToFormat(QImage::Format_RGB32);
    const double level =
        (scene->getYHigh() - scene->results().librarySine) / (scene->getYHigh() - scene->getYLow());
    const int y = int(level * view->height());
    int black = 0;
    for (int x = int(view->width() * 0.6); x < int(view->width() * 0.95); ++x) {
        for (int dy = -1; dy <= 1; ++dy) {
            black += QColor(frame.pixel(x, y + dy)) == QColor(0, 0, 0) ? 1 : 0;
        }
    }
    QVERIFY2(black > view->width() / 5, qPrintable(QString::number(black)));
}

// Func1 alone stops at index 17 of the window 0..20. A vertical marker in its colour spans
// y = -1 .. 1 at that index in every frame; the error icon above it shows on every other tick.
void SineTabTest::errorMarkerAndFlashingIcon()
{
    tickUntil([this] { return scene->xWindow().slideInDone(); });
    showOnly(1);
    scene->setPaused(true);
    const QColor pink = colorOf(scene->colors()[1]);
    const auto pixelRow = [this](float y) {
        return int((scene->getYHigh() - y) / (scene->getYHigh() - scene->getYLow()) *
                   float(view->height()));
    };
    // x(17) = -1.5 + 17 * 0.15 = 1.05, that is 0.85 of the width.
    const int markerX = int(0.85 * view->width());
    const auto markerAt = [&](const QImage& frame, float y) {
        return hasColor(frame.copy(0, pixelRow(y), frame.width(), 1), pink, markerX - 1,
                        markerX + 1);
    };
    const QRect icon =
        quillon::plotErrorIconRect(0.85f * float(view->width()), view->width(), view->height())
            .toRect();
    bool iconShown[2] = {};
    for (bool& shown : iconShown) {
        const QImage frame = plotArea().convertToFormat(QImage::Format_RGB32);
        for (const float y : {0.9f, 0.5f, 0.0f, -0.5f, -0.95f}) {
            QVERIFY2(markerAt(frame, y), qPrintable(QString::number(y)));
        }
        QVERIFY(!markerAt(frame, -1.1f));
        // Halfway between two nodes there is no marker.
        QVERIFY(!hasColor(frame.copy(0, pixelRow(0.5f), frame.width(), 1), pink,
                          int(0.8275 * view->width()) - 1, int(0.8275 * view->width()) + 1));
        shown = hasRedPixel(frame.copy(icon));
        scene->runningMan();
    }
    QVERIFY(iconShown[0] != iconShown[1]);
}

// With N = 30 the window 0..20 slides until its end is 29 (29 + 1 would reach N), then stays
// there while the animation keeps running.
void SineTabTest::animationStopsAtTheLastIndexWithoutPausing()
{
    typeAndEnter("sine_iteration_input", QStringLiteral("30"));
    tickUntil([this] { return scene->xWindow().end == 29; });
    QCOMPARE(scene->xWindow().start, 9);
    for (int tick = 0; tick < 5; ++tick) {
        scene->runningMan();
        QCOMPARE(scene->xWindow().start, 9);
        QCOMPARE(scene->xWindow().end, 29);
        QVERIFY(!scene->isPaused());
    }
    QCOMPARE(child<QPushButton>("sine_pause")->text(), QStringLiteral("Pause"));
}

// A configuration file is read as far as it holds colours: CRLF line ends, a line cut short,
// text with no numbers and an enormous file each change only the values they hold.
void SineTabTest::damagedColourFilesChangeOnlyWhatTheyHold()
{
    const SineColors before = scene->colors();
    const auto writeFile = [this](const char* name, const QByteArray& contents) {
        QFile file(folder->filePath(QString::fromLatin1(name)));
        return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size()
                   ? file.fileName()
                   : QString();
    };
    saveOrOpen("&Open a configuration file ...",
               writeFile("cut.conf", "Sine Color R 5 G 6 B 7\r\nFunc1 Color R 8 G 9"));
    SineColors expected = before;
    expected[0] = {5, 6, 7};
    expected[1] = {8, 9, before[1].blue};
    QCOMPARE(scene->colors(), expected);

    saveOrOpen("&Open a configuration file ...",
               writeFile("words.conf", QByteArray("Func1 Color R G B\n").repeated(5000)));
    QCOMPARE(scene->colors(), expected);

    // A gigabyte (sparse) after one good line: only the first megabyte is read.
    const QString enormous = writeFile("enormous.conf", "Sine Color R 1 G 2 B 3\n");
    QVERIFY(QFile(enormous).resize(qint64(1) << 30));
    saveOrOpen("&Open a configuration file ...", enormous);
    expected[0] = {1, 2, 3};
    QCOMPARE(scene->colors(), expected);

    // Files that cannot be read at all are reported and change nothing.
    QVERIFY(!scene->loadColorFile(folder->filePath(QStringLiteral("missing.conf"))).isEmpty());
    QVERIFY(!scene->loadColorFile(folder->path()).isEmpty());
    QCOMPARE(scene->colors(), expected);
}

QTEST_MAIN(SineTabTest)
#include "SineTabTest.moc"
