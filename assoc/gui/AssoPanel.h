#pragma once

#include "common/gui/PlotAnimationPanel.h"

class QLineEdit;

// The associative-law tab's control panel as the scene reaches it: the widgets of the main
// window's form (found by their object names on the tab's page) and the tab's animation
// timer, which the main window owns.
struct AssoPanel : quillon::PlotAnimationPanel {
    QLineEdit* iterations = nullptr;
    QLineEdit* x0 = nullptr;
    QLineEdit* r = nullptr;
    QPushButton* calculate = nullptr;

    // The panel on `page`, the tab's page of the main window's form.
    static AssoPanel find(QWidget* page, QTimer* timer);
};
