#!/usr/bin/env bash
# Lets a real game take bots of ours out of their package:
#   engine.sh [FRAGSMITH_CLI]
# A made bot must enter at skills 1, 3 and 5 and an edited one must show its
# name, model and chat lines, all without a complaint; broken copies of the
# package must be refused, or the check itself is worth nothing. Everything
# stays on the loopback device. Exit status 77 when the game is not installed.
source "$(dirname "${BASH_SOURCE[0]}")/set_up.sh"
need_program "${1:-$build/bin/fragsmith-cli}"
cli=$program
need_installed "${server_packages[@]}"

scratch=$(mktemp -d)
server=
cleanup() {
  if [[ -n $server ]]; then kill "$server" 2>/dev/null || true; fi
  rm -rf "$scratch"
}
trap cleanup EXIT

failures=0
fail() {
  echo "FAIL: $1"
  failures=$((failures + 1))
}

# How the game tells that a bot stays outside.
refusals='BotAISetupClient failed|not defined|no aifile'
# What it says about files that it does not like ("counldn't" is its spelling).
complaints="Error:|Warning:|Fatal:|couldn't|counldn't|default skill|too large"
complaints+="|characteristic [0-9]+ is not|exceeded|keys or values"
complaints+="|Missing \{|Unexpected end"

# How many lines of a log match a pattern.
count() {
  grep -aEc -e "$2" "$1" || true
}

# wait_for LOG PATTERN TIMES SECONDS: false when the time is over.
wait_for() {
  local end=$((SECONDS + $4))
  while (($(count "$1" "$2") < $3)); do
    ((SECONDS < end)) || return 1
    sleep 0.2
  done
}

# start LOG PACKAGE COMMAND...: the server in a home folder of its own, which
# holds the package and nothing else. It never ends by itself.
start() {
  local log=$1 package=$2 home
  shift 2
  home=$(mktemp -d -p "$scratch")
  mkdir -p "$home/.openarena/baseoa"
  if [[ -n $package ]]; then cp "$package" "$home/.openarena/baseoa/"; fi
  : >"$log"
  env -i HOME="$home" PATH=/usr/games:/usr/bin:/bin timeout 60 \
    openarena-server +set dedicated 1 +set net_enabled 1 \
    +set net_ip 127.0.0.1 +set sv_pure 0 "$@" </dev/null >"$log" 2>&1 &
  server=$!
}

stop() {
  kill "$server" 2>/dev/null || true
  wait "$server" 2>/dev/null || true
  server=
}

# play LOG PACKAGE NAME SKILL: four of the bot against each other, as the game
# notices missing weapon weights only in a fight. Three times as fast, and for
# less than the 25 seconds after which bots speak: they would use words of the
# retail game that this one lacks.
play() {
  local bot=(+addbot "$3" "$4")
  start "$1" "$2" +devmap oa_dm1 +set timescale 3 "${bot[@]}" "${bot[@]}" \
    "${bot[@]}" "${bot[@]}"
  if wait_for "$1" "entered the game|$refusals" 4 20; then
    wait_for "$1" 'Error:|Fatal:' 1 4 || true
  fi
  stop
}

# judge LOG NAME SKILL...: prints what is wrong; the skills are the blocks of
# the bot's file that the game has to read.
judge() {
  local log=$1 name=$2 lower=${2,,} line
  shift 2
  # The server says by itself that it has no configuration yet.
  grep -aE "$complaints|$refusals" "$log" | grep -av "^couldn't exec " |
    sort | uniq -c | head -20 || true
  if ! grep -aqx "$((bots_before + 1)) bots parsed" "$log"; then
    echo "the game did not read the description file"
  fi
  for line in "${@/#/loaded skill }"; do
    if ! grep -aqxF "$line from bots/${lower}_c.c" "$log"; then
      echo "no line: $line from bots/${lower}_c.c"
    fi
  done
  for line in "loaded bots/${lower}_i.c" "loaded bots/${lower}_w.c" \
    "loaded $lower from bots/${lower}_t.c"; do
    if ! grep -aqxF "$line" "$log"; then echo "no line: $line"; fi
  done
  if (($(count "$log" 'broadcast: print ".*entered the game') < 1)); then
    echo "the bot did not enter the game"
  fi
}

# check TITLE LOG NAME SKILL...
check() {
  local title=$1 wrong
  shift
  wrong=$(judge "$@")
  if [[ -z $wrong ]]; then
    echo "ok: $title"
  else
    fail "$title"$'\n'"$wrong"
  fi
}

# How many bots the game knows without ours.
log=$scratch/bare.log
start "$log" "" +map oa_dm1
if ! wait_for "$log" '^AAS initialized' 1 30; then
  echo "${0##*/}: the server does not start here:" >&2
  tail -20 "$log" >&2
  exit 1
fi
stop
bots_before=$(sed -nE 's/^([0-9]+) bots parsed\r?$/\1/p' "$log")
echo "the game knows $bots_before bots"

# A bot as it comes from the preset.
mkdir "$scratch/program"
name=Rookie
"$cli" new --preset average --name "$name" --seed 1 \
  --program-folder "$scratch/program" >"$scratch/bot.json"
"$cli" make "$scratch/bot.json" --into "$scratch/made" --layout --pk3 \
  --program-folder "$scratch/program" >"$scratch/paths" 2>"$scratch/messages"
package=$scratch/made/bot-$name.pk3
for skill in 1 3 5; do
  log=$scratch/skill$skill.log
  play "$log" "$package" "$name" "$skill"
  # Between 1 and 4 the game mixes the two blocks.
  blocks=("$skill")
  if ((skill == 3)); then blocks=(1 4); fi
  check "$name at skill $skill" "$log" "$name" "${blocks[@]}"
done

# An edited bot. bot_testichat makes the game print every chat line, but for
# the one type that it does not know.
python3 - "$scratch/bot.json" "$scratch/edited.json" <<'PYTHON'
import json
import sys

with open(sys.argv[1], encoding="utf-8") as file:
    bot = json.load(file)
bot.update(name="Edited", funName="^2Ed it^1ed", model="Biker",
           skin="Hossman", gender="female")
bot["levels"]["4"]["CHARACTERISTIC_REACTIONTIME"] = 0.25
bot["weaponWeights"]["W_RAILGUN"] = 300
for key in bot["chats"]:
    bot["chats"][key] = [f"zq {key} zq"]
bot["chats"]["hit_nodeath"] = ["zq {CURSE} zq"]
bot["chats"]["death_rail"] = ["{CURSE} zq"]
bot["chats"]["random_misc"] = ["zq {CURSE}"]
bot["chats"]["level_end"] = ["zq {LEVELTITLE} zq"]
with open(sys.argv[2], "w", encoding="utf-8") as file:
    json.dump(bot, file)
PYTHON
"$cli" make "$scratch/edited.json" --into "$scratch/made" --layout --pk3 \
  --program-folder "$scratch/program" >"$scratch/paths" 2>"$scratch/messages"
log=$scratch/edited.log
start "$log" "$scratch/made/bot-Edited.pk3" +set bot_testichat 1 \
  +map oa_dm1 +addbot Edited 4
wait_for "$log" "entered the game|$refusals" 1 20 || true
stop
check "the edited bot at skill 4" "$log" Edited 4
python3 - "$scratch/edited.json" "$log" <<'PYTHON' || fail "the edited bot"
import json
import re
import sys

with open(sys.argv[1], encoding="utf-8") as file:
    chats = json.load(file)["chats"]
with open(sys.argv[2], encoding="latin-1") as file:
    log = file.read().replace("\r", "")
wrong = []
for key, (line,) in chats.items():
    pattern = re.sub(r"\\{CURSE\\}", r"\\S.*", re.escape(line))
    pattern = pattern.replace(re.escape("{LEVELTITLE}"), "oa_dm1")
    if key != "kill_suicide" and not re.search(
            rf"^{key} has 1 chat lines\n-*\n{pattern}$", log, re.M):
        wrong.append(f"chat line of {key}: {line}")
for text in (r"n\^2Ed it^1ed\t", r"\model\biker/hossman\ ".strip()):
    if text not in log:
        wrong.append(f"not in the player's data: {text}")
print("\n".join(wrong) or "ok: its name, model and chat lines")
sys.exit(bool(wrong))
PYTHON

# The same package with one fault each: every one must be noticed.
python3 - "$package" "$scratch" <<'PYTHON'
import re
import sys
import zipfile

faults = {
    "chat_name": ("_t.c", rb'^chat ".*?"', b'chat "somebody"'),
    "open_quote": ("_t.c", rb'(type "kill_insult"\s*\{\r\n)',
                   rb'\1\t\t"never closed;\r\n'),
    "no_inventory": ("_w.c", rb'#include "inv.h"', b""),
    "no_weapons": ("_w.c", rb'#include "fw_weap.c"', b""),
    "no_items": ("_i.c", rb'"fw_items.c"', b'"fw_nothing.c"'),
    "level": ("_c.c", rb"^skill 4", b"skill 2"),
    "key_twice": ("_c.c", rb"(\tCHARACTERISTIC_ATTACK_SKILL.*\n)", rb"\1\1"),
    "aifile": (".bot", rb"^aifile.*\n", b""),
    "no_bot": (".bot", rb"^\{", b""),
}
source = zipfile.ZipFile(sys.argv[1])
for fault, (suffix, pattern, text) in faults.items():
    changed = 0
    with zipfile.ZipFile(f"{sys.argv[2]}/{fault}.pk3", "w") as package:
        for entry in source.infolist():
            data = source.read(entry)
            if entry.filename.endswith(suffix):
                data, changed = re.subn(pattern, text, data, flags=re.M)
            package.writestr(entry.filename, data)
    if not changed:
        sys.exit(f"FAIL: nothing to break for {fault}")
PYTHON
while read -r fault complaint; do
  log=$scratch/$fault.log
  play "$log" "$scratch/$fault.pk3" "$name" 3
  if [[ $(judge "$log" "$name" 1 4) == *"$complaint"* ]]; then
    echo "ok: noticed the fault $fault"
  else
    fail "a package with the fault $fault: no \"$complaint\""
  fi
done <<'FAULTS'
chat_name couldn't find chat
open_quote newline inside string
no_inventory expected a number, found INVENTORY_
no_weapons weapon number out of range
no_items file fw_nothing.c not found
level couldn't find skill 4
key_twice already initialized
aifile bot has no aifile specified
no_bot the game did not read the description file
FAULTS

if ((failures > 0)); then
  echo "$failures failure(s)"
  exit 1
fi
echo "a real game takes our bots"
