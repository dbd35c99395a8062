// The main function of the benchmarks that paint: Google Benchmark's runner inside a Qt
// application, which the main window and OpenGL need.
#include <QApplication>
#include <benchmark/benchmark.h>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
