// Time from starting the program's process to its main window's first painted frame. Each
// iteration starts a fresh process (dynamic loading, the application object, the window and
// its three OpenGL views included) and stops the clock when it reports its first frame.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace
{

// Runs the probe once; returns the seconds until it reported its first frame, or a
// negative number when it failed.
double secondsToFirstFrame()
{
    int pipeEnds[2];
    if (pipe(pipeEnds) != 0) {
        return -1.0;
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, pipeEnds[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, pipeEnds[0]);
    char path[] = QUILLON_PROBE_PATH;
    char* argv[] = {path, nullptr};
    const auto start = std::chrono::steady_clock::now();
    pid_t child = 0;
    const int spawned = posix_spawn(&child, path, &actions, nullptr, argv, environ);
    posix_spawn_file_actions_destroy(&actions);
    close(pipeEnds[1]);
    if (spawned != 0) {
        close(pipeEnds[0]);
        return -1.0;
    }
    // The program prints other lines before (the Roots tab's trace); wait for "painted".
    std::string output;
    bool painted = false;
    char chunk[256];
    ssize_t count = 0;
    while (!painted && (count = read(pipeEnds[0], chunk, sizeof chunk)) > 0) {
        output.append(chunk, size_t(count));
        painted = output.find("painted\n") != std::string::npos;
    }
    const auto end = std::chrono::steady_clock::now();
    close(pipeEnds[0]);
    int status = 0;
    waitpid(child, &status, 0);
    if (!painted) {
        return -1.0;
    }
    return std::chrono::duration<double>(end - start).count();
}

void BM_ProcessStartToFirstFrame(benchmark::State& state)
{
    for (auto _ : state) {
        const double seconds = secondsToFirstFrame();
        if (seconds < 0) {
            state.SkipWithError("the program did not paint a first frame (is there a display?)");
            break;
        }
        state.SetIterationTime(seconds);
    }
}

} // namespace

BENCHMARK(BM_ProcessStartToFirstFrame)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(15)
    ->Repetitions(3)
    ->ReportAggregatesOnly(true);

BENCHMARK_MAIN();
