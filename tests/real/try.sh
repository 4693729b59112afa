#!/usr/bin/env bash
# Lets "fragsmith-cli try" ask a real game about a good bot and bad ones:
#   try.sh [FRAGSMITH_CLI]
# Exit status 77 when the game is not installed.
source "$(dirname "${BASH_SOURCE[0]}")/set_up.sh"
begin_with_a_server "$@"
make_average_bot "$scratch/good.json"
python3 - "$scratch" <<'PYTHON'
import json
import sys

with open(sys.argv[1] + "/good.json", encoding="utf-8") as file:
    text = file.read()
quote = json.loads(text)
quote["chats"]["kill_insult"] = ['say "hi" there']
# The chat file names it without quotes, where the game wants no number.
number = json.loads(text)
number["name"] = "42"
for name, bot in ("quote", quote), ("number", number):
    with open(f"{sys.argv[1]}/{name}.json", "w", encoding="utf-8") as file:
        json.dump(bot, file)
PYTHON

failures=0
# expect STATUS PATTERN ARGUMENT...: the exit status, and a line of the output.
expect() {
  local status=$1 pattern=$2 got=0
  shift 2
  "$cli" try "$@" --program-folder "$scratch/program" >"$scratch/out" 2>&1 ||
    got=$?
  if ((got == status)) && grep -qE -e "$pattern" "$scratch/out"; then
    echo "ok: $status, $pattern"
  else
    echo "FAIL: try $*: exit status $got in place of $status, or no $pattern"
    cat "$scratch/out"
    failures=$((failures + 1))
  fi
}

server=(--engine /usr/lib/ioquake3/ioq3ded --data /usr/lib/openarena-server)
for skill in 1 2 4 5; do
  expect 0 '^Rookie entered the game\.$' "$scratch/good.json" "${server[@]}" \
    --skill "$skill"
done
expect 0 '^Rookie entered the game\.$' "$scratch/good.json" \
  --engine /usr/games/openarena-server --opponent gargoyle --opponent sarge
expect 1 'does not add the bot' "$scratch/quote.json" "${server[@]}" \
  --opponent gargoyle
expect 1 'The game did not add 42' "$scratch/number.json" "${server[@]}"
expect 1 'no map of this name' "$scratch/good.json" "${server[@]}" --map nosuch
expect 1 'The engine ended' "$scratch/good.json" "${server[@]}" --game nosuch \
  --seconds 20
expect 2 'does not exist' "$scratch/good.json" --engine "$scratch/none"

left=$(find "$scratch/tmp" "$scratch/home" -mindepth 1)
if [[ -n $left ]]; then
  echo "FAIL: left behind: $left"
  failures=$((failures + 1))
fi
if ((failures > 0)); then
  echo "$failures failure(s)"
  exit 1
fi
echo "a real game says what it makes of our bots"
