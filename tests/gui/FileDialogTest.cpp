#include "app/MainWindow.h"
#include "tests/gui/GuiTestSupport.h"

#include <QAction>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>

Q_DECLARE_METATYPE(FileAction)

namespace
{

struct Case {
    const char* name;
    FileAction action;
    int tab;
    const char* entry;
    bool opens;
    const char* title;
    QStringList filters;
};

const QStringList kConf = {"Document files (*.conf)", "All files (*.*)"};
const QStringList kSaveConf = {"Documents (*.conf)"};
const QStringList kTxt = {"Documents (*.txt)"};
const QStringList kCsv = {"Documents (*.csv)"};

const QList<Case> kCases = {
    {"roots txt", FileAction::RootsSaveTxt, 0, "&Save data to a txt file ...", false,
     "Save Document", kTxt},
    {"pentagon open", FileAction::PentagonOpen, 1, "&Open a configuration file ...", true,
     "Open Document", kConf},
    {"pentagon save", FileAction::PentagonSave, 1, "&Save to a configuration file ...", false,
     "Save Document", kSaveConf},
    {"pentagon txt", FileAction::PentagonSaveTxt, 1, "&Save data to a txt file ...", false,
     "Save Document", kTxt},
    {"asso open", FileAction::AssoOpen, 2, "&Open a configuration file ...", true, "Open Document",
     kConf},
    {"asso save", FileAction::AssoSave, 2, "&Save to a configuration file ...", false,
     "Save Document", kSaveConf},
    {"asso txt", FileAction::AssoSaveTxt, 2, "&Save data to a txt file ...", false, "Save Document",
     kTxt},
    {"asso csv", FileAction::AssoSaveCsv, 2, "&Save data to a csv file ...", false, "Save Document",
     kCsv},
    {"sine open", FileAction::SineOpen, 3, "&Open a configuration file ...", true, "Open Document",
     kConf},
    {"sine save", FileAction::SineSave, 3, "&Save to a configuration file ...", false,
     "Save Document", kSaveConf},
    {"sine txt", FileAction::SineSaveTxt, 3, "&Save data to a txt file ...", false, "Save Document",
     kTxt},
    {"sine csv", FileAction::SineSaveCsv, 3, "&Save data to a CSV file ...", false, "Save Document",
     kCsv},
};

} // namespace

class FileDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void dialogIsTheRightOneAndCancelCallsNothing_data();
    void dialogIsTheRightOneAndCancelCallsNothing();
    void chosenNameReachesTheRoutineIntact_data();
    void chosenNameReachesTheRoutineIntact();
    void failureIsShownInAMessageBox();

private:
    void addCaseRows();
    QAction* entryFor(MainWindow& window, int tab, const char* text);

    std::unique_ptr<QTemporaryDir> folder;
    QString previousFolder;
};

void FileDialogTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    previousFolder = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder->path()));
}

void FileDialogTest::cleanup()
{
    QDir::setCurrent(previousFolder);
    folder.reset();
}

void FileDialogTest::addCaseRows()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < kCases.size(); ++i) {
        QTest::newRow(kCases[i].name) << i;
    }
}

QAction* FileDialogTest::entryFor(MainWindow& window, int tab, const char* text)
{
    window.findChild<QTabWidget*>(QStringLiteral("tabWidget"))->setCurrentIndex(tab);
    return menuBarAction(window, QStringLiteral("&File"), QString::fromUtf8(text));
}

void FileDialogTest::dialogIsTheRightOneAndCancelCallsNothing_data()
{
    addCaseRows();
}

void FileDialogTest::dialogIsTheRightOneAndCancelCallsNothing()
{
    QFETCH(int, index);
    const Case& c = kCases[index];
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QStringList received;
    window.setFileRoutine(c.action, [&received](const QString& name) {
        received << name;
        return QString();
    });
    QAction* entry = entryFor(window, c.tab, c.entry);
    QVERIFY(entry != nullptr && entry->isEnabled());

    QString title;
    QStringList filters;
    QString directory;
    QFileDialog::AcceptMode mode = QFileDialog::AcceptOpen;
    QWidget* dialogParent = nullptr;
    bool answered = false;
    answerNextModalDialog([&](QWidget* widget) {
        auto* dialog = qobject_cast<QFileDialog*>(widget);
        if (dialog != nullptr) {
            title = dialog->windowTitle();
            filters = dialog->nameFilters();
            directory = dialog->directory().absolutePath();
            mode = dialog->acceptMode();
            dialogParent = dialog->parentWidget();
        }
        answered = true;
        widget->close();
    });
    entry->trigger();
    QVERIFY(answered);
    QCOMPARE(title, QString::fromUtf8(c.title));
    QCOMPARE(filters, c.filters);
    QCOMPARE(QDir(directory).canonicalPath(), QDir(folder->path()).canonicalPath());
    QCOMPARE(mode, c.opens ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    QCOMPARE(dialogParent, &window);
    QVERIFY2(received.isEmpty(), "a cancelled dialog must not reach the module");
    QCOMPARE(QDir(folder->path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries).size(), 0);
}

void FileDialogTest::chosenNameReachesTheRoutineIntact_data()
{
    addCaseRows();
}

void FileDialogTest::chosenNameReachesTheRoutineIntact()
{
    QFETCH(int, index);
    const Case& c = kCases[index];
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QString name = QDir(folder->path()).filePath(QStringLiteral("Größe ½ 100% %s ✓.conf"));
    if (c.opens) {
        QFile existing(name);
        QVERIFY(existing.open(QIODevice::WriteOnly));
    }
    QStringList received;
    window.setFileRoutine(c.action, [&received](const QString& n) {
        received << n;
        return QString();
    });
    answerNextModalDialog([&name](QWidget* widget) {
        auto* dialog = qobject_cast<QFileDialog*>(widget);
        QVERIFY(dialog != nullptr);
        // Type the name as a person would and press Enter.
        auto* nameEdit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        QVERIFY(nameEdit != nullptr);
        nameEdit->setText(QFileInfo(name).fileName());
        QTest::keyClick(nameEdit, Qt::Key_Return);
        QVERIFY(!dialog->isVisible());
    });
    entryFor(window, c.tab, c.entry)->trigger();
    QCOMPARE(received, QStringList{name});
}

void FileDialogTest::failureIsShownInAMessageBox()
{
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.setFileRoutine(FileAction::AssoSaveCsv, [](const QString& name) {
        return QStringLiteral("cannot write \"%1\": No such file or directory").arg(name);
    });
    const QString name = QDir(folder->path()).filePath(QStringLiteral("out.csv"));
    QString shown;
    answerNextModalDialog([&name, &shown](QWidget* widget) {
        auto* nameEdit = widget->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        QVERIFY(nameEdit != nullptr);
        nameEdit->setText(QFileInfo(name).fileName());
        // The message box opens while the file dialog's Enter is being handled.
        answerNextModalDialog([&shown](QWidget* box) {
            if (auto* message = qobject_cast<QMessageBox*>(box)) {
                shown = message->text();
            }
            box->close();
        });
        QTest::keyClick(nameEdit, Qt::Key_Return);
    });
    entryFor(window, 2, "&Save data to a csv file ...")->trigger();
    QTRY_COMPARE(shown, QStringLiteral("cannot write \"%1\": No such file or directory").arg(name));
}

QTEST_MAIN(FileDialogTest)
#include "FileDialogTest.moc"
