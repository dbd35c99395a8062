#include "app/MainWindow.h"
#include "assoc/gui/AssoOpenGLScene.h"
#include "pentagon/gui/PentagonMiniMap.h"
#include "pentagon/gui/PentagonMiniScene.h"
#include "pentagon/gui/PentagonOpenGLScene.h"
#include "sine/gui/SineOpenGLScene.h"
#include "tests/gui/GuiTestSupport.h"

#include <QAbstractButton>
#include <QDir>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QScrollBar>
#include <QtTest>
#include <functional>
#include <memory>

// The Associative Law and Sine plots, frame by frame, against stored pictures: the default
// frame, a frame in the middle of the animation, one with error comparison, value labels and
// both kinds of grid lines on, and the frames of a drag (rubber band, then the zoomed view)
// and of a hover over the legend. The Pentagon plot likewise: the animated example before
// Start and after its last step, a drag, Tolerance mode with labels, grid lines and a ringed
// vertex, a failed step's message, points being entered, selection mode, and colours, line
// width and point size read from a configuration file. A changed pixel fails; the frame drawn
// is saved in the test's working folder so it can be looked at.
//
// QUILLON_WRITE_FRAME_PICTURES=1 stores the frames drawn now as the new pictures instead (and
// skips, so that a run that writes never passes as a check).
namespace
{

constexpr int kWindowWidth = 1200;
constexpr int kWindowHeight = 860;

QString testDataPath(const QString& fileName)
{
    return QDir(QStringLiteral(QUILLON_TEST_DATA_DIR)).filePath(fileName);
}

QString picturePath(const QString& name)
{
    return testDataPath(name + QStringLiteral(".png"));
}

bool writingPictures()
{
    return qEnvironmentVariableIntValue("QUILLON_WRITE_FRAME_PICTURES") == 1;
}

// How many pixels of two frames of one size differ.
int differingPixels(const QImage& a, const QImage& b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
        }
    }
    return count;
}

// A mouse event straight to a scene, as a view hands it over, so that it has taken effect
// before the next frame is painted.
void sendSceneMouse(QGraphicsScene* scene, const QWidget* viewport, QEvent::Type type,
                    QPointF position, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QGraphicsSceneMouseEvent event(type);
    event.setScenePos(position);
    event.setScreenPos(viewport->mapToGlobal(position.toPoint()));
    event.setButton(button);
    event.setButtons(buttons);
    event.setAccepted(false);
    QApplication::sendEvent(scene, &event);
}

// The Pentagon tab runs its animated example in ten steps, five Ins then five Outs.
constexpr int kPentagonAnimationSteps = 10;

} // namespace

class PlotFrameTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void associativeLawFrames();
    void sineFrames();
    void pentagonAnimationFrames();
    void pentagonToleranceFrames();
    void pentagonEnteredPointsFrame();
    void pentagonSelectionFrame();
    void pentagonColorFrames();

private:
    QGraphicsView* showTab(int tab, const char* placeholder, const char* timer);
    PentagonOpenGLScene* showPentagonTab();
    void clickButton(const char* name);
    void runPentagonAnimation(PentagonOpenGLScene* scene);
    void enterPoints(const QList<QPointF>& fractions);
    void expectFrame(const QString& name);
    void skipWhenWriting();
    void expectDragFrames(const QString& prefix);
    void sendMouse(QEvent::Type type, double fx, double fy, Qt::MouseButton button,
                   Qt::MouseButtons buttons);
    void hoverAt(double fx, double fy);

    std::unique_ptr<MainWindow> window;
    QGraphicsView* view = nullptr;
    QStringList written;
};

void PlotFrameTest::init()
{
    written.clear();
    window = std::make_unique<MainWindow>();
    window->resize(kWindowWidth, kWindowHeight);
}

void PlotFrameTest::cleanup()
{
    window.reset();
    view = nullptr;
}

QGraphicsView* PlotFrameTest::showTab(int tab, const char* placeholder, const char* timer)
{
    view = showStoppedPlotTab(*window, tab, placeholder, timer);
    return view;
}

void PlotFrameTest::expectFrame(const QString& name)
{
    // The view paints the scene in the viewport's paint event: paint the state as it is now
    // before taking the frame.
    QApplication::processEvents();
    view->viewport()->repaint();
    const QImage frame = grabPlotFrame(view).convertToFormat(QImage::Format_RGB32);
    QVERIFY(!frame.isNull());
    if (writingPictures()) {
        QVERIFY(frame.save(picturePath(name)));
        written << name;
        return;
    }
    const QImage expected = QImage(picturePath(name)).convertToFormat(QImage::Format_RGB32);
    QVERIFY2(!expected.isNull(), qPrintable(QStringLiteral("no picture ") + picturePath(name)));
    const QString drawn = QDir::current().filePath(name + QStringLiteral("-drawn.png"));
    if (frame.size() != expected.size()) {
        frame.save(drawn);
        QFAIL(qPrintable(QStringLiteral("%1: frame %2x%3, picture %4x%5 (drawn: %6)")
                             .arg(name)
                             .arg(frame.width())
                             .arg(frame.height())
                             .arg(expected.width())
                             .arg(expected.height())
                             .arg(drawn)));
    }
    const int differing = differingPixels(frame, expected);
    if (differing != 0) {
        frame.save(drawn);
    }
    QVERIFY2(differing == 0, qPrintable(QStringLiteral("%1: %2 pixels differ (drawn: %3)")
                                            .arg(name)
                                            .arg(differing)
                                            .arg(drawn)));
}

// A run that wrote the pictures checked nothing: it must not pass.
void PlotFrameTest::skipWhenWriting()
{
    if (writingPictures()) {
        QSKIP(qPrintable(QStringLiteral("wrote ") + written.join(QStringLiteral(", "))));
    }
}

// A point of the plot given as fractions of the view's width and height.
void PlotFrameTest::sendMouse(QEvent::Type type, double fx, double fy, Qt::MouseButton button,
                              Qt::MouseButtons buttons)
{
    const QPointF position(qRound(view->width() * fx), qRound(view->height() * fy));
    sendSceneMouse(view->scene(), view->viewport(), type, position, button, buttons);
}

void PlotFrameTest::hoverAt(double fx, double fy)
{
    sendMouse(QEvent::GraphicsSceneMouseMove, fx, fy, Qt::NoButton, Qt::NoButton);
}

// A drag over the right part of the curves, painted while the button is held, then the zoomed
// view after the release.
void PlotFrameTest::expectDragFrames(const QString& prefix)
{
    hoverAt(0.6, 0.05);
    sendMouse(QEvent::GraphicsSceneMousePress, 0.6, 0.05, Qt::LeftButton, Qt::LeftButton);
    sendMouse(QEvent::GraphicsSceneMouseMove, 0.95, 0.55, Qt::NoButton, Qt::LeftButton);
    expectFrame(prefix + QStringLiteral("-rubber-band"));
    sendMouse(QEvent::GraphicsSceneMouseRelease, 0.95, 0.55, Qt::LeftButton, Qt::NoButton);
    expectFrame(prefix + QStringLiteral("-zoomed"));
}

void PlotFrameTest::associativeLawFrames()
{
    QVERIFY(showTab(2, "associativelaw_VisWindow", "associativelaw_timer") != nullptr);
    auto* scene = qobject_cast<AssoOpenGLScene*>(view->scene());
    QVERIFY(scene != nullptr);
    // Calculating starts the animation over, whatever the timer did before it was stopped.
    scene->calculate();
    expectFrame(QStringLiteral("assoc-default"));
    scene->setPaused(false);
    for (int tick = 0; tick < 30; ++tick) {
        scene->runningMan();
    }
    expectFrame(QStringLiteral("assoc-mid-animation"));
    scene->needErrorComparison(true);
    scene->need2ShowYIndices(true);
    scene->setNeedXAxis(true);
    scene->setNeedYAxis(true);
    scene->markNode(quillon::PlotNode{2, scene->xWindow().start + 4});
    expectFrame(QStringLiteral("assoc-comparison-labels-grid"));
    // The legend's third row: the third order is drawn in front of the others.
    hoverAt(0.5, 0.75 + 0.05 * 2.5);
    QCOMPARE(scene->highlightedFunction(), 2);
    expectFrame(QStringLiteral("assoc-legend-hover"));
    expectDragFrames(QStringLiteral("assoc"));
    QCOMPARE(scene->zoomDepth(), 2);
    skipWhenWriting();
}

void PlotFrameTest::sineFrames()
{
    QVERIFY(showTab(3, "sine_VisWindow", "sine_timer") != nullptr);
    auto* scene = qobject_cast<SineOpenGLScene*>(view->scene());
    QVERIFY(scene != nullptr);
    scene->calculate();
    expectFrame(QStringLiteral("sine-default"));
    scene->setPaused(false);
    for (int tick = 0; tick < 30; ++tick) {
        scene->runningMan();
    }
    expectFrame(QStringLiteral("sine-mid-animation"));
    scene->needErrorComparison(true);
    scene->need2ShowYIndices(true);
    scene->setNeedXAxis(true);
    scene->setNeedYAxis(true);
    scene->markNode(quillon::PlotNode{0, scene->xWindow().start + 4});
    expectFrame(QStringLiteral("sine-comparison-labels-grid"));
    // The third legend row's first entry, the fourth approach: drawn in front, its name in red.
    hoverAt(0.15, 0.75 + 0.05 * 2.5);
    QCOMPARE(scene->hoveredApproach(), 4);
    expectFrame(QStringLiteral("sine-legend-hover"));
    expectDragFrames(QStringLiteral("sine"));
    QCOMPARE(scene->zoomDepth(), 2);
    skipWhenWriting();
}

PentagonOpenGLScene* PlotFrameTest::showPentagonTab()
{
    if (showTab(1, "pentagon_VisWindow", "pentagon_timer") == nullptr) {
        return nullptr;
    }
    return qobject_cast<PentagonOpenGLScene*>(view->scene());
}

// Clicks a button of the tab's panel from code: its signals have been handled when this
// returns, with no round trip through the X server.
void PlotFrameTest::clickButton(const char* name)
{
    auto* button = window->findChild<QAbstractButton*>(QString::fromLatin1(name));
    QVERIFY2(button != nullptr, name);
    button->click();
}

// Start, then every step of the animated example and two ticks more, which change nothing.
void PlotFrameTest::runPentagonAnimation(PentagonOpenGLScene* scene)
{
    clickButton("pentagon_Default");
    for (int tick = 0; tick < kPentagonAnimationSteps + 2; ++tick) {
        scene->runningMan();
    }
    QCOMPARE(scene->getAnimationStep(), kPentagonAnimationSteps);
    QCOMPARE(int(scene->engine().getHistory().size()), kPentagonAnimationSteps + 1);
}

// Clicks in manual mode, each one a point of the pentagon being entered.
void PlotFrameTest::enterPoints(const QList<QPointF>& fractions)
{
    for (const QPointF& at : fractions) {
        sendMouse(QEvent::GraphicsSceneMousePress, at.x(), at.y(), Qt::LeftButton, Qt::LeftButton);
        sendMouse(QEvent::GraphicsSceneMouseRelease, at.x(), at.y(), Qt::LeftButton, Qt::NoButton);
    }
}

void PlotFrameTest::pentagonAnimationFrames()
{
    PentagonOpenGLScene* scene = showPentagonTab();
    QVERIFY(scene != nullptr);
    // Before Start only the initial pentagon is there, whatever the timer did.
    QVERIFY(scene->isAnimating());
    QCOMPARE(int(scene->engine().getHistory().size()), 1);
    expectFrame(QStringLiteral("pentagon-default"));
    runPentagonAnimation(scene);
    expectFrame(QStringLiteral("pentagon-animation-end"));
    expectDragFrames(QStringLiteral("pentagon"));
    QCOMPARE(scene->zoomDepth(), 1);
    skipWhenWriting();
}

void PlotFrameTest::pentagonToleranceFrames()
{
    PentagonOpenGLScene* scene = showPentagonTab();
    QVERIFY(scene != nullptr);
    clickButton("pentagon_autoInput");
    QVERIFY(!scene->isAnimating());
    // Three steps: the initial pentagon, two older ones in grey and the newest.
    clickButton("pentagon_In");
    clickButton("pentagon_In");
    clickButton("pentagon_Out");
    QCOMPARE(int(scene->engine().getHistory().size()), 4);
    for (const char* option :
         {"pentagon_xvalues", "pentagon_yvalues", "pentagon_xaxis", "pentagon_yaxis"}) {
        clickButton(option);
    }
    // The ring the value inspector asks for: the third point of the second pentagon.
    scene->markVertex(quillon::PlotNode{1, 3});
    expectFrame(QStringLiteral("pentagon-tolerance-labels-grid"));
    // Ins until one fails: its message stands in the middle of the plot, in red.
    for (int step = 0; step < 20 && !scene->engine().hasFailed(); ++step) {
        clickButton("pentagon_In");
    }
    QVERIFY(scene->engine().hasFailed());
    expectFrame(QStringLiteral("pentagon-failed-step"));
    skipWhenWriting();
}

void PlotFrameTest::pentagonEnteredPointsFrame()
{
    PentagonOpenGLScene* scene = showPentagonTab();
    QVERIFY(scene != nullptr);
    clickButton("pentagon_userInput");
    enterPoints({{0.3, 0.3}, {0.7, 0.25}, {0.75, 0.7}});
    QVERIFY(scene->engine().isEnteringPoints());
    QCOMPARE(scene->engine().getUserPointCount(), 3);
    expectFrame(QStringLiteral("pentagon-entered-points"));
    skipWhenWriting();
}

void PlotFrameTest::pentagonSelectionFrame()
{
    PentagonOpenGLScene* scene = showPentagonTab();
    QVERIFY(scene != nullptr);
    auto* history = qobject_cast<PentagonMiniMap*>(popMenuWindow(*window, QStringLiteral("&Tools"),
                                                                 QStringLiteral("&Selections ..."),
                                                                 QStringLiteral("Selections")));
    QVERIFY(history != nullptr);
    runPentagonAnimation(scene);
    // Row r lists entry 9 - r + 2: row 1 the newest pentagon, row 6 one five steps older.
    history->scrollBar()->setValue(9);
    PentagonMiniScene* list = history->historyScene();
    const double rowHeight = history->listView()->viewport()->height() / 11.0;
    const auto clickRow = [&](int row) {
        const QPointF position(200, (row + 0.5) * rowHeight);
        QCOMPARE(list->rowAt(position.y()), row);
        const QWidget* viewport = history->listView()->viewport();
        sendSceneMouse(list, viewport, QEvent::GraphicsSceneMousePress, position, Qt::LeftButton,
                       Qt::LeftButton);
        sendSceneMouse(list, viewport, QEvent::GraphicsSceneMouseRelease, position, Qt::LeftButton,
                       Qt::NoButton);
    };
    clickRow(0);
    clickRow(1);
    clickRow(6);
    QVERIFY(scene->showsSelection());
    QVERIFY(list->isSelected(10));
    QVERIFY(list->isSelected(5));
    QVERIFY(!list->isSelected(0));
    expectFrame(QStringLiteral("pentagon-selection"));
    history->close();
    skipWhenWriting();
}

// Line width 3, point size 12 and seven colours of their own, read as the File menu reads
// them.
void PlotFrameTest::pentagonColorFrames()
{
    PentagonOpenGLScene* scene = showPentagonTab();
    QVERIFY(scene != nullptr);
    const QString failure =
        scene->loadConfiguration(testDataPath(QStringLiteral("pentagon-colours.conf")));
    QVERIFY2(failure.isEmpty(), qPrintable(failure));
    QCOMPARE(scene->colors().lineWidth, 3);
    QCOMPARE(scene->colors().pointSize, 12);
    runPentagonAnimation(scene);
    expectFrame(QStringLiteral("pentagon-colours-lines"));
    clickButton("pentagon_userInput");
    enterPoints({{0.3, 0.3}, {0.7, 0.25}, {0.75, 0.7}, {0.35, 0.75}});
    QCOMPARE(scene->engine().getUserPointCount(), 4);
    expectFrame(QStringLiteral("pentagon-colours-points"));
    skipWhenWriting();
}

QTEST_MAIN(PlotFrameTest)
#include "PlotFrameTest.moc"
