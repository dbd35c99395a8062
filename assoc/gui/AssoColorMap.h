#pragma once

#include "assoc/engine/AssoRecurrence.h"
#include "common/core/ColorTriple.h"

#include <QWidget>
#include <array>

class AssoOpenGLScene;
class QLabel;
class QPushButton;
class QRadioButton;
class QSlider;

// "Color map": edits the colour of one evaluation order, with red, green and blue sliders or
// by clicking one of 48 preset colours; "Apply" gives the scene the colour, "Reset" takes the
// scene's current colour back.
class AssoColorMap : public QWidget
{
    Q_OBJECT

public:
    explicit AssoColorMap(AssoOpenGLScene* scene);

    int targetOrder() const { return target; }
    const quillon::ColorTriple& editingColor() const { return editing; }
    QRadioButton* targetButton(int order) const { return targets[order]; }
    QSlider* redSlider() const { return sliders[0]; }
    QSlider* greenSlider() const { return sliders[1]; }
    QSlider* blueSlider() const { return sliders[2]; }
    QPushButton* applyButton() const { return apply; }
    QPushButton* resetButton() const { return reset; }

public slots:
    void targetChanged(int order);
    void targetChanged1(bool chosen);
    void targetChanged2(bool chosen);
    void targetChanged3(bool chosen);
    void targetChanged4(bool chosen);
    void targetChanged5(bool chosen);
    void Rchanged(int value);
    void Gchanged(int value);
    void Bchanged(int value);
    void applyColorChange();
    void resetColorChange();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void refresh();
    void layOut();
    void takeSceneColor(int order);

    AssoOpenGLScene* scene;
    int target = -1;
    quillon::ColorTriple editing{0, 0, 0};
    int windowWidth = 0;
    int windowHeight = 0;
    class QGroupBox* targetGroup;
    std::array<QRadioButton*, kAssoOrderCount> targets{};
    std::array<QSlider*, 3> sliders{};
    std::array<QLabel*, 3> sliderLabels{};
    QLabel* preview;
    QPushButton* apply;
    QPushButton* reset;
};
