#include "app/MainWindow.h"
#include "app/GraphicsView.h"
#include "app/PictureExportDialog.h"
#include "assoc/gui/AssoColorMap.h"
#include "assoc/gui/AssoFocusWindow.h"
#include "assoc/gui/AssoHelpWindow.h"
#include "assoc/gui/AssoOverviewWindow.h"
#include "assoc/gui/AssoSelectionWindow.h"
#include "assoc/gui/AssoUserMenu.h"
#include "common/gui/OpenGLPlotScene.h"
#include "inspect/gui/InspectorWindow.h"
#include "pentagon/gui/PentagonColorMap.h"
#include "pentagon/gui/PentagonFocusWindow.h"
#include "pentagon/gui/PentagonHelpWindow.h"
#include "pentagon/gui/PentagonMiniMap.h"
#include "pentagon/gui/PentagonOverviewWindow.h"
#include "pentagon/gui/PentagonUserMenu.h"
#include "roots/gui/RootsHelpWindow.h"
#include "roots/gui/RootsOverviewWindow.h"
#include "roots/gui/RootsUserMenu.h"
#include "sine/gui/SineColorMap.h"
#include "sine/gui/SineFocusWindow.h"
#include "sine/gui/SineHelpWindow.h"
#include "sine/gui/SineOverviewWindow.h"
#include "sine/gui/SineSelectionWindow.h"
#include "sine/gui/SineStatusWindow.h"
#include "sine/gui/SineUserMenu.h"
#include "tests/gui/GuiTestSupport.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>

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
// "&Export picture ...", added just above "&Exit".
QList<Expected> withPictureExport(QList<Expected> entries)
{
    const auto exit = std::find_if(entries.begin(), entries.end(), [](const Expected& entry) {
        return QByteArray(entry.text) == "&Exit";
    });
    entries.insert(exit, {"&File", "&Export picture ...",
                          "Export what the tab shows as a PNG or SVG picture", None});
    return entries;
}

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

// "&What am I looking at? ...", added after the described entries of the Help menu.
QList<Expected> withOverview(QList<Expected> entries)
{
    entries.append({"&Help", "&What am I looking at? ...",
                    "What the demonstration shows, its colours and its keys", None});
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

// What triggering one menu entry must do: show one window of a class, ask for a file name with
// a dialog and hand it to one file action, load an example into the Roots fields, or close the
// main window.
struct EntryEffect {
    const char* menu;
    const char* text;
    std::function<bool(const QWidget*)> showsWindow;
    FileAction file = FileAction::Count;
    QStringList exampleFields;
    bool exits = false;
    bool asksForPicture = false;
};

template <typename Window> std::function<bool(const QWidget*)> windowOf()
{
    return [](const QWidget* shown) { return dynamic_cast<const Window*>(shown) != nullptr; };
}

EntryEffect shows(const char* menu, const char* text, std::function<bool(const QWidget*)> is)
{
    return {menu, text, std::move(is), FileAction::Count, {}, false};
}

EntryEffect asksForFile(const char* text, FileAction action)
{
    return {"&File", text, {}, action, {}, false};
}

EntryEffect loadsExample(const char* text, QStringList fields)
{
    return {"&Examples", text, {}, FileAction::Count, std::move(fields), false};
}

const EntryEffect kExit{"&File", "&Exit", {}, FileAction::Count, {}, true};
const EntryEffect kExportPicture{"&File", "&Export picture ...", {}, FileAction::Count, {}, false,
                                 true};

QList<EntryEffect> entryEffects(int tab)
{
    switch (tab) {
    case RootsTab:
        return {asksForFile("&Save data to a txt file ...", FileAction::RootsSaveTxt),
                loadsExample("&Example 1: regular example", {"1.000000", "4.000000", "1.000000"}),
                loadsExample("&Example 2: b^2 >> 4ac", {"1.000000", "10000.000000", "1.000000"}),
                loadsExample("&Example 3: b^2 ~ 4ac", {"0.010000", "100.000000", "250000.000000"}),
                shows("&Examples", "&Inspector ...", windowOf<InspectorWindow>()),
                shows("&Help", "&About ...", windowOf<RootsHelpWindow>()),
                shows("&Help", "&Help ...", windowOf<RootsUserMenu>()),
                shows("&Help", "&What am I looking at? ...", windowOf<RootsOverviewWindow>()),
                kExportPicture,
                kExit};
    case PentagonTab:
        return {asksForFile("&Open a configuration file ...", FileAction::PentagonOpen),
                asksForFile("&Save to a configuration file ...", FileAction::PentagonSave),
                asksForFile("&Save data to a txt file ...", FileAction::PentagonSaveTxt),
                shows("&Tools", "&Focus regions ...", windowOf<PentagonFocusWindow>()),
                shows("&Tools", "&Selections ...", windowOf<PentagonMiniMap>()),
                shows("&Tools", "&Color map ...", windowOf<PentagonColorMap>()),
                shows("&Tools", "&Inspector ...", windowOf<InspectorWindow>()),
                shows("&Help", "&About ...", windowOf<PentagonHelpWindow>()),
                shows("&Help", "&Help ...", windowOf<PentagonUserMenu>()),
                shows("&Help", "&What am I looking at? ...", windowOf<PentagonOverviewWindow>()),
                kExportPicture,
                kExit};
    case AssoTab:
        return {asksForFile("&Open a configuration file ...", FileAction::AssoOpen),
                asksForFile("&Save to a configuration file ...", FileAction::AssoSave),
                asksForFile("&Save data to a txt file ...", FileAction::AssoSaveTxt),
                asksForFile("&Save data to a csv file ...", FileAction::AssoSaveCsv),
                shows("&Tools", "&Region focus ...", windowOf<AssoFocusWindow>()),
                shows("&Tools", "&Selections ...", windowOf<AssoSelectionWindow>()),
                shows("&Tools", "&Color map ...", windowOf<AssoColorMap>()),
                shows("&Tools", "&Inspector ...", windowOf<InspectorWindow>()),
                shows("&Help", "&About ...", windowOf<AssoHelpWindow>()),
                shows("&Help", "&Help ...", windowOf<AssoUserMenu>()),
                shows("&Help", "&What am I looking at? ...", windowOf<AssoOverviewWindow>()),
                kExportPicture,
                kExit};
    default:
        return {asksForFile("&Open a configuration file ...", FileAction::SineOpen),
                asksForFile("&Save to a configuration file ...", FileAction::SineSave),
                asksForFile("&Save data to a txt file ...", FileAction::SineSaveTxt),
                asksForFile("&Save data to a CSV file ...", FileAction::SineSaveCsv),
                shows("&Tools", "&Region focus ...", windowOf<SineFocusWindow>()),
                shows("&Tools", "&Selections ...", windowOf<SineSelectionWindow>()),
                shows("&Tools", "&Status ...", windowOf<SineStatusWindow>()),
                shows("&Tools", "&Color map ...", windowOf<SineColorMap>()),
                shows("&Tools", "&Inspector ...", windowOf<InspectorWindow>()),
                shows("&Help", "&About ...", windowOf<SineHelpWindow>()),
                shows("&Help", "&Help ...", windowOf<SineUserMenu>()),
                shows("&Help", "&What am I looking at? ...", windowOf<SineOverviewWindow>()),
                kExportPicture,
                kExit};
    }
}

// How each file action's dialog asks: an open or a save dialog, its title and its filters.
struct ExpectedDialog {
    QFileDialog::AcceptMode mode;
    const char* title;
    QStringList filters;
};

ExpectedDialog expectedDialog(FileAction action)
{
    const QStringList conf = {"Document files (*.conf)", "All files (*.*)"};
    switch (action) {
    case FileAction::PentagonOpen:
    case FileAction::AssoOpen:
    case FileAction::SineOpen:
        return {QFileDialog::AcceptOpen, "Open Document", conf};
    case FileAction::PentagonSave:
    case FileAction::AssoSave:
    case FileAction::SineSave:
        return {QFileDialog::AcceptSave, "Save Document", {"Documents (*.conf)"}};
    case FileAction::AssoSaveCsv:
    case FileAction::SineSaveCsv:
        return {QFileDialog::AcceptSave, "Save Document", {"Documents (*.csv)"}};
    default:
        return {QFileDialog::AcceptSave, "Save Document", {"Documents (*.txt)"}};
    }
}

QList<QWidget*> visibleTopLevels()
{
    QList<QWidget*> shown;
    for (QWidget* topLevel : QApplication::topLevelWidgets()) {
        if (topLevel->isVisible()) {
            shown << topLevel;
        }
    }
    return shown;
}

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
    QTest::newRow("Roots") << 0
                           << withOverview(
                                  withInspector(withPictureExport(kRootsMenus), "&Examples"));
    QTest::newRow("Pentagon") << 1
                              << withOverview(
                                     withInspector(withPictureExport(kPentagonMenus), "&Tools"));
    QTest::newRow("Associative Law")
        << 2 << withOverview(withInspector(withPictureExport(kAssoMenus), "&Tools"));
    QTest::newRow("Sine") << 3
                          << withOverview(withInspector(withPictureExport(kSineMenus), "&Tools"));
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

// Every entry of every tab is enabled and does what its slot does: a tool or help entry shows
// that tab's window of the entry's kind (and no other), a file entry opens its dialog and hands
// the chosen name to that file action, an example loads its coefficients and "&Exit" closes
// the window.
void MainWindowTest::everyEntryHasSomethingBehindIt()
{
    QTemporaryDir folder;
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QList<std::pair<FileAction, QString>> handed;
    for (int action = 0; action < int(FileAction::Count); ++action) {
        window.setFileRoutine(FileAction(action), [&handed, action](const QString& name) {
            handed.append({FileAction(action), name});
            return QString();
        });
    }
    for (int tab = 0; tab < 4; ++tab) {
        tabsOf(window)->setCurrentIndex(tab);
        const QList<EntryEffect> effects = entryEffects(tab);
        QList<QByteArray> storage;
        int checked = 0;
        for (const Expected& entry : menuBarEntries(window, storage)) {
            if (*entry.text == '\0') {
                continue;
            }
            const QString where = QStringLiteral("%1 %2").arg(tab).arg(entry.text);
            QAction* action = menuBarAction(window, entry.menu, entry.text);
            QVERIFY2(action->isEnabled(), qPrintable(where));
            const auto effect =
                std::find_if(effects.begin(), effects.end(), [&entry](const EntryEffect& e) {
                    return QByteArray(e.menu) == entry.menu && QByteArray(e.text) == entry.text;
                });
            QVERIFY2(effect != effects.end(), qPrintable(where));
            ++checked;
            if (effect->showsWindow) {
                const QList<QWidget*> before = visibleTopLevels();
                action->trigger();
                QList<QWidget*> shown = visibleTopLevels();
                for (QWidget* old : before) {
                    shown.removeAll(old);
                }
                QCOMPARE(shown.size(), 1);
                QVERIFY2(effect->showsWindow(shown.first()), qPrintable(where));
                shown.first()->close();
            } else if (effect->file != FileAction::Count) {
                const ExpectedDialog dialog = expectedDialog(effect->file);
                const QString path = folder.filePath(QStringLiteral("entry %1").arg(checked));
                if (dialog.mode == QFileDialog::AcceptOpen) {
                    QFile existing(path);
                    QVERIFY(existing.open(QIODevice::WriteOnly));
                }
                bool asked = false;
                answerNextModalDialog([&](QWidget* shownDialog) {
                    auto* files = qobject_cast<QFileDialog*>(shownDialog);
                    QVERIFY2(files != nullptr, qPrintable(where));
                    QCOMPARE(files->acceptMode(), dialog.mode);
                    QCOMPARE(files->windowTitle(), QString::fromLatin1(dialog.title));
                    QCOMPARE(files->nameFilters(), dialog.filters);
                    asked = true;
                    auto* name = files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
                    name->setText(path);
                    QTest::keyClick(name, Qt::Key_Return);
                });
                handed.clear();
                action->trigger();
                QVERIFY2(asked, qPrintable(where));
                QCOMPARE(handed.size(), 1);
                QCOMPARE(int(handed.first().first), int(effect->file));
                QCOMPARE(handed.first().second, path);
            } else if (effect->asksForPicture) {
                bool asked = false;
                answerNextModalDialog([&](QWidget* shownDialog) {
                    asked = qobject_cast<PictureExportDialog*>(shownDialog) != nullptr;
                    shownDialog->close();
                });
                action->trigger();
                QVERIFY2(asked, qPrintable(where));
            } else if (!effect->exampleFields.isEmpty()) {
                action->trigger();
                const char* fields[] = {"roots_a_value", "roots_b_value", "roots_c_value"};
                for (int i = 0; i < 3; ++i) {
                    QCOMPARE(window.findChild<QLineEdit*>(QString::fromLatin1(fields[i]))->text(),
                             effect->exampleFields[i]);
                }
            } else {
                QVERIFY(effect->exits);
                action->trigger();
                QVERIFY2(!window.isVisible(), qPrintable(where));
                window.show();
                QVERIFY(QTest::qWaitForWindowExposed(&window));
            }
        }
        QCOMPARE(checked, effects.size());
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
