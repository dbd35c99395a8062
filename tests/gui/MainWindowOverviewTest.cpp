#include "app/MainWindow.h"
#include "assoc/gui/AssoOverviewWindow.h"
#include "pentagon/gui/PentagonOverviewWindow.h"
#include "roots/gui/RootsOverviewWindow.h"
#include "sine/gui/SineOverviewWindow.h"
#include "tests/gui/GuiTestSupport.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTextBrowser>
#include <QtTest>

// "&What am I looking at? ..." on each tab: the window it opens names the tab's colours and
// keys, and on the Sine tab how far the "C++ Math lib" line's argument puts it from the true
// sine of the current X.
namespace
{

const QString kEntry = QStringLiteral("&What am I looking at? ...");
const QString kTitle = QStringLiteral("What am I looking at?");
constexpr int kSineTab = 3;

// |sin(x) - sin(X degrees)| for x = single(X * 3.141592502593994 / 180), worked out with
// mpmath at 400 bits and printed with "%.3e".
const QString kDistanceAt250 = QStringLiteral("1.352e-07");
const QString kDistanceAt1000 = QStringLiteral("2.745e-07");

void showTab(MainWindow& window, int tab)
{
    window.findChild<QTabWidget*>(QStringLiteral("tabWidget"))->setCurrentIndex(tab);
}

QString shownText(QWidget* overview)
{
    return static_cast<HelpTextWindow*>(overview)->browser()->toPlainText();
}

// Shows the window on `tab` and triggers the tab's entry; the window it shows, or null.
QWidget* openOverview(MainWindow& window, int tab)
{
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) {
        return nullptr;
    }
    showTab(window, tab);
    return popMenuWindow(window, QStringLiteral("&Help"), kEntry, kTitle);
}

void typeX(MainWindow& window, const QString& degrees)
{
    auto* field = window.findChild<QLineEdit*>(QStringLiteral("sine_X_input"));
    field->setText(degrees);
    QTest::keyClick(field, Qt::Key_Return);
}

} // namespace

class MainWindowOverviewTest : public QObject
{
    Q_OBJECT

private slots:
    void eachTabsEntryNamesItsColoursAndKeys_data();
    void eachTabsEntryNamesItsColoursAndKeys();
    void sineTextGivesTheLibraryArgumentsDistanceForX();
    void sineTextFollowsXSetByCalculate();
};

void MainWindowOverviewTest::eachTabsEntryNamesItsColoursAndKeys_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QStringList>("phrases");
    const QStringList animationKeys = {"Space starts, pauses or resumes the animation",
                                       "+ speeds it up", "- slows it down",
                                       "whenever no text field has the keyboard focus"};
    const QStringList referenceLines = {"dotted horizontal lines mark the values -1, 0 and 1"};
    QTest::newRow("Roots") << 0
                           << QStringList{"red (naive single)",
                                          "blue (cancellation single)",
                                          "pink (double)",
                                          "more than 1e-11 apart",
                                          "high-precision column is the reference",
                                          "Space, + and - do nothing here"};
    QTest::newRow("Pentagon") << 1
                              << QStringList{"initial pentagon is red", "newest pentagon is blue",
                                             "greys that lighten",
                                             "Space presses the Start (later Restart) button",
                                             "+ and - do nothing here"};
    QTest::newRow("Associative Law")
        << 2
        << QStringList{"order 1 is purple", "order 2 teal",  "order 3 orange-red",
                       "order 4 olive",     "order 5 green", "largest value minus the smallest"} +
               referenceLines + animationKeys;
    QTest::newRow("Sine") << kSineTab
                          << QStringList{"\"C++ Math lib\" line is black",
                                         "evaluated in double precision of that "
                                         "single-precision radian argument"} +
                                 referenceLines + animationKeys;
}

void MainWindowOverviewTest::eachTabsEntryNamesItsColoursAndKeys()
{
    QFETCH(int, tab);
    QFETCH(QStringList, phrases);
    MainWindow window;
    QWidget* overview = openOverview(window, tab);
    QVERIFY(overview != nullptr);
    const bool rightClass[] = {qobject_cast<RootsOverviewWindow*>(overview) != nullptr,
                               qobject_cast<PentagonOverviewWindow*>(overview) != nullptr,
                               qobject_cast<AssoOverviewWindow*>(overview) != nullptr,
                               qobject_cast<SineOverviewWindow*>(overview) != nullptr};
    QVERIFY(rightClass[tab]);
    const QString text = shownText(overview);
    for (const QString& phrase : phrases) {
        QVERIFY2(text.contains(phrase), qPrintable(phrase));
    }
    window.close();
    QVERIFY2(!overview->isVisible(), "the main window closes it");
}

void MainWindowOverviewTest::sineTextGivesTheLibraryArgumentsDistanceForX()
{
    MainWindow window;
    typeX(window, QStringLiteral("250"));
    QWidget* overview = openOverview(window, kSineTab);
    QVERIFY(overview != nullptr);
    QVERIFY2(shownText(overview).contains(QStringLiteral("For X = 250 the sine of that argument "
                                                         "lies %1 from the true sine of 250 "
                                                         "degrees")
                                              .arg(kDistanceAt250)),
             qPrintable(shownText(overview)));

    typeX(window, QStringLiteral("1000"));
    const QString at1000 = shownText(overview);
    QVERIFY2(at1000.contains(QStringLiteral("For X = 1000 the sine of that argument lies %1 from "
                                            "the true sine of 1000 degrees")
                                 .arg(kDistanceAt1000)),
             qPrintable(at1000));
    QVERIFY(!at1000.contains(kDistanceAt250));
}

void MainWindowOverviewTest::sineTextFollowsXSetByCalculate()
{
    MainWindow window;
    typeX(window, QStringLiteral("1000"));
    QWidget* overview = openOverview(window, kSineTab);
    QVERIFY(overview != nullptr);
    QVERIFY(shownText(overview).contains(kDistanceAt1000));

    // The Calculate button reads X too; the open window follows it.
    window.findChild<QLineEdit*>(QStringLiteral("sine_X_input"))->setText(QStringLiteral("250"));
    window.findChild<QPushButton*>(QStringLiteral("sine_calculate"))->click();
    QVERIFY(overview->isVisible());
    QVERIFY(shownText(overview).contains(kDistanceAt250));
    QVERIFY(!shownText(overview).contains(kDistanceAt1000));
}

QTEST_MAIN(MainWindowOverviewTest)
#include "MainWindowOverviewTest.moc"
