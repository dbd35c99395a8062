#pragma once

#include "common/gui/OpenGLPlotScene.h"

// The pentagon tab's plot: the history of pentagons produced by In and Out operations,
// drawn with OpenGL in the data range xMin..xMax by yMin..yMax.
class PentagonOpenGLScene : public quillon::OpenGLPlotScene
{
    Q_OBJECT

public:
    explicit PentagonOpenGLScene(QObject* parent = nullptr);

protected:
    void drawBackground(QPainter* painter, const QRectF& rect) override;

private:
    float xMin = -0.055f;
    float xMax = 1.155f;
    float yMin = -0.055f;
    float yMax = 1.155f;
};
