#include "app/MainWindow.h"
#include "common/gui/GroupBoxStyle.h"
#include "common/gui/ImageLookup.h"
#include "roots/engine/RootsFieldRule.h"
#include "roots/picture/RootsGridPicture.h"
#include "tests/gui/GuiTestSupport.h"
#include "tests/roots/GoldenGrid.h"

#include <QAction>
#include <QDoubleValidator>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QtTest>
#include <clocale>

namespace
{

const char* const kCellPatterns[kRootsRowCount] = {
    "roots_b2_label_%1", "roots_ac_label_%1",    "roots_sqrt_label_%1", "roots_root1_label_%1",
    "roots_result1_%1",  "roots_root2_label_%1", "roots_result2_%1"};

const QColor kBlack(0, 0, 0);
const QColor kRed(255, 0, 0);
const QColor kBlue(0, 1, 255);
const QColor kPink(255, 0, 255);

// The expected text colours of the three compared cells for an agreement class.
QList<QColor> inksFor(int agreement)
{
    switch (agreement) {
    case 0:
        return {kBlack, kBlack, kBlack};
    case 3:
        return {kRed, kBlue, kPink};
    case -1:
        return {kRed, kBlack, kBlack};
    case -2:
        return {kBlack, kBlue, kBlack};
    case -3:
        return {kBlack, kBlack, kPink};
    default:
        return {};
    }
}

QColor bandOf(int row)
{
    return row % 2 == 0 ? QColor(200, 200, 200) : QColor(245, 245, 245);
}

std::string fileContents(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return "<cannot open " + path.toStdString() + ">";
    }
    return file.readAll().toStdString();
}

} // namespace

class RootsPageTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void startUpShowsTheInitialCoefficientsAndGrid();
    void columnHeadingsAndStaticTexts();
    void headingsShowCalculatedAndTheRootFormula();
    void enterInAFieldRecomputes();
    void calculateReadsAllThreeFields();
    void examplesFromTheMenu_data();
    void examplesFromTheMenu();
    void exampleThreeHighPrecisionColumnUnderTheUsersLocale();
    void exampleThreeWritesBackSinglePrecisionCopies();
    void enterOnRefusedTextChangesNothing();
    void calculateWithAZeroAUsesTheMinimum();
    void toleranceChainRowKeepsItsColours();
    void highPrecisionColumnIsNeverColoured();
    void saveWritesTheExportThroughTheDialog();
    void savingTwiceOverwrites();
    void unwritableNameIsReportedAndWritesNothing();
    void helpWindowsShowTheirTexts();
    void validatorsAgreeWithTheCommandLineRule();
    void anyTextThroughCalculateGivesReadableCells();
    void numberFieldsRefuseGroupSeparators();
    void pictureSizeIsTheOutputBoxOfTheDefaultWindow();

private:
    QLabel* cell(int row, int column) const;
    QLineEdit* field(const char* name) const;
    void expectGrid(const std::string& golden, bool checkColours = true);
    void typeInto(QLineEdit* edit, const QString& text);
    void saveAs(const QString& path);

    std::unique_ptr<MainWindow> window;
    std::unique_ptr<QTemporaryDir> folder;
};

void RootsPageTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    window = std::make_unique<MainWindow>();
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

void RootsPageTest::cleanup()
{
    window.reset();
    folder.reset();
}

QLabel* RootsPageTest::cell(int row, int column) const
{
    return window->findChild<QLabel*>(QString::fromLatin1(kCellPatterns[row]).arg(column + 1));
}

QLineEdit* RootsPageTest::field(const char* name) const
{
    return window->findChild<QLineEdit*>(QString::fromLatin1(name));
}

void RootsPageTest::expectGrid(const std::string& golden, bool checkColours)
{
    const GoldenGrid expected = GoldenGrid::load(golden);
    for (int row = 0; row < kRootsRowCount; ++row) {
        for (int column = 0; column < kRootsVariantCount; ++column) {
            QLabel* label = cell(row, column);
            QVERIFY(label != nullptr);
            QCOMPARE(label->text().toStdString(), expected.texts[row][column]);
        }
        if (!checkColours) {
            continue;
        }
        const QList<QColor> inks = inksFor(expected.agreements[row]);
        for (int column = 0; column < inks.size(); ++column) {
            QLabel* label = cell(row, column);
            for (QPalette::ColorGroup group :
                 {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
                QCOMPARE(label->palette().color(group, QPalette::WindowText), inks[column]);
                QCOMPARE(label->palette().color(group, QPalette::Window), bandOf(row));
            }
            QVERIFY(label->autoFillBackground());
        }
    }
}

void RootsPageTest::typeInto(QLineEdit* edit, const QString& text)
{
    retype(edit, text);
}

void RootsPageTest::saveAs(const QString& path)
{
    QVERIFY(chooseFileThroughMenu(*window, QStringLiteral("&Save data to a txt file ..."), path));
}

void RootsPageTest::startUpShowsTheInitialCoefficientsAndGrid()
{
    QCOMPARE(field("roots_a_value")->text(), QStringLiteral("1.000000"));
    QCOMPARE(field("roots_b_value")->text(), QStringLiteral("1000.000000"));
    QCOMPARE(field("roots_c_value")->text(), QStringLiteral("1.000000"));
    expectGrid("grid-startup.tsv");
}

void RootsPageTest::columnHeadingsAndStaticTexts()
{
    const QStringList headings = {"Naive\nSingle P.", "Cancellation\nSingle P.", "Naive\nDouble P.",
                                  "Naive\nHigh P."};
    for (int i = 0; i < 4; ++i) {
        auto* label =
            window->findChild<QLabel*>(QStringLiteral("roots_solution%1_label").arg(i + 1));
        QCOMPARE(label->text(), headings[i]);
    }
    QCOMPARE(window->findChild<QLabel*>("roots_sqrt_label")->text(),
             QStringLiteral("sqrt(b^2- 4ac)"));
    QCOMPARE(window->findChild<QLabel*>("roots_root1_label")->text(), QStringLiteral("Large Root"));
    QCOMPARE(window->findChild<QLabel*>("roots_root2_label")->text(), QStringLiteral("Small Root"));
    for (const char* name :
         {"roots_title", "roots_b2_label", "roots_ac_label", "roots_result1", "roots_result2"}) {
        QVERIFY2(!window->findChild<QLabel*>(name)->pixmap().isNull(), name);
    }
    QVERIFY(quillon::groupBoxStyleSheet().startsWith(
        QStringLiteral("QGroupBox{border:2px solid black}")));
    // Every box, titled or not, is drawn with a two-pixel black border.
    for (const char* name : {"roots_inputGroup", "roots_outputGroup", "roots_g_b2", "roots_g_SR"}) {
        const QImage box = window->findChild<QWidget*>(name)->grab().toImage();
        const int middle = box.height() / 2;
        for (const int x : {0, 1, box.width() - 2, box.width() - 1}) {
            QVERIFY2(box.pixelColor(x, middle) == QColor(Qt::black), name);
        }
        QVERIFY2(box.pixelColor(2, middle) != QColor(Qt::black), name);
    }
}

// "Calculated" heads the two a x^2 + b x + c rows; the square-root row shows the typeset
// formula "b2-4ac.png" beside its text, and the 4ac row keeps "4ac.png".
void RootsPageTest::headingsShowCalculatedAndTheRootFormula()
{
    const auto asDrawn = [](const QImage& image) {
        return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    };
    const QImage rootFormula = asDrawn(quillon::loadImage(QStringLiteral("b2-4ac.png")));
    QVERIFY(!rootFormula.isNull());
    QStringList calculatedRows;
    QStringList rootFormulaRows;
    for (QLabel* label : window->findChild<QWidget*>("roots_win")->findChildren<QLabel*>()) {
        if (!label->isVisible()) {
            continue;
        }
        if (label->text() == QStringLiteral("Calculated")) {
            calculatedRows << label->parentWidget()->objectName();
        }
        if (!label->pixmap().isNull() && asDrawn(label->pixmap().toImage()) == rootFormula) {
            rootFormulaRows << label->parentWidget()->objectName();
        }
    }
    QCOMPARE(calculatedRows, QStringList({"roots_g_LR", "roots_g_SR"}));
    QCOMPARE(rootFormulaRows, QStringList({"roots_g_sqrt"}));
    QCOMPARE(asDrawn(window->findChild<QLabel*>("roots_ac_label")->pixmap().toImage()),
             asDrawn(quillon::loadImage(QStringLiteral("4ac.png"))));
}

void RootsPageTest::enterInAFieldRecomputes()
{
    typeInto(field("roots_b_value"), QStringLiteral("4"));
    QTest::keyClick(field("roots_b_value"), Qt::Key_Return);
    // a = 1, b = 4, c = 1 is example 1.
    expectGrid("grid-example1.tsv");
    typeInto(field("roots_b_value"), QStringLiteral("10000"));
    QTest::keyClick(field("roots_b_value"), Qt::Key_Enter);
    expectGrid("grid-example2.tsv");
}

void RootsPageTest::calculateReadsAllThreeFields()
{
    typeInto(field("roots_a_value"), QStringLiteral("0.01"));
    typeInto(field("roots_b_value"), QStringLiteral("100"));
    typeInto(field("roots_c_value"), QStringLiteral("249999.99999"));
    QTest::mouseClick(window->findChild<QPushButton*>("roots_calculate"), Qt::LeftButton);
    expectGrid("grid-example3.tsv");
    QCOMPARE(field("roots_c_value")->text(), QStringLiteral("249999.99999"));
}

void RootsPageTest::examplesFromTheMenu_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("golden");
    QTest::addColumn<QStringList>("fields");
    QTest::newRow("1") << "&Example 1: regular example"
                       << "grid-example1.tsv" << QStringList{"1.000000", "4.000000", "1.000000"};
    QTest::newRow("2") << "&Example 2: b^2 >> 4ac"
                       << "grid-example2.tsv"
                       << QStringList{"1.000000", "10000.000000", "1.000000"};
    QTest::newRow("3") << "&Example 3: b^2 ~ 4ac"
                       << "grid-example3.tsv"
                       << QStringList{"0.010000", "100.000000", "250000.000000"};
}

void RootsPageTest::examplesFromTheMenu()
{
    QFETCH(QString, entry);
    QFETCH(QString, golden);
    QFETCH(QStringList, fields);
    QAction* action = menuBarAction(*window, "&Examples", entry);
    QVERIFY(action != nullptr && action->isEnabled());
    action->trigger();
    expectGrid(golden.toStdString());
    QCOMPARE(field("roots_a_value")->text(), fields[0]);
    QCOMPARE(field("roots_b_value")->text(), fields[1]);
    QCOMPARE(field("roots_c_value")->text(), fields[2]);
}

void RootsPageTest::exampleThreeHighPrecisionColumnUnderTheUsersLocale()
{
    // This program also runs under LC_ALL=de_DE.UTF-8, whose decimal point is a comma; the
    // application object has switched the C library to it, and the 256-bit column's decimal
    // constants (0.01, 249999.99999) must still be read with their '.'.
    const QByteArray expected = qgetenv("QUILLON_EXPECT_LOCALE");
    if (!expected.isEmpty()) {
        QCOMPARE(QByteArray(std::setlocale(LC_NUMERIC, nullptr)), expected);
    }
    menuBarAction(*window, "&Examples", "&Example 3: b^2 ~ 4ac")->trigger();
    const GoldenGrid golden = GoldenGrid::load("grid-example3.tsv");
    for (int row = 0; row < kRootsRowCount; ++row) {
        QCOMPARE(cell(row, 3)->text().toStdString(), golden.texts[row][3]);
    }
}

void RootsPageTest::exampleThreeWritesBackSinglePrecisionCopies()
{
    menuBarAction(*window, "&Examples", "&Example 3: b^2 ~ 4ac")->trigger();
    const QString largeDouble = cell(RowLargeRoot, 2)->text();
    // Enter in c now reads 250000, no longer 249999.99999.
    field("roots_c_value")->setFocus();
    QTest::keyClick(field("roots_c_value"), Qt::Key_Return);
    QCOMPARE(cell(RowSqrtD, 2)->text(), QStringLiteral("1.348699152349e-06"));
    QVERIFY(cell(RowLargeRoot, 2)->text() != largeDouble);
}

void RootsPageTest::enterOnRefusedTextChangesNothing()
{
    QLineEdit* a = field("roots_a_value");
    typeInto(a, QStringLiteral("-3"));
    // A minus sign cannot be typed into a.
    QCOMPARE(a->text(), QStringLiteral("3"));
    typeInto(a, QStringLiteral("0"));
    QTest::keyClick(a, Qt::Key_Return);
    expectGrid("grid-startup.tsv");
    QLineEdit* b = field("roots_b_value");
    typeInto(b, QStringLiteral("-"));
    QTest::keyClick(b, Qt::Key_Return);
    typeInto(b, QStringLiteral("1e5"));
    QCOMPARE(b->text(), QStringLiteral("15"));
    // Beyond the range: typeable, but Enter refuses it.
    typeInto(b, QStringLiteral("123456789"));
    QTest::keyClick(b, Qt::Key_Return);
    typeInto(b, QString());
    QTest::keyClick(b, Qt::Key_Return);
    expectGrid("grid-startup.tsv");
}

void RootsPageTest::calculateWithAZeroAUsesTheMinimum()
{
    typeInto(field("roots_a_value"), QStringLiteral("0"));
    QTest::mouseClick(window->findChild<QPushButton*>("roots_calculate"), Qt::LeftButton);
    QCOMPARE(field("roots_a_value")->text(), QStringLiteral("0.000000"));
    // a = 1e-8: the naive double large root is about -c/b.
    QCOMPARE(cell(RowFourAC, 2)->text(), QStringLiteral("4.000000000000e-08"));
}

void RootsPageTest::toleranceChainRowKeepsItsColours()
{
    // With a = 1, b = -7, c = 1 the three small roots all differ (class 3): red, blue, pink.
    typeInto(field("roots_a_value"), QStringLiteral("1"));
    typeInto(field("roots_b_value"), QStringLiteral("-7"));
    typeInto(field("roots_c_value"), QStringLiteral("1"));
    QTest::mouseClick(window->findChild<QPushButton*>("roots_calculate"), Qt::LeftButton);
    const QList<QColor> allDiffer = inksFor(3);
    for (int column = 0; column < 3; ++column) {
        QCOMPARE(cell(RowSmallRoot, column)->palette().color(QPalette::WindowText),
                 allDiffer[column]);
    }
    typeInto(field("roots_b_value"), QStringLiteral("-0.000708052"));
    typeInto(field("roots_c_value"), QStringLiteral("0.000000078"));
    QTest::mouseClick(window->findChild<QPushButton*>("roots_calculate"), Qt::LeftButton);
    expectGrid("grid-tolerance-chain.tsv");
    // The small-root row is class 1 now: it keeps the colours it had, which no other class
    // would give.
    for (int column = 0; column < 3; ++column) {
        QCOMPARE(cell(RowSmallRoot, column)->palette().color(QPalette::WindowText),
                 allDiffer[column]);
    }
    // The large-root row, class -3 before (pink third cell), is class 0 now.
    QCOMPARE(cell(RowLargeRoot, 2)->palette().color(QPalette::WindowText), kBlack);
}

void RootsPageTest::highPrecisionColumnIsNeverColoured()
{
    const QColor defaultInk = QLabel().palette().color(QPalette::WindowText);
    for (const char* entry :
         {"&Example 1: regular example", "&Example 2: b^2 >> 4ac", "&Example 3: b^2 ~ 4ac"}) {
        menuBarAction(*window, "&Examples", entry)->trigger();
        for (int row = 0; row < kRootsRowCount; ++row) {
            QCOMPARE(cell(row, 3)->palette().color(QPalette::WindowText), defaultInk);
            QVERIFY(!cell(row, 3)->autoFillBackground());
        }
    }
}

void RootsPageTest::saveWritesTheExportThroughTheDialog()
{
    const QString path = folder->filePath(QStringLiteral("roots results.txt"));
    saveAs(path);
    QCOMPARE(fileContents(path), goldenFile("export-startup.txt"));
    menuBarAction(*window, "&Examples", "&Example 3: b^2 ~ 4ac")->trigger();
    const QString second = folder->filePath(QStringLiteral("example3.txt"));
    saveAs(second);
    QCOMPARE(fileContents(second), goldenFile("export-example3.txt"));
}

void RootsPageTest::savingTwiceOverwrites()
{
    const QString path = folder->filePath(QStringLiteral("twice.txt"));
    saveAs(path);
    menuBarAction(*window, "&Examples", "&Example 3: b^2 ~ 4ac")->trigger();
    // The dialog asks before replacing a file; the answer here is yes.
    answerNextModalDialog([](QWidget* widget) {
        auto* nameEdit = widget->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        QVERIFY(nameEdit != nullptr);
        nameEdit->setText(QStringLiteral("twice.txt"));
        answerNextModalDialog([](QWidget* question) {
            auto* box = qobject_cast<QMessageBox*>(question);
            QVERIFY(box != nullptr);
            box->button(QMessageBox::Yes)->click();
        });
        QTest::keyClick(nameEdit, Qt::Key_Return);
    });
    QDir::setCurrent(folder->path());
    menuBarAction(*window, "&File", "&Save data to a txt file ...")->trigger();
    QCOMPARE(fileContents(path), goldenFile("export-example3.txt"));
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files), QStringList{"twice.txt"});
}

void RootsPageTest::unwritableNameIsReportedAndWritesNothing()
{
    // The dialog accepts the name (its folder exists), but no file can be created there.
    const QString path = QStringLiteral("/proc/quillon-roots.txt");
    QString reported;
    answerNextModalDialog([&path, &reported](QWidget* widget) {
        auto* nameEdit = widget->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        QVERIFY(nameEdit != nullptr);
        answerNextModalDialog([&reported](QWidget* box) {
            if (auto* message = qobject_cast<QMessageBox*>(box)) {
                reported = message->text();
            }
            box->close();
        });
        nameEdit->setText(path);
        QTest::keyClick(nameEdit, Qt::Key_Return);
    });
    menuBarAction(*window, "&File", "&Save data to a txt file ...")->trigger();
    QVERIFY2(reported.startsWith(QStringLiteral("cannot write \"/proc/quillon-roots.txt\"")),
             qPrintable(reported));
    QVERIFY(!QFile::exists(path));
    expectGrid("grid-startup.tsv");
}

void RootsPageTest::helpWindowsShowTheirTexts()
{
    const struct {
        const char* entry;
        const char* title;
        const char* golden;
    } windows[] = {{"&About ...", "About", "roots-about.txt"},
                   {"&Help ...", "Help", "roots-help.txt"}};
    for (const auto& expected : windows) {
        QAction* action = menuBarAction(*window, "&Help", expected.entry);
        QVERIFY(action != nullptr && action->isEnabled());
        action->trigger();
        QWidget* shown = nullptr;
        for (QWidget* topLevel : QApplication::topLevelWidgets()) {
            if (topLevel->isVisible() && topLevel->windowTitle() == expected.title) {
                shown = topLevel;
            }
        }
        QVERIFY2(shown != nullptr, expected.title);
        QVERIFY(shown->parentWidget() == nullptr);
        auto* browser = shown->findChild<QTextBrowser*>();
        QVERIFY(browser != nullptr);
        QVERIFY(browser->isReadOnly());
        QCOMPARE(browser->geometry(), QRect(1, 1, shown->width() - 2, shown->height() - 2));
        QCOMPARE(browser->toPlainText().toStdString(), goldenFile(expected.golden));
    }
}

void RootsPageTest::validatorsAgreeWithTheCommandLineRule()
{
    const QStringList corpus = {"",
                                "-",
                                "+",
                                ".",
                                "0",
                                "-0",
                                "1",
                                "+3",
                                "007",
                                ".5",
                                "5.",
                                "1e3",
                                "1,5",
                                " 1",
                                "1 ",
                                "nan",
                                "-1",
                                "0.01",
                                "100000000",
                                "100000000.1",
                                "-100000000",
                                "-100000000.5",
                                "0.000000001",
                                "0.0000000001",
                                "0.00000001",
                                "1.0000000001",
                                "249999.99999",
                                "99999999.999999999",
                                "1..2",
                                "abc",
                                "--1",
                                "1,000",
                                "12,345.25",
                                "1,,000",
                                "1000,000",
                                "-1,000.5"};
    const struct {
        const char* field;
        RootsFieldRange range;
    } fields[] = {{"roots_a_value", kRootsAField},
                  {"roots_b_value", kRootsBCField},
                  {"roots_c_value", kRootsBCField}};
    for (const auto& f : fields) {
        const QValidator* validator = field(f.field)->validator();
        QVERIFY(validator != nullptr);
        for (QString text : corpus) {
            int position = 0;
            const bool acceptable = validator->validate(text, position) == QValidator::Acceptable;
            QVERIFY2(acceptable == isAcceptableFieldText(text.toStdString(), f.range),
                     qPrintable(QStringLiteral("%1 '%2'").arg(f.field, text)));
        }
    }
}

void RootsPageTest::anyTextThroughCalculateGivesReadableCells()
{
    const QStringList texts = {"",    "-",   "1e400",  QString(10000, QLatin1Char('9')),
                               "nan", "inf", "-1e400", "0.5"};
    for (const QString& text : texts) {
        for (const char* name : {"roots_a_value", "roots_b_value", "roots_c_value"}) {
            field(name)->setText(text);
        }
        QElapsedTimer timer;
        timer.start();
        QTest::mouseClick(window->findChild<QPushButton*>("roots_calculate"), Qt::LeftButton);
        QVERIFY(timer.elapsed() < 1000);
        for (int row = 0; row < kRootsRowCount; ++row) {
            for (int column = 0; column < kRootsVariantCount; ++column) {
                const QString shown = cell(row, column)->text();
                QVERIFY(!shown.isEmpty());
                QVERIFY2(shown.size() < 40, qPrintable(shown));
            }
        }
    }
}

void RootsPageTest::numberFieldsRefuseGroupSeparators()
{
    for (const char* name : {"roots_a_value", "roots_b_value", "roots_c_value"}) {
        typeInto(field(name), QStringLiteral("1,000"));
        // The comma is refused as it is typed; the digits around it stand.
        QCOMPARE(field(name)->text(), QStringLiteral("1000"));
    }
    QTest::keyClick(field("roots_b_value"), Qt::Key_Return);
    QCOMPARE(cell(RowB2, 2)->text(), QStringLiteral("1.000000000000e+06"));
}

// The picture's reference size is the grid as the default window shows it, so that its texts
// keep the page's proportions.
void RootsPageTest::pictureSizeIsTheOutputBoxOfTheDefaultWindow()
{
    QCOMPARE(window->size(), QSize(1080, 838));
    QCOMPARE(window->findChild<QWidget*>(QStringLiteral("roots_outputGroup"))->size(),
             kRootsPictureSize);
}

QTEST_MAIN(RootsPageTest)
#include "RootsPageTest.moc"
