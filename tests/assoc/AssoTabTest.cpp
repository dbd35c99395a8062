#include "app/GraphicsView.h"
#include "app/MainWindow.h"
#include "assoc/gui/AssoColorMap.h"
#include "assoc/gui/AssoFocusWindow.h"
#include "assoc/gui/AssoOpenGLScene.h"
#include "assoc/gui/AssoSelectionWindow.h"
#include "tests/assoc/AssoTestSupport.h"
#include "tests/gui/GuiTestSupport.h"

#include <QAction>
#include <QCheckBox>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QOpenGLWidget>
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

// Whether the image holds a pixel of exactly this colour (the curves are drawn without
// smoothing, so their pixels have their exact colour).
bool hasColor(const QImage& image, const QColor& color, int fromX = 0, int toX = -1)
{
    const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
    const int end = toX < 0 ? rgb.width() : std::min(toX, rgb.width());
    for (int y = 0; y < rgb.height(); ++y) {
        for (int x = std::max(fromX, 0); x < end; ++x) {
            if (QColor(rgb.pixel(x, y)) == color) {
                return true;
            }
        }
    }
    return false;
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
    void filesThroughTheDialogs();
    void damagedColourFilesNeverCrash();
    void helpWindowsShowTheirTexts();
    void oddInputsNeverCrash();
    void heaviestViewStillPaints();

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

    std::unique_ptr<MainWindow> window;
    std::unique_ptr<QTemporaryDir> folder;
    AssoOpenGLScene* scene = nullptr;
    GraphicsView* view = nullptr;
};

void AssoTabTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    window = std::make_unique<MainWindow>();
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    child<QTabWidget>("tabWidget")->setCurrentIndex(2);
    view = child<QWidget>("associativelaw_VisWindow")->findChild<GraphicsView*>();
    scene = qobject_cast<AssoOpenGLScene*>(view->scene());
    QVERIFY(scene != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(view));
    QTRY_VERIFY(view->scene()->sceneRect().width() > 100);
}

void AssoTabTest::cleanup()
{
    window.reset();
    folder.reset();
}

void AssoTabTest::typeAndEnter(const char* field, const QString& text)
{
    auto* edit = child<QLineEdit>(field);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Backspace);
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
}

QWidget* AssoTabTest::popWindow(const char* menu, const char* entry, const QString& title)
{
    QAction* action = menuBarAction(*window, menu, entry);
    if (action == nullptr || !action->isEnabled()) {
        return nullptr;
    }
    action->trigger();
    for (QWidget* topLevel : QApplication::topLevelWidgets()) {
        if (topLevel->isVisible() && topLevel->windowTitle() == title) {
            return topLevel;
        }
    }
    return nullptr;
}

QImage AssoTabTest::grabPlot()
{
    QApplication::processEvents();
    return qobject_cast<QOpenGLWidget*>(view->viewport())->grabFramebuffer();
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
    const QImage frame = grabPlot();
    for (const auto& color : scene->colors()) {
        QVERIFY2(hasColor(frame, QColor(color.red, color.green, color.blue)),
                 qPrintable(QColor(color.red, color.green, color.blue).name()));
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
    auto* timer = child<QWidget>("associativelaw_win")->window()->findChild<QTimer*>();
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

void AssoTabTest::dragZoomsAndRightClickUndoes()
{
    runUntil([this] { return scene->xWindow().slideInDone(); });
    const AssoXWindow before = scene->xWindow();
    const float yMaxBefore = scene->getYMax();
    QWidget* viewport = view->viewport();
    QTest::mouseMove(viewport, viewPoint(0.25, 0.2));
    QTest::mousePress(viewport, Qt::LeftButton, {}, viewPoint(0.25, 0.2));
    QTest::mouseMove(viewport, viewPoint(0.75, 0.5));
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, viewPoint(0.75, 0.5));
    QCOMPARE(scene->zoomDepth(), 2);
    QVERIFY(scene->xWindow().start > before.start);
    QVERIFY(scene->xWindow().end < before.end);
    QVERIFY(scene->getYMax() < yMaxBefore);
    QTest::mouseClick(viewport, Qt::RightButton, {}, viewPoint(0.5, 0.5));
    QCOMPARE(scene->zoomDepth(), 1);
    QCOMPARE(scene->xWindow().start, before.start);
    QCOMPARE(scene->xWindow().end, before.end);
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
    const AssoXWindow before = scene->xWindow();
    QTest::mouseMove(viewport, viewPoint(0.4, 0.3));
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
    QTest::mouseMove(viewport, onRow2);
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
    QTest::mouseMove(view->viewport(),
                     QPoint(30, int(std::floor(0.75 * h)) + 4 * rowHeight + rowHeight / 2));
    QTRY_COMPARE(scene->highlightedFunction(), 4);
    QTest::mouseMove(view->viewport(), QPoint(30, 10));
    QTRY_COMPARE(scene->highlightedFunction(), -1);
}

void AssoTabTest::errorIconHoverShowsMessages()
{
    typeAndEnter("associativelaw_R_input", QStringLiteral("10000"));
    typeAndEnter("associativelaw_X_input", QStringLiteral("10000"));
    QCOMPARE(scene->sequences().errors[0][3], int32_t(AssoOverflow));
    runUntil([this] { return scene->xWindow().slideInDone(); });
    QTest::mouseMove(view->viewport(), QPoint(5, 5));
    QTRY_VERIFY(!scene->showsErrorMessages());
    const QPointF icon = scene->errorIconRect(3).center();
    QTest::mouseMove(view->viewport(), icon.toPoint());
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
    const AssoXWindow shown = scene->xWindow();
    QVERIFY(shown.start <= 42 && shown.end >= 44);
    const auto pixelOf = [&](int n) {
        return int(view->width() * (assoNodeX(shown, n, -1.5f, 1.5f) + 1.5f) / 3.0f);
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
    QTest::mouseMove(view->viewport(), away);
    QTRY_VERIFY(!scene->showsErrorMessages());
    QTest::mouseMove(view->viewport(), icon);
    QTRY_VERIFY(scene->showsErrorMessages());
    // Order 1's icons hang on order 2's flag: with order 2 off there is no icon to hover.
    scene->needFunc1(false);
    QTest::mouseMove(view->viewport(), away);
    QTest::mouseMove(view->viewport(), icon);
    QTest::qWait(50);
    QVERIFY(!scene->showsErrorMessages());
    // Turning order 1 itself off does not hide its icons.
    scene->needFunc1(true);
    scene->needFunc0(false);
    QTest::mouseMove(view->viewport(), away);
    QTest::mouseMove(view->viewport(), icon);
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
    for (int n = 0; n < 300; ++n) {
        QCOMPARE(
            AssoPlotContent({&scene->sequences(), {true, true, true, true, true}, true, 3, 300})
                .plotted(3, n)
                .value_or(-1.0f),
            0.0f);
    }
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

void AssoTabTest::saveOrOpen(const char* entry, const QString& path)
{
    answerNextModalDialog([path](QWidget* dialog) {
        auto* nameEdit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        QVERIFY(nameEdit != nullptr);
        nameEdit->setText(path);
        QTest::keyClick(nameEdit, Qt::Key_Return);
    });
    QAction* action = menuBarAction(*window, "&File", entry);
    QVERIFY(action != nullptr && action->isEnabled());
    action->trigger();
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

QTEST_MAIN(AssoTabTest)
#include "AssoTabTest.moc"
