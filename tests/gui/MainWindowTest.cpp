#include "app/MainWindow.h"
#include "app/GraphicsView.h"
#include "common/gui/OpenGLPlotScene.h"
#include "tests/gui/GuiTestSupport.h"

#include <QAction>
#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QtTest>

// One expected menu entry; an empty text stands for a separator.
struct Expected {
    const char* menu;
    const char* text;
    const char* tip;
    QKeySequence::StandardKey key;
};
Q_DECLARE_METATYPE(Expected)

namespace
{

constexpr QKeySequence::StandardKey None = QKeySequence::UnknownKey;

const QList<Expected> kRootsMenus = {
    {"&File", "&Save data to a txt file ...", "Save data to a txt file", None},
    {"&File", "", "", None},
    {"&File", "&Exit", "Exit", None},
    {"&Examples", "&Example 1: regular example", "Use example 1 for demonstration.", None},
    {"&Examples", "&Example 2: b^2 >> 4ac", "Use example 2 for demonstration.", None},
    {"&Examples", "&Example 3: b^2 ~ 4ac", "Use example 3 for demonstration.", None},
    {"&Help", "&About ...", "Show Help", None},
    {"&Help", "&Help ...", "Show Help", None},
};

const QList<Expected> kPentagonMenus = {
    {"&File", "&Open a configuration file ...", "Open a fonfigure file", QKeySequence::Open},
    {"&File", "&Save to a configuration file ...", "Save to a configuration file ...",
     QKeySequence::Save},
    {"&File", "&Save data to a txt file ...", "Save data to a txt file", None},
    {"&File", "", "", None},
    {"&File", "&Exit", "Exit", None},
    {"&Tools", "", "", None},
    {"&Tools", "&Focus regions ...", "Focus on a particular region", None},
    {"&Tools", "", "", None},
    {"&Tools", "&Selections ...", "Select operation history", None},
    {"&Tools", "", "", None},
    {"&Tools", "&Color map ...", "Show color map", None},
    {"&Help", "&About ...", "Show Help", None},
    {"&Help", "&Help ...", "Show Help", None},
};

const QList<Expected> kAssoMenus = {
    {"&File", "&Open a configuration file ...", "Open a configuration file", QKeySequence::Open},
    {"&File", "&Save to a configuration file ...", "Save to a configuration file",
     QKeySequence::Save},
    {"&File", "", "", None},
    {"&File", "&Save data to a txt file ...", "Save data to a txt file", None},
    {"&File", "&Save data to a csv file ...", "Save data to a CSV file", None},
    {"&File", "", "", None},
    {"&File", "&Exit", "Exit", None},
    {"&Tools", "&Region focus ...", "Choose focus region", None},
    {"&Tools", "", "", None},
    {"&Tools", "&Selections ...", "Select methods", None},
    {"&Tools", "", "", None},
    {"&Tools", "&Color map ...", "Show color map", None},
    {"&Help", "&About ...", "Show Help", None},
    {"&Help", "&Help ...", "Show Help", None},
};

const QList<Expected> kSineMenus = {
    {"&File", "&Open a configuration file ...", "Open a configuration file ...",
     QKeySequence::Open},
    {"&File", "&Save to a configuration file ...", "Save to a configuration file ...",
     QKeySequence::Save},
    {"&File", "", "", None},
    {"&File", "&Save data to a txt file ...", "Save data to a txt file", None},
    {"&File", "&Save data to a CSV file ...", "Save data to a CSV file", None},
    {"&File", "", "", None},
    {"&File", "&Exit", "Exit", None},
    {"&Tools", "&Region focus ...", "Choose focus region", None},
    {"&Tools", "", "", None},
    {"&Tools", "&Selections ...", "Select methods", None},
    {"&Tools", "", "", None},
    {"&Tools", "&Status ...", "Method status", None},
    {"&Tools", "", "", None},
    {"&Tools", "&Color map ...", "Show color map", None},
    {"&Help", "&About ...", "Show Help", None},
    {"&Help", "&Help ...", "Show Help", None},
};

// The described entries with the one Quillon adds, "&Inspector ...", after the last entry of
// `menu` (each tab's last tool menu).
QList<Expected> withInspector(QList<Expected> entries, const char* menu)
{
    qsizetype last = 0;
    for (qsizetype i = 0; i < entries.size(); ++i) {
        if (QByteArray(entries[i].menu) == menu) {
            last = i + 1;
        }
    }
    entries.insert(
        last, {menu, "&Inspector ...", "Inspect a number: its bits, exact value and error", None});
    return entries;
}

// The menu bar flattened into the same form as the expectations.
QList<Expected> menuBarEntries(QMainWindow& window, QList<QByteArray>& storage)
{
    QList<Expected> entries;
    storage.clear();
    storage.reserve(200);
    for (QAction* menuAction : window.menuBar()->actions()) {
        QMenu* menu = menuAction->menu();
        if (menu == nullptr) {
            continue;
        }
        storage.append(menu->title().toUtf8());
        const char* title = storage.last().constData();
        for (QAction* action : menu->actions()) {
            storage.append(action->text().toUtf8());
            const char* text = storage.last().constData();
            storage.append(action->statusTip().toUtf8());
            entries.append({title, text, storage.last().constData(), None});
        }
    }
    return entries;
}

QTabWidget* tabsOf(MainWindow& window)
{
    return window.findChild<QTabWidget*>(QStringLiteral("tabWidget"));
}

quillon::OpenGLPlotScene* sceneOnPage(MainWindow& window, const char* placeholder)
{
    auto* host = window.findChild<QWidget*>(QString::fromLatin1(placeholder));
    auto* view = host->findChild<GraphicsView*>();
    return qobject_cast<quillon::OpenGLPlotScene*>(view->scene());
}

QList<QWidget*> installTestWindows(MainWindow& window)
{
    QList<QWidget*> windows;
    for (int i = 0; i < static_cast<int>(AuxWindow::Count); ++i) {
        auto* widget = new QWidget();
        widget->setWindowTitle(QStringLiteral("aux %1").arg(i));
        window.installAuxiliaryWindow(static_cast<AuxWindow>(i), widget);
        windows.append(widget);
    }
    return windows;
}

// Counts the show events a widget receives.
class ShowCounter : public QObject
{
public:
    int shows = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Show) {
            ++shows;
        }
        return false;
    }
};

} // namespace

class MainWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void startsAsQuillonWithFourTabs();
    void menuBarMatchesEachTab_data();
    void menuBarMatchesEachTab();
    void shortcutsAreTheStandardOnes();
    void everyEntryHasSomethingBehindIt();
    void anEntryShowsTheWindowInstalledBehindIt();
    void poppingTwiceShowsOneWindowWithoutRaisingIt();
    void leavingAPlottingTabPausesItsScene();
    void closingByTitleBarClosesEveryAuxiliaryWindow();
    void eachExitEntryClosesEveryAuxiliaryWindow_data();
    void eachExitEntryClosesEveryAuxiliaryWindow();
    void resizeLaysOutAllFourPages();
    void outOfRangeTabIndexChangesNothing();
};

void MainWindowTest::startsAsQuillonWithFourTabs()
{
    MainWindow window;
    QCOMPARE(window.objectName(), QStringLiteral("MainWindowClass"));
    QCOMPARE(window.windowTitle(), QStringLiteral("Quillon"));
    QCOMPARE(window.size(), QSize(1080, 838));
    QTabWidget* tabs = tabsOf(window);
    QVERIFY(tabs != nullptr);
    QCOMPARE(tabs->count(), 4);
    const QStringList titles = {"Roots", "Pentagon", "Associative Law", "Sine"};
    const QStringList pages = {"roots_win", "pentagon_win", "associativelaw_win", "sine_win"};
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(tabs->tabText(i), titles[i]);
        QCOMPARE(tabs->widget(i)->objectName(), pages[i]);
    }
    QCOMPARE(tabs->currentIndex(), 0);
    QCOMPARE(tabs->font().family(), QStringLiteral("Arial"));
    QVERIFY(window.findChild<QWidget*>(QStringLiteral("centralWidget")) != nullptr);
}

void MainWindowTest::menuBarMatchesEachTab_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QList<Expected>>("expected");
    QTest::newRow("Roots") << 0 << withInspector(kRootsMenus, "&Examples");
    QTest::newRow("Pentagon") << 1 << withInspector(kPentagonMenus, "&Tools");
    QTest::newRow("Associative Law") << 2 << withInspector(kAssoMenus, "&Tools");
    QTest::newRow("Sine") << 3 << withInspector(kSineMenus, "&Tools");
}

void MainWindowTest::menuBarMatchesEachTab()
{
    QFETCH(int, tab);
    QFETCH(QList<Expected>, expected);
    MainWindow window;
    // Visit every tab first, so that the check also proves the bar is rebuilt, not appended to.
    for (int i = 3; i >= 0; --i) {
        tabsOf(window)->setCurrentIndex(i);
    }
    tabsOf(window)->setCurrentIndex(tab);
    QList<QByteArray> storage;
    const QList<Expected> actual = menuBarEntries(window, storage);
    QCOMPARE(actual.size(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        QCOMPARE(QString::fromUtf8(actual[i].menu), QString::fromUtf8(expected[i].menu));
        QCOMPARE(QString::fromUtf8(actual[i].text), QString::fromUtf8(expected[i].text));
        QCOMPARE(QString::fromUtf8(actual[i].tip), QString::fromUtf8(expected[i].tip));
    }
}

void MainWindowTest::shortcutsAreTheStandardOnes()
{
    const QList<QList<Expected>> tables = {kRootsMenus, kPentagonMenus, kAssoMenus, kSineMenus};
    MainWindow window;
    for (int tab = 0; tab < 4; ++tab) {
        tabsOf(window)->setCurrentIndex(tab);
        for (const Expected& entry : tables[tab]) {
            if (*entry.text == '\0') {
                continue;
            }
            QAction* action = menuBarAction(window, entry.menu, entry.text);
            QVERIFY2(action != nullptr, entry.text);
            const QKeySequence expected =
                entry.key == None ? QKeySequence() : QKeySequence(entry.key);
            QCOMPARE(action->shortcut(), expected);
        }
    }
}

void MainWindowTest::everyEntryHasSomethingBehindIt()
{
    MainWindow window;
    for (int tab = 0; tab < 4; ++tab) {
        tabsOf(window)->setCurrentIndex(tab);
        QList<QByteArray> storage;
        for (const Expected& entry : menuBarEntries(window, storage)) {
            if (*entry.text == '\0') {
                continue;
            }
            QVERIFY2(menuBarAction(window, entry.menu, entry.text)->isEnabled(), entry.text);
        }
    }
}

void MainWindowTest::anEntryShowsTheWindowInstalledBehindIt()
{
    MainWindow window;
    auto* replacement = new QWidget();
    window.installAuxiliaryWindow(AuxWindow::RootsHelp, replacement);
    tabsOf(window)->setCurrentIndex(0);
    QAction* about = menuBarAction(window, "&Help", "&About ...");
    QVERIFY(about->isEnabled());
    about->trigger();
    QVERIFY(replacement->isVisible());
}

void MainWindowTest::poppingTwiceShowsOneWindowWithoutRaisingIt()
{
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto* help = new QWidget();
    help->setWindowTitle(QStringLiteral("About"));
    ShowCounter counter;
    help->installEventFilter(&counter);
    window.installAuxiliaryWindow(AuxWindow::AssoHelp, help);
    tabsOf(window)->setCurrentIndex(2);
    QAction* about = menuBarAction(window, "&Help", "&About ...");
    QVERIFY(about != nullptr && about->isEnabled());

    about->trigger();
    QVERIFY(QTest::qWaitForWindowExposed(help));
    QCOMPARE(counter.shows, 1);

    window.activateWindow();
    QTRY_VERIFY(window.isActiveWindow());
    about->trigger();
    QTest::qWait(200);
    QCOMPARE(counter.shows, 1);
    QVERIFY(window.isActiveWindow());
    QVERIFY(!help->isActiveWindow());
    int aboutWindows = 0;
    for (QWidget* topLevel : QApplication::topLevelWidgets()) {
        aboutWindows += topLevel->isVisible() && topLevel->windowTitle() == "About" ? 1 : 0;
    }
    QCOMPARE(aboutWindows, 1);
}

void MainWindowTest::leavingAPlottingTabPausesItsScene()
{
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    quillon::OpenGLPlotScene* pentagon = sceneOnPage(window, "pentagon_VisWindow");
    quillon::OpenGLPlotScene* asso = sceneOnPage(window, "associativelaw_VisWindow");
    quillon::OpenGLPlotScene* sine = sceneOnPage(window, "sine_VisWindow");
    QVERIFY(pentagon && asso && sine);
    // Construction shows the Roots tab, which pauses all three.
    QVERIFY(pentagon->isPaused() && asso->isPaused() && sine->isPaused());

    sine->setPaused(false);
    tabsOf(window)->setCurrentIndex(3);
    QVERIFY(!sine->isPaused());
    tabsOf(window)->setCurrentIndex(1);
    QVERIFY(sine->isPaused());
    tabsOf(window)->setCurrentIndex(3);
    QVERIFY2(sine->isPaused(), "returning to the tab does not resume its animation");

    pentagon->setPaused(false);
    asso->setPaused(false);
    tabsOf(window)->setCurrentIndex(0);
    QVERIFY(pentagon->isPaused() && asso->isPaused() && sine->isPaused());

    asso->setPaused(false);
    tabsOf(window)->setCurrentIndex(2);
    QVERIFY(!asso->isPaused());
}

void MainWindowTest::closingByTitleBarClosesEveryAuxiliaryWindow()
{
    MainWindow window;
    window.show();
    const QList<QWidget*> windows = installTestWindows(window);
    for (QWidget* widget : windows) {
        widget->show();
    }
    QCloseEvent close;
    QApplication::sendEvent(&window, &close);
    QVERIFY(close.isAccepted());
    for (QWidget* widget : windows) {
        QVERIFY2(!widget->isVisible(), qPrintable(widget->windowTitle()));
    }
}

void MainWindowTest::eachExitEntryClosesEveryAuxiliaryWindow_data()
{
    QTest::addColumn<int>("tab");
    QTest::newRow("Roots") << 0;
    QTest::newRow("Pentagon") << 1;
    QTest::newRow("Associative Law") << 2;
    QTest::newRow("Sine") << 3;
}

void MainWindowTest::eachExitEntryClosesEveryAuxiliaryWindow()
{
    QFETCH(int, tab);
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QList<QWidget*> windows = installTestWindows(window);
    for (QWidget* widget : windows) {
        widget->show();
    }
    tabsOf(window)->setCurrentIndex(tab);
    QAction* exit = menuBarAction(window, "&File", "&Exit");
    QVERIFY(exit != nullptr);
    exit->trigger();
    QVERIFY(!window.isVisible());
    for (QWidget* widget : windows) {
        QVERIFY2(!widget->isVisible(), qPrintable(widget->windowTitle()));
    }
}

void MainWindowTest::resizeLaysOutAllFourPages()
{
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QStringList laidOut = {"roots_outputGroup",        "pentagon_VisWindow",
                                 "associativelaw_VisWindow", "sine_VisWindow",
                                 "pentagon_ControlWindow",   "associativelaw_ControlWindow",
                                 "sine_ControlWindow"};
    QMap<QString, QRect> before;
    for (const QString& name : laidOut) {
        before[name] = window.findChild<QWidget*>(name)->geometry();
    }
    window.resize(1200, 900);
    QTRY_COMPARE(window.size(), QSize(1200, 900));
    for (const QString& name : laidOut) {
        const QRect after = window.findChild<QWidget*>(name)->geometry();
        QVERIFY2(after.width() > before[name].width(), qPrintable(name));
    }
    // A hidden view receives its resize when its tab is shown.
    const char* placeholders[] = {"pentagon_VisWindow", "associativelaw_VisWindow",
                                  "sine_VisWindow"};
    for (int tab = 1; tab <= 3; ++tab) {
        tabsOf(window)->setCurrentIndex(tab);
        auto* placeholder = window.findChild<QWidget*>(placeholders[tab - 1]);
        auto* view = placeholder->findChild<GraphicsView*>();
        QCOMPARE(view->geometry(), placeholder->rect());
        QTRY_COMPARE(view->scene()->sceneRect(), QRectF(QPointF(0, 0), QSizeF(view->size())));
    }
}

void MainWindowTest::outOfRangeTabIndexChangesNothing()
{
    MainWindow window;
    tabsOf(window)->setCurrentIndex(2);
    quillon::OpenGLPlotScene* asso = sceneOnPage(window, "associativelaw_VisWindow");
    asso->setPaused(false);
    window.tab_Index_Changed(7);
    window.tab_Index_Changed(-1);
    QVERIFY(!asso->isPaused());
    QVERIFY(menuBarAction(window, "&File", "&Save data to a csv file ...") != nullptr);
}

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
