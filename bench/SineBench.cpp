// The sine module's costs: the twelve approaches, and painting one frame of the plot (OpenGL
// background and painter foreground) for the default view and for the heaviest view a user
// can reach.
#include "app/MainWindow.h"
#include "bench/HeaviestSineView.h"
#include "bench/PlotTarget.h"
#include "sine/engine/SineApproaches.h"
#include "sine/gui/SineOpenGLScene.h"

#include <benchmark/benchmark.h>

namespace
{

void BM_ComputeSine(benchmark::State& state)
{
    const int count = int(state.range(0));
    SineResults results;
    for (auto _ : state) {
        computeSine(250, count, results);
        benchmark::DoNotOptimize(results.series[11].sums.back());
    }
}
BENCHMARK(BM_ComputeSine)->Arg(300)->Arg(10000)->Unit(benchmark::kMicrosecond);

SineOpenGLScene* sineSceneOf(MainWindow& window)
{
    auto* scene = window.findChild<SineOpenGLScene*>();
    scene->setSceneRect(QRectF(QPointF(0, 0), QSizeF(kPlotViewSize)));
    return scene;
}

void BM_PaintDefaultFrame(benchmark::State& state)
{
    MainWindow window;
    SineOpenGLScene* scene = sineSceneOf(window);
    scene->setTimeStartpoint(0);
    PlotTarget target(kPlotViewSize);
    for (auto _ : state) {
        target.paint(*scene);
    }
}
BENCHMARK(BM_PaintDefaultFrame)->Unit(benchmark::kMillisecond);

void BM_PaintHeaviestFrame(benchmark::State& state)
{
    MainWindow window;
    SineOpenGLScene* scene = showHeaviestSineView(window);
    PlotTarget target(kPlotViewSize);
    for (auto _ : state) {
        target.paint(*scene);
    }
}
BENCHMARK(BM_PaintHeaviestFrame)->Unit(benchmark::kMillisecond);

} // namespace
