#include "app/GraphicsView.h"
#include "app/MainWindow.h"
#include "pentagon/gui/PentagonColorMap.h"
#include "pentagon/gui/PentagonFocusWindow.h"
#include "pentagon/gui/PentagonMiniMap.h"
#include "pentagon/gui/PentagonMiniScene.h"
#include "pentagon/gui/PentagonOpenGLScene.h"
#include "tests/gui/GuiTestSupport.h"
#include "tests/gui/PaintedTextRecorder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFontMetrics>
#include <QGraphicsView>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QtTest>
#include <cstring>

namespace
{

QString fileText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                          : QStringLiteral("<none>");
}

QString golden(const char* name)
{
    return fileText(QStringLiteral(QUILLON_TEST_DATA_DIR "/") + QString::fromLatin1(name));
}

const QColor kInitialRed(255, 0, 0);
const QColor kNewestBlue(0, 0, 255);
const QColor kPointOrange(255, 165, 0);
const QColor kPointGreen(0, 255, 0);

// QCOMPARE takes floats as equal when they are close; these checks want the very value.
uint32_t bitsOf(float value)
{
    uint32_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

// The middles of the runs of neighbouring columns that hold a pixel for which `counts` is
// true, scanned from row `top` down to the bottom.
QList<double> columnRunMiddles(const QImage& image, int top,
                               const std::function<bool(QRgb)>& counts)
{
    QList<double> middles;
    int runStart = -1;
    for (int x = 0; x <= image.width(); ++x) {
        bool hit = false;
        for (int y = top; x < image.width() && y < image.height() && !hit; ++y) {
            hit = counts(image.pixel(x, y));
        }
        if (hit && runStart < 0) {
            runStart = x;
        } else if (!hit && runStart >= 0) {
            middles << (runStart + x - 1) / 2.0;
            runStart = -1;
        }
    }
    return middles;
}

// Label text is dark magenta smoothed into the white plot: red and blue stay equal and green
// lower. The pentagon's pure red never counts.
bool isLabelInk(QRgb pixel)
{
    return qAbs(qRed(pixel) - qBlue(pixel)) <= 12 && qGreen(pixel) + 40 <= qRed(pixel);
}

bool isGridLine(QRgb pixel)
{
    return QColor(pixel) == QColor(Qt::darkMagenta);
}

} // namespace

class PentagonTabTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void panelStartsAsTheAnimatedExample();
    void animationRunsTenStepsThenStops();
    void alternatingOrderTakesTurns();
    void toleranceModeShowsTheEpsilonsAndTheButtonsStep();
    void defaultShapeOfTheAnimationUsesItsOwnEpsilon();
    void leavingToleranceModeEndsInTheNewMode();
    void failedStepShowsItsMessageAndRefusesMore();
    void manualEntryShowsPointsThenThePentagon();
    void clearWhileEnteringStartsTheEntryAgain();
    void toleranceAfterRegularBuildsTheDefaultShape();
    void timerDrivesTheAnimationEvery400ms();
    void dragZoomsAndRightClickRefits();
    void clickWithoutDragZoomsToNothingAndSaysHowBack();
    void pictureOfTheViewScalesTheDragAndFilesLeaveItOut();
    void labelsAndGridLines();
    void xGridLinesRunThroughTheMiddleOfTheirLabels();
    void focusWindowShowsAndSetsTheRange();
    void filesThroughTheDialogs();
    void damagedConfigurationFilesChangeOnlyWhatTheyHold();
    void helpWindowsShowTheirTexts();
    void historyWindowListsTheStepsNewestFirst();
    void historyScrollBarFollowsTheHistoryAndWaitsForTheRelease();
    void headingTurnsSelectionModeOnAndOff();
    void selectedEntriesAreTheOnlyOnesDrawn();
    void historyWindowListsTheFailedStep();
    void colorMapAppliesOnlyOnApply();
    void colorMapPresetsAndFixedGreys();

private:
    template <typename T> T* child(const char* name) const
    {
        return window->findChild<T*>(QString::fromLatin1(name));
    }
    void click(const char* button);
    void choose(const char* radio);
    QImage plot();
    QStringList paintedTexts() const;
    PentagonMiniMap* openHistoryWindow();
    QStringList listedRow(PentagonMiniMap* history, int row) const;
    void clickListRow(PentagonMiniMap* history, int row, Qt::MouseButton button = Qt::LeftButton);
    void runAnimatedExample();
    QPoint pixelAt(float x, float y) const;
    void clickPoint(float x, float y);

    std::unique_ptr<MainWindow> window;
    std::unique_ptr<QTemporaryDir> folder;
    PentagonOpenGLScene* scene = nullptr;
    GraphicsView* view = nullptr;
};

void PentagonTabTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    window = std::make_unique<MainWindow>();
    view = qobject_cast<GraphicsView*>(
        showStoppedPlotTab(*window, 1, "pentagon_VisWindow", "pentagon_timer"));
    QVERIFY(view != nullptr);
    scene = qobject_cast<PentagonOpenGLScene*>(view->scene());
    QVERIFY(scene != nullptr);
}

void PentagonTabTest::cleanup()
{
    window.reset();
    folder.reset();
}

void PentagonTabTest::click(const char* button)
{
    QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton);
}

void PentagonTabTest::choose(const char* radio)
{
    clickIndicator(child<QRadioButton>(radio));
}

QImage PentagonTabTest::plot()
{
    scene->repaint();
    return grabPlotFrame(view).convertToFormat(QImage::Format_RGB32);
}

QStringList PentagonTabTest::paintedTexts() const
{
    QStringList texts;
    for (const PaintedText& painted : foregroundTexts(scene, view->size())) {
        texts << painted.text;
    }
    return texts;
}

PentagonMiniMap* PentagonTabTest::openHistoryWindow()
{
    return qobject_cast<PentagonMiniMap*>(popMenuWindow(*window, QStringLiteral("&Tools"),
                                                        QStringLiteral("&Selections ..."),
                                                        QStringLiteral("Selections")));
}

// The list is 318 pixels high (the window's 320 less 2) in 11 rows of 318 / 11 pixels.
constexpr double kListRowHeight = 318.0 / 11.0;

// The texts painted in one row of the history list, left to right.
QStringList PentagonTabTest::listedRow(PentagonMiniMap* history, int row) const
{
    QList<PaintedText> texts =
        foregroundTexts(history->historyScene(), history->listView()->viewport()->size());
    std::sort(texts.begin(), texts.end(), [](const PaintedText& a, const PaintedText& b) {
        return a.position.x() < b.position.x();
    });
    QStringList cells;
    for (const PaintedText& painted : texts) {
        const double y = painted.position.y();
        if (y >= row * kListRowHeight && y < (row + 1) * kListRowHeight) {
            cells << painted.text;
        }
    }
    return cells;
}

void PentagonTabTest::clickListRow(PentagonMiniMap* history, int row, Qt::MouseButton button)
{
    QTest::mouseClick(history->listView()->viewport(), button, {},
                      QPoint(200, int((row + 0.5) * kListRowHeight)));
}

// Start, then the ten ticks of five Ins and five Outs: eleven pentagons.
void PentagonTabTest::runAnimatedExample()
{
    click("pentagon_Default");
    for (int tick = 0; tick < 10; ++tick) {
        scene->runningMan();
    }
}

// Where a point of the -1 .. 1 square that manual entry shows lies in the view.
QPoint PentagonTabTest::pixelAt(float x, float y) const
{
    const QSize size = view->viewport()->size();
    return QPoint(int(float(size.width()) * (x + 1.0f) / 2.0f),
                  int(float(size.height()) * (1.0f - y) / 2.0f));
}

void PentagonTabTest::clickPoint(float x, float y)
{
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, pixelAt(x, y));
}

void PentagonTabTest::panelStartsAsTheAnimatedExample()
{
    QVERIFY(child<QRadioButton>("pentagon_animateInput")->isChecked());
    QVERIFY(child<QRadioButton>("pentagon_animate_default")->isChecked());
    QVERIFY(child<QRadioButton>("pentagon_sequentialOrder")->isChecked());
    QVERIFY(child<QRadioButton>("pentagon_epsilon4")->isChecked());
    QVERIFY(child<QGroupBox>("pentagon_g_epsilon")->isHidden());
    QVERIFY(child<QGroupBox>("pentagon_g_animation_count")->isVisible());
    QCOMPARE(child<QLabel>("pentagon_operationNum_label")->text(),
             QStringLiteral("# of operations: 10"));
    QCOMPARE(child<QPushButton>("pentagon_Default")->text(), QStringLiteral("Start"));
    QCOMPARE(child<QLabel>("pentagon_Num_in")->text(), QStringLiteral("0"));
    const QStringList epsilons = {"0.025", "0.05", "0.075", "0.1", "0.125", "0.15"};
    for (int i = 0; i < 6; ++i) {
        QCOMPARE(window->findChild<QRadioButton*>(QStringLiteral("pentagon_epsilon%1").arg(i + 1))
                     ->text(),
                 epsilons[i]);
    }
    // The Default pentagon with epsilon 0.1, fitted: the view spans -0.055 .. 1.155.
    QCOMPARE(scene->engine().getEpsilon(), 0.1f);
    QVERIFY(qAbs(scene->range().xMin + 0.055f) < 1e-6f);
    QVERIFY(qAbs(scene->range().yMax - 1.155f) < 1e-6f);
    // The only pentagon is the initial one, in its red.
    const QImage frame = plot();
    QVERIFY(hasColor(frame, kInitialRed));
    QVERIFY(!hasColor(frame, kNewestBlue));
}

void PentagonTabTest::animationRunsTenStepsThenStops()
{
    // The window opens on another tab, which pauses this one: nothing moves before Start.
    scene->runningMan();
    QCOMPARE(scene->engine().getNumIns(), 0);
    click("pentagon_Default");
    for (int tick = 0; tick < 10; ++tick) {
        scene->runningMan();
    }
    QCOMPARE(child<QLabel>("pentagon_Num_in")->text(), QStringLiteral("5"));
    QCOMPARE(child<QLabel>("pentagon_Num_out")->text(), QStringLiteral("5"));
    QCOMPARE(scene->engine().getOperationKinds(),
             (std::vector<bool>{false, false, false, false, false, true, true, true, true, true}));
    scene->runningMan();
    scene->runningMan();
    QCOMPARE(scene->engine().getHistory().size(), 11u);
    // The initial pentagon in red, the newest in blue, the ones between in greys.
    const QImage frame = plot();
    QVERIFY(hasColor(frame, kInitialRed));
    QVERIFY(hasColor(frame, kNewestBlue));
    QVERIFY(hasColor(frame, QColor(8, 8, 8)));
    QVERIFY(hasColor(frame, QColor(72, 72, 72)));
    // Pressed again, the button restarts the run and says so.
    click("pentagon_Default");
    QCOMPARE(child<QPushButton>("pentagon_Default")->text(), QStringLiteral("Restart"));
    QCOMPARE(scene->engine().getHistory().size(), 1u);
    QCOMPARE(scene->getAnimationStep(), 0);
    scene->runningMan();
    QCOMPARE(scene->engine().getNumIns(), 1);
}

void PentagonTabTest::alternatingOrderTakesTurns()
{
    choose("pentagon_alternativeOrder");
    QCOMPARE(scene->getOrder(), 1);
    click("pentagon_Default");
    for (int tick = 0; tick < 12; ++tick) {
        scene->runningMan();
    }
    QCOMPARE(scene->engine().getOperationKinds(),
             (std::vector<bool>{false, true, false, true, false, true, false, true, false, true}));
}

void PentagonTabTest::toleranceModeShowsTheEpsilonsAndTheButtonsStep()
{
    choose("pentagon_autoInput");
    QVERIFY(!scene->isAnimating());
    QVERIFY(child<QGroupBox>("pentagon_g_epsilon")->isVisible());
    QVERIFY(child<QGroupBox>("pentagon_g_animation_count")->isHidden());
    QVERIFY(child<QGroupBox>("pentagon_g_animation_pentagon")->isHidden());
    QCOMPARE(child<QPushButton>("pentagon_Default")->text(), QStringLiteral("Reset"));
    // The order is only stored while nothing animates.
    choose("pentagon_alternativeOrder");
    QCOMPARE(scene->getOrder(), 1);
    choose("pentagon_epsilon2");
    QCOMPARE(scene->engine().getEpsilon(), 0.05f);
    QCOMPARE(scene->engine().getInitialPoints().y(3), 1.05f);
    click("pentagon_In");
    click("pentagon_In");
    click("pentagon_Out");
    QCOMPARE(child<QLabel>("pentagon_Num_in")->text(), QStringLiteral("2"));
    QCOMPARE(child<QLabel>("pentagon_Num_out")->text(), QStringLiteral("1"));
    click("pentagon_clean");
    QCOMPARE(child<QLabel>("pentagon_Num_in")->text(), QStringLiteral("0"));
    QCOMPARE(scene->engine().getHistory().size(), 1u);
    QCOMPARE(scene->engine().getInitialPoints().y(3), 1.05f);
}

void PentagonTabTest::defaultShapeOfTheAnimationUsesItsOwnEpsilon()
{
    choose("pentagon_animate_regular");
    QVERIFY(scene->engine().isRegular());
    QCOMPARE(scene->engine().getInitialPoints().x(1), 1.0f);
    choose("pentagon_animate_default");
    QVERIFY(!scene->engine().isRegular());
    QCOMPARE(scene->engine().getEpsilon(), 0.175f);
    QCOMPARE(scene->engine().getInitialPoints().y(3), float(1.0 + double(0.175f)));
    QVERIFY(child<QRadioButton>("pentagon_epsilon4")->isChecked());
}

void PentagonTabTest::leavingToleranceModeEndsInTheNewMode()
{
    choose("pentagon_autoInput");
    choose("pentagon_userInput");
    QVERIFY(scene->engine().isUserMode());
    QVERIFY(!scene->isAnimating());
    QVERIFY(child<QGroupBox>("pentagon_g_epsilon")->isHidden());
    QVERIFY(child<QGroupBox>("pentagon_g_animation_count")->isHidden());
    QCOMPARE(child<QPushButton>("pentagon_Default")->text(), QStringLiteral("Reset"));
    choose("pentagon_animateInput");
    QVERIFY(scene->isAnimating());
    QVERIFY(!scene->engine().isUserMode());
    QCOMPARE(child<QPushButton>("pentagon_Default")->text(), QStringLiteral("Restart"));
}

// Eleven Ins of the Default pentagon (epsilon 0.1): the eleventh fails, its message is drawn
// in red over the ten valid pentagons, and In and Out change nothing more until a reset.
void PentagonTabTest::failedStepShowsItsMessageAndRefusesMore()
{
    choose("pentagon_autoInput");
    for (int i = 0; i < 11; ++i) {
        click("pentagon_In");
    }
    QCOMPARE(scene->engine().lastStatus(), int(StatusNotPentagon));
    QCOMPARE(child<QLabel>("pentagon_Num_in")->text(), QStringLiteral("11"));
    click("pentagon_In");
    click("pentagon_Out");
    QCOMPARE(child<QLabel>("pentagon_Num_in")->text(), QStringLiteral("11"));
    QCOMPARE(child<QLabel>("pentagon_Num_out")->text(), QStringLiteral("0"));
    QCOMPARE(paintedTexts(),
             QStringList{QStringLiteral("Error! New five points can not form a pentagon! ")});
    QCOMPARE(foregroundTexts(scene, view->size()).front().color, QColor(Qt::red));
    // A refused step leaves a zoomed view as it is.
    const QSize size = view->viewport()->size();
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, QPoint(0, size.height()));
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {},
                        QPoint(size.width() / 2, size.height() / 2));
    const PentagonRange zoomed = scene->range();
    click("pentagon_In");
    QCOMPARE(scene->range().xMax, zoomed.xMax);
    QTest::mouseClick(view->viewport(), Qt::RightButton, {}, QPoint(10, 10));
    // The valid pentagons are still drawn: the initial one in red, the first In's nine steps
    // older than the newest in grey 72 (9 x 0.0625 x 128).
    const QImage frame = plot();
    QVERIFY(hasColor(frame, kInitialRed));
    QVERIFY(hasColor(frame, QColor(72, 72, 72)));
    click("pentagon_Default");
    QVERIFY(!scene->engine().hasFailed());
    QVERIFY(paintedTexts().isEmpty());
}

// Clicks enter points (the view showing -1 .. 1); no lines join them until the fifth, and a
// click that would bend the polygon inwards is ignored.
void PentagonTabTest::manualEntryShowsPointsThenThePentagon()
{
    choose("pentagon_userInput");
    clickPoint(-0.5f, -0.5f);
    QCOMPARE(scene->engine().getUserPointCount(), 1);
    QImage frame = plot();
    QVERIFY(hasColor(frame, kInitialRed));
    clickPoint(0.5f, -0.5f);
    clickPoint(0.5f, 0.5f);
    // Inside the triangle so far: refused.
    clickPoint(0.2f, -0.2f);
    QCOMPARE(scene->engine().getUserPointCount(), 3);
    // In and Out wait for the fifth point.
    click("pentagon_In");
    QVERIFY(scene->engine().getHistory().empty());
    QCOMPARE(child<QLabel>("pentagon_Num_in")->text(), QStringLiteral("0"));
    frame = plot();
    // Points 1 to 3 in red, orange and green; no Point 4 blue, no line between the points.
    QVERIFY(hasColor(frame, kPointOrange));
    QVERIFY(hasColor(frame, kPointGreen));
    QVERIFY(!hasColor(frame, kNewestBlue));
    const QPoint middle = (pixelAt(-0.5f, -0.5f) + pixelAt(0.5f, -0.5f)) / 2;
    QCOMPARE(QColor(frame.pixel(middle)), QColor(Qt::white));
    clickPoint(0.0f, 0.8f);
    clickPoint(-0.5f, 0.5f);
    QCOMPARE(scene->engine().getUserPointCount(), 5);
    QCOMPARE(scene->engine().getHistory().size(), 1u);
    click("pentagon_In");
    QCOMPARE(scene->engine().getHistory().size(), 2u);
    QVERIFY(hasColor(plot(), kNewestBlue));
}

// Clear while points are being entered throws them away: the entry starts again from none,
// and the next five clicks alone make the pentagon.
void PentagonTabTest::clearWhileEnteringStartsTheEntryAgain()
{
    choose("pentagon_userInput");
    clickPoint(-0.5f, -0.5f);
    clickPoint(0.5f, -0.5f);
    clickPoint(0.5f, 0.5f);
    QCOMPARE(scene->engine().getUserPointCount(), 3);
    click("pentagon_clean");
    QCOMPARE(scene->engine().getUserPointCount(), 0);
    QVERIFY(scene->engine().getHistory().empty());
    QCOMPARE(child<QLabel>("pentagon_Num_in")->text(), QStringLiteral("0"));
    QCOMPARE(bitsOf(scene->range().xMin), bitsOf(-1.0f));
    QCOMPARE(bitsOf(scene->range().yMax), bitsOf(1.0f));
    // No point is shown and no pentagon is drawn.
    const QImage frame = plot();
    QVERIFY(!hasColor(frame, kInitialRed));
    QVERIFY(!hasColor(frame, kPointOrange));
    QVERIFY(!hasColor(frame, kPointGreen));

    const std::pair<float, float> corners[] = {
        {-0.25f, -0.75f}, {0.75f, -0.25f}, {0.5f, 0.5f}, {-0.25f, 0.75f}, {-0.75f, 0.0f}};
    for (const auto& [x, y] : corners) {
        clickPoint(x, y);
    }
    QCOMPARE(scene->engine().getUserPointCount(), 5);
    QCOMPARE(scene->engine().getHistory().size(), 1u);
    // Each point is its click read back from view pixels to -1 .. 1.
    const float w = float(view->viewport()->width());
    const float h = float(view->viewport()->height());
    for (int point = 1; point <= 5; ++point) {
        const QPoint pixel = pixelAt(corners[point - 1].first, corners[point - 1].second);
        const float x = ((float(pixel.x()) - w * 0.5f) * 2.0f) / w;
        const float y = ((h * 0.5f - float(pixel.y())) * 2.0f) / h;
        QCOMPARE(bitsOf(scene->engine().getInitialPoints().x(point)), bitsOf(x));
        QCOMPARE(bitsOf(scene->engine().getInitialPoints().y(point)), bitsOf(y));
    }
}

// "Regular" belongs to the animated example: "Tolerance (epsilon)" builds the Default shape
// (0,0), (0,1), (1,e), (e,1), (1,0) with e = 1 + epsilon, each epsilon rebuilds it and fits
// the view to it, and back in the animation (Regular still chosen) the regular one returns.
void PentagonTabTest::toleranceAfterRegularBuildsTheDefaultShape()
{
    choose("pentagon_animate_regular");
    QCOMPARE(scene->engine().getInitialPoints().x(1), 1.0f);
    const auto expectDefaultShape = [this](uint32_t e) {
        const std::vector<uint32_t> expected = {0, 0, 0,           0x3F800000u, 0x3F800000u,
                                                e, e, 0x3F800000u, 0x3F800000u, 0};
        std::vector<uint32_t> shown;
        for (const float coordinate : scene->engine().getInitialPoints().coordinates) {
            shown.push_back(bitsOf(coordinate));
        }
        QCOMPARE(shown, expected);
    };
    choose("pentagon_autoInput");
    // Epsilon 0.1 as before: e = single(1 + single(0.1)); the box 0 .. e, square and 10%
    // larger, is -0.055 .. 1.155.
    expectDefaultShape(0x3F8CCCCDu);
    QCOMPARE(bitsOf(scene->range().xMin), 0xBD6147B0u);
    QCOMPARE(bitsOf(scene->range().yMax), 0x3F93D70Au);
    choose("pentagon_epsilon2");
    // e = single(1 + single(0.05)) = 1.05; the view -0.0525 .. 1.1025.
    expectDefaultShape(0x3F866666u);
    QCOMPARE(bitsOf(scene->range().xMin), 0xBD570A40u);
    QCOMPARE(bitsOf(scene->range().yMax), 0x3F8D1EB8u);
    // The plot shows it: the red edge from (0, 0) to (0, 1) stands at x = 0.
    const QImage frame = plot();
    const int edge = int(float(frame.width()) * (0.0f - scene->range().xMin) /
                         (scene->range().xMax - scene->range().xMin));
    QVERIFY(hasColor(frame, kInitialRed, edge - 1, edge + 2));

    choose("pentagon_animateInput");
    QVERIFY(child<QRadioButton>("pentagon_animate_regular")->isChecked());
    QCOMPARE(bitsOf(scene->engine().getInitialPoints().x(1)), 0x3F800000u);
    QCOMPARE(bitsOf(scene->engine().getInitialPoints().y(2)), 0x3F737870u);
}

// The main window's timer ticks the animation every 400 ms, one step a tick once started.
void PentagonTabTest::timerDrivesTheAnimationEvery400ms()
{
    // A window of its own, whose timer runs: the others' is stopped.
    window = std::make_unique<MainWindow>();
    view = qobject_cast<GraphicsView*>(showPlotTab(*window, 1, "pentagon_VisWindow"));
    QVERIFY(view != nullptr);
    scene = qobject_cast<PentagonOpenGLScene*>(view->scene());
    auto* timer = window->findChild<QTimer*>(QStringLiteral("pentagon_timer"));
    QVERIFY(timer != nullptr);
    QVERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 400);
    // Paused until Start.
    QTest::qWait(900);
    QCOMPARE(scene->engine().getNumIns(), 0);
    click("pentagon_Default");
    QTRY_COMPARE_WITH_TIMEOUT(scene->getAnimationStep(), 1, 2000);
    QElapsedTimer clock;
    clock.start();
    QTRY_COMPARE_WITH_TIMEOUT(scene->getAnimationStep(), 3, 3000);
    // Two more ticks, 800 ms less what the polling of the checks may miss.
    QVERIFY2(clock.elapsed() >= 700, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(scene->engine().getNumIns(), 3);
    QCOMPARE(child<QLabel>("pentagon_Num_in")->text(), QStringLiteral("3"));
}

void PentagonTabTest::dragZoomsAndRightClickRefits()
{
    const PentagonRange fitted = scene->range();
    const QSize size = view->viewport()->size();
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, QPoint(0, size.height()));
    QTest::mouseMove(view->viewport(), QPoint(size.width() / 2, size.height() / 2));
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {},
                        QPoint(size.width() / 2, size.height() / 2));
    QCOMPARE(scene->zoomDepth(), 1);
    // The lower left quarter of the range: the press corner is the range's own, the release
    // corner the fractions w/2 / w across and (h - h/2) / h up, in single precision.
    const float fx = float(size.width() / 2) / float(size.width());
    const float fy = float(size.height() - size.height() / 2) / float(size.height());
    QCOMPARE(bitsOf(scene->range().xMin), bitsOf(fitted.xMin));
    QCOMPARE(bitsOf(scene->range().yMin), bitsOf(fitted.yMin));
    QCOMPARE(bitsOf(scene->range().xMax), bitsOf(fitted.xMin + (fitted.xMax - fitted.xMin) * fx));
    QCOMPARE(bitsOf(scene->range().yMax), bitsOf(fitted.yMin + (fitted.yMax - fitted.yMin) * fy));
    QTest::mouseClick(view->viewport(), Qt::RightButton, {}, QPoint(10, 10));
    QCOMPARE(scene->zoomDepth(), 0);
    // Refitted to the drawn pentagon, the Default one with epsilon 0.1: the same range as at
    // the start, -0.055 .. 1.155 both ways.
    for (const float bound : {fitted.xMin, scene->range().xMin, scene->range().yMin}) {
        QCOMPARE(bitsOf(bound), 0xBD6147B0u);
    }
    for (const float bound : {fitted.xMax, scene->range().xMax, scene->range().yMax}) {
        QCOMPARE(bitsOf(bound), 0x3F93D70Au);
    }
}

// The view's picture at twice its size while a drag is on: the drag's rectangle from the press
// (100, 80) to the pointer (300, 200), each corner twice as far from the view's corner; a
// file's picture leaves the drag out. The plot is the one on screen: the Default pentagon's
// ten segments in the range the view shows.
// Without the inspector a click that does not drag zooms, as a drag does, to the rectangle
// from the press to the release: one of no size, the point at fractions x / w across and
// (h - y) / h up of the fitted range, in single precision. Nothing of the plot is left, and
// the plot says how to go back until a right click has gone back.
void PentagonTabTest::clickWithoutDragZoomsToNothingAndSaysHowBack()
{
    const QString wayBack = QStringLiteral("right-click to go back");
    QVERIFY(!paintedTexts().contains(wayBack));
    const PentagonRange fitted = scene->range();
    const QSize size = view->viewport()->size();
    const QPoint at(size.width() / 3, size.height() / 4);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
    QCOMPARE(scene->zoomDepth(), 1);
    const float fx = float(at.x()) / float(size.width());
    const float fy = float(size.height() - at.y()) / float(size.height());
    const float x = fitted.xMin + (fitted.xMax - fitted.xMin) * fx;
    const float y = fitted.yMin + (fitted.yMax - fitted.yMin) * fy;
    for (const float bound : {scene->range().xMin, scene->range().xMax}) {
        QCOMPARE(bitsOf(bound), bitsOf(x));
    }
    for (const float bound : {scene->range().yMin, scene->range().yMax}) {
        QCOMPARE(bitsOf(bound), bitsOf(y));
    }
    QCOMPARE(paintedTexts(), QStringList{wayBack});
    QVERIFY(!hasColor(plot(), kInitialRed));
    QTest::mouseClick(view->viewport(), Qt::RightButton, {}, QPoint(10, 10));
    QCOMPARE(scene->zoomDepth(), 0);
    QCOMPARE(bitsOf(scene->range().xMax), bitsOf(fitted.xMax));
    QVERIFY(paintedTexts().isEmpty());
    QVERIFY(hasColor(plot(), kInitialRed));
}

void PentagonTabTest::pictureOfTheViewScalesTheDragAndFilesLeaveItOut()
{
    const QSize doubled = view->viewport()->size() * 2;
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, QPoint(100, 80));
    QTest::mouseMove(view->viewport(), QPoint(300, 200));
    const quillon::PlotPicture screen = scene->picture(doubled, quillon::PictureUse::Screen);
    QCOMPARE(screen.size, doubled);
    QCOMPARE(screen.overlay.size(), size_t(1));
    const auto* band = std::get_if<quillon::PlotLines>(&screen.overlay.front());
    QVERIFY(band != nullptr);
    const std::vector<QLineF> edges = {QLineF(200, 160, 600, 160), QLineF(600, 160, 600, 400),
                                       QLineF(600, 400, 200, 400), QLineF(200, 400, 200, 160)};
    QCOMPARE(band->lines, edges);
    const quillon::PlotPicture file = scene->picture(doubled, quillon::PictureUse::File);
    QVERIFY(file.overlay.empty());
    QCOMPARE(file.background.left, double(scene->range().xMin));
    QCOMPARE(file.background.top, double(scene->range().yMax));
    QCOMPARE(file.background.strokes.size(), size_t(1));
    QCOMPARE(file.background.strokes.front().vertices.size(), size_t(20));
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, QPoint(300, 200));
}

void PentagonTabTest::labelsAndGridLines()
{
    QVERIFY(paintedTexts().isEmpty());
    child<QCheckBox>("pentagon_yvalues")->click();
    QStringList labels = paintedTexts();
    QCOMPARE(labels.size(), 21);
    QCOMPARE(labels.first(), QStringLiteral("-5.50e-02"));
    QCOMPARE(labels.last(), QStringLiteral("1.15e+00"));
    child<QCheckBox>("pentagon_xvalues")->click();
    QCOMPARE(paintedTexts().size(), 42);
    child<QCheckBox>("pentagon_yvalues")->click();
    child<QCheckBox>("pentagon_xvalues")->click();
    const QImage before = plot();
    QVERIFY(!hasColor(before, QColor(Qt::darkMagenta)));
    child<QCheckBox>("pentagon_yaxis")->click();
    QVERIFY(hasColor(plot(), QColor(Qt::darkMagenta)));
    child<QCheckBox>("pentagon_yaxis")->click();
    QVERIFY(!hasColor(plot(), QColor(Qt::darkMagenta)));
    child<QCheckBox>("pentagon_xaxis")->click();
    // Vertical lines from top to bottom.
    const QImage lines = plot();
    QVERIFY(!columnRunMiddles(lines.copy(0, 0, lines.width(), 1), 0, isGridLine).isEmpty());
    QCOMPARE(columnRunMiddles(lines.copy(0, 0, lines.width(), 1), 0, isGridLine),
             columnRunMiddles(lines.copy(0, lines.height() - 1, lines.width(), 1), 0, isGridLine));
}

// With "Tolerance (epsilon)", each vertical grid line stands at its value's x plus half the
// width of the value's "%.2e" label, and runs through the middle of that label, turned
// upwards along the bottom: the student reads the line's own value.
void PentagonTabTest::xGridLinesRunThroughTheMiddleOfTheirLabels()
{
    choose("pentagon_autoInput");
    child<QCheckBox>("pentagon_xaxis")->click();
    const QImage lines = plot();
    const QList<double> linesAtTop =
        columnRunMiddles(lines.copy(0, 0, lines.width(), 1), 0, isGridLine);
    child<QCheckBox>("pentagon_xaxis")->click();
    child<QCheckBox>("pentagon_xvalues")->click();
    const QImage labels = plot();
    // The labels are about 55 pixels long; nothing else in the bottom 100 rows is magenta.
    const QList<double> labelMiddles = columnRunMiddles(labels, labels.height() - 100, isLabelInk);

    // The 21 grid values from the range's middle in steps of a twentieth; the last line and
    // label lie beyond the right edge.
    const PentagonRange range = scene->range();
    const QFontMetrics metrics(QFont(QStringLiteral("times"), 10, QFont::Bold));
    QList<double> expected;
    for (int i = 0; i <= 20; ++i) {
        const float value =
            (range.xMax - range.xMin) / 20.0f * float(i - 10) + (range.xMax + range.xMin) / 2.0f;
        const float x =
            float(lines.width()) * (value - range.xMin) / (range.xMax - range.xMin) +
            float(metrics.horizontalAdvance(QString::asprintf("%.2e", double(value)))) / 2.0f;
        if (x < float(lines.width())) {
            expected << x;
        }
    }
    QCOMPARE(expected.size(), 20);
    QCOMPARE(linesAtTop.size(), expected.size());
    QCOMPARE(labelMiddles.size(), expected.size());
    // A one-pixel line drawn at a fractional x fills the pixel at or just left of it, and the
    // smoothed text's faintest edges fall below the ink test: a pixel, or a pixel and a half
    // between two middles, is the most that rounding to pixels explains.
    for (int i = 0; i < expected.size(); ++i) {
        const QString where = QStringLiteral("line %1 at %2, expected at %3, its label's middle %4")
                                  .arg(i)
                                  .arg(linesAtTop[i])
                                  .arg(expected[i])
                                  .arg(labelMiddles[i]);
        QVERIFY2(qAbs(linesAtTop[i] - expected[i]) <= 1.0, qPrintable(where));
        QVERIFY2(qAbs(linesAtTop[i] - labelMiddles[i]) <= 1.5, qPrintable(where));
    }
}

// The fields show "-1.0" until the range is first fitted, then the fitted range with "%f";
// a rectangle zoom leaves them alone, Reset refits and shows the range again, and a field that
// holds no number sets its bound to 0.
void PentagonTabTest::focusWindowShowsAndSetsTheRange()
{
    auto* focus = qobject_cast<PentagonFocusWindow*>(
        popMenuWindow(*window, QStringLiteral("&Tools"), QStringLiteral("&Focus regions ..."),
                      QStringLiteral("Region focus")));
    QVERIFY(focus != nullptr);
    QCOMPARE(focus->xMinEdit()->text(), QStringLiteral("-1.0"));
    choose("pentagon_autoInput");
    const PentagonRange fitted = scene->range();
    QCOMPARE(focus->yMaxEdit()->text(), QStringLiteral("1.155000"));
    QCOMPARE(focus->xMinEdit()->text(), QStringLiteral("-0.055000"));

    const QSize size = view->viewport()->size();
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, QPoint(0, size.height()));
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {},
                        QPoint(size.width() / 2, size.height() / 2));
    QVERIFY(scene->range().xMax < fitted.xMax);
    QCOMPARE(focus->xMaxEdit()->text(), QStringLiteral("1.155000"));

    retype(focus->yMinEdit(), QStringLiteral("-0.5"));
    QTest::keyClick(focus->yMinEdit(), Qt::Key_Return);
    QCOMPARE(scene->range().yMin, -0.5f);
    retype(focus->xMaxEdit(), QStringLiteral("wide"));
    QTest::keyClick(focus->xMaxEdit(), Qt::Key_Return);
    QCOMPARE(scene->range().xMax, 0.0f);

    retype(focus->xMinEdit(), QStringLiteral("0.25"));
    retype(focus->xMaxEdit(), QStringLiteral("0.75"));
    for (QPushButton* button : focus->findChildren<QPushButton*>()) {
        if (button->text() == QLatin1String("Apply")) {
            button->click();
        }
    }
    QCOMPARE(scene->range().xMin, 0.25f);
    QCOMPARE(scene->range().xMax, 0.75f);
    for (QPushButton* button : focus->findChildren<QPushButton*>()) {
        if (button->text() == QLatin1String("Reset")) {
            button->click();
        }
    }
    QCOMPARE(focus->xMaxEdit()->text(), QString::asprintf("%f", double(scene->range().xMax)));
    focus->close();
}

void PentagonTabTest::filesThroughTheDialogs()
{
    choose("pentagon_autoInput");
    for (const char* step :
         {"pentagon_In", "pentagon_In", "pentagon_In", "pentagon_In", "pentagon_In", "pentagon_Out",
          "pentagon_Out", "pentagon_Out", "pentagon_Out", "pentagon_Out"}) {
        click(step);
    }
    const QString txt = folder->filePath(QStringLiteral("history 100%.txt"));
    QVERIFY(chooseFileThroughMenu(*window, QStringLiteral("&Save data to a txt file ..."), txt));
    QCOMPARE(fileText(txt), golden("default-IIIIIOOOOO.txt"));

    const QString conf = folder->filePath(QStringLiteral("colours.conf"));
    QVERIFY(
        chooseFileThroughMenu(*window, QStringLiteral("&Save to a configuration file ..."), conf));
    QVERIFY(fileText(conf).startsWith(QStringLiteral("Five point size 8 \nAll line widthes 1 \n")));
    QFile edited(conf);
    QVERIFY(edited.open(QIODevice::WriteOnly));
    edited.write("Five point size 8 \nAll line widthes 3 \nPoint1 Color R 1 G 2 B 3\n"
                 "Point2 Color R 255 G 165 B 0\nPoint3 Color R 0 G 255 B 0\n"
                 "Point4 Color R 0 G 0 B 255\nPoint5 Color R 0 G 0 B 0\n"
                 "Current Color R 0 G 200 B 0\nInitial Color R 0 G 0 B 255\n");
    edited.close();
    QVERIFY(chooseFileThroughMenu(*window, QStringLiteral("&Open a configuration file ..."), conf));
    // The sixth colour is the initial pentagon's, whatever its line calls it.
    const QImage frame = plot();
    QVERIFY(hasColor(frame, QColor(0, 200, 0)));
    QVERIFY(!hasColor(frame, kInitialRed));
}

// CRLF line ends, a line cut short and an enormous file each change only the values they hold;
// files that cannot be read are reported and change nothing.
void PentagonTabTest::damagedConfigurationFilesChangeOnlyWhatTheyHold()
{
    const auto writeFile = [this](const char* name, const QByteArray& contents) {
        QFile file(folder->filePath(QString::fromLatin1(name)));
        return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size()
                   ? file.fileName()
                   : QString();
    };
    PentagonColorSettings expected = scene->colors();
    QVERIFY(chooseFileThroughMenu(
        *window, QStringLiteral("&Open a configuration file ..."),
        writeFile("cut.conf", "Five point size 5 \r\nAll line widthes 2 \r\nPoint1 Color R 7 G")));
    expected.pointSize = 5;
    expected.lineWidth = 2;
    expected.colors[0].red = 7;
    QVERIFY(scene->colors() == expected);

    // A gigabyte (sparse) after two good lines: only the first megabyte is read.
    const QString enormous =
        writeFile("enormous.conf", "Five point size 9 \nAll line widthes 3 \n");
    QVERIFY(QFile(enormous).resize(qint64(1) << 30));
    QVERIFY(
        chooseFileThroughMenu(*window, QStringLiteral("&Open a configuration file ..."), enormous));
    expected.pointSize = 9;
    expected.lineWidth = 3;
    QVERIFY(scene->colors() == expected);

    QVERIFY(!scene->loadConfiguration(folder->filePath(QStringLiteral("missing.conf"))).isEmpty());
    QVERIFY(!scene->loadConfiguration(folder->path()).isEmpty());
    QVERIFY(scene->colors() == expected);
}

void PentagonTabTest::helpWindowsShowTheirTexts()
{
    const std::pair<const char*, const char*> helps[] = {{"&About ...", "pentagon-about.txt"},
                                                         {"&Help ...", "pentagon-help.txt"}};
    for (const auto& [entry, name] : helps) {
        QAction* action = menuBarAction(*window, QStringLiteral("&Help"), entry);
        QVERIFY(action != nullptr && action->isEnabled());
        action->trigger();
        QTextBrowser* browser = nullptr;
        for (QWidget* topLevel : QApplication::topLevelWidgets()) {
            if (topLevel->isVisible() && topLevel->findChild<QTextBrowser*>() != nullptr) {
                browser = topLevel->findChild<QTextBrowser*>();
            }
        }
        QVERIFY(browser != nullptr);
        QCOMPARE(browser->toPlainText(), golden(name));
        browser->window()->close();
    }
}

// Row r lists entry scrollIndex - r + 2: at the top of the scroll bar the first In above the
// initial pentagon; further down, newer steps above older ones.
void PentagonTabTest::historyWindowListsTheStepsNewestFirst()
{
    PentagonMiniMap* history = openHistoryWindow();
    QVERIFY(history != nullptr);
    runAnimatedExample();
    QCOMPARE(listedRow(history, 0),
             (QStringList{"Need selection", "Operation", "# of Ins", "# of Outs", "Status"}));
    QCOMPARE(listedRow(history, 1), (QStringList{"In", "1", "0", "OK"}));
    QCOMPARE(listedRow(history, 2), (QStringList{"Initial pentagon", "OK"}));
    QVERIFY(listedRow(history, 3).isEmpty());
    history->scrollBar()->setValue(9);
    QCOMPARE(listedRow(history, 1), (QStringList{"Out", "5", "5", "OK"}));
    QCOMPARE(listedRow(history, 2), (QStringList{"Out", "5", "4", "OK"}));
    QCOMPARE(listedRow(history, 5), (QStringList{"Out", "5", "1", "OK"}));
    QCOMPARE(listedRow(history, 6), (QStringList{"In", "5", "0", "OK"}));
    QCOMPARE(listedRow(history, 10), (QStringList{"In", "1", "0", "OK"}));
    history->close();
}

void PentagonTabTest::historyScrollBarFollowsTheHistoryAndWaitsForTheRelease()
{
    PentagonMiniMap* history = openHistoryWindow();
    QVERIFY(history != nullptr);
    QScrollBar* bar = history->scrollBar();
    QCOMPARE(bar->maximum(), 0);
    choose("pentagon_autoInput");
    click("pentagon_In");
    QCOMPARE(bar->maximum(), 2);
    click("pentagon_Out");
    click("pentagon_In");
    QCOMPARE(bar->maximum(), 4);
    QCOMPARE(bar->pageStep(), 5);

    // Drag the handle down: the rows change when it is let go, not while it moves.
    const QPoint handle(bar->width() / 2, 30);
    QTest::mousePress(bar, Qt::LeftButton, {}, handle);
    QMouseEvent move(QEvent::MouseMove, QPointF(handle.x(), 250),
                     bar->mapToGlobal(QPointF(handle.x(), 250)), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(bar, &move);
    QVERIFY(bar->sliderPosition() > 0);
    QCOMPARE(history->historyScene()->getScrollIndex(), 0);
    QCOMPARE(listedRow(history, 2), (QStringList{"Initial pentagon", "OK"}));
    QTest::mouseRelease(bar, Qt::LeftButton, {}, QPoint(handle.x(), 250));
    QCOMPARE(history->historyScene()->getScrollIndex(), bar->value());
    QVERIFY(bar->value() > 0);
    QVERIFY(listedRow(history, 2) != (QStringList{"Initial pentagon", "OK"}));

    click("pentagon_clean");
    QCOMPARE(bar->maximum(), 0);
    history->close();
}

void PentagonTabTest::headingTurnsSelectionModeOnAndOff()
{
    PentagonMiniMap* history = openHistoryWindow();
    QVERIFY(history != nullptr);
    runAnimatedExample();
    PentagonMiniScene* list = history->historyScene();
    // Outside selection mode a click on an entry marks nothing.
    clickListRow(history, 2);
    QVERIFY(!list->isSelected(0));

    clickListRow(history, 0);
    QVERIFY(list->inSelectionMode());
    QVERIFY(scene->showsSelection());
    // Nothing is marked yet: nothing is drawn and the view fits -1 .. 1 widened by 10%.
    QCOMPARE(scene->range().xMin, -1.1f);
    QCOMPARE(scene->range().yMax, 1.1f);
    QImage frame = plot();
    QVERIFY(!hasColor(frame, kInitialRed));
    QVERIFY(!hasColor(frame, kNewestBlue));

    clickListRow(history, 2);
    QVERIFY(list->isSelected(0));
    clickListRow(history, 0);
    QVERIFY(!list->inSelectionMode());
    QVERIFY(!scene->showsSelection());
    QVERIFY(!list->isSelected(0));
    // Back to every pentagon, fitted to the whole history.
    QCOMPARE(scene->range().xMin, scene->engine().fittedRange().xMin);
    frame = plot();
    QVERIFY(hasColor(frame, kInitialRed));
    QVERIFY(hasColor(frame, kNewestBlue));
    // Turning it on again starts with nothing marked.
    clickListRow(history, 0);
    QVERIFY(!list->isSelected(0));
    clickListRow(history, 0);
    history->close();
}

void PentagonTabTest::selectedEntriesAreTheOnlyOnesDrawn()
{
    PentagonMiniMap* history = openHistoryWindow();
    QVERIFY(history != nullptr);
    auto* focus = qobject_cast<PentagonFocusWindow*>(
        popMenuWindow(*window, QStringLiteral("&Tools"), QStringLiteral("&Focus regions ..."),
                      QStringLiteral("Region focus")));
    QVERIFY(focus != nullptr);
    runAnimatedExample();
    PentagonMiniScene* list = history->historyScene();
    const QImage unmarked = history->listView()->grab().toImage().copy(0, 59, 40, 27);
    clickListRow(history, 0);
    clickListRow(history, 2);
    QVERIFY(list->isSelected(0));
    QVERIFY(history->listView()->grab().toImage().copy(0, 59, 40, 27) != unmarked);
    // The initial pentagon alone (epsilon 0.1 until "Default" is chosen): (0, 0), (0, 1),
    // (1, 1.1), (1.1, 1), (1, 0), a box 1.1 wide centred on 0.55, widened by 10% to
    // 0.55 -+ 0.605.
    QCOMPARE(focus->xMinEdit()->text(), QStringLiteral("-0.055000"));
    QCOMPARE(focus->yMaxEdit()->text(), QStringLiteral("1.155000"));
    QImage frame = plot();
    QVERIFY(hasColor(frame, kInitialRed));
    QVERIFY(!hasColor(frame, kNewestBlue));
    QVERIFY(!hasColor(frame, QColor(72, 72, 72)));
    // Row 1 is the first In, nine steps older than the newest: grey 9 x 0.0625 x 128 = 72.
    clickListRow(history, 1);
    QVERIFY(list->isSelected(1));
    frame = plot();
    QVERIFY(hasColor(frame, QColor(72, 72, 72)));
    QVERIFY(!hasColor(frame, kNewestBlue));
    // Unmarking takes it away again.
    clickListRow(history, 1);
    QVERIFY(!list->isSelected(1));
    QVERIFY(!hasColor(plot(), QColor(72, 72, 72)));
    // Rows below the initial pentagon list nothing, and a click there marks nothing.
    clickListRow(history, 5);
    QCOMPARE(scene->engine().getHistory().size(), 11u);
    // A right click clears every mark and fits the empty selection.
    clickListRow(history, 1);
    clickListRow(history, 1, Qt::RightButton);
    QVERIFY(!list->isSelected(0));
    QVERIFY(!list->isSelected(1));
    QCOMPARE(focus->xMinEdit()->text(), QStringLiteral("-1.100000"));
    QCOMPARE(history->listView()->grab().toImage().copy(0, 59, 40, 27), unmarked);
    clickListRow(history, 0);
    focus->close();
    history->close();
}

void PentagonTabTest::historyWindowListsTheFailedStep()
{
    PentagonMiniMap* history = openHistoryWindow();
    QVERIFY(history != nullptr);
    choose("pentagon_autoInput");
    for (int i = 0; i < 11; ++i) {
        click("pentagon_In");
    }
    // Ten pentagons after the initial one; the eleventh In failed and is listed above them
    // (as entry 11, in row 1 when the scroll bar is at 10).
    history->scrollBar()->setValue(10);
    QCOMPARE(listedRow(history, 1), (QStringList{"In", "11", "0", "Failed: not a pentagon"}));
    QCOMPARE(listedRow(history, 2), (QStringList{"In", "10", "0", "OK"}));
    clickListRow(history, 0);
    clickListRow(history, 1);
    QVERIFY(!history->historyScene()->isSelected(11));
    clickListRow(history, 0);
    history->close();
}

void PentagonTabTest::colorMapAppliesOnlyOnApply()
{
    auto* colors = qobject_cast<PentagonColorMap*>(popMenuWindow(*window, QStringLiteral("&Tools"),
                                                                 QStringLiteral("&Color map ..."),
                                                                 QStringLiteral("Color map")));
    QVERIFY(colors != nullptr);
    runAnimatedExample();
    QStringList items;
    for (int i = 0; i < colors->itemComboBox()->count(); ++i) {
        items << colors->itemComboBox()->itemText(i);
    }
    QCOMPARE(items, (QStringList{"Point 1", "Point 2", "Point 3", "Point 4", "Point 5",
                                 "Lines of current pentagon", "Lines of previous 1-step pentagon",
                                 "Lines of previous 2-step pentagon",
                                 "Lines of previous other pentagons"}));
    // The newest pentagon's colour, blue by default.
    colors->itemComboBox()->setCurrentIndex(6);
    QCOMPARE(colors->editingColor(), (quillon::ColorTriple{0, 0, 255}));
    colors->redSlider()->setValue(10);
    colors->greenSlider()->setValue(200);
    colors->blueSlider()->setValue(30);
    QCOMPARE(colors->editingColor(), (quillon::ColorTriple{10, 200, 30}));
    QCOMPARE(colors->previewLabel()->palette().color(QPalette::Window), QColor(10, 200, 30));
    QImage frame = plot();
    QVERIFY(hasColor(frame, kNewestBlue));
    QVERIFY(!hasColor(frame, QColor(10, 200, 30)));

    QTest::mouseClick(colors->resetButton(), Qt::LeftButton);
    QCOMPARE(colors->editingColor(), (quillon::ColorTriple{0, 0, 255}));
    QCOMPARE(colors->greenSlider()->value(), 0);

    colors->greenSlider()->setValue(200);
    QTest::mouseClick(colors->applyButton(), Qt::LeftButton);
    QCOMPARE(scene->colors().colors[6], (quillon::ColorTriple{0, 200, 255}));
    frame = plot();
    QVERIFY(hasColor(frame, QColor(0, 200, 255)));
    QVERIFY(!hasColor(frame, kNewestBlue));
    colors->close();
}

void PentagonTabTest::colorMapPresetsAndFixedGreys()
{
    auto* colors = qobject_cast<PentagonColorMap*>(popMenuWindow(*window, QStringLiteral("&Tools"),
                                                                 QStringLiteral("&Color map ..."),
                                                                 QStringLiteral("Color map")));
    QVERIFY(colors != nullptr);
    colors->resize(443, 490);
    // Cells 443 / 8 = 55 wide and int(490 / 17.5) = 28 high from int(28 * 3.9) = 109 down:
    // the second cell of the second row is preset 9, yellow.
    QTest::mouseClick(colors, Qt::LeftButton, {}, QPoint(55 + 10, 109 + 28 + 10));
    QCOMPARE(colors->editingColor(), (quillon::ColorTriple{255, 255, 0}));
    QCOMPARE(colors->greenSlider()->value(), 255);
    // Right of the last column: the first preset of the next row.
    QTest::mouseClick(colors, Qt::LeftButton, {}, QPoint(441, 109 + 10));
    QCOMPARE(colors->editingColor(), (quillon::ColorTriple{255, 0, 0}));
    // The last row holds greys, black first.
    QTest::mouseClick(colors, Qt::LeftButton, {}, QPoint(10, 109 + 6 * 28 + 10));
    QCOMPARE(colors->editingColor(), (quillon::ColorTriple{0, 0, 0}));
    // Below the grid nothing changes.
    QTest::mouseClick(colors, Qt::LeftButton, {}, QPoint(10, 109 + 7 * 28 + 2));
    QCOMPARE(colors->editingColor(), (quillon::ColorTriple{0, 0, 0}));

    // The two older ages show the greys they are drawn in and cannot be applied; applying
    // anyway leaves every setting alone.
    const PentagonColorSettings before = scene->colors();
    colors->itemComboBox()->setCurrentIndex(7);
    QCOMPARE(colors->editingColor(), (quillon::ColorTriple{8, 8, 8}));
    QVERIFY(!colors->applyButton()->isEnabled());
    QVERIFY(colors->fixedGreyNote()->isVisible());
    colors->itemComboBox()->setCurrentIndex(8);
    QCOMPARE(colors->editingColor(), (quillon::ColorTriple{16, 16, 16}));
    colors->redSlider()->setValue(99);
    colors->applyColorChange();
    QVERIFY(scene->colors() == before);
    colors->itemComboBox()->setCurrentIndex(0);
    QVERIFY(colors->applyButton()->isEnabled());
    QVERIFY(!colors->fixedGreyNote()->isVisible());
    QCOMPARE(colors->editingColor(), (quillon::ColorTriple{255, 0, 0}));
    colors->close();
}

QTEST_MAIN(PentagonTabTest)
#include "PentagonTabTest.moc"
