#pragma once

#include "common/gui/PlotFocusWindow.h"

class SineOpenGLScene;

// "Region focus" of the sine plot: its X window and Y range, with "Apply" for the typed range
// and "Reset" for the whole view.
class SineFocusWindow : public quillon::PlotFocusWindow
{
    Q_OBJECT

public:
    explicit SineFocusWindow(SineOpenGLScene* scene);

    // Shows the scene's current window and range; setting the controls here does not call
    // back.
    void refresh();

    QPushButton* applyButton() const { return apply; }
    QPushButton* resetButton() const { return reset; }

private:
    void connectToScene();

    SineOpenGLScene* scene;
    QPushButton* apply;
    QPushButton* reset;
};
