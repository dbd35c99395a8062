#pragma once

#include "gui/OpenGLPlotScene.h"

// The associative-law tab's plot: the five evaluation orders of the recurrence drawn against
// the iteration number. The background is drawn with OpenGL in a box that spans -1.5..1.5
// horizontally and yMin..yMax vertically.
class AssoOpenGLScene : public quillon::OpenGLPlotScene
{
    Q_OBJECT

public:
    explicit AssoOpenGLScene(QObject* parent = nullptr);

protected:
    void drawBackground(QPainter* painter, const QRectF& rect) override;

private:
    float yMax = 1.5f;
    float yMin = -1.5f;
};
