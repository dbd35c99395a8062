#pragma once

class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;
class QTimer;
class QWidget;

// The associative-law tab's control panel as the scene reaches it: the widgets of the main
// window's form (found by their object names on the tab's page) and the tab's animation
// timer, which the main window owns.
struct AssoPanel {
    QWidget* mainWindow = nullptr;
    QLineEdit* iterations = nullptr;
    QLineEdit* x0 = nullptr;
    QLineEdit* r = nullptr;
    QPushButton* calculate = nullptr;
    QPushButton* accelerate = nullptr;
    QPushButton* decelerate = nullptr;
    QPushButton* pause = nullptr;
    QSlider* timeSlider = nullptr;
    QLabel* timeStart = nullptr;
    QLabel* timeValue = nullptr;
    QLabel* timeEnd = nullptr;
    QTimer* timer = nullptr;

    // The panel on `page`, the tab's page of the main window's form.
    static AssoPanel find(QWidget* page, QTimer* timer);
};
