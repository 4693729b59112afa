# What the scripts here begin with. Sourced by them.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=$here/../../build/dev

# A server that plays our bots. openarena-088-data has the scripts fw_weap.c and
# fw_items.c that our weight files include; without them no bot of ours can
# enter.
server_packages=(ioquake3-server openarena-server openarena-088-data)

# need_program PROGRAM: sets `program` to its full path, or ends the script.
need_program() {
  program=$(realpath -m "$1")
  if [[ ! -x $program ]]; then
    echo "${0##*/}: there is no program $program" >&2
    exit 2
  fi
}

# need_installed PACKAGE...: without one of these Debian packages the script
# ends with 77, for skipped.
need_installed() {
  local package status
  for package in "$@"; do
    status=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) ||
      status=missing
    if [[ $status != installed ]]; then
      echo "${0##*/}: Debian package $package is not installed" >&2
      exit 77
    fi
  done
}

# begin_with_a_server [FRAGSMITH_CLI]: for scripts that start a real game. Sets
# `cli` and `scratch`, a folder that goes at the end; what is left behind in its
# "tmp" and "home" is a fault.
begin_with_a_server() {
  need_program "${1:-$build/bin/fragsmith-cli}"
  cli=$program
  need_installed "${server_packages[@]}"
  scratch=$(mktemp -d)
  trap 'rm -rf "$scratch"' EXIT
  mkdir "$scratch/program" "$scratch/tmp" "$scratch/home"
  export TMPDIR=$scratch/tmp HOME=$scratch/home
}

# make_average_bot FILE: a document.
make_average_bot() {
  "$cli" new --preset average --name Rookie --seed 1 \
    --program-folder "$scratch/program" >"$1"
}
