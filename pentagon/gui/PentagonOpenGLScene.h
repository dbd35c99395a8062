#pragma once

#include "common/gui/OpenGLPlotScene.h"
#include "common/picture/PlotNodePick.h"
#include "common/picture/PlotPicture.h"
#include "pentagon/engine/PentagonEngine.h"
#include "pentagon/engine/PentagonFiles.h"
#include "pentagon/gui/PentagonPanel.h"
#include "pentagon/picture/PentagonPlotState.h"

#include <QPointF>
#include <QPointer>
#include <QSize>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

class PentagonFocusWindow;
class PentagonMiniMap;

// The pentagon tab's plot: every valid pentagon of the In/Out history in colours that fade
// with age, the points of a pentagon being entered by mouse, value labels, grid lines and the
// failed step's message, described by pentagon_picture and drawn with OpenGL and the painter.
// It owns the engine and the tab's modes (animated example, built-in example, manual entry)
// and runs the animation on the main window's timer.
class PentagonOpenGLScene : public quillon::OpenGLPlotScene
{
    Q_OBJECT

public:
    PentagonOpenGLScene(const PentagonPanel& panel, PentagonColorSettings* colorSettings,
                        QObject* parent = nullptr);

    const PentagonEngine& engine() const { return geometry; }
    PentagonRange range() const { return {xMin, xMax, yMin, yMax}; }
    bool isAnimating() const { return animating; }
    int getAnimationStep() const { return animationStep; }
    int getOrder() const { return order; }
    int zoomDepth() const { return int(zoomStack.size()); }
    bool showsSelection() const { return selectionMode; }

    // The "Selections" window, whose marks choose the pentagons drawn in selection mode and
    // which follows every step and start-over.
    void setMiniMap(PentagonMiniMap* window);
    // Selection mode draws only the marked pentagons.
    void setSelectionMode(bool on);
    // Fits the range to the marked pentagons (to -1.1 .. 1.1 when none is marked), or to the
    // whole history, and shows it in the focus window.
    void fitToSelection();
    void fitToHistory();

    // The vertex of a drawn pentagon nearest a point of the view within `radius` pixels:
    // curve = history entry, index = point 1 .. 5.
    std::optional<quillon::PlotNode> vertexNear(QPointF position, float radius) const;
    // Rings one vertex (the one the inspector shows); none: no ring.
    void markVertex(std::optional<quillon::PlotNode> vertex);
    // Offered every left click that did not move: when it returns true the click is the
    // picker's (it picked something, or a mode that picks is on and a miss is to change
    // nothing) and does not zoom.
    void setClickPicker(std::function<bool(QPointF)> picker) { clickPicker = std::move(picker); }

    const PentagonColorSettings& colors() const { return *colorSettings; }
    // Sets colour triple `index` (0 .. 6) of the settings and repaints.
    void setColor(int index, const quillon::ColorTriple& color);

    // The "Region focus" window, whose fields updateXmin() .. XYapply() read and which shows
    // the range whenever it is fitted.
    void setFocusWindow(PentagonFocusWindow* window);

    // What the view shows now, laid out for a view of `viewSize`.
    quillon::PlotPicture picture(QSize viewSize, quillon::PictureUse use) const;

    // The file routines: each returns a one-line reason when it failed (changing nothing).
    QString loadConfiguration(const QString& path);
    QString saveConfiguration(const QString& path) const;
    QString saveHistoryText(const QString& path) const;

public slots:
    void in();
    void out();
    void autoPentagon(bool on);
    void UserPentagon(bool on);
    void needAnimation(bool on);
    void setSequentialOrder(bool);
    void setAlternativeOrder(bool);
    void updateOperationNum();
    void regularPentagon(bool on);
    void defaultPentagon(bool on);
    void setEpsilon1(bool on);
    void setEpsilon2(bool on);
    void setEpsilon3(bool on);
    void setEpsilon4(bool on);
    void setEpsilon5(bool on);
    void setEpsilon6(bool on);
    void updateXmin();
    void updateXmax();
    void updateYmin();
    void updateYmax();
    void resetXY();
    void XYapply();
    void changeScaleFactor(int);
    void resetView();
    void resetToDefault();
    void resetUserInput();
    void XIndices(bool on);
    void YIndices(bool on);
    void XAxis(bool on);
    void YAxis(bool on);
    void clearHistory();
    void runningMan();

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    void drawBackground(QPainter* painter, const QRectF& rect) override;
    void drawForeground(QPainter* painter, const QRectF& rect) override;

private:
    void reset();
    void setAnimating(bool on);
    void startOver(void (PentagonEngine::*restart)());
    void step(void (PentagonEngine::*operation)());
    void showCounts();
    void refreshHistoryWindow(bool restarted);
    bool isSelected(size_t entry) const;
    void setRange(const PentagonRange& range);
    void showFittedRange(const PentagonRange& fitted);
    void updateBound(float& bound, int field);
    void setEpsilonPreset(int index, bool on);
    std::vector<PentagonPoints> drawnPentagons() const;
    std::vector<PentagonPoints> selectedPentagons() const;
    PentagonRange fittedRange() const;
    // The size of the view as the last background pass found it.
    QSize currentViewSize() const { return QSize(viewWidth, viewHeight); }
    PentagonPlotState plotState(QSize size) const;
    QPointF pixelOf(float x, float y) const;

    PentagonPanel panel;
    PentagonColorSettings* colorSettings;
    PentagonEngine geometry;
    // Guarded: the main window may replace either window while the scene lives.
    QPointer<PentagonMiniMap> miniMap;
    bool selectionMode = false;
    float xMin = -0.055f;
    float xMax = 1.155f;
    float yMin = -0.055f;
    float yMax = 1.155f;
    QPointer<PentagonFocusWindow> focusWindow; // guarded like miniMap
    bool showXIndices = false;
    bool showYIndices = false;
    bool showXAxis = false;
    bool showYAxis = false;
    bool animating = true;
    int viewWidth = 0;
    int viewHeight = 0;
    QPointF mousePos{0, 0};
    QPointF pressPos{-1, -1};
    std::vector<PentagonRange> zoomStack;
    int animationStep = 0;
    int operationNum = 10;
    int order = 0;
    bool firstAnimation = true;
    std::function<bool(QPointF)> clickPicker;
    std::optional<quillon::PlotNode> markedVertex;
};
