// The associative-law module's costs: recomputing the five sequences, and painting one frame
// of the plot (OpenGL background and painter foreground) for the default view and for the
// heaviest view a user can reach.
#include "app/MainWindow.h"
#include "assoc/engine/AssoRecurrence.h"
#include "assoc/gui/AssoOpenGLScene.h"

#include <QApplication>
#include <QLineEdit>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>
#include <QOpenGLPaintDevice>
#include <QPainter>
#include <benchmark/benchmark.h>
#include <memory>

namespace
{

void BM_ComputeSequences(benchmark::State& state)
{
    const int n = int(state.range(0));
    AssoSequences sequences;
    for (auto _ : state) {
        computeSequences(3.0f, 0.5f, n, sequences);
        benchmark::DoNotOptimize(sequences.values[4].back());
    }
}
BENCHMARK(BM_ComputeSequences)->Arg(300)->Arg(10000)->Unit(benchmark::kMicrosecond);

// An OpenGL framebuffer of the plot view's size to paint the scene into, as the view does.
class PlotTarget
{
public:
    explicit PlotTarget(QSize size)
    {
        QSurfaceFormat format;
        format.setDepthBufferSize(24);
        format.setProfile(QSurfaceFormat::CompatibilityProfile);
        context.setFormat(format);
        context.create();
        surface.setFormat(format);
        surface.create();
        context.makeCurrent(&surface);
        framebuffer = std::make_unique<QOpenGLFramebufferObject>(
            size, QOpenGLFramebufferObject::CombinedDepthStencil);
        framebuffer->bind();
        device = std::make_unique<QOpenGLPaintDevice>(size);
    }

    // Paints both passes of the scene and waits until OpenGL has finished them.
    void paint(QGraphicsScene& scene)
    {
        QPainter painter(device.get());
        scene.render(&painter);
        painter.end();
        context.functions()->glFinish();
    }

private:
    QOpenGLContext context;
    QOffscreenSurface surface;
    std::unique_ptr<QOpenGLFramebufferObject> framebuffer;
    std::unique_ptr<QOpenGLPaintDevice> device;
};

const QSize kViewSize(810, 770);

AssoOpenGLScene* assoSceneOf(MainWindow& window)
{
    auto* scene = window.findChild<AssoOpenGLScene*>();
    scene->setSceneRect(QRectF(QPointF(0, 0), QSizeF(kViewSize)));
    return scene;
}

void BM_PaintDefaultFrame(benchmark::State& state)
{
    MainWindow window;
    AssoOpenGLScene* scene = assoSceneOf(window);
    PlotTarget target(kViewSize);
    scene->setTimeStartpoint(0);
    for (auto _ : state) {
        target.paint(*scene);
    }
}
BENCHMARK(BM_PaintDefaultFrame)->Unit(benchmark::kMillisecond);

void BM_PaintHeaviestFrame(benchmark::State& state)
{
    MainWindow window;
    AssoOpenGLScene* scene = assoSceneOf(window);
    window.findChild<QLineEdit*>(QStringLiteral("associativelaw_iteration_input"))
        ->setText(QStringLiteral("10000"));
    scene->updateMaxItera();
    scene->setEndpoint(9999);
    scene->setStepsize(1);
    scene->setNeedXAxis(true);
    scene->setNeedYAxis(true);
    scene->need2ShowYIndices(true);
    scene->needErrorComparison(true);
    scene->setTimeStartpoint(0);
    PlotTarget target(kViewSize);
    for (auto _ : state) {
        target.paint(*scene);
    }
}
BENCHMARK(BM_PaintHeaviestFrame)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
