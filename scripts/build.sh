#!/usr/bin/env bash
# Installs what is missing, then configures and builds Quillon in build/ (kept between runs,
# so later builds only recompile what changed). Set CI=true to treat warnings as errors.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh

werror=OFF
if [ "${CI:-}" = "true" ]; then
    werror=ON
fi
cmake -S . -B build -DQUILLON_WERROR="$werror" >/dev/null
cmake --build build --parallel "$(nproc)"
