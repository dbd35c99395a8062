#pragma once

#include "common/gui/OpenGLPlotScene.h"

// The sine tab's plot: the Taylor partial sums of twelve approaches against the term index.
// The background is drawn with OpenGL in a box that spans -1.5..1.5 horizontally and
// yLow..yHigh vertically.
class SineOpenGLScene : public quillon::OpenGLPlotScene
{
    Q_OBJECT

public:
    explicit SineOpenGLScene(QObject* parent = nullptr);

protected:
    void drawBackground(QPainter* painter, const QRectF& rect) override;

private:
    float yLow = -1.5f;
    float yHigh = 1.5f;
};
