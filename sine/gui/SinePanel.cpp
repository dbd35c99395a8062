#include "sine/gui/SinePanel.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>

namespace
{

template <typename Widget> Widget* panelChild(QWidget* page, const char* name)
{
    auto* widget = page->findChild<Widget*>(QString::fromLatin1(name));
    if (widget == nullptr) {
        qFatal("the sine page has no widget named %s", name);
    }
    return widget;
}

} // namespace

SinePanel SinePanel::find(QWidget* page, QTimer* timer)
{
    SinePanel panel;
    panel.mainWindow = page->window();
    panel.iterations = panelChild<QLineEdit>(page, "sine_iteration_input");
    panel.x = panelChild<QLineEdit>(page, "sine_X_input");
    panel.calculate = panelChild<QPushButton>(page, "sine_calculate");
    panel.showBoundary = panelChild<QCheckBox>(page, "sine_showboundary");
    panel.showValues = panelChild<QCheckBox>(page, "sine_showvalues");
    panel.showXAxis = panelChild<QCheckBox>(page, "sine_showXAxis");
    panel.showYAxis = panelChild<QCheckBox>(page, "sine_showYAxis");
    panel.showXIndices = panelChild<QCheckBox>(page, "sine_showXIndices");
    panel.showYIndices = panelChild<QCheckBox>(page, "sine_showYIndices");
    panel.showLabels = panelChild<QCheckBox>(page, "sine_showLabels");
    panel.errorComparison = panelChild<QCheckBox>(page, "sine_needErrorComparison");
    panel.decelerate = panelChild<QPushButton>(page, "sine_deceleration");
    panel.accelerate = panelChild<QPushButton>(page, "sine_acceleration");
    panel.pause = panelChild<QPushButton>(page, "sine_pause");
    panel.timeSlider = panelChild<QSlider>(page, "sine_time_slider");
    panel.timeStart = panelChild<QLabel>(page, "sine_time_start_l");
    panel.timeValue = panelChild<QLabel>(page, "sine_time_value_l");
    panel.timeEnd = panelChild<QLabel>(page, "sine_time_end_l");
    panel.timer = timer;
    return panel;
}
