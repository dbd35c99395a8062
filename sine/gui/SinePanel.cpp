#include "sine/gui/SinePanel.h"

#include "common/gui/PageChild.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>

SinePanel SinePanel::find(QWidget* page, QTimer* timer)
{
    SinePanel panel;
    panel.mainWindow = page->window();
    panel.iterations = quillon::pageChild<QLineEdit>(page, QStringLiteral("sine_iteration_input"));
    panel.x = quillon::pageChild<QLineEdit>(page, QStringLiteral("sine_X_input"));
    panel.calculate = quillon::pageChild<QPushButton>(page, QStringLiteral("sine_calculate"));
    panel.showBoundary = quillon::pageChild<QCheckBox>(page, QStringLiteral("sine_showboundary"));
    panel.showValues = quillon::pageChild<QCheckBox>(page, QStringLiteral("sine_showvalues"));
    panel.showXAxis = quillon::pageChild<QCheckBox>(page, QStringLiteral("sine_showXAxis"));
    panel.showYAxis = quillon::pageChild<QCheckBox>(page, QStringLiteral("sine_showYAxis"));
    panel.showXIndices = quillon::pageChild<QCheckBox>(page, QStringLiteral("sine_showXIndices"));
    panel.showYIndices = quillon::pageChild<QCheckBox>(page, QStringLiteral("sine_showYIndices"));
    panel.showLabels = quillon::pageChild<QCheckBox>(page, QStringLiteral("sine_showLabels"));
    panel.errorComparison =
        quillon::pageChild<QCheckBox>(page, QStringLiteral("sine_needErrorComparison"));
    panel.decelerate = quillon::pageChild<QPushButton>(page, QStringLiteral("sine_deceleration"));
    panel.accelerate = quillon::pageChild<QPushButton>(page, QStringLiteral("sine_acceleration"));
    panel.pause = quillon::pageChild<QPushButton>(page, QStringLiteral("sine_pause"));
    panel.timeSlider = quillon::pageChild<QSlider>(page, QStringLiteral("sine_time_slider"));
    panel.timeStart = quillon::pageChild<QLabel>(page, QStringLiteral("sine_time_start_l"));
    panel.timeValue = quillon::pageChild<QLabel>(page, QStringLiteral("sine_time_value_l"));
    panel.timeEnd = quillon::pageChild<QLabel>(page, QStringLiteral("sine_time_end_l"));
    panel.timer = timer;
    return panel;
}
