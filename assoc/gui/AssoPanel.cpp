#include "assoc/gui/AssoPanel.h"

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
        qFatal("the associative-law page has no widget named %s", name);
    }
    return widget;
}

} // namespace

AssoPanel AssoPanel::find(QWidget* page, QTimer* timer)
{
    AssoPanel panel;
    panel.mainWindow = page->window();
    panel.iterations = panelChild<QLineEdit>(page, "associativelaw_iteration_input");
    panel.x0 = panelChild<QLineEdit>(page, "associativelaw_X_input");
    panel.r = panelChild<QLineEdit>(page, "associativelaw_R_input");
    panel.calculate = panelChild<QPushButton>(page, "associativelaw_calculate");
    panel.accelerate = panelChild<QPushButton>(page, "associativelaw_acceleration");
    panel.decelerate = panelChild<QPushButton>(page, "associativelaw_deceleration");
    panel.pause = panelChild<QPushButton>(page, "associativelaw_pause");
    panel.timeSlider = panelChild<QSlider>(page, "associativelaw_time_slider");
    panel.timeStart = panelChild<QLabel>(page, "associativelaw_time_start_l");
    panel.timeValue = panelChild<QLabel>(page, "associativelaw_time_value_l");
    panel.timeEnd = panelChild<QLabel>(page, "associativelaw_time_end_l");
    panel.timer = timer;
    return panel;
}
