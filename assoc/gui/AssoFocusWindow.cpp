#include "assoc/gui/AssoFocusWindow.h"

#include "assoc/gui/AssoOpenGLScene.h"
#include "common/core/CFormat.h"
#include "common/gui/CheckBoxStyle.h"
#include "common/gui/GroupBoxStyle.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

using quillon::cformat;

AssoFocusWindow::AssoFocusWindow(AssoOpenGLScene* scene)
    : QWidget(nullptr), scene(scene), fixNodes(new QCheckBox(tr("Fix # of nodes to display"))),
      yMin(new QLineEdit), yMax(new QLineEdit), reset(new QPushButton(tr("Reset")))
{
    setWindowTitle(tr("Region focus"));
    setFont(QFont(QStringLiteral("Arial")));
    auto* xGroup = new QGroupBox(tr("Focus on X dimension"));
    auto* xGrid = new QGridLayout(xGroup);
    startPoint = addSlider(xGrid, 0, tr("Start point"), startValue);
    endPoint = addSlider(xGrid, 1, tr("End point"), endValue);
    stepSize = addSlider(xGrid, 2, tr("Step size"), stepValue);
    startValue->setObjectName(QStringLiteral("startValue"));
    endValue->setObjectName(QStringLiteral("endValue"));
    stepValue->setObjectName(QStringLiteral("stepValue"));
    fixNodes->setStyleSheet(quillon::checkBoxStyleSheet());
    xGrid->addWidget(fixNodes, 3, 0, 1, 3);

    auto* yGroup = new QGroupBox(tr("Focus on Y dimension"));
    auto* yGrid = new QGridLayout(yGroup);
    yGrid->addWidget(new QLabel(tr("Y Min:")), 0, 0);
    yGrid->addWidget(yMin, 0, 1);
    yGrid->addWidget(new QLabel(tr("Y Max:")), 1, 0);
    yGrid->addWidget(yMax, 1, 1);
    for (QGroupBox* group : {xGroup, yGroup}) {
        group->setStyleSheet(quillon::groupBoxStyleSheet());
    }

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(xGroup);
    layout->addWidget(yGroup);
    layout->addWidget(reset);

    connect(startPoint, &QSlider::valueChanged, scene, &AssoOpenGLScene::setStartpoint);
    connect(endPoint, &QSlider::valueChanged, scene, &AssoOpenGLScene::setEndpoint);
    connect(stepSize, &QSlider::valueChanged, scene, &AssoOpenGLScene::setStepsize);
    connect(yMin, &QLineEdit::returnPressed, scene, &AssoOpenGLScene::updateYmin);
    connect(yMax, &QLineEdit::returnPressed, scene, &AssoOpenGLScene::updateYmax);
    connect(reset, &QPushButton::clicked, scene, &AssoOpenGLScene::resetXY);
    refresh();
}

QSlider* AssoFocusWindow::addSlider(QGridLayout* grid, int row, const QString& caption,
                                    QLabel*& value)
{
    auto* slider = new QSlider(Qt::Horizontal);
    value = new QLabel;
    value->setMinimumWidth(48);
    grid->addWidget(new QLabel(caption), row, 0);
    grid->addWidget(slider, row, 1);
    grid->addWidget(value, row, 2);
    return slider;
}

void AssoFocusWindow::refresh()
{
    const quillon::PlotXWindow& window = scene->xWindow();
    const int n = scene->getN();
    const QSignalBlocker blockStart(startPoint);
    const QSignalBlocker blockEnd(endPoint);
    const QSignalBlocker blockStep(stepSize);
    startPoint->setRange(0, window.end - 1);
    startPoint->setValue(window.start);
    endPoint->setRange(window.start, n - 1);
    endPoint->setValue(window.end);
    stepSize->setRange(1, n - 1);
    stepSize->setValue(window.step);
    startValue->setText(QString::fromStdString(cformat("%d", window.start)));
    endValue->setText(QString::fromStdString(cformat("%d", window.end)));
    stepValue->setText(QString::fromStdString(cformat("%d", window.step)));
    yMin->setText(QString::fromStdString(cformat("%f", double(scene->getYMin()))));
    yMax->setText(QString::fromStdString(cformat("%f", double(scene->getYMax()))));
}

bool AssoFocusWindow::fixesNodeCount() const
{
    return fixNodes->isChecked();
}

QString AssoFocusWindow::yMinText() const
{
    return yMin->text();
}

QString AssoFocusWindow::yMaxText() const
{
    return yMax->text();
}
