// The inspector's costs: the true associative-law trajectory up to the picked iteration (at
// growing precision, and again at twice that for the check), and a whole pick of the last node
// of a 10000-iteration run as the window answers it.
#include "assoc/engine/AssoRecurrence.h"
#include "inspect/engine/AssoReference.h"
#include "inspect/gui/AssoInspection.h"
#include "inspect/gui/InspectorWindow.h"

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

// N = 10000, order 1's node at iteration 9999: the reference, the five orders' distances and
// the window's report.
void BM_PickLastNodeOfTenThousand(benchmark::State& state)
{
    AssoSequences sequences;
    computeSequences(3.0f, 0.5f, 10000, sequences);
    InspectorWindow window;
    for (auto _ : state) {
        window.inspect(assoInspection(sequences, 0.5f, 3.0f, 0, 9999));
    }
}
BENCHMARK(BM_PickLastNodeOfTenThousand)->Unit(benchmark::kMillisecond);

} // namespace
