#pragma once

#include <QWidget>

class PentagonMiniScene;
class PentagonOpenGLScene;
class QGraphicsView;
class QScrollBar;

// The "Selections" window: the history list of PentagonMiniScene beside a scroll bar that
// moves the list only when its handle is let go.
class PentagonMiniMap : public QWidget
{
    Q_OBJECT

public:
    explicit PentagonMiniMap(PentagonOpenGLScene* pentagonScene);

    PentagonMiniScene* historyScene() const { return scene; }
    QScrollBar* scrollBar() const { return scroll; }
    QGraphicsView* listView() const { return view; }

private:
    QScrollBar* scroll;
    QGraphicsView* view;
    PentagonMiniScene* scene;
};
