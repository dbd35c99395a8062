#include "app/GraphicsView.h"
#include "app/MainWindow.h"
#include "common/core/CFormat.h"
#include "sine/engine/SineApproaches.h"
#include "sine/gui/SineColorMap.h"
#include "sine/gui/SineFocusWindow.h"
#include "sine/gui/SineOpenGLScene.h"
#include "sine/gui/SineSelectionWindow.h"
#include "sine/gui/SineStatusWindow.h"
#include "tests/gui/GuiTestSupport.h"
#include "tests/sine/SineGolden.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTimer>
#include <QtTest>
#include <algorithm>
#include <cstdlib>

namespace
{

QString formatted(const char* format, double value)
{
    return QString::fromStdString(quillon::cformat(format, value));
}

QString formatted(int value)
{
    return QString::fromStdString(quillon::cformat("%d", value));
}

QString inputName(SineInput input)
{
    return input == SineInput::Original ? QStringLiteral("Original X")
                                        : QStringLiteral("Reduced X");
}

QString termMethodName(SineTermMethod method)
{
    return method == SineTermMethod::DirectEvaluation ? QStringLiteral("Direct evaluation")
                                                      : QStringLiteral("Term update");
}

QString summationName(SineSummation summation)
{
    const char* names[] = {"Naive", "NegPos", "Kahan"};
    return QString::fromLatin1(names[int(summation)]);
}

// The texts of the labels under `window` that cover the point (window coordinates), in the
// order met when walking from `from` to `to`, each once.
QStringList labelsAlong(QWidget* window, QPoint from, QPoint to)
{
    QStringList texts;
    const int steps = std::max(std::abs(to.x() - from.x()), std::abs(to.y() - from.y()));
    for (int i = 0; i <= steps; ++i) {
        const QPoint point = from + (to - from) * i / std::max(steps, 1);
        for (QLabel* label : window->findChildren<QLabel*>()) {
            const QRect area(label->mapTo(window, QPoint(0, 0)), label->size());
            if (label->isVisible() && !label->text().isEmpty() && area.contains(point) &&
                (texts.isEmpty() || texts.last() != label->text())) {
                texts << label->text();
            }
        }
    }
    return texts;
}

int labelsReading(QWidget* window, const QString& text)
{
    int count = 0;
    for (QLabel* label : window->findChildren<QLabel*>()) {
        count += label->text() == text;
    }
    return count;
}

// The colour a widget shows at its centre.
QColor shownColor(QWidget* widget)
{
    return widget->grab().toImage().pixelColor(widget->width() / 2, widget->height() / 2);
}

QColor colorOf(const quillon::ColorTriple& color)
{
    return QColor(color.red, color.green, color.blue);
}

} // namespace

class SineToolWindowsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void statusRowsShowTheResults();
    void statusRowsAreHeadedByTheirApproach();
    void statusLeavesAbsentValuesEmpty();
    void statusFollowsEveryComputationWhileShown();
    void statusCatchesUpWhenShownAgain();
    void selectionColumnsAreHeadedByTheirApproach();
    void selectionBoxesDriveTheScene();
    void selectionSynchroniseDoesNotCallBack();
    void colorMapListsTheLibraryThenTheTwelveNames();
    void colorMapEditsResetsAndApplies();
    void focusWindowShowsAndMovesTheWindow();
    void focusWindowAppliesAndResetsTheRange();
    void focusYFieldsRefuseWhatIsNotFinite();
    void helpWindowsShowTheirTexts();

private:
    template <typename T> T* popTool(const char* entry, const char* title);
    QLabel* statusCell(QWidget* status, const char* role, int slot) const;
    void typeAndEnter(const char* field, const QString& text);
    void expectFocusShowsTheScene(SineFocusWindow* focus) const;

    std::unique_ptr<MainWindow> window;
    SineOpenGLScene* scene = nullptr;
};

void SineToolWindowsTest::init()
{
    window = std::make_unique<MainWindow>();
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    window->findChild<QTabWidget*>(QStringLiteral("tabWidget"))->setCurrentIndex(SineTab);
    auto* view =
        window->findChild<QWidget*>(QStringLiteral("sine_VisWindow"))->findChild<GraphicsView*>();
    scene = qobject_cast<SineOpenGLScene*>(view->scene());
    QVERIFY(scene != nullptr);
    window->findChild<QTimer*>(QStringLiteral("sine_timer"))->stop();
}

void SineToolWindowsTest::cleanup()
{
    window.reset();
}

template <typename T> T* SineToolWindowsTest::popTool(const char* entry, const char* title)
{
    QWidget* shown = popMenuWindow(*window, QStringLiteral("&Tools"), QString::fromLatin1(entry),
                                   QString::fromLatin1(title));
    if (shown != nullptr && !QTest::qWaitForWindowExposed(shown)) {
        return nullptr;
    }
    return qobject_cast<T*>(shown);
}

QLabel* SineToolWindowsTest::statusCell(QWidget* status, const char* role, int slot) const
{
    const QString suffix = slot == 0 ? QStringLiteral("sine") : formatted(slot);
    return status->findChild<QLabel*>(
        QStringLiteral("sine_status_%1_%2").arg(QString::fromLatin1(role), suffix));
}

void SineToolWindowsTest::typeAndEnter(const char* field, const QString& text)
{
    auto* edit = window->findChild<QLineEdit*>(QString::fromLatin1(field));
    edit->setText(text);
    QTest::keyClick(edit, Qt::Key_Return);
}

void SineToolWindowsTest::statusRowsShowTheResults()
{
    auto* status = popTool<SineStatusWindow>("&Status ...", "Status");
    QVERIFY(status != nullptr);
    const SineResults& results = scene->results();
    QCOMPARE(statusCell(status, "value", 0)->text(), QStringLiteral("-9.397e-01"));
    QCOMPARE(statusCell(status, "error", 0)->text(), QString());
    QCOMPARE(statusCell(status, "iteration", 0)->text(), QString());
    QCOMPARE(shownColor(statusCell(status, "color", 0)), QColor(0, 0, 0));
    for (int k = 1; k <= kSineApproachCount; ++k) {
        QVERIFY(results.value[k - 1].has_value());
        QCOMPARE(statusCell(status, "value", k)->text(),
                 formatted("%.3e", double(*results.value[k - 1])));
        QCOMPARE(statusCell(status, "error", k)->text(),
                 formatted("%.3e", double(*results.error[k - 1])));
        QCOMPARE(statusCell(status, "iteration", k)->text(),
                 formatted(results.errorIteration[k - 1]));
        QCOMPARE(shownColor(statusCell(status, "color", k)), colorOf(scene->colors()[k]));
    }
    // At 250 degrees the direct evaluation of the original argument stops after 17 terms, the
    // term update runs all 300.
    QCOMPARE(statusCell(status, "iteration", 1)->text(), QStringLiteral("16"));
    QCOMPARE(statusCell(status, "iteration", 4)->text(), QStringLiteral("299"));
}

void SineToolWindowsTest::statusRowsAreHeadedByTheirApproach()
{
    auto* status = popTool<SineStatusWindow>("&Status ...", "Status");
    QVERIFY(status != nullptr);
    const QStringList headings = {
        QStringLiteral("Sine input"),     QStringLiteral("Term evaluation"),
        QStringLiteral("Summation"),      QStringLiteral("Color"),
        QStringLiteral("Value"),          QStringLiteral("Error respect to library"),
        QStringLiteral("Error iteration")};
    QLabel* first = statusCell(status, "value", 1);
    const int headingY = first->mapTo(status, QPoint(0, -first->height() / 2)).y();
    QCOMPARE(labelsAlong(status, QPoint(0, headingY), QPoint(status->width() - 1, headingY)),
             headings);
    for (int k = 1; k <= kSineApproachCount; ++k) {
        QLabel* value = statusCell(status, "value", k);
        const int y = value->mapTo(status, QPoint(0, value->height() / 2)).y();
        const SineApproach& approach = sineApproaches()[k - 1];
        const QStringList expected = {inputName(approach.input),
                                      termMethodName(approach.termMethod),
                                      summationName(approach.summation),
                                      value->text(),
                                      statusCell(status, "error", k)->text(),
                                      statusCell(status, "iteration", k)->text()};
        QCOMPARE(labelsAlong(status, QPoint(0, y), QPoint(status->width() - 1, y)), expected);
    }
    QLabel* library = statusCell(status, "value", 0);
    const int libraryY = library->mapTo(status, QPoint(0, library->height() / 2)).y();
    QCOMPARE(labelsAlong(status, QPoint(0, libraryY), QPoint(status->width() - 1, libraryY)),
             (QStringList{QStringLiteral("Sine"), library->text()}));
}

// The Calculate button reads the iteration count past its validator; with no terms no series
// has a valid partial sum.
void SineToolWindowsTest::statusLeavesAbsentValuesEmpty()
{
    auto* status = popTool<SineStatusWindow>("&Status ...", "Status");
    QVERIFY(status != nullptr);
    window->findChild<QLineEdit*>(QStringLiteral("sine_iteration_input"))
        ->setText(QStringLiteral("0"));
    QTest::mouseClick(window->findChild<QPushButton*>(QStringLiteral("sine_calculate")),
                      Qt::LeftButton);
    QCOMPARE(scene->getN(), 0);
    for (int k = 1; k <= kSineApproachCount; ++k) {
        QVERIFY(!scene->results().value[k - 1].has_value());
        QCOMPARE(statusCell(status, "value", k)->text(), QString());
        QCOMPARE(statusCell(status, "error", k)->text(), QString());
        QCOMPARE(statusCell(status, "iteration", k)->text(), QStringLiteral("-1"));
    }
    QCOMPARE(statusCell(status, "value", 0)->text(), QStringLiteral("-9.397e-01"));
}

void SineToolWindowsTest::statusFollowsEveryComputationWhileShown()
{
    auto* status = popTool<SineStatusWindow>("&Status ...", "Status");
    QVERIFY(status != nullptr);
    typeAndEnter("sine_X_input", QStringLiteral("30"));
    QCOMPARE(scene->getX(), 30);
    QCOMPARE(statusCell(status, "value", 0)->text(), QStringLiteral("5.000e-01"));
    QCOMPARE(statusCell(status, "value", 12)->text(),
             formatted("%.3e", double(*scene->results().value[11])));
}

// The scene refreshes the table only while it is shown.
void SineToolWindowsTest::statusCatchesUpWhenShownAgain()
{
    auto* status = popTool<SineStatusWindow>("&Status ...", "Status");
    QVERIFY(status != nullptr);
    status->close();
    typeAndEnter("sine_X_input", QStringLiteral("90"));
    status = popTool<SineStatusWindow>("&Status ...", "Status");
    QVERIFY(status != nullptr);
    QCOMPARE(statusCell(status, "value", 0)->text(), QStringLiteral("1.000e+00"));
}

void SineToolWindowsTest::selectionColumnsAreHeadedByTheirApproach()
{
    auto* selection = popTool<SineSelectionWindow>("&Selections ...", "Selections");
    QVERIFY(selection != nullptr);
    for (int k = 1; k <= kSineApproachCount; ++k) {
        QCheckBox* box = selection->checkBox(k);
        const QPoint top = box->mapTo(selection, QPoint(box->width() / 2, 0));
        const SineApproach& approach = sineApproaches()[k - 1];
        const QStringList expected = {
            QStringLiteral("Sine input"),
            inputName(approach.input),
            QStringLiteral("Term evaluation"),
            termMethodName(approach.termMethod) + QStringLiteral(" method"),
            QStringLiteral("Summation method"),
            summationName(approach.summation)};
        QCOMPARE(labelsAlong(selection, QPoint(top.x(), 0), top), expected);
    }
    QCOMPARE(selection->checkBox(SineOpenGLScene::kLibrary)->text(), QStringLiteral("Sine"));
    QCOMPARE(labelsReading(selection, QStringLiteral("Select")), 1);
    QCOMPARE(selection->noneButton()->text(), QStringLiteral("None"));
    QCOMPARE(selection->allButton()->text(), QStringLiteral("All"));
}

void SineToolWindowsTest::selectionBoxesDriveTheScene()
{
    auto* selection = popTool<SineSelectionWindow>("&Selections ...", "Selections");
    QVERIFY(selection != nullptr);
    for (int slot = 0; slot <= kSineApproachCount; ++slot) {
        QCOMPARE(selection->checkBox(slot)->isChecked(), scene->isNeeded(slot));
        const bool before = scene->isNeeded(slot);
        clickIndicator(selection->checkBox(slot));
        QCOMPARE(scene->isNeeded(slot), !before);
    }
    QTest::mouseClick(selection->noneButton(), Qt::LeftButton);
    for (int slot = 0; slot <= kSineApproachCount; ++slot) {
        QVERIFY(!scene->isNeeded(slot));
        QVERIFY(!selection->checkBox(slot)->isChecked());
    }
    QTest::mouseClick(selection->allButton(), Qt::LeftButton);
    for (int slot = 0; slot <= kSineApproachCount; ++slot) {
        QVERIFY(scene->isNeeded(slot));
        QVERIFY(selection->checkBox(slot)->isChecked());
    }
}

void SineToolWindowsTest::selectionSynchroniseDoesNotCallBack()
{
    auto* selection = popTool<SineSelectionWindow>("&Selections ...", "Selections");
    QVERIFY(selection != nullptr);
    scene->needFunc5(true);
    scene->needFunc4(false);
    QSignalSpy toggled5(selection->checkBox(5), &QCheckBox::toggled);
    QSignalSpy toggled4(selection->checkBox(4), &QCheckBox::toggled);
    selection->synchronise();
    QVERIFY(selection->checkBox(5)->isChecked());
    QVERIFY(!selection->checkBox(4)->isChecked());
    QCOMPARE(toggled5.count(), 0);
    QCOMPARE(toggled4.count(), 0);
}

void SineToolWindowsTest::colorMapListsTheLibraryThenTheTwelveNames()
{
    auto* colorMap = popTool<SineColorMap>("&Color map ...", "Color map");
    QVERIFY(colorMap != nullptr);
    QComboBox* methods = colorMap->methodComboBox();
    QCOMPARE(methods->count(), kSineApproachCount + 1);
    QCOMPARE(methods->itemText(0), QStringLiteral("Sine"));
    for (int k = 1; k <= kSineApproachCount; ++k) {
        QCOMPARE(methods->itemText(k), QString::fromLatin1(sineApproaches()[k - 1].longName));
    }
    QCOMPARE(colorMap->findChild<QGroupBox*>()->title(), QStringLiteral("Select a method"));
    QCOMPARE(labelsReading(colorMap, QStringLiteral("Method:")), 1);
    for (QSlider* slider :
         {colorMap->redSlider(), colorMap->greenSlider(), colorMap->blueSlider()}) {
        QCOMPARE(slider->minimum(), 0);
        QCOMPARE(slider->maximum(), 255);
    }
}

void SineToolWindowsTest::colorMapEditsResetsAndApplies()
{
    auto* status = popTool<SineStatusWindow>("&Status ...", "Status");
    auto* colorMap = popTool<SineColorMap>("&Color map ...", "Color map");
    QVERIFY(status != nullptr && colorMap != nullptr);
    QCOMPARE(colorMap->targetSlot(), 0);
    colorMap->methodComboBox()->setCurrentIndex(5);
    QCOMPARE(colorMap->targetSlot(), 5);
    QCOMPARE(colorMap->redSlider()->value(), 255);
    QCOMPARE(colorMap->greenSlider()->value(), 0);
    colorMap->redSlider()->setValue(10);
    colorMap->greenSlider()->setValue(20);
    colorMap->blueSlider()->setValue(30);
    QCOMPARE(colorMap->editingColor(), (quillon::ColorTriple{10, 20, 30}));
    QCOMPARE(shownColor(colorMap->previewLabel()), QColor(10, 20, 30));
    QCOMPARE(scene->colors()[5], (quillon::ColorTriple{255, 0, 0}));

    QTest::mouseClick(colorMap->resetButton(), Qt::LeftButton);
    QCOMPARE(colorMap->editingColor(), (quillon::ColorTriple{255, 0, 0}));
    QCOMPARE(colorMap->redSlider()->value(), 255);

    colorMap->blueSlider()->setValue(77);
    QTest::mouseClick(colorMap->applyButton(), Qt::LeftButton);
    QCOMPARE(scene->colors()[5], (quillon::ColorTriple{255, 0, 77}));
    QCOMPARE(shownColor(statusCell(status, "color", 5)), QColor(255, 0, 77));

    colorMap->methodComboBox()->setCurrentIndex(0);
    QCOMPARE(colorMap->editingColor(), (quillon::ColorTriple{0, 0, 0}));
    QCOMPARE(colorMap->blueSlider()->value(), 0);
}

void SineToolWindowsTest::expectFocusShowsTheScene(SineFocusWindow* focus) const
{
    const quillon::PlotXWindow& shown = scene->xWindow();
    QCOMPARE(focus->startSlider()->minimum(), 0);
    QCOMPARE(focus->startSlider()->maximum(), shown.end - 1);
    QCOMPARE(focus->startSlider()->value(), shown.start);
    QCOMPARE(focus->endSlider()->minimum(), shown.start);
    QCOMPARE(focus->endSlider()->maximum(), scene->getN() - 1);
    QCOMPARE(focus->endSlider()->value(), shown.end);
    QCOMPARE(focus->stepSlider()->minimum(), 1);
    QCOMPARE(focus->stepSlider()->maximum(), scene->getN() - 1);
    QCOMPARE(focus->stepSlider()->value(), shown.step);
    QCOMPARE(focus->findChild<QLabel*>(QStringLiteral("startValue"))->text(),
             formatted(shown.start));
    QCOMPARE(focus->findChild<QLabel*>(QStringLiteral("endValue"))->text(), formatted(shown.end));
    QCOMPARE(focus->findChild<QLabel*>(QStringLiteral("stepValue"))->text(), formatted(shown.step));
    QCOMPARE(focus->yMinText(), formatted("%f", double(scene->getYLow())));
    QCOMPARE(focus->yMaxText(), formatted("%f", double(scene->getYHigh())));
}

void SineToolWindowsTest::focusWindowShowsAndMovesTheWindow()
{
    auto* focus = popTool<SineFocusWindow>("&Region focus ...", "Region focus");
    QVERIFY(focus != nullptr);
    expectFocusShowsTheScene(focus);
    focus->endSlider()->setValue(100);
    QCOMPARE(scene->xWindow().end, 100);
    expectFocusShowsTheScene(focus);
    focus->startSlider()->setValue(10);
    QCOMPARE(scene->xWindow().start, 10);
    QCOMPARE(scene->xWindow().end, 100);
    expectFocusShowsTheScene(focus);
    focus->stepSlider()->setValue(3);
    QCOMPARE(scene->xWindow().step, 3);
    expectFocusShowsTheScene(focus);

    QVERIFY(!focus->fixesNodeCount());
    clickIndicator(focus->fixCheckBox());
    QVERIFY(focus->fixesNodeCount());
    focus->startSlider()->setValue(20);
    QCOMPARE(scene->xWindow().start, 20);
    QCOMPARE(scene->xWindow().end, 110);
    expectFocusShowsTheScene(focus);
}

void SineToolWindowsTest::focusWindowAppliesAndResetsTheRange()
{
    auto* focus = popTool<SineFocusWindow>("&Region focus ...", "Region focus");
    QVERIFY(focus != nullptr);
    focus->yMinEdit()->setText(QStringLiteral("-0.25"));
    QTest::keyClick(focus->yMinEdit(), Qt::Key_Return);
    QCOMPARE(scene->getYLow(), -0.25f);
    focus->yMaxEdit()->setText(QStringLiteral("0.75"));
    QTest::keyClick(focus->yMaxEdit(), Qt::Key_Return);
    QCOMPARE(scene->getYHigh(), 0.75f);

    focus->yMinEdit()->setText(QStringLiteral("-2"));
    focus->yMaxEdit()->setText(QStringLiteral("3"));
    QTest::mouseClick(focus->applyButton(), Qt::LeftButton);
    QCOMPARE(scene->getYLow(), -2.0f);
    QCOMPARE(scene->getYHigh(), 3.0f);

    focus->endSlider()->setValue(60);
    focus->startSlider()->setValue(40);
    focus->stepSlider()->setValue(2);
    QTest::mouseClick(focus->resetButton(), Qt::LeftButton);
    QCOMPARE(scene->xWindow().start, 0);
    QCOMPARE(scene->xWindow().end, 20);
    QCOMPARE(scene->xWindow().step, 1);
    expectFocusShowsTheScene(focus);
}

// Infinity or NaN in a Y field would leave the plot without a range: the last keystroke of
// such a text is refused, a note says why, and a text set some other way does not reach the
// scene through Return or "Apply".
void SineToolWindowsTest::focusYFieldsRefuseWhatIsNotFinite()
{
    auto* focus = popTool<SineFocusWindow>("&Region focus ...", "Region focus");
    QVERIFY(focus != nullptr);
    auto* note = focus->findChild<QLabel*>(QStringLiteral("yRefusal"));
    QVERIFY(note != nullptr);
    QVERIFY(!note->isVisible());
    const float yLow = scene->getYLow();
    const float yHigh = scene->getYHigh();
    const std::pair<const char*, const char*> typed[] = {
        {"nan", "na"}, {"inf", "in"}, {"-inf", "-in"}, {"1e39", "1e3"}, {"-4e38", "-4e3"}};
    for (QLineEdit* edit : {focus->yMinEdit(), focus->yMaxEdit()}) {
        for (const auto& [text, kept] : typed) {
            retype(edit, QString::fromLatin1(text));
            QCOMPARE(edit->text(), QString::fromLatin1(kept));
            QVERIFY(note->isVisible());
            QCOMPARE(note->text(), QStringLiteral("Only finite numbers"));
        }
        retype(edit, QStringLiteral("0.5"));
        QVERIFY(!note->isVisible());
    }
    QCOMPARE(scene->getYLow(), yLow);
    QCOMPARE(scene->getYHigh(), yHigh);

    focus->yMinEdit()->setText(QStringLiteral("nan"));
    focus->yMaxEdit()->setText(QStringLiteral("inf"));
    QTest::keyClick(focus->yMinEdit(), Qt::Key_Return);
    QTest::keyClick(focus->yMaxEdit(), Qt::Key_Return);
    QTest::mouseClick(focus->applyButton(), Qt::LeftButton);
    QCOMPARE(scene->getYLow(), yLow);
    QCOMPARE(scene->getYHigh(), yHigh);
    // A finite number still goes through.
    focus->yMaxEdit()->setText(QStringLiteral("3.5e3"));
    QTest::mouseClick(focus->applyButton(), Qt::LeftButton);
    QCOMPARE(scene->getYLow(), yLow);
    QCOMPARE(scene->getYHigh(), 3500.0f);
}

void SineToolWindowsTest::helpWindowsShowTheirTexts()
{
    const struct {
        const char* entry;
        const char* title;
        const char* golden;
    } windows[] = {{"&About ...", "About", "sine-about.txt"},
                   {"&Help ...", "Help", "sine-help.txt"}};
    for (const auto& expected : windows) {
        QWidget* shown =
            popMenuWindow(*window, QStringLiteral("&Help"), QString::fromLatin1(expected.entry),
                          QString::fromLatin1(expected.title));
        QVERIFY2(shown != nullptr, expected.title);
        auto* browser = shown->findChild<QTextBrowser*>();
        QVERIFY(browser != nullptr);
        QCOMPARE(browser->toPlainText().toStdString(), sineGolden(expected.golden));
        shown->close();
    }
}

QTEST_MAIN(SineToolWindowsTest)
#include "SineToolWindowsTest.moc"
