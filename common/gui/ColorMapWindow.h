#pragma once

#include "common/core/ColorPresetGrid.h"
#include "common/core/ColorTriple.h"

#include <QWidget>
#include <array>
#include <optional>

class QLabel;
class QPushButton;
class QSlider;

namespace quillon
{

// What the plotting tabs' colour maps share: the colour being edited, shown on red, green and
// blue sliders and a preview; the "Apply" and "Reset" buttons; and, when the window has one, a
// grid of preset colours, which a click copies into the editing colour. The window's size is
// kept at every resize, which lays the widgets out again. A derived window chooses what the
// colour is for, connects the sliders and buttons to its own slots and places its widgets.
class ColorMapWindow : public QWidget
{
    Q_OBJECT

public:
    explicit ColorMapWindow(std::optional<ColorPresetGrid> grid = std::nullopt);

    const ColorTriple& editingColor() const { return editing; }
    QSlider* redSlider() const { return sliders[0]; }
    QSlider* greenSlider() const { return sliders[1]; }
    QSlider* blueSlider() const { return sliders[2]; }
    QLabel* previewLabel() const { return preview; }
    QPushButton* applyButton() const { return apply; }
    QPushButton* resetButton() const { return reset; }

protected:
    // Sets one channel (0 red, 1 green, 2 blue) or the whole editing colour, then refresh().
    void setEditingChannel(int channel, int value);
    void setEditingColor(const ColorTriple& color);
    // Shows the editing colour on the sliders (without feeding their values back, since a
    // configuration file may have put a component outside 0..255) and in the preview.
    void showEditingColor();
    // Redraws the window from its state; by default, shows the editing colour.
    virtual void refresh();
    virtual void layOut() = 0;

    // Places the three sliders from `top`, one every `rowPitch` pixels, the preview beside them
    // and the two buttons along the bottom, `buttonHeight` high.
    void layOutEditor(int top, int rowPitch, int buttonHeight);

    const ColorPresetGrid& presetGrid() const { return *grid; }
    int windowWidth() const { return storedWidth; }
    int windowHeight() const { return storedHeight; }

    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    static constexpr int kMargin = 6;

private:
    std::optional<ColorPresetGrid> grid;
    ColorTriple editing{0, 0, 0};
    int storedWidth = 0;
    int storedHeight = 0;
    std::array<QSlider*, 3> sliders{};
    std::array<QLabel*, 3> sliderLabels{};
    QLabel* preview;
    QPushButton* apply;
    QPushButton* reset;
};

} // namespace quillon
