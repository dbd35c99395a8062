#include "bench/HeaviestSineView.h"

#include "app/MainWindow.h"
#include "bench/PlotTarget.h"
#include "sine/gui/SineOpenGLScene.h"

#include <QLineEdit>

SineOpenGLScene* showHeaviestSineView(MainWindow& window)
{
    auto* scene = window.findChild<SineOpenGLScene*>();
    scene->setSceneRect(QRectF(QPointF(0, 0), QSizeF(kPlotViewSize)));
    window.findChild<QLineEdit*>(QStringLiteral("sine_iteration_input"))
        ->setText(QStringLiteral("10000"));
    scene->updateMaxItera();
    scene->setEndpoint(9999);
    scene->setStepsize(1);
    scene->allchoose();
    scene->setNeedXAxis(true);
    scene->setNeedYAxis(true);
    scene->need2ShowYIndices(true);
    scene->setTimeStartpoint(0);
    return scene;
}
