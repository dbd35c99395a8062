// The associative-law module's costs: recomputing the five sequences, and painting one frame
// of the plot (OpenGL background and painter foreground) for the default view and for the
// heaviest view a user can reach.
#include "app/MainWindow.h"
#include "assoc/engine/AssoRecurrence.h"
#include "assoc/gui/AssoOpenGLScene.h"

#include "bench/PlotTarget.h"

#include <QLineEdit>
#include <benchmark/benchmark.h>

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

AssoOpenGLScene* assoSceneOf(MainWindow& window)
{
    auto* scene = window.findChild<AssoOpenGLScene*>();
    scene->setSceneRect(QRectF(QPointF(0, 0), QSizeF(kPlotViewSize)));
    return scene;
}

void BM_PaintDefaultFrame(benchmark::State& state)
{
    MainWindow window;
    AssoOpenGLScene* scene = assoSceneOf(window);
    PlotTarget target(kPlotViewSize);
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
    PlotTarget target(kPlotViewSize);
    for (auto _ : state) {
        target.paint(*scene);
    }
}
BENCHMARK(BM_PaintHeaviestFrame)->Unit(benchmark::kMillisecond);

} // namespace
