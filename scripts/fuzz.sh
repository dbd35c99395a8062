#!/usr/bin/env bash
# Builds the libFuzzer harnesses of fuzz/ with clang in build-fuzz/ (kept between runs) and
# runs each for SECONDS seconds (default 60), starting from its corpus of valid files in
# fuzz/corpus/<harness>/. Fails on any crash, failed check, sanitizer report, leak or input
# that takes longer than one second. New inputs the fuzzer finds interesting go to
# build-fuzz/corpus/<harness>/, and an input that failed to build-fuzz/failures/.
#
#   scripts/fuzz.sh            # one minute each
#   scripts/fuzz.sh 3600       # an hour each
#   FUZZERS="field_rules_fuzzer" scripts/fuzz.sh 600    # only the harnesses named
set -euo pipefail
cd "$(dirname "$0")/.."

seconds="${1:-60}"
if ! [[ "$seconds" =~ ^[1-9][0-9]*$ ]]; then
    echo "usage: scripts/fuzz.sh [SECONDS]   (SECONDS: a whole number above 0, default 60)" >&2
    exit 2
fi

scripts/install-deps.sh

werror=OFF
if [ "${CI:-}" = "true" ]; then
    werror=ON
fi
cmake -S . -B build-fuzz -DCMAKE_CXX_COMPILER=clang++-14 -DQUILLON_FUZZ=ON \
    -DQUILLON_BUILD_TESTS=OFF -DQUILLON_BUILD_BENCHMARKS=OFF -DQUILLON_WERROR="$werror" >/dev/null
cmake --build build-fuzz --parallel "$(nproc)" --target fuzzers

read -r -a fuzzers <<<"${FUZZERS:-$(cd fuzz/corpus && echo *)}"
mkdir -p build-fuzz/failures
export UBSAN_OPTIONS="halt_on_error=1:print_stacktrace=1"
failed=()
for fuzzer in "${fuzzers[@]}"; do
    echo "== $fuzzer: ${seconds}s"
    mkdir -p "build-fuzz/corpus/$fuzzer"
    if ! "build-fuzz/fuzz/$fuzzer" -max_total_time="$seconds" -timeout=1 -rss_limit_mb=2048 \
        -print_final_stats=1 -artifact_prefix="build-fuzz/failures/$fuzzer-" \
        "build-fuzz/corpus/$fuzzer" "fuzz/corpus/$fuzzer" 2>"build-fuzz/$fuzzer.log"; then
        tail -n 60 "build-fuzz/$fuzzer.log" >&2
        failed+=("$fuzzer")
    fi
    grep -E '^(stat::number_of_executed_units|stat::peak_rss_mb)' "build-fuzz/$fuzzer.log" || true
done

if [ ${#failed[@]} -ne 0 ]; then
    echo "error: these harnesses failed: ${failed[*]} (inputs in build-fuzz/failures/;" \
        "replay one with build-fuzz/fuzz/<harness> <input>)" >&2
    exit 1
fi
echo "fuzzing: ${#fuzzers[@]} harnesses ran ${seconds}s each without a failure"
