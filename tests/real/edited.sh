#!/usr/bin/env bash
# Edits the bots of Debian's free game in place and lets its server take them,
# before and after, and plays a fast match with and without an edit:
#   edited.sh [FRAGSMITH_CLI]
# Nothing listens on the network. Exit status 77 when the game is not installed.
source "$(dirname "${BASH_SOURCE[0]}")/set_up.sh"
need_program "${1:-$build/bin/fragsmith-cli}"
need_installed "${server_packages[@]}" openarena-081-misc openarena-081-maps

exec python3 "$here/edited.py" "$program"
