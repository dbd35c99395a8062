#include "app/MainWindow.h"
#include "assoc/gui/AssoOpenGLScene.h"
#include "sine/gui/SineOpenGLScene.h"
#include "tests/gui/GuiTestSupport.h"

#include <QDir>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QtTest>
#include <functional>
#include <memory>

// The Associative Law and Sine plots, frame by frame, against stored pictures: the default
// frame, a frame in the middle of the animation, one with error comparison, value labels and
// both kinds of grid lines on, and the frames of a drag (rubber band, then the zoomed view)
// and of a hover over the legend. A changed pixel fails; the frame drawn is saved in the
// test's working folder so it can be looked at.
//
// QUILLON_WRITE_FRAME_PICTURES=1 stores the frames drawn now as the new pictures instead (and
// skips, so that a run that writes never passes as a check).
namespace
{

constexpr int kWindowWidth = 1200;
constexpr int kWindowHeight = 860;

QString picturePath(const QString& name)
{
    return QDir(QStringLiteral(QUILLON_TEST_DATA_DIR)).filePath(name + QStringLiteral(".png"));
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

} // namespace

class PlotFrameTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void associativeLawFrames();
    void sineFrames();

private:
    QGraphicsView* showTab(int tab, const char* placeholder, const char* timer);
    void expectFrame(const QString& name);
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

// Mouse events go straight to the scene, as the view hands them over, so that each one has
// taken effect before the next frame is painted.
void PlotFrameTest::sendMouse(QEvent::Type type, double fx, double fy, Qt::MouseButton button,
                              Qt::MouseButtons buttons)
{
    QGraphicsSceneMouseEvent event(type);
    const QPointF position(qRound(view->width() * fx), qRound(view->height() * fy));
    event.setScenePos(position);
    event.setScreenPos(view->viewport()->mapToGlobal(position.toPoint()));
    event.setButton(button);
    event.setButtons(buttons);
    event.setAccepted(false);
    QApplication::sendEvent(view->scene(), &event);
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
    if (writingPictures()) {
        QSKIP(qPrintable(QStringLiteral("wrote ") + written.join(QStringLiteral(", "))));
    }
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
    if (writingPictures()) {
        QSKIP(qPrintable(QStringLiteral("wrote ") + written.join(QStringLiteral(", "))));
    }
}

QTEST_MAIN(PlotFrameTest)
#include "PlotFrameTest.moc"
