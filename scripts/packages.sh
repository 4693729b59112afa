# Debian packages by purpose, and the function that installs what is missing.
# Sourced by the other scripts.

packages_build=(g++ cmake ninja-build pkg-config libzip-dev libstb-dev
  libexpected-dev libcli11-dev nlohmann-json3-dev libgtest-dev libgmock-dev
  qt6-base-dev qt6-l10n-tools libgl-dev fonts-dejavu-core)
packages_checks=(clang clang-format clang-tidy libclang-rt-dev libclang-dev
  llvm-dev python3-clang ccache git python3)
packages_bench=(libbenchmark-dev libarchive-dev libminizip-dev unzip)
packages_fonts=(fonts-dejavu-core fonts-noto-mono)
packages_window=(xvfb xauth openbox xdotool dbus at-spi2-core python3-gi
  gir1.2-atspi-2.0)
packages_pictures=(imagemagick python3)
packages_trust=(python3 valgrind)
packages_windows=(cmake ninja-build pkg-config dpkg-dev
  qt6-l10n-tools g++-mingw-w64-x86-64-posix libz-mingw-w64-dev libstb-dev libexpected-dev
  libcli11-dev nlohmann-json3-dev googletest python3)
packages_installer=(nsis)
packages_wine=(wine wine64 python3)
packages_packaging=(dpkg-dev lintian desktop-file-utils appstream file
  shared-mime-info libglib2.0-bin passwd util-linux gzip python3)

# apt_get ARGUMENT...: apt-get as root, with no questions, waiting for other
# runs of it. Descriptor 9 is closed: it holds the lock of set-up, and a
# service that an installation starts would keep it.
apt_get() {
  local as_root=()
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      echo "Not root, and there is no sudo. Run as root: apt-get $*" >&2
      return 1
    fi
    as_root=(sudo)
  fi
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -y \
    -o DPkg::Lock::Timeout=900 "$@" </dev/null >&2 9>&-
}

# need_packages PACKAGE...: installs those of them that are missing. On a
# system without apt it names them and fails, unless
# FRAGSMITH_PACKAGES_READY=1 says that everything is there.
need_packages() {
  if [[ ${FRAGSMITH_PACKAGES_READY:-} == 1 ]]; then
    return 0
  fi
  if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    echo "Fragsmith's set-up installs Debian packages only. Please install" \
      "what these packages of Debian hold, then set" \
      "FRAGSMITH_PACKAGES_READY=1: $*" >&2
    return 1
  fi
  local installed missing=() package
  installed=$(dpkg-query -W -f='${db:Status-Status}:${Package}\n' "$@" \
    2>/dev/null || true)
  for package in "$@"; do
    if [[ $'\n'$installed$'\n' != *$'\n'"installed:$package"$'\n'* ]]; then
      missing+=("$package")
    fi
  done
  if ((${#missing[@]} == 0)); then
    return 0
  fi
  echo "Installing: ${missing[*]}" >&2
  apt_get install --no-install-recommends "${missing[@]}" || {
    echo "The lists of packages may be absent or old: fetching them." >&2
    apt_get update && apt_get install --no-install-recommends "${missing[@]}"
  }
}
