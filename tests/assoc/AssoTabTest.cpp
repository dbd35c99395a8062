#include "app/GraphicsView.h"
#include "app/MainWindow.h"
#include "assoc/gui/AssoColorMap.h"
#include "assoc/gui/AssoFocusWindow.h"
#include "assoc/gui/AssoOpenGLScene.h"
#include "assoc/gui/AssoSelectionWindow.h"
#include "tests/assoc/AssoTestSupport.h"
#include "tests/gui/GuiTestSupport.h"
#include "tests/gui/PaintedTextRecorder.h"

#include <QAction>
#include <QCheckBox>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QOpenGLWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>
#include <QtTest>

namespace
{

std::string fileContents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string("<none>");
}

} // namespace

class AssoTabTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void panelStartsWithTheDefaults();
    void curvesAppearInTheirColours();
    void typingRAndEnterRecomputes();
    void speedLevelsSetTheTimerAndButtons();
    void pauseTogglesItsText();
    void ticksSlideTheWindowInAndForward();
    void ticksStopAtTheLastFullWindow();
    void dragZoomsAndRightClickUndoes();
    void clickWithoutMovementDoesNotZoom();
    void legendClickTogglesACurve();
    void legendHoverHighlights();
    void errorIconHoverShowsMessages();
    void curveStopsAtItsFirstError();
    void allOrdersOffLeavesTheLegendUnchecked();
    void errorIconsFollowTheNextOrdersFlag();
    void selectionWindowSwitchesCurvesAndComparison();
    void colourMapAppliesAndResets();
    void colourMapPresetClick();
    void focusWindowEditsTheWindow();
    void focusYEditChangesOnlyThatBound();
    void focusYEditsRefuseInfinityAndNan();
    void filesThroughTheDialogs();
    void damagedColourFilesNeverCrash();
    void helpWindowsShowTheirTexts();
    void oddInputsNeverCrash();
    void heaviestViewStillPaints();
    void numberFieldsRefuseGroupSeparators();
    void selectionWindowShowsTheBaseOrder();
    void uncheckingComparisonRepaintsTheBaseButtons();
    void focusWindowFollowsEveryChangeOfTheWindow();
    void coloursOutsideTheRangeShowAsTheyAreDrawn();
    void largeColourFileReadsItsFirstLines();
    void yLabelsShowTheGridValues();
    void errorMessagesAreMeasuredWithGetAndDrawnWithGets();
    void spreadReadoutShowsTheLargestDifference();

private:
    template <typename T> T* child(const char* name) const
    {
        return window->findChild<T*>(QString::fromLatin1(name));
    }
    void typeAndEnter(const char* field, const QString& text);
    QWidget* popWindow(const char* menu, const char* entry, const QString& title);
    QImage grabPlot();
    QPoint viewPoint(double fx, double fy) const;
    void runUntil(const std::function<bool()>& done);
    void saveOrOpen(const char* entry, const QString& path);
    AssoSelectionWindow* popSelectionWindow();
    AssoFocusWindow* popFocusWindow();
    QList<PaintedText> paintedTexts() const;
    void expectFocusShowsTheWindow(AssoFocusWindow* focus);
    QString writeColourFile(const QString& name, const QByteArray& contents);
    void showOnlyOrder(int order);

    std::unique_ptr<MainWindow> window;
    std::unique_ptr<QTemporaryDir> folder;
    AssoOpenGLScene* scene = nullptr;
    GraphicsView* view = nullptr;
};

void AssoTabTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    window = std::make_unique<MainWindow>();
    view = qobject_cast<GraphicsView*>(showPlotTab(*window, 2, "associativelaw_VisWindow"));
    QVERIFY(view != nullptr);
    scene = qobject_cast<AssoOpenGLScene*>(view->scene());
    QVERIFY(scene != nullptr);
}

void AssoTabTest::cleanup()
{
    window.reset();
    folder.reset();
}

void AssoTabTest::typeAndEnter(const char* field, const QString& text)
{
    retype(child<QLineEdit>(field), text);
    QTest::keyClick(child<QLineEdit>(field), Qt::Key_Return);
}

QWidget* AssoTabTest::popWindow(const char* menu, const char* entry, const QString& title)
{
    return popMenuWindow(*window, QString::fromLatin1(menu), QString::fromLatin1(entry), title);
}

QImage AssoTabTest::grabPlot()
{
    return grabPlotFrame(view);
}

QPoint AssoTabTest::viewPoint(double fx, double fy) const
{
    return QPoint(int(view->width() * fx), int(view->height() * fy));
}

void AssoTabTest::runUntil(const std::function<bool()>& done)
{
    // Ticks as the timer gives them, without waiting for it.
    scene->setPaused(false);
    for (int tick = 0; tick < 1000 && !done(); ++tick) {
        scene->runningMan();
    }
    QVERIFY(done());
    child<QPushButton>("associativelaw_pause")->click();
    QVERIFY(scene->isPaused());
}

void AssoTabTest::panelStartsWithTheDefaults()
{
    QCOMPARE(child<QLineEdit>("associativelaw_iteration_input")->text(), QStringLiteral("300"));
    QCOMPARE(child<QLineEdit>("associativelaw_X_input")->text(), QStringLiteral("0.500000"));
    QCOMPARE(child<QLineEdit>("associativelaw_R_input")->text(), QStringLiteral("3.000000"));
    QCOMPARE(child<QLabel>("associativelaw_time_end_l")->text(), QStringLiteral("279"));
    QCOMPARE(child<QSlider>("associativelaw_time_slider")->maximum(), 279);
    QCOMPARE(child<QPushButton>("associativelaw_pause")->text(), QStringLiteral("Pause"));
    QCOMPARE(scene->getN(), 300);
    QCOMPARE(scene->sequences().values[0][1], 1.25f);
    auto* validator = qobject_cast<const QIntValidator*>(
        child<QLineEdit>("associativelaw_iteration_input")->validator());
    QVERIFY(validator != nullptr);
    QCOMPARE(validator->bottom(), 1);
    QCOMPARE(validator->top(), 10000);
}

void AssoTabTest::curvesAppearInTheirColours()
{
    runUntil([this] { return scene->xWindow().slideInDone(); });
    // One order at a time, since the curves cover each other where the orders agree; only
    // the plot area counts, as the legend's squares below 0.75 of the height hold every colour.
    for (int k = 0; k < kAssoOrderCount; ++k) {
        showOnlyOrder(k);
        const QImage frame = grabPlot();
        const QImage plotArea = frame.copy(0, 0, view->width(), int(0.75 * view->height()) - 1);
        for (int other = 0; other < kAssoOrderCount; ++other) {
            const auto& color = scene->colors()[other];
            QCOMPARE(hasColor(plotArea, QColor(color.red, color.green, color.blue)), other == k);
        }
    }
}

void AssoTabTest::typingRAndEnterRecomputes()
{
    typeAndEnter("associativelaw_R_input", QStringLiteral("0"));
    QCOMPARE(scene->getR(), 0.0f);
    for (int k = 0; k < kAssoOrderCount; ++k) {
        QCOMPARE(scene->sequences().values[k][299], 0.5f);
    }
    QCOMPARE(scene->xWindow().start, 0);
    QCOMPARE(scene->xWindow().animationPosition, 0);
    typeAndEnter("associativelaw_iteration_input", QStringLiteral("1"));
    QCOMPARE(scene->getN(), 1);
    QCOMPARE(scene->sequences().values[0].size(), size_t(1));
    QCOMPARE(child<QLabel>("associativelaw_time_end_l")->text(), QStringLiteral("-20"));
}

void AssoTabTest::speedLevelsSetTheTimerAndButtons()
{
    auto* faster = child<QPushButton>("associativelaw_acceleration");
    auto* slower = child<QPushButton>("associativelaw_deceleration");
    auto* timer = child<QTimer>("associativelaw_timer");
    QVERIFY(timer != nullptr);
    QCOMPARE(timer->interval(), 400);
    const int expected[] = {200, 133, 100, 80};
    for (int level = 2; level <= 5; ++level) {
        QTest::mouseClick(faster, Qt::LeftButton);
        if (level == 2) {
            QTest::mouseClick(faster, Qt::LeftButton);
        }
        QCOMPARE(timer->interval(), expected[level - 2]);
    }
    QCOMPARE(scene->speedLevel(), 5);
    QVERIFY(!faster->isEnabled());
    scene->accelerate();
    QCOMPARE(scene->speedLevel(), 5);
    QCOMPARE(timer->interval(), 80);
    for (int i = 0; i < 10; ++i) {
        QTest::mouseClick(slower, Qt::LeftButton);
    }
    QCOMPARE(scene->speedLevel(), -5);
    QCOMPARE(timer->interval(), 2000);
    QVERIFY(!slower->isEnabled());
    QVERIFY(faster->isEnabled());
}

void AssoTabTest::pauseTogglesItsText()
{
    auto* pause = child<QPushButton>("associativelaw_pause");
    const bool pausedBefore = scene->isPaused();
    QTest::mouseClick(pause, Qt::LeftButton);
    QCOMPARE(scene->isPaused(), !pausedBefore);
    QCOMPARE(pause->text(), scene->isPaused() ? QStringLiteral("Resume") : QStringLiteral("Pause"));
    QTest::mouseClick(pause, Qt::LeftButton);
    QCOMPARE(scene->isPaused(), pausedBefore);
}

void AssoTabTest::ticksSlideTheWindowInAndForward()
{
    scene->setPaused(false);
    for (int tick = 1; tick <= 21; ++tick) {
        scene->runningMan();
        QCOMPARE(scene->xWindow().animationPosition, tick);
        QCOMPARE(scene->xWindow().start, 0);
    }
    scene->runningMan();
    QCOMPARE(scene->xWindow().start, 1);
    QCOMPARE(scene->xWindow().end, 21);
    QCOMPARE(child<QLabel>("associativelaw_time_value_l")->text(), QStringLiteral("1"));
    scene->setPaused(true);
    scene->runningMan();
    QCOMPARE(scene->xWindow().start, 1);
}

void AssoTabTest::ticksStopAtTheLastFullWindow()
{
    typeAndEnter("associativelaw_iteration_input", QStringLiteral("30"));
    scene->setPaused(false);
    for (int tick = 0; tick < 60; ++tick) {
        scene->runningMan();
    }
    QCOMPARE(scene->xWindow().end, 29);
    QCOMPARE(scene->xWindow().start, 9);
    // The Y range is still refitted on every tick.
    const float fittedMin = scene->getYMin();
    auto* focus = qobject_cast<AssoFocusWindow*>(
        popWindow("&Tools", "&Region focus ...", QStringLiteral("Region focus")));
    QVERIFY(focus != nullptr);
    focus->yMinEdit()->setText(QStringLiteral("-7"));
    QTest::keyClick(focus->yMinEdit(), Qt::Key_Return);
    QCOMPARE(scene->getYMin(), -7.0f);
    scene->runningMan();
    QCOMPARE(scene->xWindow().start, 9);
    QCOMPARE(scene->getYMin(), fittedMin);
}

// Slid in, the window 0..20 spans the plot: node start + k sits at 0.15 * k - 1.5, that is at
// k / 20 of the width. A drag from 5.5 / 20 to 15.5 / 20 of the width: the first node right of
// the press is start + 6, so the window starts one before it, at start + 5; the first node
// right of the release, start + 16, ends it. The Y range becomes the two dragged heights.
void AssoTabTest::dragZoomsAndRightClickUndoes()
{
    runUntil([this] { return scene->xWindow().slideInDone(); });
    const quillon::PlotXWindow before = scene->xWindow();
    QCOMPARE(before.end - before.start, 20);
    const float yMinBefore = scene->getYMin();
    const float yMaxBefore = scene->getYMax();
    const int width = view->width();
    const int height = view->height();
    const QPoint press(qRound(width * 5.5 / 20), int(height * 0.2));
    const QPoint release(qRound(width * 15.5 / 20), int(height * 0.5));
    QWidget* viewport = view->viewport();
    movePointer(viewport, press);
    QTest::mousePress(viewport, Qt::LeftButton, {}, press);
    movePointer(viewport, release);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, release);
    QCOMPARE(scene->zoomDepth(), 2);
    QCOMPARE(scene->xWindow().start, before.start + 5);
    QCOMPARE(scene->xWindow().end, before.start + 16);
    QCOMPARE(scene->xWindow().step, before.step);
    const auto draggedY = [&](int pixelY) {
        return double(yMinBefore) +
               (double(yMaxBefore) - double(yMinBefore)) * (height - pixelY) / height;
    };
    QCOMPARE(scene->getYMin(), float(draggedY(release.y())));
    QCOMPARE(scene->getYMax(), float(draggedY(press.y())));
    QTest::mouseClick(viewport, Qt::RightButton, {}, viewPoint(0.5, 0.5));
    QCOMPARE(scene->zoomDepth(), 1);
    QCOMPARE(scene->xWindow().start, before.start);
    QCOMPARE(scene->xWindow().end, before.end);
    QCOMPARE(scene->getYMin(), yMinBefore);
    QCOMPARE(scene->getYMax(), yMaxBefore);
    // With one entry left, a right click removes it and restores nothing; then nothing.
    QTest::mouseClick(viewport, Qt::RightButton, {}, viewPoint(0.5, 0.5));
    QCOMPARE(scene->zoomDepth(), 0);
    QTest::mouseClick(viewport, Qt::RightButton, {}, viewPoint(0.5, 0.5));
    QCOMPARE(scene->zoomDepth(), 0);
}

void AssoTabTest::clickWithoutMovementDoesNotZoom()
{
    QWidget* viewport = view->viewport();
    const quillon::PlotXWindow before = scene->xWindow();
    movePointer(viewport, viewPoint(0.4, 0.3));
    QTest::mouseClick(viewport, Qt::LeftButton, {}, viewPoint(0.4, 0.3));
    QCOMPARE(scene->zoomDepth(), 0);
    QCOMPARE(scene->xWindow().end, before.end);
}

void AssoTabTest::legendClickTogglesACurve()
{
    auto* selection = qobject_cast<AssoSelectionWindow*>(
        popWindow("&Tools", "&Selections ...", QStringLiteral("Selections")));
    QVERIFY(selection != nullptr);
    QWidget* viewport = view->viewport();
    const int h = view->height();
    const int rowHeight = int(std::floor(0.25 * h)) / 5;
    const QPoint onRow2(view->width() / 2, int(std::floor(0.75 * h)) + 2 * rowHeight + 2);
    movePointer(viewport, onRow2);
    QTest::mouseClick(viewport, Qt::LeftButton, {}, onRow2);
    QVERIFY(!scene->isFuncNeeded(2));
    QVERIFY(!selection->orderCheckBox(2)->isChecked());
    QVERIFY(scene->isFuncNeeded(1));
    QTest::mouseClick(viewport, Qt::LeftButton, {}, onRow2);
    QVERIFY(scene->isFuncNeeded(2));
    QVERIFY(selection->orderCheckBox(2)->isChecked());
}

void AssoTabTest::legendHoverHighlights()
{
    const int h = view->height();
    const int rowHeight = int(std::floor(0.25 * h)) / 5;
    movePointer(view->viewport(),
                QPoint(30, int(std::floor(0.75 * h)) + 4 * rowHeight + rowHeight / 2));
    QTRY_COMPARE(scene->highlightedFunction(), 4);
    movePointer(view->viewport(), QPoint(30, 10));
    QTRY_COMPARE(scene->highlightedFunction(), -1);
}

void AssoTabTest::errorIconHoverShowsMessages()
{
    typeAndEnter("associativelaw_R_input", QStringLiteral("10000"));
    typeAndEnter("associativelaw_X_input", QStringLiteral("10000"));
    QCOMPARE(scene->sequences().errors[0][3], int32_t(AssoOverflow));
    runUntil([this] { return scene->xWindow().slideInDone(); });
    movePointer(view->viewport(), QPoint(5, 5));
    QTRY_VERIFY(!scene->showsErrorMessages());
    const QPointF icon = scene->errorIconRect(3).center();
    movePointer(view->viewport(), icon.toPoint());
    QTRY_VERIFY(scene->showsErrorMessages());
    QVERIFY(hasColor(grabPlot(), QColor(255, 0, 0)));
}

void AssoTabTest::curveStopsAtItsFirstError()
{
    typeAndEnter("associativelaw_R_input", QStringLiteral("3.01"));
    typeAndEnter("associativelaw_X_input", QStringLiteral("0.7"));
    for (int k = 1; k < kAssoOrderCount; ++k) {
        scene->setColor(k, {255, 255, 255});
    }
    child<QCheckBox>("associativelaw_showLabels")->setChecked(false);
    child<QCheckBox>("associativelaw_showXIndices")->setChecked(false);
    // Show iterations 30 to 50: order 1 fails at 43 and stays stopped after it.
    auto* focus = qobject_cast<AssoFocusWindow*>(
        popWindow("&Tools", "&Region focus ...", QStringLiteral("Region focus")));
    QVERIFY(focus != nullptr);
    focus->endSlider()->setValue(50);
    focus->startSlider()->setValue(30);
    QCOMPARE(scene->xWindow().start, 30);
    runUntil([this] { return scene->xWindow().slideInDone(); });
    const quillon::PlotXWindow shown = scene->xWindow();
    QVERIFY(shown.start <= 42 && shown.end >= 44);
    const auto pixelOf = [&](int n) {
        return int(view->width() * (quillon::plotNodeX(shown, n, -1.5f, 1.5f) + 1.5f) / 3.0f);
    };
    const QImage frame = grabPlot();
    const QColor purple(128, 0, 128);
    QVERIFY(hasColor(frame, purple, pixelOf(shown.start), pixelOf(42)));
    QVERIFY(!hasColor(frame, purple, pixelOf(42) + 3));
}

void AssoTabTest::allOrdersOffLeavesTheLegendUnchecked()
{
    const int h = view->height();
    const QRect checkColumn(0, int(std::floor(0.75 * h)), view->width() / 15, h / 4);
    const QColor tick(0, 110, 0);
    QTRY_VERIFY(hasColor(grabPlot().copy(checkColumn), tick));
    scene->allUnchoose();
    const QImage frame = grabPlot();
    QVERIFY(!hasColor(frame.copy(checkColumn), tick));
    // The five rows are still there: their colour squares are drawn.
    for (const auto& color : scene->colors()) {
        QVERIFY(
            hasColor(frame, QColor(color.red, color.green, color.blue), view->width() * 13 / 15));
    }
}

void AssoTabTest::errorIconsFollowTheNextOrdersFlag()
{
    // R = 3.01, X0 = 0.5: at iteration 37 only order 1 (index 0) fails among the first four.
    typeAndEnter("associativelaw_R_input", QStringLiteral("3.01"));
    typeAndEnter("associativelaw_X_input", QStringLiteral("0.5"));
    QVERIFY(scene->sequences().errors[0][37] != AssoOk);
    for (int k = 1; k < 4; ++k) {
        QCOMPARE(scene->sequences().errors[k][37], int32_t(AssoOk));
    }
    scene->setEndpoint(60);
    child<QSlider>("associativelaw_time_slider")->setValue(30);
    QCOMPARE(scene->xWindow().start, 30);
    QTest::qWait(50);
    const QPoint icon = scene->errorIconRect(37).center().toPoint();
    QVERIFY(view->rect().contains(icon));
    const QPoint away(5, 5);
    movePointer(view->viewport(), away);
    QTRY_VERIFY(!scene->showsErrorMessages());
    movePointer(view->viewport(), icon);
    QTRY_VERIFY(scene->showsErrorMessages());
    // Order 1's icons hang on order 2's flag: with order 2 off there is no icon to hover.
    scene->needFunc1(false);
    movePointer(view->viewport(), away);
    movePointer(view->viewport(), icon);
    QTest::qWait(50);
    QVERIFY(!scene->showsErrorMessages());
    // Turning order 1 itself off does not hide its icons.
    scene->needFunc1(true);
    scene->needFunc0(false);
    movePointer(view->viewport(), away);
    movePointer(view->viewport(), icon);
    QTRY_VERIFY(scene->showsErrorMessages());
}

void AssoTabTest::selectionWindowSwitchesCurvesAndComparison()
{
    auto* selection = qobject_cast<AssoSelectionWindow*>(
        popWindow("&Tools", "&Selections ...", QStringLiteral("Selections")));
    QVERIFY(selection != nullptr);
    QVERIFY(!selection->baseRadioButton(1)->isCheckable());
    scene->setBaseFunc2(true);
    QCOMPARE(scene->baseFunction(), 0);
    selection->comparisonCheckBox()->click();
    QVERIFY(scene->isComparing());
    QVERIFY(selection->baseRadioButton(3)->isCheckable());
    selection->baseRadioButton(3)->click();
    QCOMPARE(scene->baseFunction(), 3);
    // The plot now shows differences to order 4: once the window 0..20 has slid in, the Y range
    // spans the differences values[k][i] - values[3][i] over those iterations.
    runUntil([this] { return scene->xWindow().slideInDone(); });
    const auto differenceRange = [this](int base) {
        const AssoSequences& sequences = scene->sequences();
        float low = 0.0f;
        float high = 0.0f;
        for (int k = 0; k < kAssoOrderCount; ++k) {
            for (int i = 0; i <= 20; ++i) {
                const float difference = sequences.values[k][i] - sequences.values[base][i];
                low = std::min(low, difference);
                high = std::max(high, difference);
            }
        }
        return std::make_pair(low, high);
    };
    const auto expected = differenceRange(3);
    QVERIFY(expected != differenceRange(0));
    QCOMPARE(scene->getYMin(), expected.first);
    QCOMPARE(scene->getYMax(), expected.second);
    selection->comparisonCheckBox()->click();
    QVERIFY(!selection->baseRadioButton(1)->isCheckable());
    for (int k = 0; k < kAssoOrderCount; ++k) {
        selection->orderCheckBox(k)->click();
        QVERIFY(!scene->isFuncNeeded(k));
    }
    runUntil([this] { return scene->xWindow().slideInDone(); });
    const QImage frame = grabPlot();
    for (const auto& color : scene->colors()) {
        QVERIFY(!hasColor(frame, QColor(color.red, color.green, color.blue), 0,
                          view->width() * 12 / 15));
    }
    scene->allchoose();
    QVERIFY(selection->orderCheckBox(4)->isChecked());
}

void AssoTabTest::colourMapAppliesAndResets()
{
    auto* map = qobject_cast<AssoColorMap*>(
        popWindow("&Tools", "&Color map ...", QStringLiteral("Color map")));
    QVERIFY(map != nullptr);
    map->applyColorChange();
    QCOMPARE(scene->colors()[0], (quillon::ColorTriple{128, 0, 128}));
    map->targetButton(1)->click();
    QCOMPARE(map->targetOrder(), 1);
    QCOMPARE(map->editingColor(), (quillon::ColorTriple{0, 128, 128}));
    map->redSlider()->setValue(200);
    map->blueSlider()->setValue(10);
    QCOMPARE(map->editingColor(), (quillon::ColorTriple{200, 128, 10}));
    QTest::mouseClick(map->applyButton(), Qt::LeftButton);
    QCOMPARE(scene->colors()[1], (quillon::ColorTriple{200, 128, 10}));
    map->greenSlider()->setValue(0);
    QTest::mouseClick(map->resetButton(), Qt::LeftButton);
    // Back to the scene's current colour, not the default.
    QCOMPARE(map->editingColor(), (quillon::ColorTriple{200, 128, 10}));
    QCOMPARE(map->greenSlider()->value(), 128);
}

void AssoTabTest::colourMapPresetClick()
{
    auto* map = qobject_cast<AssoColorMap*>(
        popWindow("&Tools", "&Color map ...", QStringLiteral("Color map")));
    QVERIFY(map != nullptr);
    map->resize(400, 440);
    QTRY_COMPARE(map->size(), QSize(400, 440));
    // Cells 50 x 20; the grid's top edge is at 163.
    QTest::mouseClick(map, Qt::LeftButton, {}, QPoint(60, 163));
    QCOMPARE(map->editingColor(), (quillon::ColorTriple{255, 255, 128}));
    QTest::mouseClick(map, Qt::LeftButton, {}, QPoint(10, 270));
    QCOMPARE(map->editingColor(), (quillon::ColorTriple{160, 0, 0}));
    QTest::mouseClick(map, Qt::LeftButton, {}, QPoint(10, 300));
    QCOMPARE(map->editingColor(), (quillon::ColorTriple{160, 0, 0}));
}

void AssoTabTest::focusWindowEditsTheWindow()
{
    auto* focus = qobject_cast<AssoFocusWindow*>(
        popWindow("&Tools", "&Region focus ...", QStringLiteral("Region focus")));
    QVERIFY(focus != nullptr);
    focus->endSlider()->setValue(100);
    QCOMPARE(scene->xWindow().end, 100);
    focus->fixCheckBox()->click();
    QVERIFY(focus->fixesNodeCount());
    focus->startSlider()->setValue(10);
    QCOMPARE(scene->xWindow().start, 10);
    QCOMPARE(scene->xWindow().end, 110);
    // 100 nodes from 250 would end past 299: refused.
    scene->setStartpoint(250);
    QCOMPARE(scene->xWindow().start, 10);
    focus->fixCheckBox()->click();
    // Without the fix, the end is compared with the step size.
    scene->setStepsize(5);
    scene->setEndpoint(4);
    QCOMPARE(scene->xWindow().end, 110);
    QTest::mouseClick(focus->resetButton(), Qt::LeftButton);
    QCOMPARE(scene->xWindow().start, 0);
    QCOMPARE(scene->xWindow().end, 100);
    QCOMPARE(scene->xWindow().step, 1);
}

void AssoTabTest::focusYEditChangesOnlyThatBound()
{
    auto* focus = qobject_cast<AssoFocusWindow*>(
        popWindow("&Tools", "&Region focus ...", QStringLiteral("Region focus")));
    QVERIFY(focus != nullptr);
    const float yMax = scene->getYMax();
    focus->yMinEdit()->setText(QStringLiteral("-0.25"));
    QTest::keyClick(focus->yMinEdit(), Qt::Key_Return);
    QCOMPARE(scene->getYMin(), -0.25f);
    QCOMPARE(scene->getYMax(), yMax);
    scene->setPaused(false);
    scene->runningMan();
    QVERIFY(scene->getYMin() != -0.25f);
    QCOMPARE(focus->yMinEdit()->text().toFloat(), scene->getYMin());
}

// Typing infinity or NaN would leave the plot without a range: the keystroke that would make
// the text one is refused, a note says why, and Return with such a text changes nothing.
void AssoTabTest::focusYEditsRefuseInfinityAndNan()
{
    auto* focus = qobject_cast<AssoFocusWindow*>(
        popWindow("&Tools", "&Region focus ...", QStringLiteral("Region focus")));
    QVERIFY(focus != nullptr);
    auto* note = focus->findChild<QLabel*>(QStringLiteral("yRefusal"));
    QVERIFY(note != nullptr && !note->isVisible());
    const float yMin = scene->getYMin();
    const float yMax = scene->getYMax();
    retype(focus->yMinEdit(), QStringLiteral("-inf"));
    QCOMPARE(focus->yMinEdit()->text(), QStringLiteral("-in"));
    QVERIFY(note->isVisible());
    QCOMPARE(note->text(), QStringLiteral("Only finite numbers"));
    retype(focus->yMaxEdit(), QStringLiteral("2e40"));
    QCOMPARE(focus->yMaxEdit()->text(), QStringLiteral("2e4"));
    focus->yMaxEdit()->setText(QStringLiteral("nan"));
    QTest::keyClick(focus->yMaxEdit(), Qt::Key_Return);
    QCOMPARE(scene->getYMin(), yMin);
    QCOMPARE(scene->getYMax(), yMax);
}

void AssoTabTest::saveOrOpen(const char* entry, const QString& path)
{
    QVERIFY(chooseFileThroughMenu(*window, QString::fromLatin1(entry), path));
}

void AssoTabTest::filesThroughTheDialogs()
{
    const QString txt = folder->filePath(QStringLiteral("data.txt"));
    const QString csv = folder->filePath(QStringLiteral("data.csv"));
    saveOrOpen("&Save data to a txt file ...", txt);
    saveOrOpen("&Save data to a csv file ...", csv);
    QCOMPARE(fileContents(txt), assoGolden("default.txt"));
    QCOMPARE(fileContents(csv), assoGolden("default.csv"));

    const QString conf = folder->filePath(QStringLiteral("colours.conf"));
    scene->setColor(3, {1, 2, 3});
    saveOrOpen("&Save to a configuration file ...", conf);
    QCOMPARE(fileContents(conf).substr(0, 28), std::string("Func0 Color R 128 G 0 B 128\n"));
    const AssoColors saved = scene->colors();
    scene->setColor(3, {9, 9, 9});
    scene->setColor(0, {9, 9, 9});
    saveOrOpen("&Open a configuration file ...", conf);
    QCOMPARE(scene->colors(), saved);

    QFile crlf(folder->filePath(QStringLiteral("crlf.conf")));
    QVERIFY(crlf.open(QIODevice::WriteOnly));
    crlf.write("Func0 Color R 5 G 6 B 7\r\nFunc1 Color R 8 G 9 B 10\r\n");
    crlf.close();
    saveOrOpen("&Open a configuration file ...", crlf.fileName());
    QCOMPARE(scene->colors()[0], (quillon::ColorTriple{5, 6, 7}));
    QCOMPARE(scene->colors()[1], (quillon::ColorTriple{8, 9, 10}));
    QCOMPARE(scene->colors()[2], saved[2]);
}

void AssoTabTest::damagedColourFilesNeverCrash()
{
    const AssoColors before = scene->colors();
    const QString missing = folder->filePath(QStringLiteral("missing.conf"));
    QVERIFY(!scene->loadColorFile(missing).isEmpty());
    QCOMPARE(scene->colors(), before);
    QVERIFY(!scene->loadColorFile(folder->path()).isEmpty());
    QFile garbage(folder->filePath(QStringLiteral("garbage.conf")));
    QVERIFY(garbage.open(QIODevice::WriteOnly));
    garbage.write(QByteArray(50000, 'z') + " 77 Func G 12");
    garbage.close();
    QVERIFY(scene->loadColorFile(garbage.fileName()).isEmpty());
    QCOMPARE(scene->colors()[4], before[4]);
}

void AssoTabTest::helpWindowsShowTheirTexts()
{
    const struct {
        const char* entry;
        const char* title;
        const char* golden;
    } windows[] = {{"&About ...", "About", "asso-about.txt"},
                   {"&Help ...", "Help", "asso-help.txt"}};
    for (const auto& expected : windows) {
        QWidget* shown = popWindow("&Help", expected.entry, QString::fromLatin1(expected.title));
        QVERIFY2(shown != nullptr, expected.title);
        auto* browser = shown->findChild<QTextBrowser*>();
        QVERIFY(browser != nullptr);
        QCOMPARE(browser->toPlainText().toStdString(), assoGolden(expected.golden));
        shown->close();
    }
}

void AssoTabTest::oddInputsNeverCrash()
{
    for (const char* text : {"", "-", "1e9", "99999", ",", "1,000"}) {
        for (const char* field : {"associativelaw_iteration_input", "associativelaw_X_input",
                                  "associativelaw_R_input"}) {
            typeAndEnter(field, QString::fromLatin1(text));
        }
        QTest::mouseClick(child<QPushButton>("associativelaw_calculate"), Qt::LeftButton);
        scene->setPaused(false);
        scene->runningMan();
        grabPlot();
    }
    child<QLineEdit>("associativelaw_iteration_input")->setText(QStringLiteral("99999"));
    QTest::mouseClick(child<QPushButton>("associativelaw_calculate"), Qt::LeftButton);
    QCOMPARE(scene->getN(), 99999);
    QCOMPARE(scene->sequences().values[4].size(), size_t(99999));
    grabPlot();
}

void AssoTabTest::heaviestViewStillPaints()
{
    typeAndEnter("associativelaw_iteration_input", QStringLiteral("10000"));
    auto* focus = qobject_cast<AssoFocusWindow*>(
        popWindow("&Tools", "&Region focus ...", QStringLiteral("Region focus")));
    QVERIFY(focus != nullptr);
    focus->endSlider()->setValue(9999);
    QCOMPARE(scene->xWindow().end, 9999);
    for (const char* box :
         {"associativelaw_showXAxis", "associativelaw_showYAxis", "associativelaw_showYIndices"}) {
        child<QCheckBox>(box)->setChecked(true);
    }
    scene->setTimeStartpoint(0);
    QElapsedTimer timer;
    timer.start();
    const QImage frame = grabPlot();
    QVERIFY(timer.elapsed() < 5000);
    QVERIFY(!frame.isNull());
}

AssoSelectionWindow* AssoTabTest::popSelectionWindow()
{
    auto* selection = qobject_cast<AssoSelectionWindow*>(
        popWindow("&Tools", "&Selections ...", QStringLiteral("Selections")));
    if (selection != nullptr && !QTest::qWaitForWindowExposed(selection)) {
        return nullptr;
    }
    return selection;
}

AssoFocusWindow* AssoTabTest::popFocusWindow()
{
    return qobject_cast<AssoFocusWindow*>(
        popWindow("&Tools", "&Region focus ...", QStringLiteral("Region focus")));
}

QList<PaintedText> AssoTabTest::paintedTexts() const
{
    return foregroundTexts(scene, view->size());
}

void AssoTabTest::expectFocusShowsTheWindow(AssoFocusWindow* focus)
{
    const quillon::PlotXWindow& shown = scene->xWindow();
    QCOMPARE(focus->startSlider()->value(), shown.start);
    QCOMPARE(focus->startSlider()->maximum(), shown.end - 1);
    QCOMPARE(focus->endSlider()->value(), shown.end);
    QCOMPARE(focus->endSlider()->minimum(), shown.start);
    QCOMPARE(focus->endSlider()->maximum(), scene->getN() - 1);
    QCOMPARE(focus->stepSlider()->maximum(), scene->getN() - 1);
    QCOMPARE(focus->findChild<QLabel*>(QStringLiteral("startValue"))->text(),
             QString::number(shown.start));
    QCOMPARE(focus->findChild<QLabel*>(QStringLiteral("endValue"))->text(),
             QString::number(shown.end));
    QCOMPARE(focus->yMinEdit()->text(), QString::asprintf("%f", double(scene->getYMin())));
    QCOMPARE(focus->yMaxEdit()->text(), QString::asprintf("%f", double(scene->getYMax())));
}

void AssoTabTest::showOnlyOrder(int order)
{
    const std::array<void (AssoOpenGLScene::*)(bool), kAssoOrderCount> needOrder = {
        &AssoOpenGLScene::needFunc0, &AssoOpenGLScene::needFunc1, &AssoOpenGLScene::needFunc2,
        &AssoOpenGLScene::needFunc3, &AssoOpenGLScene::needFunc4};
    scene->allUnchoose();
    (scene->*needOrder[order])(true);
}

QString AssoTabTest::writeColourFile(const QString& name, const QByteArray& contents)
{
    QFile file(folder->filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size()) {
        return QString();
    }
    return file.fileName();
}

void AssoTabTest::numberFieldsRefuseGroupSeparators()
{
    for (const char* name :
         {"associativelaw_iteration_input", "associativelaw_X_input", "associativelaw_R_input"}) {
        auto* edit = child<QLineEdit>(name);
        retype(edit, QStringLiteral("1,000"));
        // The comma is refused as it is typed; the digits around it stand.
        QCOMPARE(edit->text(), QStringLiteral("1000"));
    }
    QTest::keyClick(child<QLineEdit>("associativelaw_R_input"), Qt::Key_Return);
    QCOMPARE(scene->getR(), 1000.0f);
}

void AssoTabTest::selectionWindowShowsTheBaseOrder()
{
    AssoSelectionWindow* selection = popSelectionWindow();
    QVERIFY(selection != nullptr);
    // The one radio button that shows as checked, -1 for none, -2 for several.
    const auto shownBase = [selection] {
        int shown = -1;
        for (int k = 0; k < kAssoOrderCount; ++k) {
            if (selection->baseRadioButton(k)->isChecked()) {
                shown = shown == -1 ? k : -2;
            }
        }
        return shown;
    };
    QCOMPARE(shownBase(), -1);
    clickIndicator(selection->comparisonCheckBox());
    QVERIFY(scene->isComparing());
    QCOMPARE(shownBase(), scene->baseFunction());
    for (int k : {3, 0, 4, 1, 2, 0}) {
        clickIndicator(selection->baseRadioButton(k));
        QCOMPARE(scene->baseFunction(), k);
        QCOMPARE(shownBase(), k);
    }
    clickIndicator(selection->baseRadioButton(3));
    for (int toggle = 0; toggle < 3; ++toggle) {
        clickIndicator(selection->comparisonCheckBox());
        QCOMPARE(shownBase(), -1);
        clickIndicator(selection->comparisonCheckBox());
        QCOMPARE(scene->baseFunction(), 3);
        QCOMPARE(shownBase(), 3);
    }
    clickIndicator(selection->baseRadioButton(1));
    QCOMPARE(scene->baseFunction(), 1);
    QCOMPARE(shownBase(), 1);
    const QString conf = folder->filePath(QStringLiteral("colours.conf"));
    saveOrOpen("&Save to a configuration file ...", conf);
    saveOrOpen("&Open a configuration file ...", conf);
    scene->allchoose();
    QCOMPARE(shownBase(), scene->baseFunction());
}

void AssoTabTest::uncheckingComparisonRepaintsTheBaseButtons()
{
    AssoSelectionWindow* selection = popSelectionWindow();
    QVERIFY(selection != nullptr);
    clickIndicator(selection->comparisonCheckBox());
    clickIndicator(selection->baseRadioButton(2));
    QApplication::processEvents();
    QRadioButton* base = selection->baseRadioButton(2);
    QVERIFY(base->isChecked());
    struct PaintCounter : QObject {
        int paints = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    } counter;
    // Leave the radio button first: a hover change would repaint it anyway.
    QTest::mouseMove(selection->comparisonCheckBox());
    QTest::qWait(100);
    base->installEventFilter(&counter);
    clickIndicator(selection->comparisonCheckBox());
    QVERIFY(!base->isChecked());
    // The button no longer checked must be painted again, or it still looks chosen.
    QTRY_VERIFY(counter.paints > 0);
}

void AssoTabTest::focusWindowFollowsEveryChangeOfTheWindow()
{
    AssoFocusWindow* focus = popFocusWindow();
    QVERIFY(focus != nullptr);
    expectFocusShowsTheWindow(focus);
    const auto moveWindowTo7To27 = [&] {
        focus->endSlider()->setValue(27);
        focus->startSlider()->setValue(7);
        QCOMPARE(scene->xWindow().start, 7);
        QCOMPARE(scene->xWindow().end, 27);
        expectFocusShowsTheWindow(focus);
    };
    moveWindowTo7To27();
    typeAndEnter("associativelaw_R_input", QStringLiteral("2.5"));
    QCOMPARE(scene->xWindow().start, 0);
    QCOMPARE(scene->xWindow().end, 20);
    expectFocusShowsTheWindow(focus);

    moveWindowTo7To27();
    typeAndEnter("associativelaw_X_input", QStringLiteral("0.25"));
    QCOMPARE(scene->xWindow().start, 0);
    expectFocusShowsTheWindow(focus);

    moveWindowTo7To27();
    QTest::mouseClick(child<QPushButton>("associativelaw_calculate"), Qt::LeftButton);
    QCOMPARE(scene->xWindow().start, 0);
    expectFocusShowsTheWindow(focus);

    // Calculate reads a new N as well: the end slider reaches N - 1.
    auto* iterations = child<QLineEdit>("associativelaw_iteration_input");
    iterations->setText(QStringLiteral("150"));
    QTest::mouseClick(child<QPushButton>("associativelaw_calculate"), Qt::LeftButton);
    QCOMPARE(scene->getN(), 150);
    QCOMPARE(focus->endSlider()->maximum(), 149);
    expectFocusShowsTheWindow(focus);

    moveWindowTo7To27();
    typeAndEnter("associativelaw_iteration_input", QStringLiteral("40"));
    QCOMPARE(focus->endSlider()->maximum(), 39);
    expectFocusShowsTheWindow(focus);

    clickIndicator(popSelectionWindow()->comparisonCheckBox());
    expectFocusShowsTheWindow(focus);
}

void AssoTabTest::coloursOutsideTheRangeShowAsTheyAreDrawn()
{
    const QString path =
        writeColourFile(QStringLiteral("odd.conf"), "Func0 Color R 300 G -20 B 128\n"
                                                    "Func1 Color R 0 G 1000 B 999\n");
    QVERIFY(!path.isEmpty());
    QCOMPARE(scene->loadColorFile(path), QString());
    QCOMPARE(scene->colors()[0], (quillon::ColorTriple{300, -20, 128}));
    runUntil([this] { return scene->xWindow().slideInDone(); });
    // OpenGL clamps each component: the curves are drawn in (255, 0, 128) and (0, 255, 255).
    const QList<QColor> drawn = {QColor(255, 0, 128), QColor(0, 255, 255)};
    const int legendTop = int(0.75 * view->height());
    const int rowHeight = int(0.25 * view->height()) / 5;
    const int columnWidth = view->width() / 15;
    for (int k = 0; k < 2; ++k) {
        showOnlyOrder(k);
        const QImage frame = grabPlot().convertToFormat(QImage::Format_RGB32);
        QVERIFY(hasColor(frame.copy(0, 0, view->width(), legendTop - 1), drawn[k]));
        const QPoint square(13 * columnWidth + columnWidth / 2,
                            legendTop + k * rowHeight + rowHeight / 2);
        QCOMPARE(QColor(frame.pixel(square)), drawn[k]);
    }
}

void AssoTabTest::largeColourFileReadsItsFirstLines()
{
    QByteArray contents = "Func0 Color R 1 G 2 B 3\nFunc1 Color R 4 G 5 B 6\n";
    contents += QByteArray(3 << 20, ' ');
    const QString path = writeColourFile(QStringLiteral("large.conf"), contents);
    QVERIFY(!path.isEmpty());
    const quillon::ColorTriple third = scene->colors()[2];
    QCOMPARE(scene->loadColorFile(path), QString());
    QCOMPARE(scene->colors()[0], (quillon::ColorTriple{1, 2, 3}));
    QCOMPARE(scene->colors()[1], (quillon::ColorTriple{4, 5, 6}));
    QCOMPARE(scene->colors()[2], third);
}

void AssoTabTest::yLabelsShowTheGridValues()
{
    scene->setPaused(true);
    child<QCheckBox>("associativelaw_showYIndices")->setChecked(true);
    AssoFocusWindow* focus = popFocusWindow();
    QVERIFY(focus != nullptr);
    focus->yMinEdit()->setText(QStringLiteral("-1"));
    QTest::keyClick(focus->yMinEdit(), Qt::Key_Return);
    focus->yMaxEdit()->setText(QStringLiteral("1"));
    QTest::keyClick(focus->yMaxEdit(), Qt::Key_Return);
    // 21 grid values from -1 to 1 in steps of 0.1, each written with "%.2e".
    const QStringList expected = {
        "-1.00e+00", "-9.00e-01", "-8.00e-01", "-7.00e-01", "-6.00e-01", "-5.00e-01", "-4.00e-01",
        "-3.00e-01", "-2.00e-01", "-1.00e-01", "0.00e+00",  "1.00e-01",  "2.00e-01",  "3.00e-01",
        "4.00e-01",  "5.00e-01",  "6.00e-01",  "7.00e-01",  "8.00e-01",  "9.00e-01",  "1.00e+00"};
    QStringList labels;
    for (const PaintedText& painted : paintedTexts()) {
        static const QRegularExpression twoDecimals(QStringLiteral("^-?\\d\\.\\d\\de[+-]\\d\\d$"));
        if (painted.position.x() == 0 && twoDecimals.match(painted.text).hasMatch()) {
            labels << painted.text;
        }
    }
    QCOMPARE(labels, expected);
}

void AssoTabTest::errorMessagesAreMeasuredWithGetAndDrawnWithGets()
{
    typeAndEnter("associativelaw_R_input", QStringLiteral("10000"));
    typeAndEnter("associativelaw_X_input", QStringLiteral("10000"));
    AssoFocusWindow* focus = popFocusWindow();
    QVERIFY(focus != nullptr);
    // A window of iterations 0..4 puts the icon of iteration 3 three quarters across the plot,
    // so the messages no longer fit to the right of the cursor.
    focus->endSlider()->setValue(4);
    runUntil([this] { return scene->xWindow().slideInDone(); });
    QVERIFY(scene->sequences().errors[0][3] != AssoOk);
    const QPoint icon = scene->errorIconRect(3).center().toPoint();
    movePointer(view->viewport(), icon);
    QTRY_VERIFY(scene->showsErrorMessages());

    const char* const words[] = {"", "Underflow", "Overflow", "NAN"};
    QStringList measured;
    QStringList drawn;
    const AssoSequences& sequences = scene->sequences();
    for (int k = 0; k < kAssoOrderCount; ++k) {
        for (size_t n = 0; n < sequences.errors[k].size(); ++n) {
            const int32_t code = sequences.errors[k][n];
            if (code != AssoOk) {
                const QString where = QStringLiteral("func %1 at iter %2 ").arg(k).arg(n);
                measured << where + "get an error: " + words[code] + "\n";
                drawn << where + "gets an error: " + words[code];
            }
        }
    }
    QFont font(QStringLiteral("times"), 10);
    font.setWeight(QFont::Bold);
    const QFontMetrics metrics(font);
    int widest = 0;
    bool fits = true;
    for (const QString& text : measured) {
        widest = std::max(widest, metrics.horizontalAdvance(text));
        fits = fits && icon.x() + metrics.horizontalAdvance(text) <= view->width();
    }
    QVERIFY(!fits);

    QStringList texts;
    for (const PaintedText& painted : paintedTexts()) {
        if (painted.color == QColor(255, 0, 0)) {
            texts << painted.text;
            // Placed left of the cursor by the widest "get" message, not the wider "gets" one.
            QCOMPARE(painted.position.x(), double(icon.x() - widest));
        }
    }
    QCOMPARE(texts, drawn);
}

void AssoTabTest::spreadReadoutShowsTheLargestDifference()
{
    typeAndEnter("associativelaw_R_input", QStringLiteral("3"));
    runUntil([this] { return scene->xWindow().slideInDone(); });
    // The window 0..20 fills the plot: x(20) = 20 * 0.15f - 1.5 = 1.5 is the last node inside.
    QCOMPARE(scene->xWindow().start, 0);
    QCOMPARE(scene->xWindow().end, 20);
    const AssoSequences& sequences = scene->sequences();
    float largest = sequences.values[0][20];
    float smallest = largest;
    for (int k = 1; k < kAssoOrderCount; ++k) {
        largest = std::max(largest, sequences.values[k][20]);
        smallest = std::min(smallest, sequences.values[k][20]);
    }
    QVERIFY(largest != smallest);
    const QString expected = QString::asprintf("Error: %2e", double(largest) - double(smallest));
    QStringList readouts;
    for (const PaintedText& painted : paintedTexts()) {
        if (painted.text.startsWith(QLatin1String("Error: "))) {
            readouts << painted.text;
        }
    }
    QCOMPARE(readouts, QStringList{expected});
}

QTEST_MAIN(AssoTabTest)
#include "AssoTabTest.moc"
