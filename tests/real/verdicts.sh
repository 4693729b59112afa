#!/usr/bin/env bash
# Compares what we say of small broken bots with what a real game does:
#   verdicts.sh [MAKER [--write]]
# MAKER is the built verdicts_maker. With --write the game's verdicts go into
# the table tests/checks/engine_cases.tsv. Exit status 77 when the game is not
# installed.
source "$(dirname "${BASH_SOURCE[0]}")/set_up.sh"
need_program "${1:-$build/tests/verdicts_maker}"
need_installed "${server_packages[@]}"

exec python3 "$here/verdicts.py" "$program" "$here/../checks/engine_cases.tsv" \
  "${@:2}"
