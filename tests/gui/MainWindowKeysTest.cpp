#include "app/MainWindow.h"
#include "common/gui/IndexPlotScene.h"
#include "common/gui/OpenGLPlotScene.h"
#include "pentagon/gui/PentagonOpenGLScene.h"
#include "tests/gui/GuiTestSupport.h"

#include <QCheckBox>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QtTest>

// Space, "+" and "-" on the main window: on the Associative Law and Sine tabs they press the
// pause, faster and slower buttons (as clicks would: texts, enabled states, the timer); on the
// Pentagon tab Space presses the animated example's start button; on the Roots tab, and while
// a text field has the focus, they do nothing to any animation.
namespace
{

constexpr int kPentagonTab = 1;

// What the tests need of one index-plot tab: its page's plot placeholder, its timer and the
// object-name prefix of its panel's widgets.
struct IndexPlotTab {
    int index;
    const char* placeholder;
    const char* timer;
    QString prefix;
};

const IndexPlotTab kAssoTab{2, "associativelaw_VisWindow", "associativelaw_timer",
                            QStringLiteral("associativelaw_")};
const IndexPlotTab kSineTab{3, "sine_VisWindow", "sine_timer", QStringLiteral("sine_")};

template <typename Widget> Widget* widgetNamed(MainWindow& window, const QString& name)
{
    return window.findChild<Widget*>(name);
}

QPushButton* panelButton(MainWindow& window, const IndexPlotTab& tab, const char* role)
{
    return widgetNamed<QPushButton>(window, tab.prefix + QString::fromLatin1(role));
}

// Puts the keyboard focus on `widget` and waits until the window reports it.
bool focusOn(MainWindow& window, QWidget* widget)
{
    window.activateWindow();
    widget->setFocus(Qt::OtherFocusReason);
    return QTest::qWaitFor([&] { return window.focusWidget() == widget; });
}

// A key typed as a person types it: to the widget that has the keyboard focus.
void typeKey(MainWindow& window, Qt::Key key)
{
    QTest::keyClick(window.focusWidget(), key);
}

quillon::IndexPlotScene* indexSceneOf(QGraphicsView* view)
{
    return dynamic_cast<quillon::IndexPlotScene*>(view->scene());
}

} // namespace

Q_DECLARE_METATYPE(IndexPlotTab)

class MainWindowKeysTest : public QObject
{
    Q_OBJECT

private slots:
    void spaceOnThePlotPressesPause_data();
    void spaceOnThePlotPressesPause();
    void plusAndMinusPressTheSpeedButtons_data();
    void plusAndMinusPressTheSpeedButtons();
    void keysTypedIntoAFieldStayText_data();
    void keysTypedIntoAFieldStayText();
    void keysInAReadOnlyFieldDoNothing();
    void spaceOnAFocusedButtonActsOnce();
    void spaceOnThePentagonPlotPressesStart();
    void keysDoNothingOnTheRootsTab();
};

void MainWindowKeysTest::spaceOnThePlotPressesPause_data()
{
    QTest::addColumn<IndexPlotTab>("tab");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QList<bool>>("pausedStates");
    // Both scenes start paused (the program opens on the Roots tab); the Associative Law's
    // button still reads "Pause", the Sine's "Start". Each press toggles the paused flag, and
    // the text then names what the next press does.
    QTest::newRow("Associative Law") << kAssoTab << QStringList{"Pause", "Pause", "Resume", "Pause"}
                                     << QList<bool>{true, false, true, false};
    QTest::newRow("Sine") << kSineTab << QStringList{"Start", "Pause", "Resume", "Pause"}
                          << QList<bool>{true, false, true, false};
}

void MainWindowKeysTest::spaceOnThePlotPressesPause()
{
    QFETCH(IndexPlotTab, tab);
    QFETCH(QStringList, texts);
    QFETCH(QList<bool>, pausedStates);
    MainWindow window;
    QGraphicsView* view = showStoppedPlotTab(window, tab.index, tab.placeholder, tab.timer);
    QVERIFY(view != nullptr);
    QVERIFY(focusOn(window, view));
    QPushButton* pause = panelButton(window, tab, "pause");
    quillon::IndexPlotScene* scene = indexSceneOf(view);
    for (int press = 0; press < texts.size(); ++press) {
        if (press > 0) {
            typeKey(window, Qt::Key_Space);
        }
        QCOMPARE(pause->text(), texts[press]);
        QCOMPARE(scene->isPaused(), pausedStates[press]);
        QCOMPARE(window.focusWidget(), view);
    }
}

void MainWindowKeysTest::plusAndMinusPressTheSpeedButtons_data()
{
    QTest::addColumn<IndexPlotTab>("tab");
    QTest::newRow("Associative Law") << kAssoTab;
    QTest::newRow("Sine") << kSineTab;
}

// From level 0, six "+" reach level 5 (the sixth finds Accelerate disabled), then eleven "-"
// reach -5. Intervals: 400 ms at levels -1..1, 400 / level above, 400 * |level| below.
void MainWindowKeysTest::plusAndMinusPressTheSpeedButtons()
{
    QFETCH(IndexPlotTab, tab);
    MainWindow window;
    QGraphicsView* view = showStoppedPlotTab(window, tab.index, tab.placeholder, tab.timer);
    QVERIFY(view != nullptr);
    QVERIFY(focusOn(window, view));
    quillon::IndexPlotScene* scene = indexSceneOf(view);
    auto* timer = widgetNamed<QTimer>(window, QString::fromLatin1(tab.timer));
    QPushButton* faster = panelButton(window, tab, "acceleration");
    QPushButton* slower = panelButton(window, tab, "deceleration");
    QCOMPARE(scene->speedLevel(), 0);

    const int fasterIntervals[] = {400, 200, 133, 100, 80, 80};
    for (int press = 0; press < 6; ++press) {
        typeKey(window, Qt::Key_Plus);
        QCOMPARE(scene->speedLevel(), qMin(press + 1, 5));
        QCOMPARE(timer->interval(), fasterIntervals[press]);
        QCOMPARE(faster->isEnabled(), press + 1 < 5);
        QVERIFY(slower->isEnabled());
    }
    const int slowerLevels[] = {4, 3, 2, 1, 0, -1, -2, -3, -4, -5, -5};
    const int slowerIntervals[] = {100, 133, 200, 400, 400, 400, 800, 1200, 1600, 2000, 2000};
    for (int press = 0; press < 11; ++press) {
        typeKey(window, Qt::Key_Minus);
        QCOMPARE(scene->speedLevel(), slowerLevels[press]);
        QCOMPARE(timer->interval(), slowerIntervals[press]);
        QCOMPARE(slower->isEnabled(), slowerLevels[press] > -5);
        QVERIFY(faster->isEnabled());
    }
    QCOMPARE(window.focusWidget(), view);
}

void MainWindowKeysTest::keysTypedIntoAFieldStayText_data()
{
    QTest::addColumn<IndexPlotTab>("tab");
    QTest::addColumn<QString>("field");
    QTest::newRow("Associative Law R") << kAssoTab << QStringLiteral("associativelaw_R_input");
    QTest::newRow("Sine X") << kSineTab << QStringLiteral("sine_X_input");
}

// "-" and "+" are what a number begins with, so the field takes them; its validator refuses
// a space, which then goes nowhere.
void MainWindowKeysTest::keysTypedIntoAFieldStayText()
{
    QFETCH(IndexPlotTab, tab);
    QFETCH(QString, field);
    MainWindow window;
    QGraphicsView* view = showStoppedPlotTab(window, tab.index, tab.placeholder, tab.timer);
    QVERIFY(view != nullptr);
    auto* edit = widgetNamed<QLineEdit>(window, field);
    QVERIFY(focusOn(window, edit));
    edit->clear();
    quillon::IndexPlotScene* scene = indexSceneOf(view);
    QPushButton* pause = panelButton(window, tab, "pause");
    const QString pauseText = pause->text();
    const bool paused = scene->isPaused();

    typeKey(window, Qt::Key_Minus);
    QCOMPARE(edit->text(), QStringLiteral("-"));
    QCOMPARE(scene->speedLevel(), 0);
    typeKey(window, Qt::Key_Space);
    QCOMPARE(pause->text(), pauseText);
    QCOMPARE(scene->isPaused(), paused);
    edit->clear();
    typeKey(window, Qt::Key_Plus);
    QCOMPARE(edit->text(), QStringLiteral("+"));
    QCOMPARE(scene->speedLevel(), 0);
    QCOMPARE(window.focusWidget(), edit);
}

// A read-only field passes typed keys on to its window; it is still a text field, where a
// key is no command.
void MainWindowKeysTest::keysInAReadOnlyFieldDoNothing()
{
    MainWindow window;
    QGraphicsView* view =
        showStoppedPlotTab(window, kAssoTab.index, kAssoTab.placeholder, kAssoTab.timer);
    QVERIFY(view != nullptr);
    auto* edit = widgetNamed<QLineEdit>(window, QStringLiteral("associativelaw_R_input"));
    edit->setReadOnly(true);
    QVERIFY(focusOn(window, edit));
    quillon::IndexPlotScene* scene = indexSceneOf(view);
    typeKey(window, Qt::Key_Space);
    typeKey(window, Qt::Key_Plus);
    QVERIFY(scene->isPaused());
    QCOMPARE(scene->speedLevel(), 0);
    typeKey(window, Qt::Key_Minus);
    QCOMPARE(scene->speedLevel(), 0);
}

// A focused button takes Space itself: the pause button is pressed once, a check box toggles
// and the animation is left alone.
void MainWindowKeysTest::spaceOnAFocusedButtonActsOnce()
{
    MainWindow window;
    QGraphicsView* view =
        showStoppedPlotTab(window, kSineTab.index, kSineTab.placeholder, kSineTab.timer);
    QVERIFY(view != nullptr);
    quillon::IndexPlotScene* scene = indexSceneOf(view);
    QPushButton* pause = panelButton(window, kSineTab, "pause");
    QVERIFY(focusOn(window, pause));
    typeKey(window, Qt::Key_Space);
    QCOMPARE(pause->text(), QStringLiteral("Pause"));
    QVERIFY(!scene->isPaused());

    auto* gridLines = widgetNamed<QCheckBox>(window, QStringLiteral("sine_showYAxis"));
    const bool checked = gridLines->isChecked();
    QVERIFY(focusOn(window, gridLines));
    typeKey(window, Qt::Key_Space);
    QCOMPARE(gridLines->isChecked(), !checked);
    QCOMPARE(pause->text(), QStringLiteral("Pause"));
    QVERIFY(!scene->isPaused());
    // Buttons leave "+" and "-" alone, so they still reach the speed.
    typeKey(window, Qt::Key_Plus);
    QCOMPARE(scene->speedLevel(), 1);
}

// The pentagon's animation has no pause and no speed buttons: Space presses "Start" (the
// animated example runs again from its first step, "Restart" the next time), and only while
// the animated example is the mode; in the other modes the button resets the history, which
// no key does.
void MainWindowKeysTest::spaceOnThePentagonPlotPressesStart()
{
    MainWindow window;
    QGraphicsView* view =
        showStoppedPlotTab(window, kPentagonTab, "pentagon_VisWindow", "pentagon_timer");
    QVERIFY(view != nullptr);
    QVERIFY(focusOn(window, view));
    auto* scene = qobject_cast<PentagonOpenGLScene*>(view->scene());
    auto* start = widgetNamed<QPushButton>(window, QStringLiteral("pentagon_Default"));
    auto* timer = widgetNamed<QTimer>(window, QStringLiteral("pentagon_timer"));
    QVERIFY(scene->isPaused());
    QCOMPARE(start->text(), QStringLiteral("Start"));
    typeKey(window, Qt::Key_Space);
    QVERIFY(!scene->isPaused());
    QCOMPARE(start->text(), QStringLiteral("Start"));
    typeKey(window, Qt::Key_Space);
    QCOMPARE(start->text(), QStringLiteral("Restart"));
    typeKey(window, Qt::Key_Plus);
    typeKey(window, Qt::Key_Minus);
    QCOMPARE(timer->interval(), 400);

    clickIndicator(widgetNamed<QRadioButton>(window, QStringLiteral("pentagon_autoInput")));
    QCOMPARE(start->text(), QStringLiteral("Reset"));
    widgetNamed<QPushButton>(window, QStringLiteral("pentagon_In"))->click();
    auto* ins = widgetNamed<QLabel>(window, QStringLiteral("pentagon_Num_in"));
    QCOMPARE(ins->text(), QStringLiteral("1"));
    QVERIFY(focusOn(window, view));
    typeKey(window, Qt::Key_Space);
    QCOMPARE(ins->text(), QStringLiteral("1"));
    QCOMPARE(start->text(), QStringLiteral("Reset"));
}

void MainWindowKeysTest::keysDoNothingOnTheRootsTab()
{
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto* tabs = widgetNamed<QTabWidget>(window, QStringLiteral("tabWidget"));
    QCOMPARE(tabs->currentIndex(), 0);
    QVERIFY(focusOn(window, tabs->tabBar()));
    for (Qt::Key key : {Qt::Key_Space, Qt::Key_Plus, Qt::Key_Plus, Qt::Key_Minus}) {
        typeKey(window, key);
    }
    QCOMPARE(tabs->currentIndex(), 0);
    QCOMPARE(panelButton(window, kAssoTab, "pause")->text(), QStringLiteral("Pause"));
    QCOMPARE(panelButton(window, kSineTab, "pause")->text(), QStringLiteral("Start"));
    QCOMPARE(widgetNamed<QPushButton>(window, QStringLiteral("pentagon_Default"))->text(),
             QStringLiteral("Start"));
    for (const char* timer : {"associativelaw_timer", "sine_timer", "pentagon_timer"}) {
        QCOMPARE(widgetNamed<QTimer>(window, QString::fromLatin1(timer))->interval(), 400);
    }
    const char* placeholders[] = {"pentagon_VisWindow", "associativelaw_VisWindow",
                                  "sine_VisWindow"};
    for (const char* placeholder : placeholders) {
        auto* view = widgetNamed<QWidget>(window, QString::fromLatin1(placeholder))
                         ->findChild<QGraphicsView*>();
        QVERIFY(qobject_cast<quillon::OpenGLPlotScene*>(view->scene())->isPaused());
        if (auto* indexScene = dynamic_cast<quillon::IndexPlotScene*>(view->scene())) {
            QCOMPARE(indexScene->speedLevel(), 0);
        }
    }
}

QTEST_MAIN(MainWindowKeysTest)
#include "MainWindowKeysTest.moc"
