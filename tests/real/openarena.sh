#!/usr/bin/env bash
# Reads real models and bots out of the packages of Debian's free game data
# and makes every bot again:  openarena.sh [FRAGSMITH_CLI]
# Exit status 77 when the data is not installed.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
cli=$(realpath -m "${1:-$here/../../build/dev/bin/fragsmith-cli}")
if [[ ! -x $cli ]]; then
  echo "${0##*/}: there is no program $cli" >&2
  exit 2
fi

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

"$here/game_folder.sh" "$scratch/game"
python3 "$here/openarena_check.py" "$cli" "$scratch"
