#!/usr/bin/env bash
# Counts what "fragsmith-cli check" says of the bots of Debian's free game, which
# play well, and fails when it says more than it did:
#   quiet.sh [FRAGSMITH_CLI]
# Exit status 77 when the data is not installed.
source "$(dirname "${BASH_SOURCE[0]}")/set_up.sh"
need_program "${1:-$build/bin/fragsmith-cli}"
need_installed "${server_packages[@]}"

exec python3 "$here/quiet.py" "$program"
