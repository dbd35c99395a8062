#!/usr/bin/env bash
# Fails when a C++ file of the project differs from what clang-format makes of it.
set -euo pipefail
cd "$(dirname "$0")/.."

mapfile -t files < <(git ls-files '*.cpp' '*.h')
if ! clang-format --dry-run --Werror "${files[@]}"; then
    echo "Some files are not formatted; run: git ls-files '*.cpp' '*.h' | xargs clang-format -i" >&2
    exit 1
fi
echo "clang-format: ${#files[@]} files clean"
