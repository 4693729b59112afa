#!/usr/bin/env bash
# tests/editor/picture_without_display.sh FRAGSMITH
#
# Where there is no display, a picture is made without a word of the toolkit,
# and no box waits for an answer that nobody can give.
set -euo pipefail
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
printf '[]\r\nQ3Baseq3 = /no/game\r\n' >"$scratch/fgs.ini"
said=$(cd "$scratch" && env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM \
  -u XDG_RUNTIME_DIR timeout 60 "$1" --picture picture.png \
  --program-folder "$scratch" 2>&1)
if [[ -n $said || ! -s $scratch/picture.png ]]; then
  echo "FAILED: no picture, or said: $said" >&2
  exit 1
fi
