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
