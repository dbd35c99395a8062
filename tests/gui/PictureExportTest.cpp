#include "app/MainWindow.h"
#include "app/PictureExportDialog.h"
#include "common/gui/OpenGLPlotScene.h"
#include "tests/gui/GuiTestSupport.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QFile>
#include <QGraphicsView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

// File > "Export picture ..." on every tab, driven as a person drives it: the entry, its dialog
// (file name, size, Save), and the PNG and SVG files it writes. With QUILLON_PICTURE_FOLDER set,
// the pictures are kept in that folder to be looked at.
class PictureExportTest : public QObject
{
    Q_OBJECT

private slots:
    void entryStandsJustAboveExit();
    void eachTabExportsPngAndSvg_data();
    void eachTabExportsPngAndSvg();
    void aNameWithoutPictureSuffixKeepsTheDialogOpen();
    void cancellingWritesNothing();
    void rootsPictureShowsTheCellsInThePagesColours();

private:
    QString folderPath(const QString& name) const;
    // Exports through the menu entry at 1920 x 1080; false when no dialog came up.
    bool exportThroughMenu(MainWindow& window, const QString& path);

    QTemporaryDir temporary;
};

namespace
{

struct SvgContent {
    bool wellFormed = false;
    QString root;
    QString viewBox;
    QStringList texts;
    int elements = 0;
};

SvgContent readSvg(const QString& path)
{
    QFile file(path);
    SvgContent content;
    if (!file.open(QIODevice::ReadOnly)) {
        return content;
    }
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            if (content.root.isEmpty()) {
                content.root = reader.name().toString();
                content.viewBox = reader.attributes().value(QStringLiteral("viewBox")).toString();
            }
            ++content.elements;
        } else if (reader.isCharacters() && !reader.isWhitespace()) {
            content.texts << reader.text().toString().trimmed();
        }
    }
    content.wellFormed = !reader.hasError();
    return content;
}

int distinctColours(const QImage& image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 2) {
        for (int x = 0; x < image.width(); x += 2) {
            colours.insert(image.pixel(x, y));
        }
    }
    return int(colours.size());
}

QTabWidget* tabsOf(MainWindow& window)
{
    return window.findChild<QTabWidget*>(QStringLiteral("tabWidget"));
}

} // namespace

QString PictureExportTest::folderPath(const QString& name) const
{
    const QString kept = qEnvironmentVariable("QUILLON_PICTURE_FOLDER");
    return (kept.isEmpty() ? temporary.path() : kept) + QLatin1Char('/') + name;
}

bool PictureExportTest::exportThroughMenu(MainWindow& window, const QString& path)
{
    QAction* entry =
        menuBarAction(window, QStringLiteral("&File"), QStringLiteral("&Export picture ..."));
    if (entry == nullptr || !entry->isEnabled()) {
        return false;
    }
    bool asked = false;
    answerNextModalDialog([&](QWidget* shown) {
        auto* dialog = qobject_cast<PictureExportDialog*>(shown);
        if (dialog == nullptr) {
            return;
        }
        asked = true;
        dialog->findChild<QLineEdit*>(QStringLiteral("picture_file"))->setText(path);
        clickIndicator(dialog->findChild<QRadioButton*>(QStringLiteral("picture_size_1")));
        QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save),
                          Qt::LeftButton);
    });
    entry->trigger();
    return asked;
}

void PictureExportTest::entryStandsJustAboveExit()
{
    MainWindow window;
    for (int tab = 0; tab < 4; ++tab) {
        tabsOf(window)->setCurrentIndex(tab);
        QMenu* file = window.menuBar()->actions().first()->menu();
        const QList<QAction*> actions = file->actions();
        QCOMPARE(actions.last()->text(), QStringLiteral("&Exit"));
        QCOMPARE(actions[actions.size() - 2]->text(), QStringLiteral("&Export picture ..."));
        QVERIFY(actions[actions.size() - 2]->isEnabled());
    }
}

void PictureExportTest::eachTabExportsPngAndSvg_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("name");
    // A text the tab's picture shows, in the SVG as text.
    QTest::addColumn<QString>("text");
    QTest::newRow("Roots") << 0 << "roots"
                           << "Single P.";
    QTest::newRow("Pentagon") << 1 << "pentagon"
                              << "";
    QTest::newRow("Associative Law") << 2 << "associative-law"
                                     << "Error:";
    QTest::newRow("Sine") << 3 << "sine"
                          << "C++ Math lib";
}

void PictureExportTest::eachTabExportsPngAndSvg()
{
    QFETCH(int, tab);
    QFETCH(QString, name);
    QFETCH(QString, text);
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    tabsOf(window)->setCurrentIndex(tab);
    if (tab != 0) {
        // The animation run on by hand (the pentagon's example to its end, the index plots'
        // window slid in), its timer stopped so that both pictures show the same frame.
        const char* placeholders[] = {"", "pentagon_VisWindow", "associativelaw_VisWindow",
                                      "sine_VisWindow"};
        const char* timers[] = {"", "pentagon_timer", "associativelaw_timer", "sine_timer"};
        QGraphicsView* view = showStoppedPlotTab(window, tab, placeholders[tab], timers[tab]);
        QVERIFY(view != nullptr);
        auto* scene = qobject_cast<quillon::OpenGLPlotScene*>(view->scene());
        scene->setPaused(false);
        for (int tick = 0; tick < 25; ++tick) {
            QMetaObject::invokeMethod(scene, "runningMan");
        }
    }
    const QString png = folderPath(name + QStringLiteral(".png"));
    const QString svg = folderPath(name + QStringLiteral(".svg"));
    QVERIFY(exportThroughMenu(window, png));
    QVERIFY(exportThroughMenu(window, svg));

    const QImage image(png);
    QCOMPARE(image.size(), QSize(1920, 1080));
    QVERIFY2(distinctColours(image) > 20, qPrintable(QString::number(distinctColours(image))));
    const SvgContent content = readSvg(svg);
    QVERIFY(content.wellFormed);
    QCOMPARE(content.root, QStringLiteral("svg"));
    QCOMPARE(content.viewBox, QStringLiteral("0 0 1920 1080"));
    QVERIFY(content.elements > 10);
    if (!text.isEmpty()) {
        QVERIFY2(std::any_of(content.texts.begin(), content.texts.end(),
                             [&](const QString& t) { return t.startsWith(text); }),
                 qPrintable(content.texts.join(QLatin1Char('|'))));
    }
}

void PictureExportTest::aNameWithoutPictureSuffixKeepsTheDialogOpen()
{
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    tabsOf(window)->setCurrentIndex(2);
    const QString wrong = folderPath(QStringLiteral("plot.txt"));
    const QString right = folderPath(QStringLiteral("plot.svg"));
    QString said;
    answerNextModalDialog([&](QWidget* shown) {
        auto* dialog = qobject_cast<PictureExportDialog*>(shown);
        QVERIFY(dialog != nullptr);
        auto* file = dialog->findChild<QLineEdit*>(QStringLiteral("picture_file"));
        QPushButton* save = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save);
        file->setText(wrong);
        QTest::mouseClick(save, Qt::LeftButton);
        QVERIFY(dialog->isVisible());
        said = dialog->findChild<QLabel*>(QStringLiteral("picture_message"))->text();
        file->setText(right);
        QTest::mouseClick(save, Qt::LeftButton);
    });
    menuBarAction(window, QStringLiteral("&File"), QStringLiteral("&Export picture ..."))
        ->trigger();
    QCOMPARE(said, QStringLiteral("Name the file with .png or .svg at its end."));
    QVERIFY(!QFile::exists(wrong));
    QVERIFY(QFile::exists(right));
}

void PictureExportTest::cancellingWritesNothing()
{
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    tabsOf(window)->setCurrentIndex(2);
    const QString path = folderPath(QStringLiteral("cancelled.png"));
    answerNextModalDialog([&](QWidget* shown) {
        shown->findChild<QLineEdit*>(QStringLiteral("picture_file"))->setText(path);
        QTest::mouseClick(shown->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel),
                          Qt::LeftButton);
    });
    menuBarAction(window, QStringLiteral("&File"), QStringLiteral("&Export picture ..."))
        ->trigger();
    QVERIFY(!QFile::exists(path));
}

// A cell keeps its earlier colour on the page in rows whose columns partly agree: the picture
// takes every cell's colour from the page, so it shows what the page shows.
void PictureExportTest::rootsPictureShowsTheCellsInThePagesColours()
{
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto* cell = window.findChild<QLabel*>(QStringLiteral("roots_result1_2"));
    QVERIFY(cell != nullptr);
    QPalette palette = cell->palette();
    palette.setColor(QPalette::All, QPalette::WindowText, QColor(1, 2, 3));
    cell->setPalette(palette);
    const QString svg = folderPath(QStringLiteral("roots-inks.svg"));
    QVERIFY(exportThroughMenu(window, svg));
    QFile file(svg);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&file);
    QStringList inked;
    QString fill;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.attributes().hasAttribute(QStringLiteral("fill"))) {
            fill = reader.attributes().value(QStringLiteral("fill")).toString();
        } else if (reader.isCharacters() && !reader.isWhitespace() && fill == "#010203") {
            inked << reader.text().toString();
        }
    }
    QCOMPARE(inked, QStringList{cell->text()});
}

QTEST_MAIN(PictureExportTest)
#include "PictureExportTest.moc"
