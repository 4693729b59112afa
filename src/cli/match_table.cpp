#include "cli/match_table.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "cli/table.h"
#include "cli/terminal.h"
#include "support/code_page.h"
#include "support/numbers.h"
#include "trial/match_figures.h"
#include "trial/match_words.h"

namespace fragsmith {
namespace {

/// "12 rocket launcher, 3 railgun", the most first.
std::string ShownCounts(const Counts& counts) {
  std::vector<std::pair<int, std::string>> sorted;
  for (const auto& [name, count] : counts) sorted.emplace_back(-count, name);
  std::sort(sorted.begin(), sorted.end());
  std::string text;
  for (const auto& [count, name] : sorted) {
    if (!text.empty()) text += ", ";
    text += std::to_string(-count) + " " + name;
  }
  return text.empty() ? "nothing" : text;
}

}  // namespace

void PrintMatchTable(const MatchReport& report, std::ostream& out) {
  const MatchPlan& plan = report.plan;
  const std::vector<std::string> names = ShownNames(plan.bots);
  const std::vector<MatchTally> tallies = TalliesOf(report);
  const std::vector<BotFigures> figures = FiguresOf(tallies);
  std::string maps;
  for (const std::string& map : plan.maps) {
    maps += (maps.empty() ? "" : ", ") + map;
  }
  out << MatchesText(report.played.size()) << " of " << plan.minutes
      << (plan.minutes == 1 ? " minute on " : " minutes on ")
      << Printable(Utf8FromGameText(maps))
      << "; in brackets, where it lies at 95 %\n\n";
  std::vector<std::vector<std::string>> rows = {
      {"bot", "skill", "points", "of all points", "frags a minute",
       "deaths a minute"}};
  for (std::size_t bot = 0; bot < names.size(); ++bot) {
    rows.push_back({names[bot],
                    PlainDecimal(plan.bots[bot].skill, kFloatDigits),
                    std::to_string(SumsOf(report, bot).score),
                    ShownShare(figures[bot].share),
                    Shown(figures[bot].frags_a_minute, 1, 2, ""),
                    Shown(figures[bot].deaths_a_minute, 1, 2, "")});
  }
  PrintRows(rows, out);
  out << '\n';
  for (std::size_t bot = 0; bot < names.size(); ++bot) {
    const BotSums sums = SumsOf(report, bot);
    out << names[bot] << " killed with: " << Printable(ShownCounts(sums.kills))
        << "; killed itself " << sums.suicides << ", fell " << sums.falls
        << ".\n";
  }
  out << '\n';
  for (std::size_t pairing = 0; pairing < PairingsOf(names.size()).size();
       ++pairing) {
    const ComparisonWords words = CompareInWords(report, pairing, names);
    out << words.sentence;
    if (words.is_open) {
      out << (report.tests.empty() ? " More matches (--games) may show one."
                                   : " More matches (--games) may settle it.");
    }
    out << '\n';
  }
}

}  // namespace fragsmith
