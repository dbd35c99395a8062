#pragma once

#include "common/gui/PlotFocusWindow.h"

class AssoOpenGLScene;

// "Region focus" of the associative-law plot: its X window and Y range, plus a reset button.
class AssoFocusWindow : public quillon::PlotFocusWindow
{
    Q_OBJECT

public:
    explicit AssoFocusWindow(AssoOpenGLScene* scene);

    // Shows the scene's current window and range; moving the sliders here does not call back.
    void refresh();

    QPushButton* resetButton() const { return reset; }

private:
    AssoOpenGLScene* scene;
    QPushButton* reset;
};
