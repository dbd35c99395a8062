#include "app/GraphicsView.h"

#include <QResizeEvent>

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
