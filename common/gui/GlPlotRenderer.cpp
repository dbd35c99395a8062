#include "common/gui/GlPlotRenderer.h"

#include "common/gui/GlPlotFrame.h"

#include <GL/gl.h>

namespace quillon
{

namespace
{

void drawStroke(const PlotStroke& stroke)
{
    const bool lines = stroke.kind == PlotStroke::Kind::Lines;
    if (lines) {
        glLineWidth(stroke.width);
    } else {
        glPointSize(stroke.width);
    }
    if (stroke.stipple != 0) {
        glLineStipple(1, stroke.stipple);
        glEnable(GL_LINE_STIPPLE);
    } else {
        glDisable(GL_LINE_STIPPLE);
    }
    glBegin(lines ? GL_LINES : GL_POINTS);
    const PlotRgb* current = nullptr;
    for (const PlotVertex& vertex : stroke.vertices) {
        if (current == nullptr || !(*current == vertex.color)) {
            glColor3f(vertex.color.red, vertex.color.green, vertex.color.blue);
            current = &vertex.color;
        }
        glVertex3f(vertex.x, vertex.y, stroke.depth);
    }
    glEnd();
}

} // namespace

void drawPlotBackgroundGl(QPainter* painter, const PlotBackground& background)
{
    GlPlotFrame frame(painter);
    frame.clearToWhite();
    frame.lookAtOrthographic(background.left, background.right, background.bottom, background.top);
    for (const PlotStroke& stroke : background.strokes) {
        drawStroke(stroke);
    }
}

} // namespace quillon
