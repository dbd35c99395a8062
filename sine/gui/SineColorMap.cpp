#include "sine/gui/SineColorMap.h"

#include "common/gui/GroupBoxStyle.h"
#include "common/gui/QtColor.h"
#include "sine/gui/SineOpenGLScene.h"
#include "sine/gui/SineStatusWindow.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

namespace
{

constexpr QSize kPreviewMinimum(80, 80);

} // namespace

SineColorMap::SineColorMap(SineOpenGLScene* scene)
    : QWidget(nullptr), scene(scene), methods(new QComboBox), preview(new QLabel),
      apply(new QPushButton(tr("Apply"))), reset(new QPushButton(tr("Reset")))
{
    setWindowTitle(tr("Color map"));
    setFont(QFont(QStringLiteral("Arial")));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeMethodGroup());
    layout->addWidget(makeColorEditor());
    layout->addWidget(makeButtons());

    connect(methods, &QComboBox::currentIndexChanged, this, &SineColorMap::targetChanged);
    connect(sliders[0], &QSlider::valueChanged, this, &SineColorMap::Rchanged);
    connect(sliders[1], &QSlider::valueChanged, this, &SineColorMap::Gchanged);
    connect(sliders[2], &QSlider::valueChanged, this, &SineColorMap::Bchanged);
    connect(apply, &QPushButton::clicked, this, &SineColorMap::applyColorChange);
    connect(reset, &QPushButton::clicked, this, &SineColorMap::resetColorChange);
    targetChanged(methods->currentIndex());
}

QWidget* SineColorMap::makeMethodGroup()
{
    auto* group = new QGroupBox(tr("Select a method"));
    group->setStyleSheet(quillon::groupBoxStyleSheet());
    methods->addItem(tr("Sine"));
    for (const SineApproach& approach : sineApproaches()) {
        methods->addItem(QString::fromLatin1(approach.longName));
    }
    auto* form = new QFormLayout(group);
    form->addRow(tr("Method:"), methods);
    return group;
}

// The three sliders beside the preview of the colour they make.
QWidget* SineColorMap::makeColorEditor()
{
    auto* editor = new QWidget;
    auto* channels = new QFormLayout;
    const QString names[3] = {tr("R"), tr("G"), tr("B")};
    for (int i = 0; i < 3; ++i) {
        sliders[i] = new QSlider(Qt::Horizontal);
        sliders[i]->setRange(0, 255);
        channels->addRow(names[i], sliders[i]);
    }
    preview->setAutoFillBackground(true);
    preview->setFrameShape(QFrame::Box);
    preview->setMinimumSize(kPreviewMinimum);
    auto* layout = new QHBoxLayout(editor);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(channels, 3);
    layout->addWidget(preview, 2);
    return editor;
}

QWidget* SineColorMap::makeButtons()
{
    auto* buttons = new QWidget;
    auto* layout = new QHBoxLayout(buttons);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(apply);
    layout->addWidget(reset);
    return buttons;
}

void SineColorMap::targetChanged(int slot)
{
    target = slot;
    takeSceneColor();
}

void SineColorMap::Rchanged(int value)
{
    pending.red = value;
    showPendingColor();
}

void SineColorMap::Gchanged(int value)
{
    pending.green = value;
    showPendingColor();
}

void SineColorMap::Bchanged(int value)
{
    pending.blue = value;
    showPendingColor();
}

void SineColorMap::applyColorChange()
{
    scene->setColor(target, pending);
    if (statusWindow != nullptr) {
        statusWindow->refreshColors();
    }
    showPendingColor();
}

void SineColorMap::resetColorChange()
{
    takeSceneColor();
}

void SineColorMap::takeSceneColor()
{
    pending = scene->colors()[target];
    showPendingColor();
}

// Sets the sliders without feeding their values back into the pending colour, which may lie
// outside 0..255 when a configuration file held such a number.
void SineColorMap::showPendingColor()
{
    const int components[3] = {pending.red, pending.green, pending.blue};
    for (int i = 0; i < 3; ++i) {
        const QSignalBlocker blocker(sliders[i]);
        sliders[i]->setValue(components[i]);
    }
    QPalette palette = preview->palette();
    palette.setColor(QPalette::Window, quillon::toQColor(pending));
    preview->setPalette(palette);
    update();
}
