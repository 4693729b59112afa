#!/usr/bin/env bash
# tests/install/installed.sh DEB
#
# Installs the package, starts the programs as a new user of this system, and
# removes both again. Exit status 77 when that cannot be tried here: without
# dpkg or root's rights, or when Fragsmith is installed already.
set -euo pipefail

if (($# != 1)); then
  echo "usage: ${0##*/} DEB" >&2
  exit 2
fi
if ! command -v dpkg >/dev/null; then
  echo "${0##*/}: there is no dpkg" >&2
  exit 77
fi
if ((EUID != 0)); then
  if ! sudo -n true 2>/dev/null; then
    echo "${0##*/}: not root, and sudo is missing or asks" >&2
    exit 77
  fi
  exec sudo -n "$0" "$@"
fi
deb=$(realpath "$1")
if [[ $(dpkg-query -W -f '${db:Status-Status}' fragsmith 2>/dev/null) == \
  installed ]]; then
  echo "${0##*/}: fragsmith is installed on this system, which stays so" >&2
  exit 77
fi

user=fragsmith-test-$$
scratch=$(mktemp -d)
chmod 755 "$scratch"
home=$scratch/home
clean_up() {
  cd /
  if id "$user" >/dev/null 2>&1; then
    userdel "$user"
  fi
  dpkg --purge fragsmith >/dev/null 2>&1 || true
  rm -rf "$scratch"
}
trap clean_up EXIT

# A signal ends the test by way of clean_up, too.
trap 'exit 1' HUP INT TERM

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

# as_user COMMAND...: in the user's home, with a login's environment.
as_user() {
  (cd "$home" && timeout 60 runuser -u "$user" -- env -i \
    HOME="$home" USER="$user" LOGNAME="$user" LANG=C.UTF-8 \
    PATH=/usr/local/bin:/usr/bin:/bin XDG_RUNTIME_DIR="$scratch/runtime" \
    QT_QPA_PLATFORM=offscreen "$@")
}

# picture NAME [ARGUMENT...]: the editor's window, as NAME.png in the home.
picture() {
  local name=$1
  shift
  as_user fragsmith --picture "$name.png" "$@" || fail "no picture $name"
  [[ $(file -b "$home/$name.png") == "PNG image data"* ]] ||
    fail "picture $name is no picture"
}

same() { cmp -s "$home/$1.png" "$home/$2.png"; }

# program_folder NAME PICTURE SHOWN: a copy of the user's program folder in
# which PICTURE is that which is installed as SHOWN.
program_folder() {
  as_user cp -r .config/fragsmith "$1"
  as_user cp "/usr/share/fragsmith/$3.tga" "$1/$2.tga"
}

dpkg -i "$deb" >/dev/null || fail "the package cannot be installed"
useradd --create-home --home-dir "$home" --shell /bin/sh "$user"
install -d -m 700 -o "$user" "$scratch/runtime"

echo "First start"
[[ ! -e $home/.config/fragsmith ]] || fail "the new user is not new"
picture first
settings=$home/.config/fragsmith/fgs.ini
grep -qx $'WinZipDir = /usr/lib/fragsmith\r' "$settings" ||
  fail "the settings do not name the unzip tool"
[[ $(stat -c %U "$settings") == "$user" ]] || fail "the settings are another's"

echo "The command line makes a bot and its package"
as_user sh -c 'fragsmith-cli new --preset average --name Rookie --seed 7 \
  >rookie.json && fragsmith-cli make rookie.json --into made --pk3 >made.txt'
[[ $(wc -l <"$home/made.txt") == 6 ]] || fail "not six files were made"

echo "The fixed pictures are found"
program_folder same notinuse notinuse
program_folder other notinuse userdef
picture of-bot made/rookie_c.c
picture same --program-folder same made/rookie_c.c
picture other --program-folder other made/rookie_c.c
if same of-bot first; then fail "the bot is not shown"; fi
same of-bot same || fail "the installed picture is not shown"
if same of-bot other; then fail "the picture box shows nothing"; fi

echo "The package is found, and the bot loaded out of it"
game=$home/game
as_user mkdir -p game/baseq3
as_user touch game/quake3.exe
as_user mv made/bot-Rookie.pk3 game/baseq3
as_user sed -i "s|^Q3Baseq3 = .*|Q3Baseq3 = $game\r|" "$settings"
shown=$(as_user fragsmith-cli settings 2>&1)
for line in "\"Q3Baseq3\": \"$game\"" '"WinZipDir": "/usr/lib/fragsmith"' \
  '"Bots": 1'; do
  [[ $shown == *"$line"* ]] || fail "the settings lack $line: $shown"
done
[[ $(as_user fragsmith-cli scan "$game") == *Rookie*bot-Rookie.pk3*Yes* ]] ||
  fail "the scan does not list the bot"
as_user fragsmith-cli load game/baseq3/bot-Rookie.pk3 >"$scratch/loaded.json"
diff "$home/rookie.json" "$scratch/loaded.json" ||
  fail "the bot that was loaded is another"

echo "The editor shows an icon out of a package"
# icon PICTURE: a package with that as the icon of the new bot's skin.
icon() {
  as_user python3 -c 'import sys, zipfile
with zipfile.ZipFile("game/baseq3/pak0.pk3", "w") as package:
    package.write(sys.argv[1], "models/players/sarge/icon_default.tga")' \
    "/usr/share/fragsmith/$1.tga"
}
picture none made/rookie_c.c
icon userdef
picture icon made/rookie_c.c
icon notfound
picture another made/rookie_c.c
if same icon none; then fail "the icon is not shown"; fi
# The words about the picture are the same for both.
if same icon another; then fail "what is shown is not the icon"; fi
icon userdef
picture again made/rookie_c.c
same icon again || fail "the same icon looks different"

echo "Files are known by their names"
as_user sh -c 'for name in plain.c Sly_c.c SLY_C.C zpack.pk3; do
  echo "int i;" >"$name"; done'
type_of() {
  as_user gio info -a standard::content-type "$1" |
    sed -n 's/^ *standard::content-type: //p'
}
for name in Sly_c.c SLY_C.C; do
  [[ $(type_of "$name") == text/x-quake3-bot-character ]] ||
    fail "$name is $(type_of "$name")"
done
[[ $(type_of game/baseq3/bot-Rookie.pk3) == \
  application/x-quake3-bot-package ]] || fail "the package's type"
[[ $(type_of plain.c) == text/x-csrc ]] || fail "plain.c was hijacked"
[[ $(type_of zpack.pk3) != *quake3-bot* ]] || fail "zpack.pk3 was hijacked"
for type in text/x-quake3-bot-character application/x-quake3-bot-package; do
  [[ $(as_user gio mime "$type") == *fragsmith.desktop* ]] ||
    fail "$type does not open Fragsmith"
done

echo "Removal"
dpkg --purge fragsmith >/dev/null
for folder in /usr/share/fragsmith /usr/lib/fragsmith /usr/share/doc/fragsmith; do
  [[ ! -e $folder ]] || fail "$folder is left behind"
done
[[ -f $settings ]] || fail "the user's settings are gone"
echo "The installed package works"
