#!/usr/bin/env bash
# Makes a game folder out of Debian's free game data, for trying the editor on
# real packages:  game_folder.sh DIR
# DIR gets a file quake3.exe and baseq3/ with links to the packages. Exit
# status 77 when the data is not installed.
source "$(dirname "${BASH_SOURCE[0]}")/set_up.sh"

if [[ $# -ne 1 || $1 == -* ]]; then
  echo "usage: ${0##*/} DIR" >&2
  exit 2
fi

# openarena-data, openarena-085-data and what they depend on. The later
# openarena-088-data stays out, so that the folder is the same everywhere.
packages=(openarena-data openarena-085-data openarena-081-maps
  openarena-081-misc openarena-081-players openarena-081-players-mature
  openarena-081-textures)

need_installed "${packages[@]}"

mkdir -p "$1/baseq3"
: >"$1/quake3.exe"
# The expansion's package (missionpack/) holds player models too, so it lies
# with the others.
dpkg-query -L "${packages[@]}" | grep '\.pk3$' | while read -r file; do
  ln -sf "$file" "$1/baseq3/"
done
