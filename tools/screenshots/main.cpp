// Saves the README's screenshots of the program into the folder named on the command line.
#include "MainWindow.h"
#include "ScreenshotTaker.h"

#include <QApplication>
#include <QTabWidget>
#include <QTest>
#include <cstdio>

namespace
{

void showTab(MainWindow& window, int index)
{
    window.findChild<QTabWidget*>(QStringLiteral("tabWidget"))->setCurrentIndex(index);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: quillon-screenshots OUTPUT_FOLDER\n");
        return 2;
    }
    MainWindow window;
    window.move(0, 0);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) {
        std::fprintf(stderr, "the main window was never shown\n");
        return 1;
    }
    const ScreenshotTaker taker(QString::fromLocal8Bit(argv[1]));
    const bool ok = taker.take(window, QStringLiteral("main-window.png"), [](MainWindow& w) {
        showTab(w, RootsTab);
    }) && taker.take(window, QStringLiteral("associative-law-tab.png"), [](MainWindow& w) {
        showTab(w, AssoTab);
    });
    return ok ? 0 : 1;
}
