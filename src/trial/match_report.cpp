#include "trial/match_report.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "support/code_page.h"
#include "support/numbers.h"

namespace fragsmith {
namespace {

void AddTo(Counts& sums, const Counts& counts) {
  for (const auto& [name, count] : counts) sums[name] += count;
}

bool AreAlike(const MatchReport& left, const MatchReport& right) {
  const auto skill_and_name = [](const MatchBot& bot) {
    return std::pair(bot.skill, bot.name);
  };
  return left.sources == right.sources &&
         left.plan.minutes == right.plan.minutes &&
         std::equal(left.plan.bots.begin(), left.plan.bots.end(),
                    right.plan.bots.begin(), right.plan.bots.end(),
                    [&](const MatchBot& one, const MatchBot& other) {
                      return skill_and_name(one) == skill_and_name(other);
                    });
}

std::string Cell(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string cell = "\"";
  for (const char letter : text) {
    if (letter == '"') cell += '"';
    cell += letter;
  }
  return cell + '"';
}

}  // namespace

std::vector<Pairing> PairingsOf(std::size_t bots) {
  std::vector<Pairing> pairings;
  for (std::size_t bot = 0; bot < bots; ++bot) {
    for (std::size_t other = bot + 1; other < bots; ++other) {
      pairings.push_back({bot, other});
    }
  }
  return pairings;
}

BotSums SumsOf(const MatchReport& report, std::size_t bot) {
  BotSums sums;
  for (const PlayedMatch& played : report.played) {
    const PlayerRecord& player = played.Player(bot);
    sums.score += player.score;
    sums.suicides += player.suicides;
    sums.falls += player.falls;
    AddTo(sums.kills, player.kills);
    AddTo(sums.deaths, player.deaths);
    AddTo(sums.items, player.items);
    AddTo(sums.awards, player.awards);
    for (const auto& [killer, count] : player.killed_by) {
      sums.killed_by[played.record.players.at(killer).name] += count;
    }
    for (const std::string& line : player.said) ++sums.said[line];
  }
  return sums;
}

std::map<std::string, double> SecondsPerItem(const MatchReport& report,
                                             std::size_t bot) {
  double seconds = 0;
  for (const PlayedMatch& played : report.played) {
    seconds += played.record.seconds;
  }
  std::map<std::string, double> per_item;
  for (const auto& [item, count] : SumsOf(report, bot).items) {
    per_item[item] = seconds / count;
  }
  return per_item;
}

std::vector<MatchTally> TalliesOf(const MatchReport& report) {
  std::vector<MatchTally> tallies;
  tallies.reserve(report.played.size());
  for (const PlayedMatch& played : report.played) {
    tallies.push_back(TallyOf(played));
  }
  return tallies;
}

std::vector<MatchReport> Merged(std::vector<MatchReport> reports) {
  std::vector<MatchReport> merged;
  for (MatchReport& report : reports) {
    const auto same = std::find_if(
        merged.begin(), merged.end(),
        [&report](const MatchReport& one) { return AreAlike(one, report); });
    if (same == merged.end()) {
      merged.push_back(std::move(report));
      continue;
    }
    std::move(report.played.begin(), report.played.end(),
              std::back_inserter(same->played));
    for (std::string& map : report.plan.maps) {
      std::vector<std::string>& maps = same->plan.maps;
      if (std::find(maps.begin(), maps.end(), map) == maps.end()) {
        maps.push_back(std::move(map));
      }
    }
  }
  return merged;
}

std::string WriteMatchCsv(const MatchReport& report) {
  const std::vector<std::string> names = ShownNames(report.plan.bots);
  std::string csv =
      "match,map,seconds,bot,source,skill,score,kills,deaths,suicides,falls\n";
  int number = 0;
  for (const PlayedMatch& played : report.played) {
    ++number;
    for (std::size_t bot = 0; bot < names.size(); ++bot) {
      const PlayerRecord& player = played.Player(bot);
      csv += std::to_string(number) + ',' + Cell(Utf8FromGameText(played.map)) +
             ',' + std::to_string(played.record.seconds) + ',' + names[bot] +
             ',' + Cell(report.sources[bot]) + ',' +
             PlainDecimal(report.plan.bots[bot].skill, kFloatDigits);
      for (const int figure : {player.score, Sum(player.kills), player.Deaths(),
                               player.suicides, player.falls}) {
        csv += ',' + std::to_string(figure);
      }
      csv += '\n';
    }
  }
  return csv;
}

}  // namespace fragsmith
