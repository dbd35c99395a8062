// Starts Quillon's main window exactly as the program does and prints "painted" on standard
// output once the window's first frame has been painted, then quits.
#include "app/MainWindow.h"

#include <QApplication>
#include <QEvent>
#include <QMetaObject>
#include <cstdio>

namespace
{

class FirstPaintWatcher : public QObject
{
protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && !reported) {
            reported = true;
            // Queued, so it runs once the paint and the flush to the screen are done.
            QMetaObject::invokeMethod(
                watched,
                []() {
                    std::puts("painted");
                    std::fflush(stdout);
                    QApplication::quit();
                },
                Qt::QueuedConnection);
        }
        return false;
    }

private:
    bool reported = false;
};

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    MainWindow window;
    FirstPaintWatcher watcher;
    window.installEventFilter(&watcher);
    window.show();
    return application.exec();
}
