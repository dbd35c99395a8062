// The inspector's reference computations: the true associative-law trajectory up to the picked
// iteration, at growing precision and again at twice that precision for the check.
#include "inspect/engine/AssoReference.h"

#include <benchmark/benchmark.h>

namespace
{

void BM_AssoReference(benchmark::State& state)
{
    const int iteration = int(state.range(0));
    for (auto _ : state) {
        const AssoReference reference = assoReference(0.5f, 3.0f, iteration);
        benchmark::DoNotOptimize(reference.checked);
    }
}
BENCHMARK(BM_AssoReference)->Arg(30)->Arg(300)->Arg(10000)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
