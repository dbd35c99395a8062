#pragma once

#include "common/core/ColorTriple.h"

#include <QWidget>
#include <array>

class SineOpenGLScene;
class SineStatusWindow;
class QComboBox;
class QLabel;
class QPushButton;
class QSlider;

// "Color map": edits the colour of the library line or of one approach, chosen with
// "Method:", with red, green and blue sliders and a preview; "Apply" gives the scene the
// colour, "Reset" takes the scene's colour back.
class SineColorMap : public QWidget
{
    Q_OBJECT

public:
    explicit SineColorMap(SineOpenGLScene* scene);

    // The status window whose swatches follow an applied colour; none by default.
    void setStatusWindow(SineStatusWindow* window) { statusWindow = window; }

    // 0 is the library sine, 1..12 the approaches (the combo box's index).
    int targetSlot() const { return target; }
    const quillon::ColorTriple& pendingColor() const { return pending; }
    QComboBox* methodComboBox() const { return methods; }
    QSlider* redSlider() const { return sliders[0]; }
    QSlider* greenSlider() const { return sliders[1]; }
    QSlider* blueSlider() const { return sliders[2]; }
    QLabel* previewLabel() const { return preview; }
    QPushButton* applyButton() const { return apply; }
    QPushButton* resetButton() const { return reset; }

public slots:
    void targetChanged(int slot);
    void Rchanged(int value);
    void Gchanged(int value);
    void Bchanged(int value);
    void applyColorChange();
    void resetColorChange();

private:
    QWidget* makeMethodGroup();
    QWidget* makeColorEditor();
    QWidget* makeButtons();
    void takeSceneColor();
    void showPendingColor();

    SineOpenGLScene* scene;
    SineStatusWindow* statusWindow = nullptr;
    int target = 0;
    quillon::ColorTriple pending{0, 0, 0};
    QComboBox* methods;
    std::array<QSlider*, 3> sliders{};
    QLabel* preview;
    QPushButton* apply;
    QPushButton* reset;
};
