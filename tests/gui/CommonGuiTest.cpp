#include "app/MainWindow.h"
#include "common/core/CFormat.h"
#include "common/gui/ImageLookup.h"

#include <QTemporaryDir>
#include <QtTest>
#include <clocale>

class CommonGuiTest : public QObject
{
    Q_OBJECT

private slots:
    void numbersUseAPointWhateverTheLocale();
    void embeddedImageIsFoundFromAnyFolder();
    void imageInTheWorkingFolderTakesPrecedence();
    void repeatedLoadsShareOneDecodedImage();
    void unknownImageIsNull();
};

void CommonGuiTest::numbersUseAPointWhateverTheLocale()
{
    // The application object has already switched the C library to the environment's locale.
    const QByteArray expected = qgetenv("QUILLON_EXPECT_LOCALE");
    if (!expected.isEmpty()) {
        QCOMPARE(QByteArray(std::setlocale(LC_NUMERIC, nullptr)), expected);
        char native[16];
        std::snprintf(native, sizeof native, "%.1f", 0.5);
        QCOMPARE(QByteArray(native), QByteArray("0,5"));
    }
    MainWindow window;
    QCOMPARE(quillon::cformat("%f", 1000.0), std::string("1000.000000"));
    QCOMPARE(quillon::cformat("%.2e", -1.5), std::string("-1.50e+00"));
    QCOMPARE(quillon::cformat("%.12e", 0.1), std::string("1.000000000000e-01"));
}

void CommonGuiTest::embeddedImageIsFoundFromAnyFolder()
{
    QTemporaryDir folder;
    const QString previous = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    QCOMPARE(quillon::imagePath(QStringLiteral("quillon.png")),
             QStringLiteral(":/images/quillon.png"));
    const QImage icon = quillon::loadImage(QStringLiteral("quillon.png"));
    QDir::setCurrent(previous);
    QCOMPARE(icon.size(), QSize(128, 128));
}

void CommonGuiTest::imageInTheWorkingFolderTakesPrecedence()
{
    QTemporaryDir folder;
    QImage own(7, 5, QImage::Format_RGB32);
    own.fill(Qt::green);
    QVERIFY(own.save(folder.filePath(QStringLiteral("quillon.png"))));
    const QString previous = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    const QString path = quillon::imagePath(QStringLiteral("quillon.png"));
    const QImage found = quillon::loadImage(QStringLiteral("quillon.png"));
    QDir::setCurrent(previous);
    QCOMPARE(path, QDir(folder.path()).absoluteFilePath(QStringLiteral("quillon.png")));
    QCOMPARE(found.size(), QSize(7, 5));
    QCOMPARE(QColor(found.pixel(3, 3)), QColor(Qt::green));
}

// Windows that show the same picture share one decoded copy of it.
void CommonGuiTest::repeatedLoadsShareOneDecodedImage()
{
    const QImage first = quillon::loadImage(QStringLiteral("func1.png"));
    const QImage second = quillon::loadImage(QStringLiteral("func1.png"));
    QVERIFY(!first.isNull());
    QCOMPARE(second.cacheKey(), first.cacheKey());
    QVERIFY(quillon::loadImage(QStringLiteral("func2.png")).cacheKey() != first.cacheKey());
}

void CommonGuiTest::unknownImageIsNull()
{
    QVERIFY(quillon::loadImage(QStringLiteral("no-such-image.png")).isNull());
}

QTEST_MAIN(CommonGuiTest)
#include "CommonGuiTest.moc"
