#include "cli/match_ladder.h"

#include <cstddef>
#include <string>
#include <utility>

#include "cli/table.h"
#include "support/numbers.h"
#include "trial/ladder.h"
#include "trial/match_words.h"

namespace fragsmith {

std::vector<MatchReport> PairsOf(const MatchReport& all) {
  std::vector<MatchReport> pairs;
  for (const auto& [bot, other] : PairingsOf(all.plan.bots.size())) {
    MatchReport pair;
    pair.plan = all.plan;
    pair.plan.bots = {all.plan.bots[bot], all.plan.bots[other]};
    pair.sources = {all.sources[bot], all.sources[other]};
    pairs.push_back(std::move(pair));
  }
  return pairs;
}

Match LadderMatch(const std::vector<MatchReport>& pairs, int number) {
  const int count = static_cast<int>(pairs.size());
  return MatchOf(pairs[static_cast<std::size_t>(number % count)].plan,
                 number / count);
}

void PrintLadder(const std::vector<MatchReport>& reports, std::ostream& out) {
  std::vector<std::vector<std::string>> rows = {
      {"bot", "skill", "rating", "matches", "points", "source"}};
  for (const LadderBot& bot : LadderOf(reports)) {
    rows.push_back({bot.name, PlainDecimal(bot.skill, kFloatDigits),
                    Shown(bot.rating, 1, 0, ""), std::to_string(bot.matches),
                    std::to_string(bot.points), bot.source});
  }
  out << "Ratings; in brackets, where each lies at 95 %\n\n";
  PrintRows(rows, out);
  out << "\n100 more are 64 % of the points of two, 200 are 76 %, 400 are "
         "91 %.\n";
}

}  // namespace fragsmith
