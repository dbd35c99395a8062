#pragma once

#include "assoc/engine/AssoFiles.h"
#include "assoc/engine/AssoPlotGeometry.h"
#include "assoc/engine/AssoRecurrence.h"
#include "assoc/gui/AssoPanel.h"
#include "assoc/picture/AssoPlotState.h"
#include "common/gui/IndexPlotScene.h"
#include "common/picture/PlotPainter.h"
#include "common/picture/PlotPicture.h"

#include <QImage>
#include <QString>
#include <array>
#include <optional>
#include <vector>

class AssoFocusWindow;
class AssoSelectionWindow;
class QPainter;

// The associative-law tab's model and picture: the inputs, colours, view settings and
// animation state of the module, the five sequences the engine computes from them, the
// OpenGL background (reference lines and curves) and the painter foreground (labels, error
// icons and messages, rubber band, legend, spread readout). The panel and the tool windows
// change it only through its slots. The X window, the Y range, the view options, the mouse and
// the animation controls are the common plot scene's.
class AssoOpenGLScene : public quillon::IndexPlotScene
{
    Q_OBJECT

public:
    AssoOpenGLScene(const AssoPanel& panel, QObject* parent = nullptr);

    // Writes the inputs, their validators and the time slider's range into the panel.
    void setUpPanel();

    void setSelectionWindow(AssoSelectionWindow* window) { selectionWindow = window; }
    void setFocusWindow(AssoFocusWindow* window);

    // State the tool windows, the exports and the tests read.
    float getYMin() const { return yMin; }
    float getYMax() const { return yMax; }
    float getR() const { return R; }
    float getX0() const { return X0; }
    int getN() const { return N; }
    const AssoSequences& sequences() const { return results; }
    const AssoColors& colors() const { return colours; }
    void setColor(int order, const quillon::ColorTriple& color);
    bool isFuncNeeded(int order) const { return needFunc[order]; }
    bool isComparing() const { return compare; }
    int baseFunction() const { return baseFunc; }
    int highlightedFunction() const { return highlightedFunc; }
    bool showsErrorMessages() const { return showErrorMessages; }

    // The drawn node nearest a point of the view within `radius` pixels: curve = order,
    // index = iteration.
    std::optional<quillon::PlotNode> nodeNear(QPointF position, float radius) const;

    // What the view shows now, laid out for a view of `viewSize`.
    quillon::PlotPicture picture(QSize viewSize, quillon::PictureUse use) const;

    // The module's files; each returns why it failed (and then changed nothing), or "".
    QString saveColorFile(const QString& path) const;
    QString loadColorFile(const QString& path);
    QString saveTextData(const QString& path) const;
    QString saveCsvData(const QString& path) const;

signals:
    // A left click on the plot that neither dragged nor hit the legend, in view pixels.
    void plotClicked(QPointF position);

public slots:
    void updateMaxItera();
    void updateX();
    void updateR();
    void updateYmin();
    void updateYmax();
    void needFunc0(bool need);
    void needFunc1(bool need);
    void needFunc2(bool need);
    void needFunc3(bool need);
    void needFunc4(bool need);
    void allUnchoose();
    void allchoose();
    void needErrorComparison(bool need);
    void setBaseFunc1(bool chosen);
    void setBaseFunc2(bool chosen);
    void setBaseFunc3(bool chosen);
    void setBaseFunc4(bool chosen);
    void setBaseFunc5(bool chosen);
    void setStartpoint(int value);
    void setEndpoint(int value);
    void setStepsize(int value);
    void calculate();
    void setNeedXAxis(bool need);
    void setNeedYAxis(bool need);
    void Yapply();
    void resetXY();
    void need2ShowXIndices(bool show);
    void need2ShowYIndices(bool show);
    void need2ShowLabels(bool show);
    void accelerate();
    void decelerate();
    void speedAdjust();
    void pause();
    void runningMan();
    void setTimeStartpoint(int value);

protected:
    void drawBackground(QPainter* painter, const QRectF& rect) override;
    void paintOverlays(QPainter* painter) override;
    void refreshFocusWindow() override;
    bool pressLegend(float x, float y) override;
    void followPointer(QPointF position) override;
    void announceClick(QPointF position) override;

private:
    void computeSequences();
    void refreshPanel();
    void shiftWindowBack();
    void syncSelectionWindow();
    void setNeedFunc(int order, bool need);
    void setBaseFunc(int order, bool chosen);
    void fitYRange();
    AssoPlotContent plotContent() const;
    bool mouseOnErrorIcon() const;

    AssoPlotState plotState() const;

    AssoSelectionWindow* selectionWindow = nullptr;
    AssoFocusWindow* focusWindow = nullptr;
    float X0 = 0.5f;
    float R = 3.0f;
    AssoColors colours;
    std::array<bool, kAssoOrderCount> needFunc = {true, true, true, true, true};
    bool compare = false;
    int baseFunc = 0;
    AssoPanel panel;
    AssoSequences results;
    int curveWidthOffset = 2;
    bool showErrorMessages = false;
    int highlightedFunc = -1;
    float highlightedDepth = 3.0f;
    float normalDepth = 2.0f;
    float gridDepth = 0.0f;
    float formulaAspect = 14.788462f;
    std::array<QImage, kAssoOrderCount> formulaImages;
    // Keeps the layer of turned index labels between frames.
    quillon::PlotOverlayCache overlayCache;
};
