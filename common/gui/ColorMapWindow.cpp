#include "common/gui/ColorMapWindow.h"

#include "common/picture/QtColor.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QSlider>

namespace quillon
{

ColorMapWindow::ColorMapWindow(std::optional<ColorPresetGrid> grid)
    : QWidget(nullptr), grid(grid), preview(new QLabel(this)),
      apply(new QPushButton(tr("Apply"), this)), reset(new QPushButton(tr("Reset"), this))
{
    setWindowTitle(tr("Color map"));
    setFont(QFont(QStringLiteral("Arial")));
    const QString channels[3] = {tr("R"), tr("G"), tr("B")};
    for (int i = 0; i < 3; ++i) {
        sliders[i] = new QSlider(Qt::Horizontal, this);
        sliders[i]->setRange(0, 255);
        sliderLabels[i] = new QLabel(channels[i], this);
    }
    preview->setAutoFillBackground(true);
    preview->setFrameShape(QFrame::Box);
}

void ColorMapWindow::setEditingChannel(int channel, int value)
{
    int32_t* components[3] = {&editing.red, &editing.green, &editing.blue};
    *components[channel] = value;
    refresh();
}

void ColorMapWindow::setEditingColor(const ColorTriple& color)
{
    editing = color;
    refresh();
}

void ColorMapWindow::showEditingColor()
{
    const int components[3] = {editing.red, editing.green, editing.blue};
    for (int i = 0; i < 3; ++i) {
        const QSignalBlocker blocker(sliders[i]);
        sliders[i]->setValue(components[i]);
    }
    QPalette palette = preview->palette();
    palette.setColor(QPalette::Window, toQColor(editing));
    preview->setPalette(palette);
    update();
}

void ColorMapWindow::refresh()
{
    showEditingColor();
}

void ColorMapWindow::layOutEditor(int top, int rowPitch, int buttonHeight)
{
    const int labelWidth = 20;
    const int sliderWidth = storedWidth * 3 / 5;
    for (int i = 0; i < 3; ++i) {
        sliderLabels[i]->setGeometry(kMargin, top + i * rowPitch, labelWidth, rowPitch);
        sliders[i]->setGeometry(kMargin + labelWidth, top + i * rowPitch, sliderWidth, rowPitch);
    }
    const int previewLeft = kMargin * 3 + labelWidth + sliderWidth;
    preview->setGeometry(previewLeft, top, storedWidth - previewLeft - kMargin, rowPitch * 3);
    const int buttonsTop = storedHeight - buttonHeight - kMargin;
    const int buttonWidth = storedWidth / 2 - 2 * kMargin;
    apply->setGeometry(kMargin, buttonsTop, buttonWidth, buttonHeight);
    reset->setGeometry(storedWidth / 2 + kMargin, buttonsTop, buttonWidth, buttonHeight);
}

void ColorMapWindow::paintEvent(QPaintEvent*)
{
    if (!grid) {
        return;
    }
    QPainter painter(this);
    painter.setPen(Qt::black);
    for (int preset = 0; preset < grid->columns * grid->rows; ++preset) {
        const PresetCell cell = presetCell(*grid, preset, storedWidth, storedHeight);
        const QRect rect(cell.x, cell.y, cell.width, cell.height);
        painter.fillRect(rect, toQColor(presetColors()[size_t(preset)]));
        painter.drawRect(rect.adjusted(0, 0, -1, -1));
    }
}

void ColorMapWindow::mouseReleaseEvent(QMouseEvent* event)
{
    if (!grid) {
        return;
    }
    const QPoint position = event->position().toPoint();
    const int preset = presetAt(*grid, position.x(), position.y(), storedWidth, storedHeight);
    if (preset >= 0) {
        setEditingColor(presetColors()[size_t(preset)]);
    }
}

void ColorMapWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    storedWidth = width();
    storedHeight = height();
    layOut();
}

} // namespace quillon
