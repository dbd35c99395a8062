#!/usr/bin/env bash
# Builds the engines, quillon-cli and the tests that need no display once more, in
# build-asan/ (kept between runs), with clang's AddressSanitizer and UndefinedBehaviorSanitizer,
# and runs those tests. Fails when a test fails or when any program, also a quillon-cli that a
# command-line test started, reported a memory error, a leak or undefined behaviour.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
scripts/ensure-test-locale.sh

werror=OFF
if [ "${CI:-}" = "true" ]; then
    werror=ON
fi
cmake -S . -B build-asan -DCMAKE_CXX_COMPILER=clang++-14 -DQUILLON_SANITIZE=ON -DQUILLON_BUILD_BENCHMARKS=OFF \
    -DQUILLON_WERROR="$werror" >/dev/null
cmake --build build-asan --parallel "$(nproc)" --target headless_tests

# Every report goes to a file, because a command-line test may expect the failing exit status
# that a sanitizer's stop gives a quillon-cli it started, and does not show what the program
# printed. (Clang's runtimes honour log_path for both sanitizers; GCC's UndefinedBehavior-
# Sanitizer, combined with AddressSanitizer, ignores it, which is why this build uses clang.)
reports="$PWD/build-asan/sanitizer-reports"
rm -rf "$reports"
mkdir -p "$reports"
export ASAN_OPTIONS="halt_on_error=1:detect_leaks=1:log_path=$reports/asan"
export UBSAN_OPTIONS="halt_on_error=1:print_stacktrace=1:log_path=$reports/ubsan"

status=0
ctest --test-dir build-asan --output-on-failure --parallel "$(nproc)" -LE gui || status=$?

if [ -n "$(ls -A "$reports")" ]; then
    for report in "$reports"/*; do
        echo "== sanitizer report $report" >&2
        cat "$report" >&2
    done
    echo "error: the sanitizers reported the problems above" >&2
    status=1
fi
exit "$status"
