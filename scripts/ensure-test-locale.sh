#!/usr/bin/env bash
# The tests check that numbers keep their '.' under a locale whose decimal point is a comma;
# that locale has to exist on the machine.
set -euo pipefail

locale="de_DE.UTF-8"
if locale -a 2>/dev/null | grep -qi '^de_DE\.utf-\?8$'; then
    exit 0
fi
echo "Generating the $locale locale for the tests"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    as_root=(sudo)
fi
"${as_root[@]}" sed -i "s/^# *\($locale UTF-8\)/\1/" /etc/locale.gen
grep -q "^$locale UTF-8" /etc/locale.gen || echo "$locale UTF-8" | "${as_root[@]}" tee -a /etc/locale.gen >/dev/null
"${as_root[@]}" locale-gen >/dev/null
