#pragma once

#include <QObject>

class AssoOpenGLScene;
class PentagonOpenGLScene;
class SineOpenGLScene;
class InspectorWindow;
class QPointF;
class RootsPage;

// Turns the gestures that pick a number into inspections: a click on a cell of the Roots
// grid shows that cell in the inspector (and the inspector itself); while the inspector is
// open, a click near a node of the associative-law or sine plot, or near a vertex of a drawn
// pentagon (when no pentagon is being entered), shows it and rings it. While it is open a
// click on the pentagon plot never zooms: one that misses every vertex changes nothing.
class PickGestures : public QObject
{
    Q_OBJECT

public:
    // How near a node a click must land to pick it, in pixels.
    static constexpr float kPickRadius = 10.0f;

    PickGestures(InspectorWindow* window, const RootsPage& rootsPage, AssoOpenGLScene* assoScene,
                 SineOpenGLScene* sineScene, PentagonOpenGLScene* pentagonScene, QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void pickRootsCell(int row, int variant);
    void pickAssoNode(QPointF position);
    void pickSineNode(QPointF position);
    bool pickPentagonVertex(QPointF position);
    void showWindow();

    InspectorWindow* window;
    const RootsPage& rootsPage;
    AssoOpenGLScene* assoScene;
    SineOpenGLScene* sineScene;
    PentagonOpenGLScene* pentagonScene;
};
