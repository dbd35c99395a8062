#include "sine/gui/SineFocusWindow.h"

#include "sine/gui/SineOpenGLScene.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSlider>

SineFocusWindow::SineFocusWindow(SineOpenGLScene* scene)
    : scene(scene), apply(new QPushButton(tr("Apply"))), reset(new QPushButton(tr("Reset")))
{
    addButtonRow({apply, reset});
    connectToScene();
    refresh();
}

void SineFocusWindow::connectToScene()
{
    connect(startSlider(), &QSlider::valueChanged, scene, &SineOpenGLScene::setStartpoint);
    connect(endSlider(), &QSlider::valueChanged, scene, &SineOpenGLScene::setEndpoint);
    connect(stepSlider(), &QSlider::valueChanged, scene, &SineOpenGLScene::setStepsize);
    connect(yMinEdit(), &QLineEdit::returnPressed, scene, &SineOpenGLScene::updateYmin);
    connect(yMaxEdit(), &QLineEdit::returnPressed, scene, &SineOpenGLScene::updateYmax);
    connect(apply, &QPushButton::clicked, scene, &SineOpenGLScene::Yapply);
    connect(reset, &QPushButton::clicked, scene, &SineOpenGLScene::resetXY);
}

void SineFocusWindow::refresh()
{
    showFocus(scene->xWindow(), scene->getN(), scene->getYLow(), scene->getYHigh());
}
