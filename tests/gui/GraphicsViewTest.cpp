#include "app/GraphicsView.h"
#include "app/MainWindow.h"
#include "common/gui/GlPlotFrame.h"

#include <GL/gl.h>
#include <QOpenGLContext>
#include <QOpenGLWidget>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabWidget>
#include <QtTest>

namespace
{

// Paints the left half of the plot red through the shared OpenGL frame, to show that a
// scene's background pass really draws with OpenGL in the projection it asks for.
class HalfRedScene : public QGraphicsScene
{
protected:
    void drawBackground(QPainter* painter, const QRectF&) override
    {
        quillon::GlPlotFrame frame(painter);
        frame.clearToWhite();
        frame.lookAtOrthographic(-1.5, 1.5, -1.5, 1.5);
        glColor3f(1.0f, 0.0f, 0.0f);
        glBegin(GL_QUADS);
        glVertex3f(-1.5f, -1.5f, 0.0f);
        glVertex3f(0.0f, -1.5f, 0.0f);
        glVertex3f(0.0f, 1.5f, 0.0f);
        glVertex3f(-1.5f, 1.5f, 0.0f);
        glEnd();
    }
};

struct PlotTab {
    int index;
    const char* placeholder;
};

const PlotTab kPlotTabs[] = {
    {1, "pentagon_VisWindow"}, {2, "associativelaw_VisWindow"}, {3, "sine_VisWindow"}};

GraphicsView* viewIn(MainWindow& window, const char* placeholder)
{
    return window.findChild<QWidget*>(QString::fromLatin1(placeholder))->findChild<GraphicsView*>();
}

QImage grabPlot(GraphicsView* view)
{
    auto* viewport = qobject_cast<QOpenGLWidget*>(view->viewport());
    return viewport->grabFramebuffer();
}

} // namespace

class GraphicsViewTest : public QObject
{
    Q_OBJECT

private slots:
    void newViewIsTitledViewer();
    void resizeWithoutSceneTouchesNoScene();
    void resizeSetsSceneRectToTheNewSize();
    void plotViewsHaveOpenGLViewportsAndNoScrollBars();
    void plotViewsTakeOpenGLWhenTheirTabIsFirstShown();
    void eachPlotViewRendersItsWhiteBackgroundThroughOpenGL();
    void backgroundPassDrawsWithOpenGLInTheRequestedBox();
};

void GraphicsViewTest::newViewIsTitledViewer()
{
    GraphicsView view;
    QCOMPARE(view.windowTitle(), QStringLiteral("Viewer"));
    QVERIFY(view.parent() == nullptr);
}

void GraphicsViewTest::resizeWithoutSceneTouchesNoScene()
{
    QGraphicsScene later;
    later.setSceneRect(1, 2, 3, 4);
    QSignalSpy changes(&later, &QGraphicsScene::sceneRectChanged);
    GraphicsView view;
    view.resize(321, 123);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.resize(400, 300);
    QTRY_COMPARE(view.size(), QSize(400, 300));
    // The resizes before a scene was set neither reach the scene attached now nor fix the
    // view's own idea of the scene's rectangle.
    view.setScene(&later);
    QApplication::processEvents();
    QCOMPARE(later.sceneRect(), QRectF(1, 2, 3, 4));
    QCOMPARE(view.sceneRect(), QRectF(1, 2, 3, 4));
    QCOMPARE(changes.count(), 0);
    // From now on the view's size is the scene's.
    view.resize(500, 200);
    QTRY_COMPARE(later.sceneRect(), QRectF(0, 0, 500, 200));
}

void GraphicsViewTest::resizeSetsSceneRectToTheNewSize()
{
    QGraphicsScene scene;
    GraphicsView view;
    view.setScene(&scene);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    for (const QSize size : {QSize(640, 480), QSize(333, 777), QSize(1, 1)}) {
        view.resize(size);
        QTRY_COMPARE(view.size(), size);
        QCOMPARE(scene.sceneRect(), QRectF(0, 0, size.width(), size.height()));
    }
}

void GraphicsViewTest::plotViewsHaveOpenGLViewportsAndNoScrollBars()
{
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    for (const PlotTab& tab : kPlotTabs) {
        window.findChild<QTabWidget*>(QStringLiteral("tabWidget"))->setCurrentIndex(tab.index);
        GraphicsView* view = viewIn(window, tab.placeholder);
        QVERIFY(view != nullptr);
        QVERIFY(view->scene() != nullptr);
        auto* viewport = qobject_cast<QOpenGLWidget*>(view->viewport());
        QVERIFY2(viewport != nullptr, tab.placeholder);
        QTRY_VERIFY(viewport->isValid());
        QCOMPARE(viewport->format().profile(), QSurfaceFormat::CompatibilityProfile);
        QVERIFY(viewport->format().depthBufferSize() > 0);
        QCOMPARE(view->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(view->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QVERIFY(!view->horizontalScrollBar()->isVisible());
        QVERIFY(!view->verticalScrollBar()->isVisible());
        QVERIFY(view->testAttribute(Qt::WA_MouseTracking));
        QVERIFY(viewport->hasMouseTracking());
        QCOMPARE(view->viewportUpdateMode(), QGraphicsView::FullViewportUpdate);
        QCOMPARE(view->viewport()->size(), view->size());
    }
}

// The window opens on the Roots tab without OpenGL; each plot view gets its OpenGL viewport
// when its tab is first chosen, and keeps that one viewport from then on.
void GraphicsViewTest::plotViewsTakeOpenGLWhenTheirTabIsFirstShown()
{
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto* tabs = window.findChild<QTabWidget*>(QStringLiteral("tabWidget"));
    for (const PlotTab& tab : kPlotTabs) {
        QVERIFY2(qobject_cast<QOpenGLWidget*>(viewIn(window, tab.placeholder)->viewport()) ==
                     nullptr,
                 tab.placeholder);
    }
    for (const PlotTab& tab : kPlotTabs) {
        tabs->setCurrentIndex(tab.index);
        QWidget* viewport = viewIn(window, tab.placeholder)->viewport();
        QVERIFY2(qobject_cast<QOpenGLWidget*>(viewport) != nullptr, tab.placeholder);
        tabs->setCurrentIndex(0);
        tabs->setCurrentIndex(tab.index);
        QCOMPARE(viewIn(window, tab.placeholder)->viewport(), viewport);
    }
    for (const PlotTab& tab : kPlotTabs) {
        GraphicsView* view = viewIn(window, tab.placeholder);
        tabs->setCurrentIndex(tab.index);
        QTRY_VERIFY(qobject_cast<QOpenGLWidget*>(view->viewport())->isValid());
    }
}

void GraphicsViewTest::eachPlotViewRendersItsWhiteBackgroundThroughOpenGL()
{
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    // The pentagon tab, whose thin lines leave the background nearly all white; each tab's
    // own drawing is checked by its own tests.
    for (const PlotTab& tab : {kPlotTabs[0]}) {
        window.findChild<QTabWidget*>(QStringLiteral("tabWidget"))->setCurrentIndex(tab.index);
        GraphicsView* view = viewIn(window, tab.placeholder);
        QVERIFY(QTest::qWaitForWindowExposed(view));
        QImage frame;
        QTRY_VERIFY((frame = grabPlot(view)).size() == view->viewport()->size());
        const QImage rgb = frame.convertToFormat(QImage::Format_RGB32);
        int white = 0;
        int sampled = 0;
        for (int y = 0; y < rgb.height(); y += 7) {
            for (int x = 0; x < rgb.width(); x += 7) {
                white += QColor(rgb.pixel(x, y)) == QColor(Qt::white) ? 1 : 0;
                ++sampled;
            }
        }
        QVERIFY2(white > sampled * 9 / 10, qPrintable(QString::number(white)));
        for (const QPoint corner : {QPoint(0, 0), QPoint(rgb.width() - 1, rgb.height() - 1)}) {
            QCOMPARE(QColor(rgb.pixel(corner)), QColor(Qt::white));
        }
    }
}

void GraphicsViewTest::backgroundPassDrawsWithOpenGLInTheRequestedBox()
{
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.findChild<QTabWidget*>(QStringLiteral("tabWidget"))->setCurrentIndex(2);
    GraphicsView* view = viewIn(window, "associativelaw_VisWindow");
    HalfRedScene scene;
    view->setScene(&scene);
    scene.setSceneRect(QRectF(QPointF(0, 0), QSizeF(view->size())));
    scene.update();
    const int w = view->viewport()->width();
    const int h = view->viewport()->height();
    QTRY_COMPARE(QColor(grabPlot(view).pixel(w / 4, h / 2)), QColor(Qt::red));
    const QImage frame = grabPlot(view);
    QCOMPARE(QColor(frame.pixel(5, 5)), QColor(Qt::red));
    QCOMPARE(QColor(frame.pixel(w * 3 / 4, h / 2)), QColor(Qt::white));
    QCOMPARE(QColor(frame.pixel(w - 5, h - 5)), QColor(Qt::white));
    view->setScene(nullptr);
}

QTEST_MAIN(GraphicsViewTest)
#include "GraphicsViewTest.moc"
