#pragma once

class QLabel;
class QPushButton;
class QSlider;
class QTimer;
class QWidget;

namespace quillon
{

// The animation controls of a plotting tab's panel as its scene reaches them: the speed and
// pause buttons, the time slider with its three labels and the tab's timer (which the main
// window owns). Each tab's panel adds its own inputs.
struct PlotAnimationPanel {
    QWidget* mainWindow = nullptr;
    QPushButton* accelerate = nullptr;
    QPushButton* decelerate = nullptr;
    QPushButton* pause = nullptr;
    QSlider* timeSlider = nullptr;
    QLabel* timeStart = nullptr;
    QLabel* timeValue = nullptr;
    QLabel* timeEnd = nullptr;
    QTimer* timer = nullptr;
};

} // namespace quillon
