#include "common/gui/GlPlotFrame.h"

#include <QPaintDevice>
#include <QPainter>

#include <GL/gl.h>
#include <GL/glu.h>

namespace quillon
{

GlPlotFrame::GlPlotFrame(QPainter* painter) : painter(painter)
{
    painter->beginNativePainting();
    glPushAttrib(GL_ALL_ATTRIB_BITS);
    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    const QPaintDevice* device = painter->device();
    const qreal ratio = device->devicePixelRatioF();
    glViewport(0, 0, static_cast<GLsizei>(device->width() * ratio),
               static_cast<GLsizei>(device->height() * ratio));
}

GlPlotFrame::~GlPlotFrame()
{
    glFlush();
    glMatrixMode(GL_PROJECTION);
    glPopMatrix();
    glMatrixMode(GL_MODELVIEW);
    glPopMatrix();
    glPopAttrib();
    painter->endNativePainting();
}

void GlPlotFrame::clearToWhite()
{
    glClearColor(1.0f, 1.0f, 1.0f, 1.0f);
    glEnable(GL_DEPTH_TEST);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

void GlPlotFrame::lookAtOrthographic(double left, double right, double bottom, double top)
{
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(left, right, bottom, top, 0.1, 1000.0);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    gluLookAt(0.0, 0.0, 20.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0);
}

} // namespace quillon
