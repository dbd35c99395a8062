// The cost of a picture for slides: describing a tab's view at the picture's layout size and
// painting it with the QPainter renderer into the bytes of a PNG or SVG file, for the
// heaviest views a user can export.
#include "app/MainWindow.h"
#include "assoc/engine/AssoFiles.h"
#include "assoc/picture/AssoPlotPicture.h"
#include "bench/HeaviestSineView.h"
#include "common/picture/PictureFile.h"
#include "sine/gui/SineOpenGLScene.h"

#include <benchmark/benchmark.h>

namespace
{

constexpr QSize kUltraHd(3840, 2160);

void exportPicture(benchmark::State& state, const quillon::PictureDescriber& describe)
{
    const auto format = quillon::PictureFormat(state.range(0));
    for (auto _ : state) {
        const QByteArray bytes =
            quillon::pictureFileBytes(describe, kUltraHd, quillon::kDefaultPlotViewSize, format);
        benchmark::DoNotOptimize(bytes.size());
    }
}

// The sine tab with N = 10000, window 0..9999 at step 1, all twelve approaches with trend
// lines, drop lines, every label and the legend, exported at 3840 x 2160.
void BM_ExportHeaviestSine(benchmark::State& state)
{
    MainWindow window;
    SineOpenGLScene* scene = showHeaviestSineView(window);
    exportPicture(state,
                  [scene](QSize size) { return scene->picture(size, quillon::PictureUse::File); });
}
BENCHMARK(BM_ExportHeaviestSine)
    ->Arg(int(quillon::PictureFormat::Png))
    ->Arg(int(quillon::PictureFormat::Svg))
    ->Unit(benchmark::kMillisecond);

// The command line's associative-law picture of the whole default run (300 iterations) at 3840 x
// 2160.
void BM_ExportAssoWholeRun(benchmark::State& state)
{
    exportPicture(state, [](QSize size) {
        return assoFinishedPicture(3.0f, 0.5f, 300, kAssoDefaultColors, size);
    });
}
BENCHMARK(BM_ExportAssoWholeRun)
    ->Arg(int(quillon::PictureFormat::Png))
    ->Arg(int(quillon::PictureFormat::Svg))
    ->Unit(benchmark::kMillisecond);

} // namespace
