#include "assoc/gui/AssoPanel.h"

#include "common/gui/PageChild.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>

AssoPanel AssoPanel::find(QWidget* page, QTimer* timer)
{
    AssoPanel panel;
    panel.mainWindow = page->window();
    panel.iterations =
        quillon::pageChild<QLineEdit>(page, QStringLiteral("associativelaw_iteration_input"));
    panel.x0 = quillon::pageChild<QLineEdit>(page, QStringLiteral("associativelaw_X_input"));
    panel.r = quillon::pageChild<QLineEdit>(page, QStringLiteral("associativelaw_R_input"));
    panel.calculate =
        quillon::pageChild<QPushButton>(page, QStringLiteral("associativelaw_calculate"));
    panel.accelerate =
        quillon::pageChild<QPushButton>(page, QStringLiteral("associativelaw_acceleration"));
    panel.decelerate =
        quillon::pageChild<QPushButton>(page, QStringLiteral("associativelaw_deceleration"));
    panel.pause = quillon::pageChild<QPushButton>(page, QStringLiteral("associativelaw_pause"));
    panel.timeSlider =
        quillon::pageChild<QSlider>(page, QStringLiteral("associativelaw_time_slider"));
    panel.timeStart =
        quillon::pageChild<QLabel>(page, QStringLiteral("associativelaw_time_start_l"));
    panel.timeValue =
        quillon::pageChild<QLabel>(page, QStringLiteral("associativelaw_time_value_l"));
    panel.timeEnd = quillon::pageChild<QLabel>(page, QStringLiteral("associativelaw_time_end_l"));
    panel.timer = timer;
    return panel;
}
