#!/usr/bin/env bash
# Builds Quillon and regenerates the README's screenshots in docs/images/ in a virtual X
# server, and its picture for slides with quillon-cli, so they always show the program as it
# is.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh
mkdir -p docs/images
QT_QPA_PLATFORM=xcb LIBGL_ALWAYS_SOFTWARE=1 \
    xvfb-run -a -s "-screen 0 1280x1024x24" build/tools/quillon-screenshots docs/images
build/cli/quillon-cli sine --x 1000 --n 40 --png docs/images/slide-sine-1000.png --size 1920x1080
