#pragma once

#include "common/gui/PlotAnimationPanel.h"

class QCheckBox;
class QLineEdit;

// The sine tab's control panel as the scene reaches it: the widgets of the main window's form
// (found by their object names on the tab's page) and the tab's animation timer, which the
// main window owns.
struct SinePanel : quillon::PlotAnimationPanel {
    QLineEdit* iterations = nullptr;
    QLineEdit* x = nullptr;
    QPushButton* calculate = nullptr;
    QCheckBox* showBoundary = nullptr;
    QCheckBox* showValues = nullptr;
    QCheckBox* showXAxis = nullptr;
    QCheckBox* showYAxis = nullptr;
    QCheckBox* showXIndices = nullptr;
    QCheckBox* showYIndices = nullptr;
    QCheckBox* showLabels = nullptr;
    QCheckBox* errorComparison = nullptr;

    // The panel on `page`, the tab's page of the main window's form.
    static SinePanel find(QWidget* page, QTimer* timer);
};
