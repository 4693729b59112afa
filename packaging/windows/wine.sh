# To be sourced by the scripts that try the programs for Windows, in the tree's
# folder: a Windows of our own, and the count of what failed. FRAGSMITH_CLI names
# the Linux build's command line, else the one of build/dev is taken.
root=$PWD
build=$root/build/windows
dist=$build/dist
script=packaging/windows/${0##*/}
native=${FRAGSMITH_CLI:-$PWD/build/dev/bin/fragsmith-cli}
if [[ -z ${FRAGSMITH_CLI:-} ]]; then
  scripts/setup fragsmith_programs || exit 1
fi

# A Windows of our own; nothing is shown, and arguments are UTF-8.
export WINEPREFIX=$build/wine WINEARCH=win64 WINEDEBUG=-all DISPLAY=
export WINEDLLOVERRIDES="mscoree,mshtml,winedbg.exe,winemenubuilder.exe="
export LC_ALL=C.UTF-8 LANG=C.UTF-8 LANGUAGE=
trap 'wineserver -k' EXIT
timeout 120 wineboot -i >"$build/wineboot.log" 2>&1
timeout 120 wineserver -w
if ! timeout 60 wine cmd /c exit; then
  echo "$script: not tried: wine does not start here"
  exit 77
fi

failures=0
fail() {
  echo "FAILED: $*" >&2
  ((++failures))
}
# expect WHAT COMMAND...: the command has to succeed.
expect() {
  local what=$1
  shift
  "$@" || fail "$what"
}

# finish: counts what failed, and ends.
finish() {
  if ((failures)); then
    echo "$script: $failures failed"
    exit 1
  fi
  echo "$script: all passed"
  exit 0
}
