#include "app/GraphicsView.h"

#include <QOpenGLWidget>
#include <QResizeEvent>
#include <QSurfaceFormat>

namespace
{

QSurfaceFormat plotSurfaceFormat()
{
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setSwapBehavior(QSurfaceFormat::DoubleBuffer);
    // The scenes draw with the fixed-function pipeline, which a core profile rejects.
    format.setProfile(QSurfaceFormat::CompatibilityProfile);
    return format;
}

} // namespace

GraphicsView::GraphicsView() : QGraphicsView(static_cast<QWidget*>(nullptr))
{
    setWindowTitle(tr("Viewer"));
    // The scene always has exactly the view's size, so there is never anything to scroll to,
    // and without a frame the viewport is the whole view.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
}

void GraphicsView::resizeEvent(QResizeEvent* event)
{
    if (scene() != nullptr) {
        const QSize size = event->size();
        scene()->setSceneRect(QRectF(QRect(0, 0, size.width(), size.height())));
    }
    QGraphicsView::resizeEvent(event);
}

void GraphicsView::useOpenGLViewport()
{
    if (qobject_cast<QOpenGLWidget*>(viewport()) != nullptr) {
        return;
    }
    auto* openGLViewport = new QOpenGLWidget();
    openGLViewport->setFormat(plotSurfaceFormat());
    // Keeps the last frame in the widget's framebuffer, so it can be grabbed as drawn.
    openGLViewport->setUpdateBehavior(QOpenGLWidget::PartialUpdate);
    // The view hands its mouse tracking to its viewport only when the setting changes, so a
    // viewport that comes later takes it over here (hover highlights need it).
    openGLViewport->setMouseTracking(hasMouseTracking());
    setViewport(openGLViewport);
}
