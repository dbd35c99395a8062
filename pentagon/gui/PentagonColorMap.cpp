#include "pentagon/gui/PentagonColorMap.h"

#include "common/gui/GroupBoxStyle.h"
#include "pentagon/engine/PentagonView.h"
#include "pentagon/gui/PentagonOpenGLScene.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>

namespace
{

// Items 0 .. 6 have a colour triple in the settings; the last two ages are drawn in greys.
constexpr int kStoredItems = 7;
constexpr int kPreviousTwoStepItem = 7;

} // namespace

PentagonColorMap::PentagonColorMap(PentagonOpenGLScene* scene)
    : ColorMapWindow(kPentagonColorPresetGrid), scene(scene),
      itemGroup(new QGroupBox(tr("Color"), this)), items(new QComboBox),
      greyNote(new QLabel(tr("Drawn in greys that lighten with age; not changeable."), this))
{
    itemGroup->setStyleSheet(quillon::groupBoxStyleSheet());
    items->addItems({tr("Point 1"), tr("Point 2"), tr("Point 3"), tr("Point 4"), tr("Point 5"),
                     tr("Lines of current pentagon"), tr("Lines of previous 1-step pentagon"),
                     tr("Lines of previous 2-step pentagon"),
                     tr("Lines of previous other pentagons")});
    auto* itemRow = new QHBoxLayout(itemGroup);
    itemRow->addWidget(new QLabel(tr("Item:")));
    itemRow->addWidget(items, 1);

    connect(items, &QComboBox::currentIndexChanged, this, &PentagonColorMap::targetChanged);
    connect(redSlider(), &QSlider::valueChanged, this, &PentagonColorMap::Rchanged);
    connect(greenSlider(), &QSlider::valueChanged, this, &PentagonColorMap::Gchanged);
    connect(blueSlider(), &QSlider::valueChanged, this, &PentagonColorMap::Bchanged);
    connect(applyButton(), &QPushButton::clicked, this, &PentagonColorMap::applyColorChange);
    connect(resetButton(), &QPushButton::clicked, this, &PentagonColorMap::resetColorChange);
    resize(440, 490);
    targetChanged(items->currentIndex());
}

bool PentagonColorMap::itemHasStoredColor() const
{
    return item < kStoredItems;
}

// The colour the item is drawn in: its triple, or for the older ages the grey of the first
// pentagon of that age.
quillon::ColorTriple PentagonColorMap::storedColor() const
{
    if (itemHasStoredColor()) {
        return scene->colors().colors[size_t(item)];
    }
    const int grey = pentagonGreyForAge(item == kPreviousTwoStepItem ? 1 : 2);
    return {grey, grey, grey};
}

void PentagonColorMap::targetChanged(int i)
{
    item = i;
    setEditingColor(storedColor());
}

void PentagonColorMap::Rchanged(int value)
{
    setEditingChannel(0, value);
}

void PentagonColorMap::Gchanged(int value)
{
    setEditingChannel(1, value);
}

void PentagonColorMap::Bchanged(int value)
{
    setEditingChannel(2, value);
}

void PentagonColorMap::applyColorChange()
{
    if (itemHasStoredColor()) {
        scene->setColor(item, editingColor());
    }
}

void PentagonColorMap::resetColorChange()
{
    setEditingColor(storedColor());
}

void PentagonColorMap::refresh()
{
    showEditingColor();
    applyButton()->setEnabled(itemHasStoredColor());
    greyNote->setVisible(!itemHasStoredColor());
}

// The item choice above the preset grid; the sliders beside the preview, the note and the
// buttons below it, all in cell heights so that they follow the window's size.
void PentagonColorMap::layOut()
{
    const int cell = quillon::presetCellHeight(presetGrid(), windowHeight());
    const int gridTop = quillon::presetGridTop(presetGrid(), windowHeight());
    itemGroup->setGeometry(kMargin, kMargin, windowWidth() - 2 * kMargin, gridTop - 2 * kMargin);
    const int below = gridTop + presetGrid().rows * cell + kMargin;
    layOutEditor(below, cell, cell);
    greyNote->setGeometry(kMargin, below + cell * 3, windowWidth() - 2 * kMargin, cell);
}
