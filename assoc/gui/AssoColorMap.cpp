#include "assoc/gui/AssoColorMap.h"

#include "assoc/engine/AssoPlotGeometry.h"
#include "assoc/gui/AssoOpenGLScene.h"
#include "common/gui/GroupBoxStyle.h"
#include "common/picture/ImageLookup.h"

#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QVBoxLayout>

AssoColorMap::AssoColorMap(AssoOpenGLScene* scene)
    : ColorMapWindow(kAssoColorPresetGrid), scene(scene),
      targetGroup(new QGroupBox(tr("Select a method"), this))
{
    targetGroup->setStyleSheet(quillon::groupBoxStyleSheet());
    auto* targetLayout = new QVBoxLayout(targetGroup);
    for (int k = 0; k < kAssoOrderCount; ++k) {
        targets[k] = new QRadioButton;
        targets[k]->setIcon(
            QIcon(QPixmap::fromImage(quillon::loadImage(QStringLiteral("func%1.png").arg(k + 1)))));
        targets[k]->setIconSize(QSize(296, 20));
        targetLayout->addWidget(targets[k]);
    }

    connect(targets[0], &QRadioButton::toggled, this, &AssoColorMap::targetChanged1);
    connect(targets[1], &QRadioButton::toggled, this, &AssoColorMap::targetChanged2);
    connect(targets[2], &QRadioButton::toggled, this, &AssoColorMap::targetChanged3);
    connect(targets[3], &QRadioButton::toggled, this, &AssoColorMap::targetChanged4);
    connect(targets[4], &QRadioButton::toggled, this, &AssoColorMap::targetChanged5);
    connect(redSlider(), &QSlider::valueChanged, this, &AssoColorMap::Rchanged);
    connect(greenSlider(), &QSlider::valueChanged, this, &AssoColorMap::Gchanged);
    connect(blueSlider(), &QSlider::valueChanged, this, &AssoColorMap::Bchanged);
    connect(applyButton(), &QPushButton::clicked, this, &AssoColorMap::applyColorChange);
    connect(resetButton(), &QPushButton::clicked, this, &AssoColorMap::resetColorChange);
    resize(440, 550);
    refresh();
}

void AssoColorMap::takeSceneColor(int order)
{
    setEditingColor(scene->colors()[order]);
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
    setEditingChannel(0, value);
}

void AssoColorMap::Gchanged(int value)
{
    setEditingChannel(1, value);
}

void AssoColorMap::Bchanged(int value)
{
    setEditingChannel(2, value);
}

void AssoColorMap::applyColorChange()
{
    if (target >= 0) {
        scene->setColor(target, editingColor());
    }
}

void AssoColorMap::resetColorChange()
{
    if (target >= 0) {
        takeSceneColor(target);
    }
}

// The target order is whichever radio button is checked (-1 for none).
void AssoColorMap::refresh()
{
    target = -1;
    for (int k = 0; k < kAssoOrderCount; ++k) {
        if (targets[k]->isChecked()) {
            target = k;
        }
    }
    showEditingColor();
}

// The method choice above the preset grid, the sliders, preview and buttons below it.
void AssoColorMap::layOut()
{
    const int cellHeight = quillon::presetCellHeight(presetGrid(), windowHeight());
    targetGroup->setGeometry(kMargin, kMargin, windowWidth() - 2 * kMargin,
                             quillon::presetGridTop(presetGrid(), windowHeight()) - 2 * kMargin);
    layOutEditor(int(cellHeight * 14.6), cellHeight * 3 / 2, cellHeight * 2);
}
