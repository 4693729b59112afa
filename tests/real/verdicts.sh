#!/usr/bin/env bash
# Compares what we say of small broken bots with what a real game does:
#   verdicts.sh [MAKER [--write] [--try-all]]
# MAKER is the built verdicts_maker. With --write the game's verdicts and
# messages go into the table tests/checks/engine_cases.tsv; with --try-all "try"
# is asked about each of them, not about a sample. Exit status 77 when the game is not installed.
source "$(dirname "${BASH_SOURCE[0]}")/set_up.sh"
need_program "${1:-$build/tests/verdicts_maker}"
need_installed "${server_packages[@]}"

exec python3 "$here/verdicts.py" "$program" "$build/bin/fragsmith-cli" \
  "$here/../checks/engine_cases.tsv" "${@:2}"
