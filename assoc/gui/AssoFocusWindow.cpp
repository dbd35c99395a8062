#include "assoc/gui/AssoFocusWindow.h"

#include "assoc/gui/AssoOpenGLScene.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSlider>

AssoFocusWindow::AssoFocusWindow(AssoOpenGLScene* scene)
    : scene(scene), reset(new QPushButton(tr("Reset")))
{
    addButtonRow({reset});
    connect(startSlider(), &QSlider::valueChanged, scene, &AssoOpenGLScene::setStartpoint);
    connect(endSlider(), &QSlider::valueChanged, scene, &AssoOpenGLScene::setEndpoint);
    connect(stepSlider(), &QSlider::valueChanged, scene, &AssoOpenGLScene::setStepsize);
    connect(yMinEdit(), &QLineEdit::returnPressed, scene, &AssoOpenGLScene::updateYmin);
    connect(yMaxEdit(), &QLineEdit::returnPressed, scene, &AssoOpenGLScene::updateYmax);
    connect(reset, &QPushButton::clicked, scene, &AssoOpenGLScene::resetXY);
    refresh();
}

void AssoFocusWindow::refresh()
{
    showFocus(scene->xWindow(), scene->getN(), scene->getYMin(), scene->getYMax());
}
