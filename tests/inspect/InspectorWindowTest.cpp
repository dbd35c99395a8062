#include "inspect/gui/InspectorWindow.h"
#include "app/GraphicsView.h"
#include "app/MainWindow.h"
#include "app/PickGestures.h"
#include "assoc/gui/AssoOpenGLScene.h"
#include "common/core/PlotXWindow.h"
#include "pentagon/gui/PentagonOpenGLScene.h"
#include "sine/gui/SineOpenGLScene.h"
#include "tests/gui/GuiTestSupport.h"

#include <QAction>
#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRandomGenerator>
#include <QTabWidget>
#include <QtTest>
#include <algorithm>
#include <cmath>

class InspectorWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void everyTabEndsItsLastToolMenuWithTheInspector();
    void clickingARootsCellInspectsIt();
    void residualCellsShowWhatTheComputedRootLeaves();
    void cellsWithoutAnIeeeValueSayWhy();
    void clickingAnAssociativeLawNodeInspectsIt();
    void clickingASineNodeSplitsItsError();
    void clickingAPentagonVertexInspectsBothCoordinates();
    void missedPentagonClicksChangeNothing();

private:
    InspectorWindow* inspector() const;
    QLabel* cell(const char* name) const;
    QString reported(const char* item) const;

    std::unique_ptr<MainWindow> window;
};

void InspectorWindowTest::init()
{
    window = std::make_unique<MainWindow>();
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

void InspectorWindowTest::cleanup()
{
    window.reset();
}

InspectorWindow* InspectorWindowTest::inspector() const
{
    for (QWidget* topLevel : QApplication::topLevelWidgets()) {
        if (auto* found = qobject_cast<InspectorWindow*>(topLevel)) {
            return found;
        }
    }
    return nullptr;
}

QLabel* InspectorWindowTest::cell(const char* name) const
{
    return window->findChild<QLabel*>(QString::fromLatin1(name));
}

// The value of one "name<TAB>value" line of the report the window shows.
QString InspectorWindowTest::reported(const char* item) const
{
    const QString text =
        inspector()->findChild<QPlainTextEdit*>(QStringLiteral("inspector_report"))->toPlainText();
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1String(item) + QLatin1Char('\t'))) {
            return line.section(QLatin1Char('\t'), 1);
        }
    }
    return QStringLiteral("<no %1>").arg(QLatin1String(item));
}

// Added after every described entry of the last tool menu, with Ctrl+I, on every tab.
void InspectorWindowTest::everyTabEndsItsLastToolMenuWithTheInspector()
{
    auto* tabs = window->findChild<QTabWidget*>(QStringLiteral("tabWidget"));
    const char* lastToolMenus[] = {"&Examples", "&Tools", "&Tools", "&Tools"};
    for (int tab = 0; tab < 4; ++tab) {
        tabs->setCurrentIndex(tab);
        const QList<QAction*> menus = window->menuBar()->actions();
        QMenu* help = menus.last()->menu();
        QMenu* tools = menus[menus.size() - 2]->menu();
        QCOMPARE(help->title(), QStringLiteral("&Help"));
        QCOMPARE(tools->title(), QString::fromLatin1(lastToolMenus[tab]));
        QAction* last = tools->actions().last();
        QCOMPARE(last->text(), QStringLiteral("&Inspector ..."));
        QCOMPARE(last->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_I));
        QVERIFY(last->isEnabled());
    }
    // Ctrl+I opens it from the keyboard.
    tabs->setCurrentIndex(1);
    window->activateWindow();
    QTRY_VERIFY(window->isActiveWindow());
    QTest::keyClick(window.get(), Qt::Key_I, Qt::ControlModifier);
    QTRY_VERIFY(inspector() != nullptr && inspector()->isVisible());
}

// Example 2 (x^2 + 10000 x + 1): naive single precision computes b^2 - 4ac = 1e8 - 4 as 1e8
// (a tie between 99999992 and 1e8, to even), so its root (-b + sqrt(b^2 - 4ac)) / 2a comes out
// 0 against the true -1.0000000100000002e-4: every digit wrong, 13.7 million ulps away.
void InspectorWindowTest::clickingARootsCellInspectsIt()
{
    QAction* example = menuBarAction(*window, QStringLiteral("&Examples"),
                                     QStringLiteral("&Example 2: b^2 >> 4ac"));
    QVERIFY(example != nullptr);
    example->trigger();
    QTest::mouseClick(cell("roots_root1_label_1"), Qt::LeftButton);
    QVERIFY(inspector() != nullptr);
    QTRY_VERIFY(inspector()->isVisible());
    QCOMPARE(inspector()->findChild<QLabel*>(QStringLiteral("inspector_source"))->text(),
             QStringLiteral("Roots, Naive Single P., large root"));
    QCOMPARE(reported("format"), QStringLiteral("binary32"));
    QCOMPARE(reported("kind"), QStringLiteral("zero"));
    QCOMPARE(reported("reference"),
             QStringLiteral("-0.0001000000010000000200000005000000140000004"));
    QCOMPARE(reported("absolute error"), QStringLiteral("1.0000000100000002e-04"));
    QCOMPARE(reported("relative error"), QStringLiteral("1.0000000000000000e+00"));
    QCOMPARE(reported("error in ulps"), QStringLiteral("13743895.48"));
    QCOMPARE(reported("correct digits"), QStringLiteral("0"));

    // The double column's b^2 is exact: 1e8 with every digit agreeing.
    QTest::mouseClick(cell("roots_b2_label_3"), Qt::LeftButton);
    QCOMPARE(reported("format"), QStringLiteral("binary64"));
    QCOMPARE(reported("exact decimal"), QStringLiteral("100000000"));
    QCOMPARE(reported("correct digits"), QStringLiteral("exact"));

    QTest::mouseClick(inspector()->copyButton(), Qt::LeftButton);
    const QString copied = QApplication::clipboard()->text();
    QVERIFY(copied.startsWith(QStringLiteral("Roots, Naive Double P., b^2\nformat\tbinary64\n")));
    QVERIFY(copied.contains(QStringLiteral("\ncorrect digits\texact\n")));
    QVERIFY(copied.contains(QStringLiteral("MPFR at 1024 bits")));
}

// Start-up, x^2 + 1000 x + 1. The true roots leave 0, so the residual cells are compared with
// what each column's own root leaves, worked out with Python fractions: naive single
// precision's large root -4125 / 2^22 leaves -0.007079063914716243743896484375 exactly, which
// the column's double evaluation hits exactly; the double column's root -0.0010000010000226212
// leaves -2.0621109706952326827e-11, which its evaluation misses by 4.93e-17.
void InspectorWindowTest::residualCellsShowWhatTheComputedRootLeaves()
{
    QTest::mouseClick(cell("roots_result1_1"), Qt::LeftButton);
    QTRY_VERIFY(inspector() != nullptr && inspector()->isVisible());
    QCOMPARE(inspector()->findChild<QLabel*>(QStringLiteral("inspector_source"))->text(),
             QStringLiteral("Roots, Naive Single P., a*x1^2 + b*x1 + c"));
    QCOMPARE(reported("reference"), QStringLiteral("-0.007079063914716243743896484375"));
    QCOMPARE(reported("correct digits"), QStringLiteral("exact"));
    QCOMPARE(reported("x1"), QStringLiteral("-0.0010070801"));
    QCOMPARE(reported("x1 exact decimal"), QStringLiteral("-0.001007080078125"));
    const QString note = inspector()->findChild<QLabel*>(QStringLiteral("inspector_note"))->text();
    QVERIFY(note.contains(
        QStringLiteral("a x^2 + b x + c at x1, the large root this column computed")));
    QVERIFY(note.contains(QStringLiteral("only an exact root leaves 0")));

    QTest::mouseClick(cell("roots_result1_3"), Qt::LeftButton);
    QCOMPARE(reported("format"), QStringLiteral("binary64"));
    QCOMPARE(reported("reference"),
             QStringLiteral("-2.062110970695232682679629041544309064546e-11"));
    QCOMPARE(reported("absolute error"), QStringLiteral("4.9292169594276276e-17"));
    QCOMPARE(reported("x1"), QStringLiteral("-0.0010000010000226212"));
}

void InspectorWindowTest::cellsWithoutAnIeeeValueSayWhy()
{
    QTest::mouseClick(cell("roots_root1_label_4"), Qt::LeftButton);
    QTRY_VERIFY(inspector()->isVisible());
    QCOMPARE(inspector()->findChild<QLabel*>(QStringLiteral("inspector_source"))->text(),
             QStringLiteral("Roots, Naive High P., large root"));
    QVERIFY(inspector()->reportText().contains(QStringLiteral("256-bit")));
    // It names the same true values as the other columns' notes do.
    const QString sameTruth = QStringLiteral("MPFR at 1024 bits");
    QVERIFY(inspector()->reportText().contains(sameTruth));
    QTest::mouseClick(cell("roots_root1_label_1"), Qt::LeftButton);
    QVERIFY(inspector()->reportText().contains(sameTruth));
}

// The default run (X0 = 0.5, R = 3) at iteration 30: the true value 0.0463994768... lies in
// [2^-5, 2^-4), where a single-precision ulp is 2^-28. The five orders, worked out step by step
// in single precision, are all hundreds of millions of ulps away.
void InspectorWindowTest::clickingAnAssociativeLawNodeInspectsIt()
{
    auto* view = qobject_cast<GraphicsView*>(
        showStoppedPlotTab(*window, 2, "associativelaw_VisWindow", "associativelaw_timer"));
    QVERIFY(view != nullptr);
    auto* scene = qobject_cast<AssoOpenGLScene*>(view->scene());
    // The window of 21 nodes slides forward tick by tick.
    scene->setPaused(false);
    const quillon::PlotXWindow& shown = scene->xWindow();
    for (int tick = 0; tick < 100 && !shown.displays(30); ++tick) {
        scene->runningMan();
    }
    QVERIFY(shown.displays(30));
    const QSize size = view->viewport()->size();
    const float value = scene->sequences().values[0][30];
    const QPoint node(
        qRound(size.width() * (quillon::plotNodeX(shown, 30, -1.5f, 1.5f) + 1.5f) / 3.0f),
        qRound(size.height() * (scene->getYMax() - value) / (scene->getYMax() - scene->getYMin())));

    // With the inspector closed a click picks nothing.
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, node);
    QVERIFY(inspector() == nullptr || !inspector()->isVisible());
    QVERIFY(popMenuWindow(*window, QStringLiteral("&Tools"), QStringLiteral("&Inspector ..."),
                          QStringLiteral("Inspector")) != nullptr);
    QVERIFY(inspector()->reportText().isEmpty());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, node + QPoint(3, -2));
    QCOMPARE(inspector()->findChild<QLabel*>(QStringLiteral("inspector_source"))->text(),
             QStringLiteral("Associative Law, order 1, iteration 30"));
    QCOMPARE(reported("reference"), QStringLiteral("0.04639947684257835009848971761636654640313"));
    QCOMPARE(reported("order 1"), QStringLiteral("1.2032132 (310529823.28 ulps)"));
    QCOMPARE(reported("order 2"), QStringLiteral("0.40639496 (96635551.28 ulps)"));
    QCOMPARE(reported("order 3"), QStringLiteral("1.316641 (340977855.28 ulps)"));
    QCOMPARE(reported("order 4"), QStringLiteral("1.1374462 (292875615.28 ulps)"));
    QCOMPARE(reported("order 5"), QStringLiteral("0.22457862 (47829599.28 ulps)"));
    QVERIFY(inspector()->reportText().contains(QStringLiteral("agrees")));
    // The click zoomed nothing.
    QCOMPARE(scene->zoomDepth(), 0);
}

// sin(250 degrees) by Func1 (original argument, direct evaluation, naive sum) after 5 terms.
// The argument single(250 * 3.141592502593994 / 180) = 4.3633227 rad; with 120-digit decimal
// arithmetic its sine lies 1.3515037967386129e-07 above sin(250 degrees), and the five terms
// summed exactly lie 2.4287858688879794e-01 above that.
void InspectorWindowTest::clickingASineNodeSplitsItsError()
{
    auto* view =
        qobject_cast<GraphicsView*>(showStoppedPlotTab(*window, 3, "sine_VisWindow", "sine_timer"));
    QVERIFY(view != nullptr);
    auto* scene = qobject_cast<SineOpenGLScene*>(view->scene());
    scene->setPaused(false);
    const quillon::PlotXWindow& shown = scene->xWindow();
    for (int tick = 0; tick < 100 && !(shown.displays(4) && shown.slideInDone()); ++tick) {
        scene->runningMan();
    }
    QVERIFY(shown.displays(4));
    scene->setPaused(true);
    QVERIFY(popMenuWindow(*window, QStringLiteral("&Tools"), QStringLiteral("&Inspector ..."),
                          QStringLiteral("Inspector")) != nullptr);
    const QSize size = view->viewport()->size();
    const float value = scene->results().series[0].sums[4];
    const QPoint node(
        qRound(size.width() * (quillon::plotNodeX(shown, 4, -1.5f, 1.5f) + 1.5f) / 3.0f),
        qRound(size.height() * (scene->getYHigh() - value) /
               (scene->getYHigh() - scene->getYLow())));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, node);
    // Named as its legend entry names it.
    QCOMPARE(inspector()->findChild<QLabel*>(QStringLiteral("inspector_source"))->text(),
             QStringLiteral("Sine, Original X + Direct eva + Naive, the sum of 5 terms"));
    QCOMPARE(reported("reference"), QStringLiteral("-0.9396926207859083840541092773247314699362"));
    QCOMPARE(reported("argument"), QStringLiteral("4.3633227 rad"));
    QCOMPARE(reported("argument error"), QStringLiteral("1.3515037967386129e-07"));
    QCOMPARE(reported("truncation error"), QStringLiteral("2.4287858688879794e-01"));
    QVERIFY(reported("rounding error").contains(QLatin1Char('e')));
}

// The Default pentagon (epsilon 0.1) after In and Out. The In's P3 is where the line from Q4
// towards Q1 meets the line from Q2 towards Q5: with Python fractions,
// (0.5238095292158407345744458314981252636441, 0.4761904707841592654255541685018747363559).
// The inspector numbers points as the history export does, from 0: P3 is point 2.
void InspectorWindowTest::clickingAPentagonVertexInspectsBothCoordinates()
{
    auto* view = qobject_cast<GraphicsView*>(
        showStoppedPlotTab(*window, 1, "pentagon_VisWindow", "pentagon_timer"));
    QVERIFY(view != nullptr);
    auto* scene = qobject_cast<PentagonOpenGLScene*>(view->scene());
    clickIndicator(window->findChild<QRadioButton*>(QStringLiteral("pentagon_autoInput")));
    QTest::mouseClick(window->findChild<QPushButton*>(QStringLiteral("pentagon_In")),
                      Qt::LeftButton);
    QTest::mouseClick(window->findChild<QPushButton*>(QStringLiteral("pentagon_Out")),
                      Qt::LeftButton);
    QVERIFY(popMenuWindow(*window, QStringLiteral("&Tools"), QStringLiteral("&Inspector ..."),
                          QStringLiteral("Inspector")) != nullptr);
    scene->repaint();
    QTest::qWait(50);
    const PentagonPoints& afterIn = *std::next(scene->engine().getHistory().begin(), 1);
    const PentagonRange range = scene->range();
    const QSize size = view->viewport()->size();
    const QPoint vertex(
        qRound(size.width() * (afterIn.x(3) - range.xMin) / (range.xMax - range.xMin)),
        qRound(size.height() * (range.yMax - afterIn.y(3)) / (range.yMax - range.yMin)));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, vertex + QPoint(2, 1));
    QCOMPARE(inspector()->findChild<QLabel*>(QStringLiteral("inspector_source"))->text(),
             QStringLiteral("Pentagon 1 (after 1 Ins and 0 Outs), point 2, x"));
    QCOMPARE(reported("reference"), QStringLiteral("0.5238095292158407345744458314981252636441"));
    QCOMPARE(reported("y reference"), QStringLiteral("0.4761904707841592654255541685018747363559"));
    // A click that picks does not zoom.
    QCOMPARE(scene->zoomDepth(), 0);
}

// With the inspector open, ten clicks at seeded random places of the plot, each more than the
// pick radius from every vertex of the drawn pentagons (the eleven of the animated example),
// leave the range, the empty zoom stack, the inspection and the frame as they were. A drag
// still zooms.
void InspectorWindowTest::missedPentagonClicksChangeNothing()
{
    auto* view = qobject_cast<GraphicsView*>(
        showStoppedPlotTab(*window, 1, "pentagon_VisWindow", "pentagon_timer"));
    QVERIFY(view != nullptr);
    auto* scene = qobject_cast<PentagonOpenGLScene*>(view->scene());
    QVERIFY(popMenuWindow(*window, QStringLiteral("&Tools"), QStringLiteral("&Inspector ..."),
                          QStringLiteral("Inspector")) != nullptr);
    // The animated example's ten steps, ticked here with its timer stopped.
    QTest::mouseClick(window->findChild<QPushButton*>(QStringLiteral("pentagon_Default")),
                      Qt::LeftButton);
    for (int tick = 0; tick < 10; ++tick) {
        scene->runningMan();
    }
    const PentagonRange range = scene->range();
    const QSize size = view->viewport()->size();
    QList<QPointF> vertices;
    for (const PentagonPoints& pentagon : scene->engine().getHistory()) {
        for (int point = 1; point <= 5; ++point) {
            vertices << QPointF(
                size.width() * (pentagon.x(point) - range.xMin) / (range.xMax - range.xMin),
                size.height() * (range.yMax - pentagon.y(point)) / (range.yMax - range.yMin));
        }
    }
    QCOMPARE(vertices.size(), 55);
    const auto awayFromVertices = [&](QPoint at) {
        return std::all_of(vertices.begin(), vertices.end(), [&](QPointF vertex) {
            return std::hypot(at.x() - vertex.x(), at.y() - vertex.y()) > PickGestures::kPickRadius;
        });
    };
    const QString source =
        inspector()->findChild<QLabel*>(QStringLiteral("inspector_source"))->text();
    scene->repaint();
    const QImage before = grabPlotFrame(view);
    QRandomGenerator random(20261125);
    for (int clicks = 0; clicks < 10;) {
        const QPoint at(random.bounded(size.width()), random.bounded(size.height()));
        if (!awayFromVertices(at)) {
            continue;
        }
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(scene->zoomDepth(), 0);
        QCOMPARE(scene->range().xMin, range.xMin);
        QCOMPARE(scene->range().xMax, range.xMax);
        QCOMPARE(scene->range().yMin, range.yMin);
        QCOMPARE(scene->range().yMax, range.yMax);
        ++clicks;
    }
    QCOMPARE(inspector()->findChild<QLabel*>(QStringLiteral("inspector_source"))->text(), source);
    scene->repaint();
    QCOMPARE(grabPlotFrame(view), before);

    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, QPoint(0, size.height()));
    QTest::mouseMove(view->viewport(), QPoint(size.width() / 2, size.height() / 2));
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {},
                        QPoint(size.width() / 2, size.height() / 2));
    QCOMPARE(scene->zoomDepth(), 1);
}

QTEST_MAIN(InspectorWindowTest)
#include "InspectorWindowTest.moc"
