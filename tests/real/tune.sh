#!/usr/bin/env bash
# Lets "fragsmith-cli tune" look for the strength of a bot in a real game, and
# plays the bot that came out once more:
#   tune.sh [FRAGSMITH_CLI]
# Exit status 77 when the game is not installed.
source "$(dirname "${BASH_SOURCE[0]}")/set_up.sh"
begin_with_a_server "$@"
"$cli" new --preset all-rounder --name Rounder \
  --program-folder "$scratch/program" >"$scratch/rounder.json"
common=(--program-folder "$scratch/program" --minutes 2
  --engine /usr/games/openarena-server)
# By itself it takes about half of the points from one like it.
wished=30 margin=9
# The game throws dice: a search in a hundred or so ends without a result.
for try in 1 2; do
  if "$cli" tune "$scratch/rounder.json" "$scratch/rounder.json" \
    --share "$wished" --margin "$margin" --games 300 "${common[@]}" \
    --output "$scratch/tuned.json" >"$scratch/told"; then
    break
  fi
  echo "search $try found nothing"
done
cat "$scratch/told"
grep -q "The bot takes $wished %, within the margin." "$scratch/told"
"$cli" match "$scratch/tuned.json" "$scratch/rounder.json" --games 16 --json \
  "${common[@]}" >"$scratch/played"
python3 - "$scratch/played" "$wished" "$margin" <<'PYTHON'
import json
import sys

with open(sys.argv[1], encoding="utf-8") as file:
    share = json.load(file)["bots"][0]["share"]
wished, margin = (int(text) / 100 for text in sys.argv[2:])
print("played again, the tuned bot takes", share)
# The interval at 95 % of the new matches has to reach what was found.
assert share["low"] < wished + margin and share["high"] > wished - margin, share
assert share["value"] < 0.5, share
PYTHON
