#include "app/MainWindow.h"
#include "tests/gui/GuiTestSupport.h"

#include <QAction>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

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

// Ends the test program with a message unless it is dismissed within the time limit: a dialog
// that blocks the event loop for good must fail the test, not leave it waiting.
class Watchdog
{
public:
    explicit Watchdog(std::chrono::seconds limit)
        : thread([this, limit] {
              std::unique_lock<std::mutex> lock(mutex);
              if (!dismissed.wait_for(lock, limit, [this] { return over; })) {
                  std::fprintf(stderr, "FAIL! the window stopped answering for %lld s\n",
                               static_cast<long long>(limit.count()));
                  std::_Exit(EXIT_FAILURE);
              }
          })
    {
    }
    ~Watchdog()
    {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            over = true;
        }
        dismissed.notify_one();
        thread.join();
    }

private:
    std::mutex mutex;
    std::condition_variable dismissed;
    bool over = false;
    std::thread thread; // last: it starts once the members it uses exist
};

// The names of the files in one folder that anyone opened or read while it watched.
class OpenedFiles
{
public:
    explicit OpenedFiles(const QString& folder)
        : descriptor(inotify_init1(IN_NONBLOCK)),
          watch(inotify_add_watch(descriptor, QFile::encodeName(folder).constData(),
                                  IN_OPEN | IN_ACCESS))
    {
    }
    ~OpenedFiles() { ::close(descriptor); }

    bool isWatching() const { return descriptor >= 0 && watch >= 0; }

    QStringList names() const
    {
        QStringList files;
        alignas(inotify_event) char buffer[16384];
        ssize_t length = 0;
        while ((length = ::read(descriptor, buffer, sizeof buffer)) > 0) {
            for (const char* at = buffer; at < buffer + length;) {
                const auto* event = reinterpret_cast<const inotify_event*>(at);
                // The folder itself is read to list it; only its files count.
                if (event->len > 0 && (event->mask & IN_ISDIR) == 0) {
                    files << QFile::decodeName(event->name);
                }
                at += sizeof(inotify_event) + event->len;
            }
        }
        files.removeDuplicates();
        return files;
    }

private:
    int descriptor;
    int watch;
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
    void dialogNeverReadsTheFilesItLists_data();
    void dialogNeverReadsTheFilesItLists();

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

void FileDialogTest::dialogNeverReadsTheFilesItLists_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("open") << int(FileAction::PentagonOpen);
    QTest::newRow("save") << int(FileAction::PentagonSave);
}

// The dialog tells files apart by name only. Reading a file to guess its type can block for
// good (a named pipe waits for a writer, the kernel log for a message), and the dialog's model
// does that reading on the window's own thread.
void FileDialogTest::dialogNeverReadsTheFilesItLists()
{
    QFETCH(int, index);
    const Case& c = kCases[index];
    const QDir here(folder->path());
    // A named pipe, which no dialog lists (it is no regular file) but whose folder the dialog's
    // model still looks through, a file that both dialogs show at first (*.conf), and one with
    // no extension, whose name tells nothing of its type.
    const QString shown = here.filePath(QStringLiteral("colours.conf"));
    QCOMPARE(
        ::mkfifo(QFile::encodeName(here.filePath(QStringLiteral("pipe.conf"))).constData(), 0600),
        0);
    for (const QString& path : {shown, here.filePath(QStringLiteral("notes"))}) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write("Point1 Color R 1 G 2 B 3\n") > 0);
    }
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.setFileRoutine(c.action, [](const QString&) { return QString(); });
    QAction* entry = entryFor(window, c.tab, c.entry);
    QVERIFY(entry != nullptr && entry->isEnabled());

    const OpenedFiles opened(folder->path());
    QVERIFY(opened.isWatching());
    int ticks = 0;
    QTimer ticker;
    connect(&ticker, &QTimer::timeout, [&ticks] { ++ticks; });
    ticker.start(20);
    bool listed = false;
    const Watchdog watchdog(std::chrono::seconds(30));
    answerNextModalDialog([&](QWidget* dialog) {
        auto* model = dialog->findChild<QFileSystemModel*>();
        QVERIFY(model != nullptr);
        // The folder is listed once the file shown has its type.
        QTRY_VERIFY(!model->type(model->index(shown)).isEmpty());
        // The window still answers: its timers keep running while the dialog is open.
        const int before = ticks;
        QTRY_VERIFY(ticks >= before + 3);
        listed = true;
        dialog->close();
    });
    entry->trigger();
    QVERIFY(listed);
    QCOMPARE(opened.names(), QStringList());
}

QTEST_MAIN(FileDialogTest)
#include "FileDialogTest.moc"
