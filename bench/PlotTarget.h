#pragma once

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QSize>
#include <memory>

class QGraphicsScene;
class QOpenGLFramebufferObject;
class QOpenGLPaintDevice;

// The size of a plot view in the main window at its opening size.
inline const QSize kPlotViewSize(810, 770);

// An OpenGL framebuffer of a plot view's size to paint a scene into, as the view does.
class PlotTarget
{
public:
    explicit PlotTarget(QSize size);
    ~PlotTarget();

    // Paints both passes of the scene and waits until OpenGL has finished them.
    void paint(QGraphicsScene& scene);

private:
    QOpenGLContext context;
    QOffscreenSurface surface;
    std::unique_ptr<QOpenGLFramebufferObject> framebuffer;
    std::unique_ptr<QOpenGLPaintDevice> device;
};
