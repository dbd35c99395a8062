#include "sine/gui/SineColorMap.h"

#include "common/gui/GroupBoxStyle.h"
#include "sine/gui/SineOpenGLScene.h"
#include "sine/gui/SineStatusWindow.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QSlider>

namespace
{

// The height of one slider row, and of the buttons.
constexpr int kRowPitch = 28;
constexpr int kMethodGroupHeight = 64;

} // namespace

SineColorMap::SineColorMap(SineOpenGLScene* scene)
    : scene(scene), methodGroup(new QGroupBox(tr("Select a method"), this)), methods(new QComboBox)
{
    methodGroup->setStyleSheet(quillon::groupBoxStyleSheet());
    methods->addItem(tr("Sine"));
    for (const SineApproach& approach : sineApproaches()) {
        methods->addItem(QString::fromLatin1(approach.longName));
    }
    auto* form = new QFormLayout(methodGroup);
    form->addRow(tr("Method:"), methods);

    connect(methods, &QComboBox::currentIndexChanged, this, &SineColorMap::targetChanged);
    connect(redSlider(), &QSlider::valueChanged, this, &SineColorMap::Rchanged);
    connect(greenSlider(), &QSlider::valueChanged, this, &SineColorMap::Gchanged);
    connect(blueSlider(), &QSlider::valueChanged, this, &SineColorMap::Bchanged);
    connect(applyButton(), &QPushButton::clicked, this, &SineColorMap::applyColorChange);
    connect(resetButton(), &QPushButton::clicked, this, &SineColorMap::resetColorChange);
    resize(440, kMethodGroupHeight + 5 * kRowPitch + 4 * kMargin);
    targetChanged(methods->currentIndex());
}

void SineColorMap::targetChanged(int slot)
{
    target = slot;
    takeSceneColor();
}

void SineColorMap::Rchanged(int value)
{
    setEditingChannel(0, value);
}

void SineColorMap::Gchanged(int value)
{
    setEditingChannel(1, value);
}

void SineColorMap::Bchanged(int value)
{
    setEditingChannel(2, value);
}

void SineColorMap::applyColorChange()
{
    scene->setColor(target, editingColor());
    if (statusWindow != nullptr) {
        statusWindow->refreshColors();
    }
    refresh();
}

void SineColorMap::resetColorChange()
{
    takeSceneColor();
}

void SineColorMap::takeSceneColor()
{
    setEditingColor(scene->colors()[target]);
}

// The method choice at the top, the sliders beside the preview below it, the buttons at the
// bottom.
void SineColorMap::layOut()
{
    methodGroup->setGeometry(kMargin, kMargin, windowWidth() - 2 * kMargin, kMethodGroupHeight);
    layOutEditor(kMethodGroupHeight + 2 * kMargin, kRowPitch, kRowPitch);
}
