// The pentagon module's costs: In and Out steps on the regular pentagon.
#include "pentagon/engine/PentagonEngine.h"

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

} // namespace

BENCHMARK_MAIN();
