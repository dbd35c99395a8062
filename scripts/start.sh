#!/usr/bin/env bash
# Builds Quillon and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/build.sh

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    echo "No display to show Quillon on; to run it in a virtual one: xvfb-run -a -s \"-screen 0 1280x1024x24\" build/app/quillon" >&2
    exit 1
fi
exec build/app/quillon "$@"
