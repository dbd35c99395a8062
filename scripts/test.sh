#!/usr/bin/env bash
# Builds Quillon and runs every test: engine and common tests, export golden files,
# command-line tests and GUI tests (each GUI test in its own virtual X server).
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh
scripts/ensure-test-locale.sh
ctest --test-dir build --output-on-failure --parallel "$(nproc)"
