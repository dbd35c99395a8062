#include "tools/screenshots/ScreenshotTaker.h"

#include "app/MainWindow.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QScreen>
#include <QTest>
#include <cstdio>

ScreenshotTaker::ScreenshotTaker(QString outputFolder) : outputFolder(std::move(outputFolder)) {}

bool ScreenshotTaker::take(MainWindow& window, const QString& fileName,
                           const std::function<void(MainWindow&)>& arrange) const
{
    arrange(window);
    // Long enough for every OpenGL view to finish its frames under software rendering.
    QTest::qWait(700);
    // The main window, and any tool window a scenario opened beside or over it.
    QRect area = window.frameGeometry();
    for (QWidget* topLevel : QApplication::topLevelWidgets()) {
        if (topLevel != &window && topLevel->isVisible() && topLevel->isWindow()) {
            area |= topLevel->frameGeometry();
        }
    }
    const QPixmap shot =
        window.screen()->grabWindow(0, area.x(), area.y(), area.width(), area.height());
    const QString path = QDir(outputFolder).filePath(fileName);
    if (shot.isNull() || !shot.save(path)) {
        std::fprintf(stderr, "cannot save the screenshot %s\n", qPrintable(path));
        return false;
    }
    std::printf("saved %s\n", qPrintable(path));
    return true;
}
