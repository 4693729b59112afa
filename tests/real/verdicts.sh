#!/usr/bin/env bash
# Compares what we say of small broken bots with what a real game does:
#   verdicts.sh [MAKER [--write]]
# MAKER is the built verdicts_maker. With --write the game's verdicts go into
# the table tests/checks/engine_cases.tsv. Exit status 77 when the game is not
# installed.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
maker=$(realpath -m "${1:-$here/../../build/dev/tests/verdicts_maker}")
if [[ ! -x $maker ]]; then
  echo "${0##*/}: there is no program $maker" >&2
  exit 2
fi

for package in ioquake3-server openarena-server openarena-088-data; do
  status=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) ||
    status=missing
  if [[ $status != installed ]]; then
    echo "${0##*/}: Debian package $package is not installed" >&2
    exit 77
  fi
done

exec python3 "$here/verdicts.py" "$maker" "$here/../checks/engine_cases.tsv" \
  "${@:2}"
