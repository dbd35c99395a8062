#include "pentagon/gui/PentagonMiniMap.h"

#include "pentagon/gui/PentagonMiniScene.h"

#include <QGraphicsView>
#include <QScrollBar>

namespace
{

constexpr QSize kWindowSize(560, 320);
constexpr int kScrollBarWidth = 18;

} // namespace

PentagonMiniMap::PentagonMiniMap(PentagonOpenGLScene* pentagonScene)
    : QWidget(nullptr), scroll(new QScrollBar(Qt::Vertical, this)), view(new QGraphicsView(this))
{
    setWindowTitle(tr("Selections"));
    // The rows' height is taken once from the window, so the window keeps its size.
    setFixedSize(kWindowSize);
    scroll->setMinimum(0);
    scroll->setMaximum(10);
    scroll->setTracking(false);
    scroll->setPageStep(5);
    const int listHeight = height() - 2;
    const int listWidth = width() - kScrollBarWidth - 3;
    scene = new PentagonMiniScene(pentagonScene, scroll, listHeight, this);
    scene->setSceneRect(0, 0, listWidth, listHeight);
    view->setScene(scene);
    view->setFrameShape(QFrame::NoFrame);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    view->setGeometry(1, 1, listWidth, listHeight);
    scroll->setGeometry(width() - kScrollBarWidth - 1, 1, kScrollBarWidth, listHeight);
    connect(scroll, &QScrollBar::valueChanged, scene, &PentagonMiniScene::indexChanged);
}
