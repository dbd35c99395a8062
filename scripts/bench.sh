#!/usr/bin/env bash
# Builds Quillon and runs every benchmark under bench/ in a virtual X server with Mesa's
# software OpenGL (the setting the figures in bench/README.md were taken in).
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh
for program in build/bench/*_bench; do
    echo "== $(basename "$program")"
    QT_QPA_PLATFORM=xcb LIBGL_ALWAYS_SOFTWARE=1 \
        xvfb-run -a -s "-screen 0 1280x1024x24" "$program" "$@"
done
