#include "checks/mend_all.h"

#include <algorithm>
#include <map>

#include "checks/bot_checks.h"
#include "checks/odd_values.h"

namespace fragsmith {
namespace {

/// Each check tells of so many at a time, and mends lead to other findings. Two
/// that undo each other would go on for ever.
constexpr int kMaxRounds = 50;

}  // namespace

const Mend* SafeMend(const Finding& finding) {
  const auto found = std::ranges::find_if(
      finding.mends, [](const Mend& mend) { return mend.is_safe; });
  return found == finding.mends.end() ? nullptr : &*found;
}

const Mend* FirstMend(const Finding& finding) {
  return finding.mends.empty() ? nullptr : &finding.mends.front();
}

int MendAll(Bot& bot, const GameData* game, const MendChoice& choice,
            const LoadReport& report) {
  int count = 0;
  for (const Finding& odd : OddValues(bot, report)) {
    const Mend* const mend = choice(odd);
    if (mend == nullptr) continue;
    mend->apply(bot);
    ++count;
  }
  for (int round = 0; round < kMaxRounds; ++round) {
    std::vector<Finding> findings = CheckBot(bot, game);
    TellOddValues(bot, report, findings);
    // A mend knows its place as it was at the check: a second one there would
    // take the first one back.
    std::map<BotPlace, const Mend*> mends;
    for (const Finding& finding : findings) {
      if (const Mend* const mend = choice(finding)) {
        mends.try_emplace(finding.place, mend);
      }
    }
    const Bot before = bot;
    for (const auto& [place, mend] : mends) {
      const Bot unmended = bot;
      mend->apply(bot);
      if (bot != unmended) ++count;
    }
    if (bot == before) break;
  }
  return count;
}

}  // namespace fragsmith
