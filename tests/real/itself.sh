#!/usr/bin/env bash
# Lets a bot play against itself in a real game, twenty times over: half of the
# points has to lie in the interval at 95 % nearly always.
#   itself.sh [FRAGSMITH_CLI]
# Exit status 77 when the game is not installed.
source "$(dirname "${BASH_SOURCE[0]}")/set_up.sh"
begin_with_a_server "$@"
"$cli" new --preset all-rounder --name Rounder \
  --program-folder "$scratch/program" >"$scratch/rounder.json"
for ((run = 0; run < 20; ++run)); do
  "$cli" match "$scratch/rounder.json" "$scratch/rounder.json" --games 4 \
    --minutes 2 --json --program-folder "$scratch/program" \
    --engine /usr/games/openarena-server >"$scratch/run-$run"
done
python3 - "$scratch"/run-* <<'PYTHON'
import json
import sys

shares = []
for path in sys.argv[1:]:
    with open(path, encoding="utf-8") as file:
        shares.append(json.load(file)["bots"][0]["share"])
for share in shares:
    print({key: round(number, 2) for key, number in share.items()})
hits = sum(share["low"] <= 0.5 <= share["high"] for share in shares)
print(hits, "of", len(shares), "intervals have the half in them")
# Fewer than 17 would come about once in sixty times with true intervals.
assert len(shares) == 20 and hits >= 17, hits
PYTHON
