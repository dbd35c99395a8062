#pragma once

#include <QGraphicsView>

// The view of every plotting tab. Its one job: keep the scene rectangle equal to the view's
// own size, so that scene coordinates are view pixels and each scene lays its plot out from
// its scene rectangle.
class GraphicsView : public QGraphicsView
{
    Q_OBJECT

public:
    GraphicsView();

    // Makes the view draw through an OpenGL viewport (the scenes' background passes are
    // OpenGL); a view that already has one keeps it.
    void useOpenGLViewport();

protected:
    void resizeEvent(QResizeEvent* event) override;
};
