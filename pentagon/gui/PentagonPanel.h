#pragma once

#include <array>

class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QWidget;

// The pentagon tab's control panel as the scene reaches it: the widgets of the main window's
// form, found by their object names on the tab's page.
struct PentagonPanel {
    QPushButton* in = nullptr;
    QPushButton* out = nullptr;
    QLabel* numIn = nullptr;
    QLabel* numOut = nullptr;
    QPushButton* clear = nullptr;
    QGroupBox* animationCount = nullptr;
    QRadioButton* sequentialOrder = nullptr;
    QRadioButton* alternativeOrder = nullptr;
    QGroupBox* epsilonGroup = nullptr;
    std::array<QRadioButton*, 6> epsilons{};
    QPushButton* start = nullptr;
    QRadioButton* userInput = nullptr;
    QRadioButton* animateInput = nullptr;
    QRadioButton* autoInput = nullptr;
    QGroupBox* animationPentagon = nullptr;
    QRadioButton* regular = nullptr;
    QRadioButton* defaultShape = nullptr;
    std::array<QCheckBox*, 4> items{}; // X labels, Y labels, X grid lines, Y grid lines
    QWidget* view = nullptr;

    // The panel on `page`, the tab's page of the main window's form.
    static PentagonPanel find(QWidget* page);
};
