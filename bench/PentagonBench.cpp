// The pentagon module's costs: In and Out steps on the regular pentagon, and painting one frame
// of the plot (OpenGL background and painter foreground) for the default view and for a long
// history with every label and grid line.
#include "app/MainWindow.h"
#include "bench/PlotTarget.h"
#include "pentagon/engine/PentagonEngine.h"
#include "pentagon/gui/PentagonOpenGLScene.h"

#include <benchmark/benchmark.h>

namespace
{

// 10000 alternating steps (In, Out, In, ...) from the regular pentagon, history included.
void BM_AlternatingSteps(benchmark::State& state)
{
    const int steps = int(state.range(0));
    for (auto _ : state) {
        PentagonEngine engine;
        engine.setRegular(true);
        engine.resetHistory();
        for (int step = 0; step < steps; ++step) {
            if (step % 2 == 0) {
                engine.in();
            } else {
                engine.out();
            }
        }
        benchmark::DoNotOptimize(engine.getDistance());
        state.counters["failed"] = engine.hasFailed() ? 1 : 0;
    }
}
BENCHMARK(BM_AlternatingSteps)->Arg(10000)->Unit(benchmark::kMillisecond);

PentagonOpenGLScene* pentagonSceneOf(MainWindow& window)
{
    auto* scene = window.findChild<PentagonOpenGLScene*>();
    scene->setSceneRect(QRectF(QPointF(0, 0), QSizeF(kPlotViewSize)));
    return scene;
}

void BM_PaintDefaultFrame(benchmark::State& state)
{
    MainWindow window;
    PentagonOpenGLScene* scene = pentagonSceneOf(window);
    PlotTarget target(kPlotViewSize);
    for (auto _ : state) {
        target.paint(*scene);
    }
}
BENCHMARK(BM_PaintDefaultFrame)->Unit(benchmark::kMillisecond);

// A history of 2000 pentagons (the regular one and 1999 alternating steps), with the x and y
// labels and both sets of grid lines.
void BM_PaintLongHistoryFrame(benchmark::State& state)
{
    MainWindow window;
    PentagonOpenGLScene* scene = pentagonSceneOf(window);
    scene->regularPentagon(true);
    for (int step = 1; step < 2000; ++step) {
        if (step % 2 == 1) {
            scene->in();
        } else {
            scene->out();
        }
    }
    scene->XIndices(true);
    scene->YIndices(true);
    scene->XAxis(true);
    scene->YAxis(true);
    state.counters["pentagons"] = double(scene->engine().validPentagons().size());
    PlotTarget target(kPlotViewSize);
    for (auto _ : state) {
        target.paint(*scene);
    }
}
BENCHMARK(BM_PaintLongHistoryFrame)->Unit(benchmark::kMillisecond);

} // namespace
