// Saves the README's screenshots of the program into the folder named on the command line.
#include "app/GraphicsView.h"
#include "app/MainWindow.h"
#include "assoc/gui/AssoOpenGLScene.h"
#include "common/core/PlotXWindow.h"
#include "tools/screenshots/ScreenshotTaker.h"

#include <QApplication>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <cstdio>

namespace
{

void showTab(MainWindow& window, int index)
{
    window.findChild<QTabWidget*>(QStringLiteral("tabWidget"))->setCurrentIndex(index);
}

// The default associative-law run with its window slid on to iterations 20 .. 40, order 1's
// node at iteration 30 picked in the inspector, which sits over the control panel.
void inspectIterationThirty(MainWindow& window)
{
    showTab(window, AssoTab);
    QWidget* placeholder = window.findChild<QWidget*>(QStringLiteral("associativelaw_VisWindow"));
    auto* view = placeholder->findChild<GraphicsView*>();
    auto* scene = qobject_cast<AssoOpenGLScene*>(view->scene());
    scene->setPaused(false);
    while (scene->xWindow().end < 40) {
        scene->runningMan();
    }
    scene->setPaused(true);
    window.popInspectorWindow();
    for (QWidget* topLevel : QApplication::topLevelWidgets()) {
        if (topLevel->windowTitle() == QLatin1String("Inspector")) {
            topLevel->setGeometry(600, 190, 680, 640);
        }
    }
    QTest::qWait(300);
    const QSize size = view->viewport()->size();
    const float value = scene->sequences().values[0][30];
    const QPoint node(
        qRound(size.width() * (quillon::plotNodeX(scene->xWindow(), 30, -1.5f, 1.5f) + 1.5f) /
               3.0f),
        qRound(size.height() * (scene->getYMax() - value) / (scene->getYMax() - scene->getYMin())));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, node);
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
    struct Scene {
        const char* fileName;
        std::function<void(MainWindow&)> arrange;
    };
    const Scene scenes[] = {
        {"main-window.png", [](MainWindow& w) { showTab(w, RootsTab); }},
        {"roots-example-2.png",
         [](MainWindow& w) {
             showTab(w, RootsTab);
             w.roots_useExample2();
         }},
        {"associative-law-tab.png",
         [](MainWindow& w) {
             showTab(w, AssoTab);
             // Running at top speed for a while: the window has slid in and moved on.
             auto* pause = w.findChild<QPushButton*>(QStringLiteral("associativelaw_pause"));
             auto* faster =
                 w.findChild<QPushButton*>(QStringLiteral("associativelaw_acceleration"));
             pause->click();
             for (int i = 0; i < 5; ++i) {
                 faster->click();
             }
             QTest::qWait(4000);
             pause->click();
         }},
        {"pentagon-tab.png",
         [](MainWindow& w) {
             showTab(w, PentagonTab);
             // The animated example's ten steps (five Ins, five Outs) at 400 ms each.
             w.findChild<QPushButton*>(QStringLiteral("pentagon_Default"))->click();
             QTest::qWait(4600);
         }},
        {"sine-tab.png",
         [](MainWindow& w) {
             showTab(w, SineTab);
             // Started at top speed, the series slide in until the animation pauses itself
             // where the direct evaluations stop.
             auto* start = w.findChild<QPushButton*>(QStringLiteral("sine_pause"));
             auto* faster = w.findChild<QPushButton*>(QStringLiteral("sine_acceleration"));
             start->click();
             for (int i = 0; i < 5; ++i) {
                 faster->click();
             }
             QTest::qWait(3000);
         }},
        // Last: the inspector stays open.
        {"inspector-associative-law.png", inspectIterationThirty},
    };
    for (const Scene& scene : scenes) {
        if (!taker.take(window, QString::fromLatin1(scene.fileName), scene.arrange)) {
            return 1;
        }
    }
    return 0;
}
