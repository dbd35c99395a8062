#include "bench/PlotTarget.h"

#include <QGraphicsScene>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>
#include <QOpenGLPaintDevice>
#include <QPainter>

PlotTarget::PlotTarget(QSize size)
{
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setProfile(QSurfaceFormat::CompatibilityProfile);
    context.setFormat(format);
    context.create();
    surface.setFormat(format);
    surface.create();
    context.makeCurrent(&surface);
    framebuffer = std::make_unique<QOpenGLFramebufferObject>(
        size, QOpenGLFramebufferObject::CombinedDepthStencil);
    framebuffer->bind();
    device = std::make_unique<QOpenGLPaintDevice>(size);
}

PlotTarget::~PlotTarget() = default;

void PlotTarget::paint(QGraphicsScene& scene)
{
    QPainter painter(device.get());
    scene.render(&painter);
    painter.end();
    context.functions()->glFinish();
}
