#pragma once

#include "common/gui/IndexPlotScene.h"
#include "common/picture/PlotPainter.h"
#include "common/picture/PlotPicture.h"
#include "sine/engine/SineApproaches.h"
#include "sine/engine/SineFiles.h"
#include "sine/engine/SinePlotGeometry.h"
#include "sine/gui/SinePanel.h"
#include "sine/picture/SinePlotState.h"

#include <QSize>
#include <QString>
#include <array>
#include <optional>

class SineFocusWindow;
class SineSelectionWindow;
class SineStatusWindow;
class QPainter;

// The sine tab's model: the angle and the number of terms, the twelve series the engine
// computes from them, the colours, the display flags and the animated window of term indices.
// Each frame is the plot description of its state (sine/picture), its plot area drawn with
// OpenGL and its overlay with the painter. The panel and the tool windows change it only
// through its slots. The X window, the Y range, the view options, the mouse and the animation
// controls are the common plot scene's.
class SineOpenGLScene : public quillon::IndexPlotScene
{
    Q_OBJECT

public:
    // Approach k of the flags and colours is Func(k), 1..12; index 0 is the library sine.
    static constexpr int kLibrary = kSineLibrarySlot;

    SineOpenGLScene(const SinePanel& panel, QObject* parent = nullptr);

    // Writes the inputs, their validators, the check boxes and the time slider into the panel.
    void setUpPanel();
    void setSelectionWindow(SineSelectionWindow* window) { selectionWindow = window; }
    void setFocusWindow(SineFocusWindow* window);
    void setStatusWindow(SineStatusWindow* window) { statusWindow = window; }

    // State the tool windows, the exports and the tests read.
    int getX() const { return X; }
    int getN() const { return N; }
    const SineResults& results() const { return computed; }
    const SineColors& colors() const { return colours; }
    void setColor(int slot, const quillon::ColorTriple& color);
    // Slot 0 is the library line, 1..12 the approaches.
    bool isNeeded(int slot) const { return needed[slot]; }
    bool isComparingErrors() const { return errorComparison; }
    bool showsYValueLabels() const { return showYIndices; }
    float getYLow() const { return yMin; }
    float getYHigh() const { return yMax; }
    int getLowerRange() const { return lowerRange; }
    int getUpperRange() const { return upperRange; }
    int getRangeStep() const { return rangeStep; }
    bool isAutoPaused() const { return autoPaused; }
    int hoveredApproach() const { return hovered; }

    // The drawn node nearest a point of the view within `radius` pixels: curve = approach
    // (0 = Func1), index = term index.
    std::optional<quillon::PlotNode> nodeNear(QPointF position, float radius) const;

    // What the view shows now, laid out for a view of `viewSize` (the pointer and the rubber
    // band scaled from the current view's size to it).
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
    void updateYmin();
    void updateYmax();
    void needFunc1(bool need);
    void needFunc2(bool need);
    void needFunc3(bool need);
    void needFunc4(bool need);
    void needFunc5(bool need);
    void needFunc6(bool need);
    void needFunc7(bool need);
    void needFunc8(bool need);
    void needFunc9(bool need);
    void needFunc10(bool need);
    void needFunc11(bool need);
    void needFunc12(bool need);
    void needBaseSin(bool need);
    void needErrorComparison(bool need);
    void allUnchoose();
    void allchoose();
    void needFinalError(bool need);
    void setStartpoint(int value);
    void setEndpoint(int value);
    void setStepsize(int value);
    void setLowerRange(int value);
    void setUpperRange(int value);
    void setRangeStep(int value);
    void setShowBoundary(bool show);
    void setShowValues(bool show);
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
    // Over a legend entry whose name is shortened to fit its column, the full name.
    void helpEvent(QGraphicsSceneHelpEvent* event) override;

private:
    void recompute();
    void restartAnimation();
    void refreshTimeSlider();
    void setNeeded(int slot, bool need);
    void chooseAll(bool need);
    void fitYRange();
    void refreshSelectionWindow();
    void refreshStatusWindow();
    void advanceOneStep();
    void pauseAtAnError();
    SinePlotContent plotContent() const;
    SinePlotState plotState() const;

    SinePanel panel;
    SineSelectionWindow* selectionWindow = nullptr;
    SineFocusWindow* focusWindow = nullptr;
    SineStatusWindow* statusWindow = nullptr;

    int X = 250;
    SineResults computed;
    SineColors colours = kSineDefaultColors;
    std::array<bool, kSineApproachCount + 1> needed = kSineStartSelections;
    bool errorComparison = false;
    bool finalError = false;
    int lowerRange = -100;
    int upperRange = 100;
    int rangeStep = 10;
    bool showBoundary = true;
    bool showValues = true;
    int hovered = -1;

    bool autoPaused = false;
    bool blink = false;

    // What painting the overlay keeps between frames.
    quillon::PlotOverlayCache overlayCache;
};
