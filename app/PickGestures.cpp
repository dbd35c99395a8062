#include "app/PickGestures.h"

#include "assoc/gui/AssoOpenGLScene.h"
#include "inspect/gui/AssoInspection.h"
#include "inspect/gui/InspectorWindow.h"
#include "inspect/gui/PentagonInspection.h"
#include "inspect/gui/RootsInspection.h"
#include "inspect/gui/SineInspection.h"
#include "pentagon/gui/PentagonOpenGLScene.h"
#include "roots/gui/RootsPage.h"
#include "sine/gui/SineOpenGLScene.h"

#include <QEvent>
#include <QLabel>
#include <QMouseEvent>

PickGestures::PickGestures(InspectorWindow* window, const RootsPage& rootsPage,
                           AssoOpenGLScene* assoScene, SineOpenGLScene* sineScene,
                           PentagonOpenGLScene* pentagonScene, QObject* parent)
    : QObject(parent), window(window), rootsPage(rootsPage), assoScene(assoScene),
      sineScene(sineScene), pentagonScene(pentagonScene)
{
    pentagonScene->setClickPicker(
        [this](QPointF position) { return pickPentagonVertex(position); });
    connect(assoScene, &AssoOpenGLScene::plotClicked, this, &PickGestures::pickAssoNode);
    connect(sineScene, &SineOpenGLScene::plotClicked, this, &PickGestures::pickSineNode);
    for (int row = 0; row < kRootsRowCount; ++row) {
        for (int variant = 0; variant < kRootsVariantCount; ++variant) {
            rootsPage.valueCell(RootsRow(row), variant)->installEventFilter(this);
        }
    }
}

bool PickGestures::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::MouseButtonRelease ||
        static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) {
        return false;
    }
    for (int row = 0; row < kRootsRowCount; ++row) {
        for (int variant = 0; variant < kRootsVariantCount; ++variant) {
            if (watched == rootsPage.valueCell(RootsRow(row), variant)) {
                pickRootsCell(row, variant);
                return true;
            }
        }
    }
    return false;
}

void PickGestures::pickRootsCell(int row, int variant)
{
    const auto picked = rootsInspection(rootsPage.solver(), RootsRow(row), variant);
    if (const auto* inspection = std::get_if<Inspection>(&picked)) {
        window->inspect(*inspection);
    } else {
        window->showNothing(rootsCellSource(RootsRow(row), variant), std::get<QString>(picked));
    }
    showWindow();
}

void PickGestures::pickAssoNode(QPointF position)
{
    if (!window->isVisible()) {
        return;
    }
    const auto node = assoScene->nodeNear(position, kPickRadius);
    if (!node) {
        return;
    }
    assoScene->markNode(node);
    window->inspect(assoInspection(assoScene->sequences(), assoScene->getX0(), assoScene->getR(),
                                   node->curve, node->index));
}

void PickGestures::pickSineNode(QPointF position)
{
    if (!window->isVisible()) {
        return;
    }
    const auto node = sineScene->nodeNear(position, kPickRadius);
    if (!node) {
        return;
    }
    sineScene->markNode(node);
    window->inspect(sineInspection(sineScene->results(), node->curve, node->index));
}

// The click is the inspector's whenever its window is open: a click that just missed a vertex
// would otherwise zoom to a rectangle of no size, and the plot would go blank.
bool PickGestures::pickPentagonVertex(QPointF position)
{
    if (!window->isVisible()) {
        return false;
    }
    if (const auto vertex = pentagonScene->vertexNear(position, kPickRadius)) {
        pentagonScene->markVertex(vertex);
        window->inspect(pentagonInspection(pentagonScene->engine(), vertex->curve, vertex->index));
    }
    return true;
}

void PickGestures::showWindow()
{
    if (!window->isVisible()) {
        window->show();
    }
}
