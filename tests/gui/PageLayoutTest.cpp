#include "app/MainWindow.h"
#include "common/gui/PlotOverlay.h"
#include "sine/gui/SineOpenGLScene.h"
#include "tests/gui/GuiTestSupport.h"
#include "tests/gui/PaintedTextRecorder.h"

#include <QAbstractButton>
#include <QGraphicsView>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionGroupBox>
#include <QTabWidget>
#include <QToolTip>
#include <QtTest>

namespace
{

// The size the form gives the window when the program starts.
constexpr QSize kStartingSize(1080, 838);

QString nameOf(const QWidget* widget)
{
    return widget->objectName().isEmpty() ? QString::fromLatin1(widget->metaObject()->className())
                                          : widget->objectName();
}

QString describe(const QWidget* widget, const QString& text)
{
    return QStringLiteral("%1 \"%2\" in %3x%4")
        .arg(nameOf(widget), text)
        .arg(widget->width())
        .arg(widget->height());
}

// Whether every ancestor up to `top` shows the whole widget, so that none of it is cut off.
bool insideAncestors(const QWidget* widget, const QWidget* top)
{
    QRect area = widget->rect();
    for (const QWidget* w = widget; w != top && w->parentWidget() != nullptr;
         w = w->parentWidget()) {
        area.translate(w->pos());
        if (!w->parentWidget()->rect().contains(area)) {
            return false;
        }
    }
    return true;
}

void checkLabel(const QLabel* label, QStringList& problems)
{
    const QRect room = label->contentsRect();
    if (!label->pixmap().isNull()) {
        const QSize picture = label->pixmap().deviceIndependentSize().toSize();
        if (picture.width() > room.width() || picture.height() > room.height()) {
            problems << QStringLiteral("picture cut: ") + describe(label, QString());
        }
        return;
    }
    if (label->text().isEmpty()) {
        return;
    }
    const QFontMetrics metrics = label->fontMetrics();
    const QStringList lines = label->text().split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (metrics.horizontalAdvance(line) > room.width()) {
            problems << QStringLiteral("text too wide: ") + describe(label, line);
        }
    }
    const int textHeight = metrics.lineSpacing() * int(lines.size() - 1) + metrics.height();
    if (textHeight > room.height()) {
        problems << QStringLiteral("text too high: ") + describe(label, label->text());
    }
}

// A button's size hint is what its text, icon and check indicator need.
void checkButton(const QAbstractButton* button, QStringList& problems)
{
    const QSize needed = button->sizeHint();
    if (needed.width() > button->width() || needed.height() > button->height()) {
        problems
            << QStringLiteral("button needs %1x%2: ").arg(needed.width()).arg(needed.height()) +
                   describe(button, button->text());
    }
}

// Where the style draws the group box's title.
QRect titleRect(const QGroupBox* box)
{
    QStyleOptionGroupBox option;
    option.initFrom(box);
    option.text = box->title();
    option.lineWidth = 1;
    option.midLineWidth = 0;
    option.textAlignment = box->alignment();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    return box->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel,
                                        box);
}

void checkGroupBoxTitle(const QGroupBox* box, QStringList& problems)
{
    if (box->title().isEmpty()) {
        return;
    }
    const QRect title = titleRect(box);
    if (title.isEmpty() || !box->rect().contains(title)) {
        problems << QStringLiteral("title cut: ") + describe(box, box->title());
    }
    for (const QWidget* child : box->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (child->isVisible() && child->geometry().intersects(title)) {
            problems << QStringLiteral("title overlaps %1: ").arg(nameOf(child)) +
                            describe(box, box->title());
        }
    }
}

// Every visible text, picture and group-box title under `root` that is cut off or overlapped.
QStringList layoutProblems(const QWidget* root)
{
    QStringList problems;
    for (const QWidget* widget : root->findChildren<QWidget*>()) {
        if (!widget->isVisible()) {
            continue;
        }
        if (!insideAncestors(widget, root)) {
            problems << QStringLiteral("outside its parent: ") + describe(widget, QString());
        }
        if (const auto* label = qobject_cast<const QLabel*>(widget)) {
            checkLabel(label, problems);
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
            checkButton(button, problems);
        } else if (const auto* box = qobject_cast<const QGroupBox*>(widget)) {
            checkGroupBoxTitle(box, problems);
        }
    }
    return problems;
}

} // namespace

class PageLayoutTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void minimumSizeIsEnforcedAndFitsTheStartingWindow();
    void everyTextFitsOnEveryPage_data();
    void everyTextFitsOnEveryPage();
    void plotPagesFillTheirPage_data();
    void plotPagesFillTheirPage();
    void sineLegendFitsItsColumns_data();
    void sineLegendFitsItsColumns();
    void toolWindowTitlesClearTheirContents();

private:
    QTabWidget* tabs() const;
    void resizeTo(QSize size);
    void expectNoProblems(const QWidget* root, const QString& where);

    std::unique_ptr<MainWindow> window;
};

void PageLayoutTest::init()
{
    window = std::make_unique<MainWindow>();
    window->move(0, 0);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

void PageLayoutTest::cleanup()
{
    window.reset();
}

QTabWidget* PageLayoutTest::tabs() const
{
    return window->findChild<QTabWidget*>(QStringLiteral("tabWidget"));
}

// An empty size stands for the window's minimum size; the starting size leaves the window as
// it opened.
void PageLayoutTest::resizeTo(QSize size)
{
    const QSize target = size.isEmpty() ? window->minimumSize() : size;
    window->resize(target);
    QTRY_COMPARE(window->size(), target);
}

void PageLayoutTest::expectNoProblems(const QWidget* root, const QString& where)
{
    const QStringList problems = layoutProblems(root);
    QVERIFY2(problems.isEmpty(),
             qPrintable(where + QStringLiteral(":\n") + problems.join(QLatin1Char('\n'))));
}

void PageLayoutTest::minimumSizeIsEnforcedAndFitsTheStartingWindow()
{
    const QSize minimum = window->minimumSize();
    QVERIFY(minimum.width() > 0 && minimum.height() > 0);
    QVERIFY(minimum.width() <= kStartingSize.width() && minimum.height() <= kStartingSize.height());
    window->resize(500, 400);
    QTRY_COMPARE(window->size(), minimum);
}

void PageLayoutTest::everyTextFitsOnEveryPage_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("as opened") << kStartingSize;
    QTest::newRow("minimum") << QSize();
    QTest::newRow("1920x1200") << QSize(1920, 1200);
}

// Every tab, the Roots tab with each example's texts and the pause button with both of its
// texts.
void PageLayoutTest::everyTextFitsOnEveryPage()
{
    QFETCH(QSize, size);
    resizeTo(size);
    for (int tab = 0; tab < TabCount; ++tab) {
        tabs()->setCurrentIndex(tab);
        QApplication::processEvents();
        expectNoProblems(tabs()->currentWidget(), tabs()->tabText(tab));
    }
    tabs()->setCurrentIndex(RootsTab);
    for (const char* example :
         {"&Example 1: regular example", "&Example 2: b^2 >> 4ac", "&Example 3: b^2 ~ 4ac"}) {
        QAction* action =
            menuBarAction(*window, QStringLiteral("&Examples"), QString::fromLatin1(example));
        QVERIFY2(action != nullptr, example);
        action->trigger();
        QApplication::processEvents();
        expectNoProblems(tabs()->currentWidget(), QString::fromLatin1(example));
    }
    tabs()->setCurrentIndex(AssoTab);
    auto* pause = window->findChild<QPushButton*>(QStringLiteral("associativelaw_pause"));
    QSet<QString> pauseTexts;
    for (int click = 0; click < 2; ++click) {
        pause->click();
        pauseTexts << pause->text();
        expectNoProblems(tabs()->currentWidget(),
                         QStringLiteral("Associative Law, ") + pause->text());
    }
    QCOMPARE(pauseTexts, QSet<QString>({QStringLiteral("Pause"), QStringLiteral("Resume")}));
}

void PageLayoutTest::plotPagesFillTheirPage_data()
{
    everyTextFitsOnEveryPage_data();
}

// The plot from the page's left edge, the panel up to its right edge, both full height.
void PageLayoutTest::plotPagesFillTheirPage()
{
    QFETCH(QSize, size);
    resizeTo(size);
    const char* const pages[][2] = {{"pentagon_VisWindow", "pentagon_ControlWindow"},
                                    {"associativelaw_VisWindow", "associativelaw_ControlWindow"},
                                    {"sine_VisWindow", "sine_ControlWindow"}};
    for (const auto& names : pages) {
        auto* plot = window->findChild<QWidget*>(QString::fromLatin1(names[0]));
        auto* panel = window->findChild<QWidget*>(QString::fromLatin1(names[1]));
        tabs()->setCurrentWidget(plot->parentWidget());
        QApplication::processEvents();
        const QSize page = plot->parentWidget()->size();
        QCOMPARE(plot->geometry().topLeft(), QPoint(0, 0));
        QCOMPARE(plot->height(), page.height());
        QCOMPARE(panel->height(), page.height());
        QVERIFY2(panel->x() > plot->geometry().right(), names[1]);
        QVERIFY2(panel->geometry().right() < page.width(), names[1]);
        QVERIFY2(page.width() - panel->geometry().right() <= 10, names[1]);
        QVERIFY2(panel->x() - plot->geometry().right() <= 10, names[1]);
    }
}

void PageLayoutTest::sineLegendFitsItsColumns_data()
{
    everyTextFitsOnEveryPage_data();
}

// The Sine legend's three columns: each entry's text ends within its column, before the next
// column's check mark. A name too long for its column is shortened with "..." and its tool tip
// gives it whole; at the size the window opens with, every name is shown whole.
void PageLayoutTest::sineLegendFitsItsColumns()
{
    QFETCH(QSize, size);
    resizeTo(size);
    auto* placeholder = window->findChild<QWidget*>(QStringLiteral("sine_VisWindow"));
    auto* view = placeholder->findChild<QGraphicsView*>();
    tabs()->setCurrentWidget(placeholder->parentWidget());
    // The view lays itself out once its page shows: the scene then covers it.
    QTRY_COMPARE(view->sceneRect().size(), QSizeF(view->size()));
    auto* scene = qobject_cast<SineOpenGLScene*>(view->scene());
    QVERIFY(scene != nullptr);
    const QStringList names = {"C++ Math lib",
                               "Select all",
                               "Select none",
                               "Original X + Direct eva + Naive",
                               "Original X + Direct eva + NegPos",
                               "Original X + Direct eva + Kahan",
                               "Original X + Term update + Naive",
                               "Original X + Term update + NegPos",
                               "Original X + Term update + Kahan",
                               "Reduced X + Direct eva + Naive",
                               "Reduced X + Direct eva + NegPos",
                               "Reduced X + Direct eva + Kahan",
                               "Reduced X + Term update + Naive",
                               "Reduced X + Term update + NegPos",
                               "Reduced X + Term update + Kahan"};
    const QFontMetrics metrics(quillon::plotOverlayFont());
    const int columnWidth = view->width() / 3;
    const int legendTop = int(0.75 * view->height());
    const int rowHeight = int(0.25 * view->height()) / 5;
    QStringList shown;
    int shortened = 0;
    for (const PaintedText& painted : foregroundTexts(scene, view->size())) {
        if (painted.position.y() <= legendTop) {
            continue;
        }
        const int row = shown.size() / 3;
        const int column = shown.size() % 3;
        const QString& name = names.value(row * 3 + column);
        shown << painted.text;
        const QString where = QStringLiteral("\"%1\" for \"%2\"").arg(painted.text, name);
        QVERIFY2(painted.position.x() >= column * columnWidth, qPrintable(where));
        QVERIFY2(painted.position.x() + metrics.horizontalAdvance(painted.text) <=
                     (column + 1) * columnWidth,
                 qPrintable(where));
        if (painted.text == name) {
            continue;
        }
        ++shortened;
        const QString kept = painted.text.chopped(1);
        QVERIFY2(painted.text.endsWith(QChar(0x2026)) && name.startsWith(kept), qPrintable(where));
        const QPoint entry(column * columnWidth + columnWidth / 2,
                           legendTop + row * rowHeight + rowHeight / 2);
        QHelpEvent help(QEvent::ToolTip, entry, view->viewport()->mapToGlobal(entry));
        QApplication::sendEvent(view->viewport(), &help);
        QTRY_COMPARE(QToolTip::text(), name);
    }
    QCOMPARE(shown.size(), names.size());
    if (size == kStartingSize) {
        QCOMPARE(shown, names);
    }
    if (size.isEmpty()) {
        QVERIFY(shortened > 0);
    }
}

// The tool windows of the associative-law and sine tabs at the size they open with. Each is
// closed after its check, since the two tabs' windows share their titles.
void PageLayoutTest::toolWindowTitlesClearTheirContents()
{
    const struct {
        TabIndex tab;
        const char* entry;
        const char* title;
    } windows[] = {{AssoTab, "&Region focus ...", "Region focus"},
                   {AssoTab, "&Selections ...", "Selections"},
                   {AssoTab, "&Color map ...", "Color map"},
                   {SineTab, "&Region focus ...", "Region focus"},
                   {SineTab, "&Selections ...", "Selections"},
                   {SineTab, "&Status ...", "Status"},
                   {SineTab, "&Color map ...", "Color map"}};
    for (const auto& entry : windows) {
        tabs()->setCurrentIndex(entry.tab);
        QWidget* tool =
            popMenuWindow(*window, QStringLiteral("&Tools"), QString::fromLatin1(entry.entry),
                          QString::fromLatin1(entry.title));
        QVERIFY2(tool != nullptr, entry.title);
        QVERIFY(QTest::qWaitForWindowExposed(tool));
        QVERIFY2(!tool->findChildren<QGroupBox*>().isEmpty(), entry.title);
        expectNoProblems(tool, QString::fromLatin1(entry.title));
        tool->close();
    }
}

QTEST_MAIN(PageLayoutTest)
#include "PageLayoutTest.moc"
