#!/usr/bin/env bash
# Reads real models and bots out of the packages of Debian's free game data
# and makes every bot again:  openarena.sh [FRAGSMITH_CLI]
# Exit status 77 when the data is not installed.
source "$(dirname "${BASH_SOURCE[0]}")/set_up.sh"
need_program "${1:-$build/bin/fragsmith-cli}"
cli=$program

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

"$here/game_folder.sh" "$scratch/game"
python3 "$here/openarena_check.py" "$cli" "$scratch"
