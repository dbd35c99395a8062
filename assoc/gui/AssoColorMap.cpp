#include "assoc/gui/AssoColorMap.h"

#include "assoc/engine/AssoPlotGeometry.h"
#include "assoc/gui/AssoOpenGLScene.h"
#include "common/gui/ColorPresetPainter.h"
#include "common/gui/GroupBoxStyle.h"
#include "common/gui/ImageLookup.h"
#include "common/gui/QtColor.h"

#include <QGroupBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QVBoxLayout>

AssoColorMap::AssoColorMap(AssoOpenGLScene* scene)
    : QWidget(nullptr), scene(scene), targetGroup(new QGroupBox(tr("Select a method"), this)),
      preview(new QLabel(this)), apply(new QPushButton(tr("Apply"), this)),
      reset(new QPushButton(tr("Reset"), this))
{
    setWindowTitle(tr("Color map"));
    setFont(QFont(QStringLiteral("Arial")));
    targetGroup->setStyleSheet(quillon::groupBoxStyleSheet());
    auto* targetLayout = new QVBoxLayout(targetGroup);
    for (int k = 0; k < kAssoOrderCount; ++k) {
        targets[k] = new QRadioButton;
        targets[k]->setIcon(
            QIcon(QPixmap::fromImage(quillon::loadImage(QStringLiteral("func%1.png").arg(k + 1)))));
        targets[k]->setIconSize(QSize(296, 20));
        targetLayout->addWidget(targets[k]);
    }
    const char* channels[3] = {"R", "G", "B"};
    for (int i = 0; i < 3; ++i) {
        sliders[i] = new QSlider(Qt::Horizontal, this);
        sliders[i]->setRange(0, 255);
        sliderLabels[i] = new QLabel(QString::fromLatin1(channels[i]), this);
    }
    preview->setAutoFillBackground(true);
    preview->setFrameShape(QFrame::Box);

    connect(targets[0], &QRadioButton::toggled, this, &AssoColorMap::targetChanged1);
    connect(targets[1], &QRadioButton::toggled, this, &AssoColorMap::targetChanged2);
    connect(targets[2], &QRadioButton::toggled, this, &AssoColorMap::targetChanged3);
    connect(targets[3], &QRadioButton::toggled, this, &AssoColorMap::targetChanged4);
    connect(targets[4], &QRadioButton::toggled, this, &AssoColorMap::targetChanged5);
    connect(sliders[0], &QSlider::valueChanged, this, &AssoColorMap::Rchanged);
    connect(sliders[1], &QSlider::valueChanged, this, &AssoColorMap::Gchanged);
    connect(sliders[2], &QSlider::valueChanged, this, &AssoColorMap::Bchanged);
    connect(apply, &QPushButton::clicked, this, &AssoColorMap::applyColorChange);
    connect(reset, &QPushButton::clicked, this, &AssoColorMap::resetColorChange);
    resize(440, 550);
    refresh();
}

void AssoColorMap::takeSceneColor(int order)
{
    editing = scene->colors()[order];
    refresh();
    update();
}

void AssoColorMap::targetChanged(int order)
{
    takeSceneColor(order);
}

void AssoColorMap::targetChanged1(bool chosen)
{
    if (chosen) {
        takeSceneColor(0);
    }
}

void AssoColorMap::targetChanged2(bool chosen)
{
    if (chosen) {
        takeSceneColor(1);
    }
}

void AssoColorMap::targetChanged3(bool chosen)
{
    if (chosen) {
        takeSceneColor(2);
    }
}

void AssoColorMap::targetChanged4(bool chosen)
{
    if (chosen) {
        takeSceneColor(3);
    }
}

void AssoColorMap::targetChanged5(bool chosen)
{
    if (chosen) {
        takeSceneColor(4);
    }
}

void AssoColorMap::Rchanged(int value)
{
    editing.red = value;
    refresh();
    update();
}

void AssoColorMap::Gchanged(int value)
{
    editing.green = value;
    refresh();
    update();
}

void AssoColorMap::Bchanged(int value)
{
    editing.blue = value;
    refresh();
    update();
}

void AssoColorMap::applyColorChange()
{
    if (target >= 0) {
        scene->setColor(target, editing);
    }
}

void AssoColorMap::resetColorChange()
{
    if (target >= 0) {
        takeSceneColor(target);
    }
}

void AssoColorMap::refresh()
{
    target = -1;
    for (int k = 0; k < kAssoOrderCount; ++k) {
        if (targets[k]->isChecked()) {
            target = k;
        }
    }
    const int components[3] = {editing.red, editing.green, editing.blue};
    for (int i = 0; i < 3; ++i) {
        const QSignalBlocker blocker(sliders[i]);
        sliders[i]->setValue(components[i]);
    }
    QPalette palette = preview->palette();
    palette.setColor(QPalette::Window, quillon::toQColor(editing));
    preview->setPalette(palette);
}

void AssoColorMap::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    quillon::paintColorPresetGrid(painter, kAssoColorPresetGrid, windowWidth, windowHeight);
}

void AssoColorMap::mouseReleaseEvent(QMouseEvent* event)
{
    const QPoint position = event->position().toPoint();
    const int preset = quillon::presetAt(kAssoColorPresetGrid, position.x(), position.y(),
                                         windowWidth, windowHeight);
    if (preset >= 0) {
        editing = quillon::presetColors()[size_t(preset)];
        refresh();
        update();
    }
}

void AssoColorMap::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    windowWidth = width();
    windowHeight = height();
    layOut();
}

// The method choice above the preset grid, the sliders, preview and buttons below it.
void AssoColorMap::layOut()
{
    const int cellHeight = quillon::presetCellHeight(kAssoColorPresetGrid, windowHeight);
    const int margin = 6;
    targetGroup->setGeometry(margin, margin, windowWidth - 2 * margin,
                             quillon::presetGridTop(kAssoColorPresetGrid, windowHeight) -
                                 2 * margin);
    const int below = int(cellHeight * 14.6);
    const int labelWidth = 20;
    const int sliderWidth = windowWidth * 3 / 5;
    for (int i = 0; i < 3; ++i) {
        const int y = below + i * cellHeight * 3 / 2;
        sliderLabels[i]->setGeometry(margin, y, labelWidth, cellHeight);
        sliders[i]->setGeometry(margin + labelWidth, y, sliderWidth, cellHeight);
    }
    const int previewLeft = margin * 3 + labelWidth + sliderWidth;
    preview->setGeometry(previewLeft, below, windowWidth - previewLeft - margin, cellHeight * 4);
    const int buttonsTop = windowHeight - cellHeight * 2 - margin;
    apply->setGeometry(margin, buttonsTop, windowWidth / 2 - 2 * margin, cellHeight * 2);
    reset->setGeometry(windowWidth / 2 + margin, buttonsTop, windowWidth / 2 - 2 * margin,
                       cellHeight * 2);
}
