#!/usr/bin/env bash
# The tests check that numbers keep their '.' under locales whose decimal point is a comma
# (German and French); those locales have to exist on the machine.
set -euo pipefail

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    as_root=(sudo)
fi

missing=()
for locale in de_DE.UTF-8 fr_FR.UTF-8; do
    name="${locale%%.*}"
    if ! locale -a 2>/dev/null | grep -qi "^$name\.utf-\?8$"; then
        missing+=("$locale")
    fi
done
if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

echo "Generating the locales for the tests: ${missing[*]}"
for locale in "${missing[@]}"; do
    "${as_root[@]}" sed -i "s/^# *\($locale UTF-8\)/\1/" /etc/locale.gen
    grep -q "^$locale UTF-8" /etc/locale.gen || echo "$locale UTF-8" | "${as_root[@]}" tee -a /etc/locale.gen >/dev/null
done
"${as_root[@]}" locale-gen >/dev/null
