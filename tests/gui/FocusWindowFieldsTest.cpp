#include "app/MainWindow.h"
#include "assoc/gui/AssoFocusWindow.h"
#include "pentagon/gui/PentagonFocusWindow.h"
#include "sine/gui/SineFocusWindow.h"
#include "tests/gui/GuiTestSupport.h"

#include <QLineEdit>
#include <QSlider>
#include <QTabWidget>
#include <QtTest>

// The "Region focus" windows write the plot's range into their fields. A number longer than
// its field must show its start, the sign and the leading digits: -35130601455616 must not
// read as "35130601455616.000000" or "455616.000000".
class FocusWindowFieldsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void associativeLawFieldsShowTheStartOfLongNumbers();
    void sineFieldsShowTheStartOfLongNumbers();
    void pentagonFieldsShowTheStartOfLongNumbers();

private:
    QWidget* popFocusWindow(int tab, const char* entry);
    static void typeLongMinimumAndRefresh(quillon::PlotFocusWindow* focus);

    std::unique_ptr<MainWindow> window;
};

void FocusWindowFieldsTest::init()
{
    window = std::make_unique<MainWindow>();
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

void FocusWindowFieldsTest::cleanup()
{
    window.reset();
}

QWidget* FocusWindowFieldsTest::popFocusWindow(int tab, const char* entry)
{
    window->findChild<QTabWidget*>(QStringLiteral("tabWidget"))->setCurrentIndex(tab);
    return popMenuWindow(*window, QStringLiteral("&Tools"), QString::fromLatin1(entry),
                         QStringLiteral("Region focus"));
}

// Types the long minimum and moves the step slider, after which the scene writes its range
// back into both fields.
void FocusWindowFieldsTest::typeLongMinimumAndRefresh(quillon::PlotFocusWindow* focus)
{
    retype(focus->yMinEdit(), QStringLiteral("-35130601455616"));
    QTest::keyClick(focus->yMinEdit(), Qt::Key_Return);
    focus->stepSlider()->setValue(2);
    // The nearest single to -35130601455616.
    QCOMPARE(focus->yMinEdit()->text(), QStringLiteral("-35130601111552.000000"));
    for (QLineEdit* edit : {focus->yMinEdit(), focus->yMaxEdit()}) {
        QCOMPARE(edit->cursorPosition(), 0);
    }
}

void FocusWindowFieldsTest::associativeLawFieldsShowTheStartOfLongNumbers()
{
    auto* focus = qobject_cast<AssoFocusWindow*>(popFocusWindow(AssoTab, "&Region focus ..."));
    QVERIFY(focus != nullptr);
    typeLongMinimumAndRefresh(focus);
}

void FocusWindowFieldsTest::sineFieldsShowTheStartOfLongNumbers()
{
    auto* focus = qobject_cast<SineFocusWindow*>(popFocusWindow(SineTab, "&Region focus ..."));
    QVERIFY(focus != nullptr);
    typeLongMinimumAndRefresh(focus);
}

void FocusWindowFieldsTest::pentagonFieldsShowTheStartOfLongNumbers()
{
    auto* focus =
        qobject_cast<PentagonFocusWindow*>(popFocusWindow(PentagonTab, "&Focus regions ..."));
    QVERIFY(focus != nullptr);
    focus->showRange({-35130601455616.0f, 2.5f, -1.0e20f, 123456789.0f});
    QCOMPARE(focus->xMinEdit()->text(), QStringLiteral("-35130601111552.000000"));
    QCOMPARE(focus->yMinEdit()->text(), QStringLiteral("-100000002004087734272.000000"));
    for (QLineEdit* edit :
         {focus->xMinEdit(), focus->xMaxEdit(), focus->yMinEdit(), focus->yMaxEdit()}) {
        QCOMPARE(edit->cursorPosition(), 0);
    }
}

QTEST_MAIN(FocusWindowFieldsTest)
#include "FocusWindowFieldsTest.moc"
