#pragma once

#include <QGraphicsScene>

namespace quillon
{

// What the main window needs of every plotting module's scene: the paused flag that the
// module's own pause control toggles (the window sets it when the user leaves the tab) and
// a repaint of the whole scene.
class OpenGLPlotScene : public QGraphicsScene
{
    Q_OBJECT

public:
    explicit OpenGLPlotScene(QObject* parent = nullptr);

    bool isPaused() const { return paused; }
    void setPaused(bool value) { paused = value; }

    // Requests a repaint of the whole scene rectangle.
    void repaint();

private:
    bool paused = false;
};

} // namespace quillon
