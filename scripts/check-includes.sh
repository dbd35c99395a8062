#!/usr/bin/env bash
# Fails when a project header is included by any path other than its path from the
# repository root ("assoc/engine/AssoFiles.h", not "engine/AssoFiles.h" or "AssoFiles.h"), so
# that a reader always knows which file is meant.
set -euo pipefail
cd "$(dirname "$0")/.."

# A table rather than "printf | grep -q": grep -q stops reading at its first match, printf
# then dies of SIGPIPE and pipefail would report a correct include as wrong.
declare -A headers=()
while IFS= read -r header; do
    headers["$header"]=1
done < <(git ls-files '*.h')
status=0
while IFS= read -r line; do
    file="${line%%:*}"
    included="$(sed -E 's/.*#include "([^"]+)".*/\1/' <<<"${line#*:}")"
    case "$included" in
    *.moc | ui_*) continue ;;
    esac
    if [ -z "${headers["$included"]+known}" ]; then
        echo "$file: #include \"$included\" does not name a header from the repository root" >&2
        status=1
    fi
done < <(git grep -n --no-color -e '^#include "' -- '*.cpp' '*.h' | sed -E 's/^([^:]+):[0-9]+:/\1:/')
if [ "$status" -eq 0 ]; then
    echo "includes: every project header is named from the repository root"
fi
exit "$status"
