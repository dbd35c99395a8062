#!/usr/bin/env bash
# Installs the Debian packages Quillon needs to build, run and test, when any is missing.
# clang-14 and libclang-rt-14-dev (the sanitizer runtimes and libFuzzer) build the sanitizer
# build (scripts/sanitize.sh) and the fuzzers (scripts/fuzz.sh).
set -euo pipefail

packages=(
    build-essential cmake ccache git
    qt6-base-dev qt6-svg-dev libqt6opengl6-dev
    libgmp-dev libmpfr-dev libgl-dev libglu1-mesa-dev libgl1-mesa-dri
    libgtest-dev libbenchmark-dev
    xvfb xauth fonts-liberation fontconfig locales
    clang-format valgrind
    clang-14 libclang-rt-14-dev
)

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$package")
    fi
done

if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

echo "Installing missing packages: ${missing[*]}"
if [ "$(id -u)" -eq 0 ]; then
    as_root=()
elif command -v sudo >/dev/null 2>&1; then
    as_root=(sudo)
else
    echo "error: these packages are missing and this user cannot install them: ${missing[*]}" >&2
    echo "       run as root: apt-get install ${missing[*]}" >&2
    exit 1
fi
"${as_root[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends \
    "${missing[@]}"
